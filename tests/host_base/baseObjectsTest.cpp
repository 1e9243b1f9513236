#include "BoundedCrashRecorder.h"
#include "CNormal.h"
#include "KdGeMatrix3d.h"
#include "KdRxObject.h"
#include "VoMath.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <memory>

namespace {

using testing::ElementsAre;

TEST(CrashRecorderTest, KeepsTheLatestReportsAndCountsAll) {
    orvex::BoundedCrashRecorder recorder(2);
    CrashRecorder* const before = orvex::setCrashRecorder(&recorder);
    EXPECT_NE(before, nullptr); // somebody listens from the start
    EXPECT_EQ(rvexGetCrashRecorder(), &recorder);
    for (const wchar_t* message : {L"first", L"second", L"third"}) {
        orvex::reportBadAccess(message);
    }
    EXPECT_THAT(recorder.messages(), ElementsAre(L"second", L"third"));
    EXPECT_EQ(recorder.total(), 3U);

    EXPECT_EQ(orvex::setCrashRecorder(nullptr), &recorder);
    orvex::reportBadAccess(L"nobody listens");
    EXPECT_EQ(recorder.total(), 3U);
    EXPECT_EQ(orvex::setCrashRecorder(before), nullptr);
}

TEST(CrashRecorderTest, ReportsCarryWhatTheyWereGiven) {
    const VoExceptionWithMsg words("\"\"", 0, L"Out of stream buffer!");
    EXPECT_EQ(words.message(), L"Out of stream buffer!");
    EXPECT_EQ(words.fileText(), "\"\"");
    EXPECT_EQ(VoErrorStatus(67).status(), 67);
    EXPECT_NE(VoErrorStatus(67).message().find(L"67"), std::wstring::npos);
}

class Derived : public KdRxObject {
public:
    static KdRxClass* desc() {
        static KdRxClass description(L"Derived", KdRxObject::desc());
        return &description;
    }
    [[nodiscard]] KdRxClass* isA() const override { return desc(); }
};

TEST(KdRxObjectTest, KnowsItsKindAndRefusesToCopyAnotherOne) {
    const auto derived = std::make_unique<Derived>();
    KdRxObject plain;
    EXPECT_TRUE(derived->isKindOf(KdRxObject::desc()));
    EXPECT_FALSE(plain.isKindOf(Derived::desc()));
    EXPECT_EQ(derived->copyFrom(nullptr), Status::invalidInput);
    EXPECT_EQ(derived->copyFrom(&plain), Status::wrongClass);
    EXPECT_EQ(plain.copyFrom(derived.get()), Status::done);
}

TEST(GeometryTest, AVectorWithoutLengthStaysAsItIs) {
    KdGeVector3d none{0, 0, 1e-11};
    EXPECT_TRUE(none.isZeroLength());
    EXPECT_EQ(none.normalize(), (KdGeVector3d{0, 0, 1e-11}));
    KdGeVector3d some{0, 3, 4};
    EXPECT_TRUE(some.normalize().isEqualTo({0, 0.6, 0.8}));
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

TEST(GeometryTest, ANormalThatIsNotGivenIsThatOfThePlan) {
    const C3Point direction(1, 2, 3);
    EXPECT_EQ(CNormal(&direction).Y(), 2);
    EXPECT_EQ(CNormal(nullptr).X(), 0);
    EXPECT_EQ(CNormal(nullptr).Z(), 1);
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
