#pragma once

#include "windowRecords.h"

class CSize : public tagSIZE {
public:
    CSize() = default;
    CSize(int width, int height) : tagSIZE{width, height} {}
    CSize(const tagSIZE& size) : tagSIZE(size) {}
};
