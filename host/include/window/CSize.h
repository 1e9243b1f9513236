#pragma once

#include "windowRecords.h"

class CSize : public tagSIZE {
public:
    CSize() = default;
    CSize(int width, int height) {
        cx = width;
        cy = height;
    }
    CSize(const tagSIZE& size) : tagSIZE(size) {}
};
