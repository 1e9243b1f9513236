#include "typedPoint.h"

#include "DatabaseCore.h"
#include "PromptFixture.h"
#include "promptLibrary.h"
#include "promptStatus.h"

#include <cmath>

namespace {

using orvex::BrokenPoint;
using orvex::PromptSession;
using orvex::TypedPoint;

const KdGePoint3d kLast{10, 20, 5};
constexpr double kNo = 1e-9; // stands for no handle

struct PointCase {
    const wchar_t* text = L"";
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    double handle = kNo;
};

TEST(TypedPoint, isAbsoluteOrCountedFromTheLast) {
    const PointCase cases[] = {
        {L"1,2", 1, 2, 0},
        {L" 1 , -2e1 , .5 ", 1, -20, 0.5},
        {L"1,2 # 2a", 1, 2, 0, 0x2A},
        {L"@", 10, 20, 5},
        {L"@3,-4", 13, 16, 5},
        {L"@ 3 , -4 , 1", 13, 16, 6},
        {L"@3,4#0", 13, 24, 5, 0},
        {L"@100<0", 110, 20, 5},
        {L"@100<90", 10, 120, 5}, // square, to the last bit
        {L"@100<-90", 10, -80, 5},
        {L"@100<180", -90, 20, 5},
        {L"@100<36000270", 10, -80, 5},
        {L"@-100<0", -90, 20, 5},
    };
    for (const PointCase& each : cases) {
        SCOPED_TRACE(testing::PrintToString(each.text));
        const orvex::PointReading reading = orvex::readPoint(each.text, kLast);
        const auto* const typed = std::get_if<TypedPoint>(&reading);
        ASSERT_NE(typed, nullptr);
        EXPECT_EQ(typed->point, (KdGePoint3d{each.x, each.y, each.z}));
        EXPECT_EQ(typed->handle ? static_cast<double>(*typed->handle) : kNo, each.handle);
    }
}

TEST(TypedPoint, liesAtAnyAngle) {
    const double half = std::sqrt(0.5);
    const double long30 = std::sqrt(0.75);
    const PointCase cases[] = {
        {L"@1000<45", 1000 * half, 1000 * half, 0},
        {L"@1000<30", 1000 * long30, 500, 0},
        {L"@1000<-120", -500, -1000 * long30, 0},
        {L"@5<126.86989764584402", -3, 4, 0}, // of the triangle 3, 4, 5
    };
    for (const PointCase& each : cases) {
        const auto point = std::get<TypedPoint>(orvex::readPoint(each.text, {})).point;
        EXPECT_DOUBLE_EQ(point.x, each.x);
        EXPECT_DOUBLE_EQ(point.y, each.y);
    }
}

TEST(TypedPoint, isNotMeantWithoutACommaAnAngleOrAnAt) {
    for (const wchar_t* text : {L"", L"5", L"-5.5", L"CC", L"5;5", L"#2A", L"1 2"}) {
        EXPECT_TRUE(std::holds_alternative<std::monostate>(orvex::readPoint(text, kLast)));
    }
}

struct BrokenCase {
    const wchar_t* text;
    std::size_t place;
    const wchar_t* reason;
};

TEST(TypedPoint, tellsWhereItIsBroken) {
    const BrokenCase cases[] = {
        {L"1,", 2, L"a number is missing"},
        {L",2", 0, L"a number is missing"},
        {L"1,,2", 2, L"a number is missing"},
        {L"1,2,", 4, L"a number is missing"},
        {L"@5<", 3, L"a number is missing"},
        {L"@,5", 1, L"a number is missing"},
        {L"1, x", 3, L"'x' is no number"},
        {L"1 2,3", 0, L"'1 2' is no number"},
        {L"@1,0x10", 3, L"'0x10' is no number"},
        {L"nan,1", 0, L"'nan' is no number"},
        {L"1,-inf", 2, L"'-inf' is no number"},
        {L"1,1e999", 2, L"'1e999' is no number"},
        {L"1,\x0661", 2, L"'\x0661' is no number"},
        {L"1,2,3,4", 5, L"nothing can follow the third number"},
        {L"@1,2,3<4", 6, L"nothing can follow the third number"},
        {L"@5<30,1", 5, L"nothing can follow the angle"},
        {L"@1,2<30", 4, L"an angle follows a length alone"},
        {L"5<30", 0, L"a length with an angle begins with '@'"},
        {L"@5", 2, L"a comma or '<' has to follow"},
        {L"5#1,2", 1, L"a comma has to follow"},
        {L"1,@2", 2, L"a number is missing"},
        {L"1@,2", 1, L"'@' belongs at the beginning"},
        {L"@@1,2", 1, L"a number is missing"},
        {L"1,2 #", 4, L"a hexadecimal handle has to follow '#'"},
        {L"1,2 #XY", 4, L"a hexadecimal handle has to follow '#'"},
    };
    for (const BrokenCase& each : cases) {
        SCOPED_TRACE(testing::PrintToString(each.text));
        const orvex::PointReading reading = orvex::readPoint(each.text, kLast);
        const auto* const broken = std::get_if<BrokenPoint>(&reading);
        ASSERT_NE(broken, nullptr);
        EXPECT_EQ(broken->place, each.place);
        EXPECT_EQ(broken->reason, each.reason);
    }
    for (const wchar_t* tooFar : {L"@1e308,0", L"@0,-2,1e308", L"@1e308<45"}) {
        const auto reading = orvex::readPoint(tooFar, {1.5e308, 1e308, 1.5e308});
        EXPECT_TRUE(std::holds_alternative<BrokenPoint>(reading));
    }
}

class RelativePoints : public PromptFixture {};

TEST_F(RelativePoints, areCountedInTheUsersSystemFromTheLastPointGiven) {
    m_database.core().setVariable("UCSORG", KdGePoint3d{100, 0, 0});
    m_database.core().setVariable("UCSXDIR", KdGePoint3d{0, 1, 0});
    m_database.core().setVariable("UCSYDIR", KdGePoint3d{-1, 0, 0});
    PromptSession::current().lastPoint = {100, 0, 0};
    play("@5,1\n@10<90\n@");
    double point[3] = {0, 0, 0};
    for (const auto& [x, y] : {std::pair(5.0, 1.0), std::pair(5.0, 11.0), std::pair(5.0, 11.0)}) {
        ASSERT_EQ(kdedGetPoint(nullptr, L"", point), kPromptNormal);
        EXPECT_THAT(point, testing::ElementsAre(x, y, 0));
    }
    EXPECT_EQ(PromptSession::current().lastPoint, (KdGePoint3d{89, 5, 0}));
}

struct ComplaintCase {
    const char* line;
    bool isPick;
    const char* said;
};

TEST_F(RelativePoints, areOnlyForPointsAndAScriptLearnsWhyNot) {
    const ComplaintCase cases[] = {
        {"@1,2", true, "'@1,2' is not a pick: at character 1, only points are counted"},
        {"1,2 #2A", false, "'1,2 #2A' is not a point: at character 5, only picks have a handle"},
        {"1,x", false, "'1,x' is not a point: at character 3, 'x' is no number"},
        {"5", false, "'5' is not a point: a bare length needs the cursor of a window"},
        {"end", false, "'end' is not a point: a snap word needs the cursor of a window"},
        {"word", false, "'word' is not a point"},
    };
    for (const ComplaintCase& each : cases) {
        play(each.line);
        long name[2] = {0, 0};
        double point[3] = {0, 0, 0};
        EXPECT_EQ(each.isPick ? kdedEntSel(L"", name, point) : kdedGetPoint(nullptr, L"", point),
                  kPromptCancelled);
        ASSERT_TRUE(m_script->failure());
        EXPECT_THAT(m_script->failure()->text, testing::StartsWith(each.said));
    }
    EXPECT_EQ(PromptSession::current().lastPoint, KdGePoint3d());
}

} // namespace
