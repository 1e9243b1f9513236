#include "BoundedCrashRecorder.h"
#include "VoMath.h"

#include <gmock/gmock.h>

#include <limits>

namespace {

using testing::ElementsAre;

TEST(CrashRecorderTest, keepsTheLatestReportsAndCountsAll) {
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

TEST(VoMathTest, numbersWithoutAFormBecomeZeroAndCoordinatesStayInRange) {
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
