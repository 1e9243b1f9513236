#include "BoundedCrashRecorder.h"
#include "KdGeMatrix3d.h"
#include "VoMath.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace {

using testing::ElementsAre;

TEST(CrashRecorderTest, KeepsTheLatestReportsAndCountsAll) {
    orvex::BoundedCrashRecorder recorder(2);
    CrashRecorder* const before = orvex::setCrashRecorder(&recorder);
    EXPECT_NE(before, nullptr); // somebody listens from the start
    for (const wchar_t* message : {L"first", L"second", L"third"}) {
        orvex::reportBadAccess(message);
    }
    EXPECT_THAT(recorder.messages(), ElementsAre(L"second", L"third"));
    EXPECT_EQ(recorder.total(), 3U);

    orvex::setCrashRecorder(nullptr);
    orvex::reportBadAccess(L"nobody listens");
    EXPECT_EQ(orvex::setCrashRecorder(before), nullptr);
}

TEST(GeometryTest, AMatrixGivesBackItsCoordinateSystemToTheBit) {
    const KdGePoint3d origin{0.1, -0.0, 1e300};
    const KdGeVector3d axes[3] = {{1e-300, 2, 3}, {4, 5, 6}, {7, 8, 9}};
    KdGeMatrix3d matrix;
    matrix.setCoordSystem(origin, axes[0], axes[1], axes[2]);
    KdGePoint3d gotOrigin;
    KdGeVector3d got[3];
    matrix.getCoordSystem(gotOrigin, got[0], got[1], got[2]);
    EXPECT_EQ(gotOrigin, origin);
    EXPECT_TRUE(std::signbit(gotOrigin.y));
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(got[i], axes[i]);
    }
}

TEST(VoMathTest, NumbersWithoutAFormBecomeZeroAndCoordinatesStayInRange) {
    using Limits = std::numeric_limits<double>;
    for (double value : {Limits::denorm_min(), Limits::infinity(), -Limits::infinity(),
                         Limits::quiet_NaN(), 0.0}) {
        EXPECT_FALSE(VoMath::isValidNonZeroIEEEDouble(value));
        VoMath::fixDouble(value);
        EXPECT_EQ(value, 0.0);
    }
    double least = Limits::min();
    VoMath::fixDouble(least);
    EXPECT_EQ(least, Limits::min());

    double far = -1e200;
    VoMath::validateDoubleRange(far);
    EXPECT_EQ(far, -1e100);
    EXPECT_TRUE(VoMath::isEqual(1.0, 1.5, 0.5));
    EXPECT_FALSE(VoMath::isEqual(1.0, 1.5, 0.25));
    EXPECT_TRUE(VoMath::isZero(Limits::quiet_NaN(), 0.0));
}

} // namespace
