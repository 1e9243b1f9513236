#include "toolKinds.h"

#include "textCodec.h"

#include <algorithm>
#include <array>
#include <string>

namespace orvex {

namespace {

using Picks = ToolKind::Picks;
using Refuses = ToolKind::Refuses;

constexpr std::array<ToolKind, 12> kKinds{{
    {L"CC", Picks::twoMultilines, Refuses::none, true, false},
    {L"OC", Picks::twoMultilines, Refuses::none, true, false},
    {L"MC", Picks::twoMultilines, Refuses::none, true, false},
    {L"CT", Picks::twoMultilines, Refuses::closedFirst, true, false},
    {L"OT", Picks::twoMultilines, Refuses::closedFirst, true, false},
    {L"MT", Picks::twoMultilines, Refuses::closedFirst, true, false},
    {L"CJ", Picks::twoMultilines, Refuses::closedBoth, false, false},
    {L"AV", Picks::one, Refuses::none, false, false},
    {L"DV", Picks::one, Refuses::none, false, false},
    {L"CS", Picks::twoOnOne, Refuses::none, false, false},
    {L"CA", Picks::twoOnOne, Refuses::none, false, false},
    {L"WA", Picks::twoOnOne, Refuses::none, false, true},
}};

} // namespace

std::span<const ToolKind> toolKinds() {
    return kKinds;
}

const ToolKind* findToolKind(std::wstring_view keyword) {
    const std::wstring folded = foldCase(keyword);
    const auto* const found = std::find_if(
        kKinds.begin(), kKinds.end(), [&](const ToolKind& kind) { return folded == kind.keyword; });
    return found != kKinds.end() ? found : nullptr;
}

} // namespace orvex
