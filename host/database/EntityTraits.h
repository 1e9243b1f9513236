#pragma once

#include "KdCmColor.h"

#include <memory>
#include <string>

namespace orvex {

// Line weights are hundredths of millimetres on paper, or one of these.
enum Lineweight : int {
    kLineweightByLayer = -1,
    kLineweightByBlock = -2,
    kLineweightDefault = -3,
};

// What all entities have. Most entities of a drawing share a few such values.
struct EntityTraits {
    std::wstring layer = L"0";
    std::wstring linetype = L"ByLayer";
    KdCmColor color;
    double linetypeScale = 1.0;
    int lineweight = kLineweightByLayer;
    bool visible = true;
    bool inPaperSpace = false;

    friend bool operator==(const EntityTraits&, const EntityTraits&) = default;
};

// As operator==, but -0.0 differs from 0.0.
[[nodiscard]] bool sameTraits(const EntityTraits& a, const EntityTraits& b);

// One common copy for entities alike, as far as such a copy is remembered; never null.
[[nodiscard]] std::shared_ptr<const EntityTraits> shareTraits(const EntityTraits& traits);

} // namespace orvex
