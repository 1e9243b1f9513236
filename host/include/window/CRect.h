#pragma once

#include "CSize.h"
#include "windowRecords.h"

class CRect : public tagRECT {
public:
    CRect() = default;
    CRect(int l, int t, int r, int b) {
        left = l;
        top = t;
        right = r;
        bottom = b;
    }
    CRect(const tagRECT& rect) : tagRECT(rect) {}

    void SetRect(int l, int t, int r, int b) { *this = CRect(l, t, r, b); }

    // Of a rectangle wider or higher than the numbers reach: the limit of int.
    [[nodiscard]] int Width() const;
    [[nodiscard]] int Height() const;
    [[nodiscard]] CSize Size() const { return {Width(), Height()}; }

    friend bool operator==(const CRect& a, const CRect& b) {
        return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
    }
};
