#include "joinPictures.h"

#include <array>
#include <cstddef>

namespace orvex {

namespace {

// In the order of JoinKind.
constexpr std::array kCrosses{
    "M 2 7 L 22 7 M 2 12 L 22 12 M 2 17 L 22 17 M 7 2 L 7 7 M 7 17 L 7 22 M 12 2 L 12 "
    "7 M 12 17 L 12 22 M 17 2 L 17 7 M 17 17 L 17 22",
    "M 7 2 L 7 7 L 2 7 M 17 2 L 17 7 L 22 7 M 7 22 L 7 17 L 2 17 M 17 22 L 17 17 L 22 "
    "17 M 2 12 L 22 12 M 12 2 L 12 7 M 12 17 L 12 22",
    "M 7 2 L 7 7 L 2 7 M 17 2 L 17 7 L 22 7 M 7 22 L 7 17 L 2 17 M 17 22 L 17 17 L 22 "
    "17 M 2 12 L 22 12 M 12 2 L 12 22",
    "M 2 7 L 22 7 M 2 12 L 22 12 M 2 17 L 22 17 M 7 2 L 7 22 M 12 2 L 12 22 M 17 2 L "
    "17 22"};
constexpr std::array kTees{
    "M 2 3 L 22 3 M 2 8 L 22 8 M 2 13 L 22 13 M 7 13 L 7 22 M 12 13 L 12 22 M 17 13 L "
    "17 22",
    "M 2 3 L 22 3 M 2 8 L 22 8 M 2 13 L 7 13 L 7 22 M 22 13 L 17 13 L 17 22 M 12 13 L "
    "12 22",
    "M 2 3 L 22 3 M 2 8 L 22 8 M 2 13 L 7 13 L 7 22 M 22 13 L 17 13 L 17 22 M 12 8 L "
    "12 22",
    "M 2 3 L 22 3 M 2 8 L 22 8 M 2 13 L 22 13 M 7 10 L 7 22 M 12 10 L 12 22 M 17 10 L "
    "17 22"};

} // namespace

const char* crossPicture(JoinKind kind) {
    return kCrosses[static_cast<std::size_t>(kind)];
}

const char* teePicture(JoinKind kind) {
    return kTees[static_cast<std::size_t>(kind)];
}

} // namespace orvex
