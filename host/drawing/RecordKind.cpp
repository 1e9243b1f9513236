#include "RecordKind.h"

#include <algorithm>
#include <array>

namespace orvex {

namespace {

struct NamedKind {
    std::string_view name;
    RecordKind kind;
};

constexpr std::array kKinds{
    NamedKind{"ARC", RecordKind::arc},
    NamedKind{"ATTRIB", RecordKind::attribute},
    NamedKind{"BLOCK", RecordKind::block},
    NamedKind{"BLOCK_RECORD", RecordKind::blockRecord},
    NamedKind{"CIRCLE", RecordKind::circle},
    NamedKind{"DICTIONARY", RecordKind::dictionary},
    NamedKind{"DIMSTYLE", RecordKind::dimStyle},
    NamedKind{"ELLIPSE", RecordKind::ellipse},
    NamedKind{"ENDBLK", RecordKind::endBlock},
    NamedKind{"ENDSEC", RecordKind::endSection},
    NamedKind{"ENDTAB", RecordKind::endTable},
    NamedKind{"EOF", RecordKind::endOfFile},
    NamedKind{"GROUP", RecordKind::group},
    NamedKind{"HATCH", RecordKind::hatch},
    NamedKind{"INSERT", RecordKind::insert},
    NamedKind{"LAYER", RecordKind::layer},
    NamedKind{"LINE", RecordKind::line},
    NamedKind{"LTYPE", RecordKind::linetype},
    NamedKind{"LWPOLYLINE", RecordKind::lwPolyline},
    NamedKind{"MLINE", RecordKind::mline},
    NamedKind{"MLINESTYLE", RecordKind::mlineStyle},
    NamedKind{"MTEXT", RecordKind::mtext},
    NamedKind{"POINT", RecordKind::point},
    NamedKind{"POLYLINE", RecordKind::polyline},
    NamedKind{"SECTION", RecordKind::section},
    NamedKind{"SEQEND", RecordKind::endSequence},
    NamedKind{"SOLID", RecordKind::solid},
    NamedKind{"SORTENTSTABLE", RecordKind::sortTable},
    NamedKind{"TABLE", RecordKind::table},
    NamedKind{"TEXT", RecordKind::text},
    NamedKind{"TRACE", RecordKind::solid},
    NamedKind{"VERTEX", RecordKind::vertex},
};
static_assert(std::ranges::is_sorted(kKinds, {}, &NamedKind::name));

} // namespace

RecordKind recordKind(std::string_view name) {
    const auto* const found = std::ranges::lower_bound(kKinds, name, {}, &NamedKind::name);
    return found != kKinds.end() && found->name == name ? found->kind : RecordKind::other;
}

} // namespace orvex
