#include "variableTable.h"

#include "textCodec.h"

#include <array>
#include <limits>

namespace orvex {

namespace {

constexpr double kHuge = std::numeric_limits<double>::infinity();

constexpr VariableRow header(std::string_view name, ResultType type, double low = -kHuge,
                             double high = kHuge) {
    return {name, type, VariableHome::header, low, high};
}
constexpr VariableRow headerName(std::string_view name, NamedThing named) {
    return {name, kResultText, VariableHome::header, 0.0, 0.0, named};
}
constexpr VariableRow session(std::string_view name, double low, double high) {
    return {name, kResultShort, VariableHome::session, low, high};
}
constexpr VariableRow inHome(std::string_view name, ResultType type, VariableHome home) {
    return {name, type, home, 0.0, kHuge};
}
// The view is always a plan of the world in model space.
constexpr VariableRow fixed(std::string_view name, ResultType type, double x, double y = 0.0,
                            double z = 0.0) {
    return {name, type, VariableHome::fixed, -kHuge, kHuge, NamedThing::any, {x, y, z}};
}

constexpr std::array kTable = {
    header("CECOLOR", kResultShort, 0, 256),
    headerName("CELTYPE", NamedThing::linetype),
    headerName("CLAYER", NamedThing::layer),
    header("CMLJUST", kResultShort, 0, 2),
    header("CMLSCALE", kResultReal),
    headerName("CMLSTYLE", NamedThing::style),
    fixed("CVPORT", kResultShort, 2),
    session("DIMZIN", 0, 15),
    session("ERRNO", 0, 32767),
    header("EXTMAX", kResultPoint),
    header("EXTMIN", kResultPoint),
    inHome("LASTPOINT", kResultPoint, VariableHome::lastPoint),
    header("LTSCALE", kResultReal, 0.0),
    header("MEASUREMENT", kResultShort, 0, 1),
    session("PICKBOX", 0, 32767),
    fixed("TILEMODE", kResultShort, 1),
    header("UCSORG", kResultPoint),
    header("UCSXDIR", kResultPoint),
    header("UCSYDIR", kResultPoint),
    inHome("VIEWCTR", kResultPoint, VariableHome::viewCenter),
    fixed("VIEWDIR", kResultPoint, 0, 0, 1),
    fixed("VIEWMODE", kResultShort, 0),
    inHome("VIEWSIZE", kResultReal, VariableHome::viewHeight),
    fixed("VIEWTWIST", kResultReal, 0),
};

} // namespace

std::span<const VariableRow> variableTable() {
    return kTable;
}

const VariableRow* findVariable(std::wstring_view name) {
    const std::wstring folded = foldCase(name);
    for (const VariableRow& row : kTable) {
        if (folded == widen(row.name)) {
            return &row;
        }
    }
    return nullptr;
}

} // namespace orvex
