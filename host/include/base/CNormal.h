#pragma once

#include "C3Point.h"

// The normal of a plane; without one given, that of the plan.
class CNormal : public C3Point {
public:
    explicit CNormal(const C3Point* direction)
        : C3Point(direction != nullptr ? *direction : C3Point(0.0, 0.0, 1.0)) {}
};
