#include "coordinateFrames.h"

#include "DatabaseCore.h"
#include "PromptFixture.h"
#include "promptStatus.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>

namespace {

using Triple = std::array<double, 3>;

resbuf frame(short number) {
    resbuf result;
    result.restype = kResultShort;
    result.resval.rint = number;
    return result;
}
resbuf plane(double x, double y, double z) {
    resbuf result;
    result.restype = kResultPoint;
    result.resval.rpoint[0] = x;
    result.resval.rpoint[1] = y;
    result.resval.rpoint[2] = z;
    return result;
}

class Frames : public PromptFixture {
protected:
    static Triple convert(const Triple& point, const resbuf& from, const resbuf& to,
                          int displacement = 0) {
        Triple out{77, 77, 77};
        EXPECT_EQ(kdedTrans(point.data(), &from, &to, displacement, out.data()), kPromptNormal);
        return out;
    }
    static void expectNear(const Triple& a, const Triple& b) {
        for (std::size_t i = 0; i < 3; ++i) {
            EXPECT_NEAR(a[i], b[i], 1e-12);
        }
    }
    // Origin at (10, 20, 0), X to the north, Y to the west.
    void turnUserSystem() {
        orvex::DatabaseCore& core = m_database.core();
        core.setVariable("UCSORG", KdGePoint3d{10, 20, 0});
        core.setVariable("UCSXDIR", KdGePoint3d{0, 1, 0});
        core.setVariable("UCSYDIR", KdGePoint3d{-1, 0, 0});
    }
    const resbuf m_world = frame(0);
    const resbuf m_user = frame(1);
};

TEST_F(Frames, worldToWorldKeepsEveryBit) {
    const Triple point{-0.0, 0.1 + 0.2, 5e-324};
    // A frame of the short kind that was filled as a point is read by its first two bytes: those
    // of 1.0 are zero, which is the world.
    resbuf odd = plane(1, 0, 0);
    odd.restype = kResultShort;
    for (const resbuf& from : {m_world, odd}) {
        const Triple same = convert(point, from, m_world);
        using Bits = std::array<std::uint64_t, 3>;
        EXPECT_EQ(std::bit_cast<Bits>(point), std::bit_cast<Bits>(same));
    }
}

TEST_F(Frames, userSystemMovesPointsAndTurnsDirections) {
    turnUserSystem();
    expectNear(convert({1, 2, 3}, m_user, m_world), {8, 21, 3});
    expectNear(convert({8, 21, 3}, m_world, m_user), {1, 2, 3});
    expectNear(convert({1, 2, 3}, m_user, m_world, 1), {-2, 1, 3});
    double point[3] = {1, 2, 3}; // the result may be the point itself
    EXPECT_EQ(kdedTrans(point, &m_user, &m_world, 0, point), kPromptNormal);
    EXPECT_THAT(point, testing::ElementsAre(8, 21, 3));
    // A damaged system counts as the world.
    m_database.core().setVariable("UCSYDIR", KdGePoint3d{0, 5, 0}); // along X
    m_database.core().setVariable("UCSORG", KdGePoint3d{0, 0, 0});
    expectNear(convert({1, 2, 3}, m_user, m_world), {1, 2, 3});
}

// Axes by hand: for N = (1,0,0) the X axis is (0,0,1) x N = (0,1,0) and Y = N x X = (0,0,1). For N
// down, near the world's Z, X is (0,1,0) x N = (-1,0,0) and Y = (0,1,0).
TEST_F(Frames, planesHaveAxesByTheArbitraryAxisRule) {
    expectNear(convert({1, 2, 3}, plane(1, 0, 0), m_world), {3, 1, 2});
    expectNear(convert({1, 2, 3}, plane(0, 0, -2), m_world), {-1, 2, -3});
    expectNear(convert({-1, 2, -3}, m_world, plane(0, 0, -1), 1), {1, 2, 3});
    // Just outside 1/64 the world's Z is taken: X is level.
    const double tilt = 0.016;
    EXPECT_NEAR(convert({1, 0, 0}, plane(tilt, 0, std::sqrt(1 - tilt * tilt)), m_world)[1], 1.0,
                1e-12);
    const double flat = 0.015;
    EXPECT_NEAR(convert({1, 0, 0}, plane(flat, 0, std::sqrt(1 - flat * flat)), m_world)[0], 1.0,
                1e-3);
}

TEST_F(Frames, unknownFramesAreRefusedAndLeaveTheResultAlone) {
    const double point[3] = {1, 2, 3};
    for (const resbuf& bad : {frame(3), frame(-1), plane(0, 0, 0), plane(NAN, 0, 1), resbuf()}) {
        double out[3] = {7, 7, 7};
        EXPECT_EQ(kdedTrans(point, &bad, &m_world, 0, out), kPromptError);
        EXPECT_EQ(kdedTrans(point, &m_world, &bad, 0, out), kPromptError);
        EXPECT_THAT(out, testing::ElementsAre(7, 7, 7));
    }
}

} // namespace
