#pragma once

#include "KdCmColor.h"
#include "KdDbObjectId.h"
#include "ObjectContent.h"

#include <string>
#include <vector>

namespace orvex {

struct StyleElement {
    double offset = 0.0; // drawing units at scale 1
    KdCmColor color;
    KdDbObjectId linetype;     // null when the drawing has no such line type
    std::wstring linetypeName; // as the file has it; matters only where `linetype` is null

    friend bool operator==(const StyleElement&, const StyleElement&) = default;
};

enum MlineStyleFlag : int {
    kStyleFilled = 1,
    kStyleMiters = 2,
    kStyleStartLine = 16,
    kStyleStartArcs = 32,
    kStyleStartRound = 64,
    kStyleEndLine = 256,
    kStyleEndArcs = 512,
    kStyleEndRound = 1024,
};

// A multiline style. Angles in radians.
struct MlineStyleContent final : ObjectContent {
    std::wstring name;
    std::wstring description;
    int flags = 0; // of MlineStyleFlag
    KdCmColor fillColor;
    double startAngle = 1.5707963267948966;
    double endAngle = 1.5707963267948966;
    std::vector<StyleElement> elements;

    [[nodiscard]] bool equals(const ObjectContent& other) const override;
    [[nodiscard]] std::size_t memoryUse() const override;
};

} // namespace orvex
