#pragma once

#include "KdCmColor.h"

#include <string>
#include <vector>

class KdDbDatabase;
class KdDbMlineStyle;

namespace mledit {

// A style's elements as the modify dialog lists them.
struct ElementRow {
    std::wstring offset;   // drawing units at scale 1
    std::wstring linetype; // local name
    KdCmColor color;
};

// The offset field where no row is selected.
inline constexpr const wchar_t* kNoOffset = L"0.000";

// In the style's order, offsets with one decimal at most. The style is open.
std::vector<ElementRow> elementRows(const KdDbMlineStyle& style);

// Local name of by layer and by block; else the colour's name for display.
std::wstring shownColor(const KdCmColor& color);

std::wstring localByLayer();

// Makes the rows the style's elements, in their order. Of the line types by layer, by block and
// Continuous are kept; any other becomes Continuous. Of a colour the index is kept and a name
// from a colour book, as SetElemName does it; true colours aren't. The style is open for write, or
// in no database; line types are those of `database`, null leaves them out.
void setElementRows(KdDbMlineStyle& style, const std::vector<ElementRow>& rows,
                    KdDbDatabase* database);

} // namespace mledit
