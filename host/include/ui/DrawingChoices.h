#pragma once

#include "KdCmColor.h"

#include <optional>
#include <string>
#include <vector>

namespace orvex {

struct LinetypeChoice {
    std::wstring name;
    // Drawing units along the line: positive pen down, negative pen up, 0 a dot; empty:
    // continuous.
    std::vector<double> dashes;
};

// What the combo boxes of colours and line types offer of the open drawing. This library knows no
// drawing: the program hands it in.
class DrawingChoices {
public:
    virtual ~DrawingChoices() = default;

    // The local names of the reserved ones.
    [[nodiscard]] virtual std::wstring byLayerName() const { return L"ByLayer"; }
    [[nodiscard]] virtual std::wstring byBlockName() const { return L"ByBlock"; }
    [[nodiscard]] virtual std::wstring continuousName() const { return L"Continuous"; }

    // All records of the line type table, in its order. Those called ByLayer, ByBlock or Continuous
    // in any case are passed over: they stand under their local names.
    [[nodiscard]] virtual std::vector<LinetypeChoice> linetypes() const { return {}; }

    // Lets the user choose a colour, from `before`; nothing when it was cancelled. Here: Qt's
    // dialog, in which a colour that is one of the palette gives its index.
    [[nodiscard]] virtual std::optional<KdCmColor> askColor(const KdCmColor& before) const;
};

// Gives the process another source (null: reserved names only) and returns the one before, null for
// none. Not owned.
DrawingChoices* setDrawingChoices(DrawingChoices* choices);

// The source in use, never null.
DrawingChoices* drawingChoices();

} // namespace orvex
