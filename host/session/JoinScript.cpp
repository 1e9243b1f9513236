#include "JoinScript.h"

#include "handleText.h"
#include "hostText.h"
#include "userFrame.h"

#include <array>
#include <charconv>
#include <cmath>

namespace orvex {

namespace {

std::string numberText(double value) {
    std::array<char, 32> digits{};
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), value);
    return {digits.data(), result.ptr};
}

std::string pointText(const KdGePoint3d& world) {
    const KdGePoint3d user = worldToUser(world);
    const std::string plan = numberText(user.x) + ',' + numberText(user.y);
    return user.z == 0.0 ? plan : plan + ',' + numberText(user.z);
}

// As picks name an entity.
std::string entityText(std::uint64_t handle) {
    return '#' + handleText(handle);
}

// For people: what rounding leaves in the last digits says nothing.
std::string placeText(const PlanVector& place) {
    const auto rounded = [](double value) {
        constexpr double kDigits = 1e6;
        return std::abs(value) < 1e9 ? std::round(value * kDigits) / kDigits + 0.0 : value;
    };
    return numberText(rounded(place.x)) + ',' + numberText(rounded(place.y));
}

} // namespace

void JoinScript::line(const std::string& text) {
    m_text += text;
    m_text += '\n';
}

void JoinScript::pick(const KdGePoint3d& point, std::uint64_t handle) {
    line(pointText(point) + ' ' + entityText(handle));
}

void JoinScript::point(const KdGePoint3d& point) {
    line(pointText(point));
}

void JoinScript::number(double value) {
    line(numberText(value));
}

void JoinScript::handle(std::uint64_t handle) {
    line(entityText(handle));
}

void JoinScript::view(const KdGePoint3d& center, double height) {
    line("ZOOM");
    line("C");
    point(center);
    number(height);
}

void JoinScript::pickBox(int pixels) {
    line("SETVAR");
    line("PICKBOX");
    line(std::to_string(pixels));
}

void JoinScript::moveEnd(const KdGePoint3d& at, std::uint64_t entity, const KdGePoint3d& to) {
    line("MLEND");
    pick(at, entity);
    point(to);
}

void JoinScript::tool(std::string_view keyword, const KdGePoint3d& first, std::uint64_t firstHandle,
                      const KdGePoint3d& second, std::uint64_t secondHandle) {
    line("-MLEDIT");
    line(std::string(keyword));
    pick(first, firstHandle);
    pick(second, secondHandle);
    endCommand();
}

void JoinScript::layRight(std::uint64_t entity) {
    line("MLLAY");
    handle(entity);
    endCommand();
}

void JoinScript::stops(std::uint64_t entity, unsigned segment, unsigned element,
                       std::span<const double> distances) {
    line("MLSTOPS");
    handle(entity);
    line(std::to_string(segment));
    line(std::to_string(element));
    for (const double distance : distances) {
        number(distance);
    }
    endCommand();
}

namespace {

// As codes have them, in the order of PlaceKind and PlaceResult.
constexpr std::array kKindNames{markedText("cross"), markedText("tee"), markedText("corner"),
                                markedText("node"), markedText("overlap")};
constexpr std::array kResultNames{markedText("planned"), markedText("joined"),
                                  markedText("already"), markedText("left"), markedText("unasked")};

} // namespace

std::string joinPlaceTitle(const JoinPlace& place, std::span<const JoinWall> walls) {
    std::string text =
        hostText("%1 at %2 of",
                 {hostText(kKindNames[static_cast<std::size_t>(place.kind)]), placeText(place.at)});
    for (const unsigned wall : place.walls) {
        text += ' ' + entityText(walls[wall].handle());
    }
    return text;
}

std::string joinPlaceText(const JoinPlace& place, std::span<const JoinWall> walls) {
    std::string text = joinPlaceTitle(place, walls) + ": ";
    text += hostText(kResultNames[static_cast<std::size_t>(place.result)]);
    if (place.result == PlaceResult::left) {
        text += ", " + joinReasonText(place, walls);
    }
    return text;
}

} // namespace orvex
