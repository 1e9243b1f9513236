#include "labelBox.h"

#include <cmath>

namespace orvex {

namespace {

// Of a capital's height: a usual letter's width, one of the broad scripts, what hangs below.
constexpr double kLetter = 0.85;
constexpr double kBroadLetter = 1.4;
constexpr double kDescent = 0.3;
constexpr wchar_t kFirstBroad = 0x1100;

} // namespace

double baseLineRise(const Label& label) {
    switch (label.vertical) {
    case 1:
        return kDescent * label.height;
    case 2:
        return -label.height / 2.0;
    case 3:
        return -label.height;
    default:
        return 0.0;
    }
}

double labelWidth(const Label& label) {
    double width = 0.0;
    for (const wchar_t letter : label.text) {
        width += (letter < kFirstBroad ? kLetter : kBroadLetter) * label.height;
    }
    return width;
}

PlanBox labelBox(const Label& label) {
    const double width = labelWidth(label);
    const double left = -width * label.horizontal / 2.0;
    const double baseLine = baseLineRise(label);
    const double cosine = std::cos(label.angle);
    const double sine = std::sin(label.angle);
    PlanBox box;
    for (const double x : {left, left + width}) {
        for (const double y : {baseLine - kDescent * label.height, baseLine + label.height}) {
            const PlanPoint corner{label.anchor.x + x * cosine - y * sine,
                                   label.anchor.y + x * sine + y * cosine};
            box.include(corner);
        }
    }
    return box;
}

} // namespace orvex
