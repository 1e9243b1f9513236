#include "refusalText.h"

#include "EntityReader.h"
#include "KdDbStub.h"
#include "hostText.h"

#include <array>
#include <cmath>
#include <numbers>

namespace orvex {

namespace {

struct RefusalRow {
    PickRefusal reason;
    const char* text; // %1 is what was picked
    const char* remedy;
};

constexpr std::array kRows = std::to_array<RefusalRow>({
    {PickRefusal::nothingHere, markedText("nothing here"),
     markedText("pick on a line of a multiline")},
    {PickRefusal::lockedLayer, markedText("on a locked layer"),
     markedText("unlock the layer first")},
    {PickRefusal::noMultiline, markedText("%1 is no multiline"),
     markedText("pick on a line of a multiline")},
    {PickRefusal::closedMultiline, markedText("a closed multiline can't be used here"),
     markedText("pick an open one")},
    {PickRefusal::sameMultiline, markedText("this is the same multiline"),
     markedText("pick two that cross")},
    {PickRefusal::otherMultiline, markedText("this is another multiline"),
     markedText("both picks have to lie on the first one")},
    {PickRefusal::noCrossing, markedText("these two don't cross where they were picked"),
     markedText("pick where their chains meet")},
    {PickRefusal::noMatch, markedText("no line is matched here, an earlier pick would be used"),
     markedText("pick further from the multiline's end")},
    {PickRefusal::nothingChanged, markedText("nothing changed"), ""},
});

const RefusalRow& rowOf(PickRefusal reason) {
    for (const RefusalRow& row : kRows) {
        if (row.reason == reason) {
            return row;
        }
    }
    return kRows.back();
}

struct Noun {
    const char* operator()(const LineShape& /*line*/) const { return markedText("a line"); }
    const char* operator()(const PolylineShape& /*polyline*/) const {
        return markedText("a polyline");
    }
    const char* operator()(const TextShape& /*text*/) const { return markedText("a text"); }
    const char* operator()(const InsertShape& /*insert*/) const { return markedText("a block"); }
    const char* operator()(const SolidShape& /*solid*/) const { return markedText("a solid"); }
    const char* operator()(const OutlinesShape& /*outlines*/) const {
        return markedText("a hatch");
    }
    const char* operator()(const PointShape& /*point*/) const { return markedText("a point"); }
    const char* operator()(const NoShape& /*none*/) const { return markedText("this"); }
    const char* operator()(const ConicShape& conic) const {
        constexpr double kSameShare = 1e-9;
        const double major = conic.major.length();
        if (std::abs(major - conic.minor.length()) > kSameShare * major) {
            return markedText("an ellipse");
        }
        const bool isWhole = conic.end - conic.start >= 2.0 * std::numbers::pi - kSameShare;
        return isWhole ? markedText("a circle") : markedText("an arc");
    }
};

std::wstring nounOf(const KdDbStub* entity) {
    const auto reading = entity != nullptr ? readEntity(*entity) : std::nullopt;
    const auto* const shape = reading ? std::get_if<EntityShape>(&reading->geometry) : nullptr;
    return wideHostText(shape != nullptr ? std::visit(Noun(), *shape) : markedText("this"));
}

} // namespace

std::wstring refusalText(PickRefusal reason, const KdDbStub* entity) {
    const char* const text = rowOf(reason).text;
    return reason == PickRefusal::noMultiline ? wideHostText(text, {nounOf(entity)})
                                              : wideHostText(text);
}

std::wstring refusalRemedy(PickRefusal reason) {
    const char* const remedy = rowOf(reason).remedy;
    return *remedy == '\0' ? std::wstring() : wideHostText(remedy);
}

} // namespace orvex
