#include "refusalText.h"

#include "EntityReader.h"
#include "KdDbStub.h"

#include <array>
#include <cmath>
#include <numbers>

namespace orvex {

namespace {

struct RefusalRow {
    PickRefusal reason;
    const wchar_t* text;
    const wchar_t* remedy;
};

constexpr std::array kRows = std::to_array<RefusalRow>({
    {PickRefusal::nothingHere, L"nothing here", L"pick on a line of a multiline"},
    {PickRefusal::lockedLayer, L"on a locked layer", L"unlock the layer first"},
    {PickRefusal::noMultiline, L" is no multiline", L"pick on a line of a multiline"},
    {PickRefusal::closedMultiline, L"a closed multiline can't be used here", L"pick an open one"},
    {PickRefusal::sameMultiline, L"this is the same multiline", L"pick two that cross"},
    {PickRefusal::otherMultiline, L"this is another multiline",
     L"both picks have to lie on the first one"},
    {PickRefusal::noCrossing, L"these two don't cross where they were picked",
     L"pick where their chains meet"},
    {PickRefusal::noMatch, L"no line is matched here, an earlier pick would be used",
     L"pick further from the multiline's end"},
    {PickRefusal::nothingChanged, L"nothing changed", L""},
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
    const wchar_t* operator()(const LineShape& /*line*/) const { return L"a line"; }
    const wchar_t* operator()(const PolylineShape& /*polyline*/) const { return L"a polyline"; }
    const wchar_t* operator()(const TextShape& /*text*/) const { return L"a text"; }
    const wchar_t* operator()(const InsertShape& /*insert*/) const { return L"a block"; }
    const wchar_t* operator()(const SolidShape& /*solid*/) const { return L"a solid"; }
    const wchar_t* operator()(const OutlinesShape& /*outlines*/) const { return L"a hatch"; }
    const wchar_t* operator()(const PointShape& /*point*/) const { return L"a point"; }
    const wchar_t* operator()(const NoShape& /*none*/) const { return L"this"; }
    const wchar_t* operator()(const ConicShape& conic) const {
        constexpr double kSameShare = 1e-9;
        const double major = conic.major.length();
        if (std::abs(major - conic.minor.length()) > kSameShare * major) {
            return L"an ellipse";
        }
        const bool isWhole = conic.end - conic.start >= 2.0 * std::numbers::pi - kSameShare;
        return isWhole ? L"a circle" : L"an arc";
    }
};

std::wstring nounOf(const KdDbStub* entity) {
    const auto reading = entity != nullptr ? readEntity(*entity) : std::nullopt;
    const auto* const shape = reading ? std::get_if<EntityShape>(&reading->geometry) : nullptr;
    return shape != nullptr ? std::visit(Noun(), *shape) : L"this";
}

} // namespace

std::wstring refusalText(PickRefusal reason, const KdDbStub* entity) {
    const wchar_t* const text = rowOf(reason).text;
    return reason == PickRefusal::noMultiline ? nounOf(entity) + text : text;
}

std::wstring refusalRemedy(PickRefusal reason) {
    return rowOf(reason).remedy;
}

} // namespace orvex
