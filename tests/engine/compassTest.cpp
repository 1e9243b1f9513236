#include "CMlineEdit.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

TEST(Compass, SortsPlacesIntoEightDirections) {
    const double from[3] = {5, 5, 0};
    struct {
        double to[3];
        int code;
    } const cases[] = {
        {{9, 5, 0}, 1},          {{9, 9, 0}, 2},
        {{5, 9, 0}, 3},          {{1, 9, 0}, 4},
        {{5, 5, 77}, 0},         {{1, 5, 0}, -1},
        {{1, 1, 0}, -2},         {{5, 1, 0}, -3},
        {{9, 1, 0}, -4},         {{5 + 1e-11, 10, 0}, 3},
        {{5 - 1e-11, 0, 0}, -3}, {{5 + 2e-10, 10, 0}, 2},
        {{10, 5 - 1e-11, 0}, 1}, {{5 + 1e-11, 5 - 1e-11, 0}, 0},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(CMlineEdit::PositionConnection(from, c.to), c.code) << c.to[0] << " " << c.to[1];
        EXPECT_EQ(CMlineEdit::PositionConnection(c.to, from), -c.code) << c.to[0] << " " << c.to[1];
    }
}

TEST(Compass, HasNoDirectionForANaN) {
    const double from[3] = {5, 5, 0};
    const double nowhere[3] = {std::numeric_limits<double>::quiet_NaN(), 9, 0};
    EXPECT_EQ(CMlineEdit::PositionConnection(from, nowhere), -5001);
    EXPECT_EQ(CMlineEdit::PositionConnection(nowhere, from), -5001);
}

} // namespace
