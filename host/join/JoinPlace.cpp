#include "JoinPlace.h"

#include "handleText.h"
#include "hostText.h"

#include <array>
#include <charconv>

namespace orvex {

namespace {

struct ReasonWords {
    JoinReason reason;
    std::string_view code;
    const char* text; // {has}, {needs}, {others}, {count} stand for the place's numbers
};

constexpr std::array kReasons{
    ReasonWords{JoinReason::node, "node", markedText("{count} walls meet here")},
    ReasonWords{JoinReason::alongside, "alongside", markedText("the walls run along each other")},
    ReasonWords{JoinReason::duplicate, "duplicate", markedText("the same wall stands here twice")},
    ReasonWords{JoinReason::normal, "normal", markedText("a wall's normal isn't +z")},
    ReasonWords{JoinReason::plane, "plane", markedText("the walls lie {has} apart in height")},
    ReasonWords{JoinReason::gap, "gap", markedText("a gap leaves no line to pick")},
    ReasonWords{JoinReason::noPick, "no-pick",
                markedText("a pick here would find another line of its wall")},
    ReasonWords{JoinReason::style, "style", markedText("a wall's style isn't in the drawing")},
    ReasonWords{JoinReason::outerElements, "outer-elements",
                markedText("a wall's first and last element coincide or aren't the outermost")},
    ReasonWords{JoinReason::singleElement, "single-element",
                markedText("a wall has one element only")},
    ReasonWords{
        JoinReason::tooFlat, "too-flat",
        markedText("nearly in one line: the corner would reach {has}, {needs} at most is allowed")},
    ReasonWords{JoinReason::tooAcute, "too-acute",
                markedText("too acute: the corner would reach {has}, {needs} at most is allowed")},
    ReasonWords{JoinReason::shortLeg, "short-leg",
                markedText("a leg of {has} is too short for the joint, which needs {needs}")},
    ReasonWords{JoinReason::reach, "reach",
                markedText("the joint reaches into the one of {others}")},
    ReasonWords{JoinReason::bend, "bend", markedText("the place lies on a bend")},
    ReasonWords{JoinReason::bothEnds, "both-ends",
                markedText("both ends of a wall lie at the place")},
    ReasonWords{JoinReason::severalBars, "several-bars",
                markedText("an end reaches several walls: {others}")},
    ReasonWords{JoinReason::axis, "axis", markedText("the chains don't cross where the walls do")},
    ReasonWords{JoinReason::closing, "closing",
                markedText("the closing segment of a ring can't be cut here")},
    ReasonWords{JoinReason::refused, "refused", markedText("the tool found nothing to join")},
    ReasonWords{JoinReason::notRight, "not-right",
                markedText("the joint came out wrong and was taken back")},
};

template <std::size_t... I>
constexpr auto reasonsOnly(std::index_sequence<I...>) {
    return std::array{kReasons[I].reason...};
}

std::string number(double value) {
    std::array<char, 32> text{};
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general, 6);
    return {text.data(), end.ptr};
}

std::string handleList(std::span<const unsigned> indices, std::span<const JoinWall> walls) {
    std::string list;
    for (const unsigned wall : indices) {
        list += (list.empty() ? "" : ", ") + handleText(walls[wall].handle());
    }
    return list;
}

void replace(std::string& text, std::string_view word, const std::string& by) {
    if (const auto at = text.find(word); at != std::string::npos) {
        text.replace(at, word.size(), by);
    }
}

} // namespace

std::string_view placeKindWord(PlaceKind kind) {
    constexpr std::array<std::string_view, 5> words{"cross", "tee", "corner", "node", "overlap"};
    return words[static_cast<std::size_t>(kind)];
}

std::string_view placeResultWord(PlaceResult result) {
    constexpr std::array<std::string_view, 5> words{"planned", "joined", "already", "left",
                                                    "unasked"};
    return words[static_cast<std::size_t>(result)];
}

std::string_view joinReasonCode(JoinReason reason) {
    return reason == JoinReason::none ? "" : kReasons[static_cast<std::size_t>(reason) - 1].code;
}

std::span<const JoinReason> joinReasons() {
    static constexpr auto reasons = reasonsOnly(std::make_index_sequence<kReasons.size()>{});
    return reasons;
}

std::string joinReasonText(const JoinPlace& place, std::span<const JoinWall> walls) {
    if (place.reason == JoinReason::none) {
        return {};
    }
    std::string text = hostText(kReasons[static_cast<std::size_t>(place.reason) - 1].text);
    replace(text, "{has}", number(place.has));
    replace(text, "{needs}", number(place.needs));
    replace(text, "{others}", handleList(place.others, walls));
    replace(text, "{count}", std::to_string(place.walls.size()));
    return text;
}

} // namespace orvex
