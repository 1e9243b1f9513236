#include "systemVariables.h"

#include "DatabaseCore.h"
#include "PromptFixture.h"
#include "hostHeap.h"
#include "promptStatus.h"
#include "variableTable.h"
#include "variableText.h"

namespace {

using orvex::PromptSession;
using orvex::setVariableText;
using orvex::variableText;

class SystemVariables : public PromptFixture {};

TEST_F(SystemVariables, haveTheTypesThatCallersCountOn) {
    const std::pair<const wchar_t*, short> cases[] = {
        {L"pickbox", kResultShort}, {L"ERRNO", kResultShort},   {L"Measurement", kResultShort},
        {L"UCSXDIR", kResultPoint}, {L"UCSYDIR", kResultPoint}, {L"CMLSTYLE", kResultText},
        {L"CMLSCALE", kResultReal}, {L"DIMZIN", kResultShort},  {L"TILEMODE", kResultShort},
    };
    for (const auto& [name, type] : cases) {
        resbuf value;
        EXPECT_EQ(kdedGetVar(name, &value), kPromptNormal);
        EXPECT_EQ(value.restype, type);
        if (type == kResultText) {
            rvex_free(value.resval.rstring);
        }
    }
}

TEST_F(SystemVariables, readAsZeroWhenTheyAreUnknown) {
    resbuf value;
    value.restype = kResultText;
    value.resval.rpoint[0] = 5;
    EXPECT_EQ(kdedGetVar(L"NOSUCH", &value), kPromptError);
    EXPECT_EQ(value.restype, kResultNone);
    EXPECT_EQ(value.resval.rpoint[0], 0.0);
    orvex::setCurrentDocument(nullptr);
    EXPECT_EQ(kdedGetVar(L"CMLSTYLE", &value), kPromptError);
}

struct SetCase {
    const wchar_t* name;
    const wchar_t* text;
    const wchar_t* result; // null: refused
};

TEST_F(SystemVariables, areSetWithinTheirRangesOnly) {
    const SetCase cases[] = {
        {L"pickbox", L"0", L"0"},
        {L"PICKBOX", L"-1", nullptr},
        {L"PICKBOX", L"2.5", nullptr},
        {L"PICKBOX", L"40000", nullptr},
        {L"CMLJUST", L"2", L"2"},
        {L"CMLJUST", L"3", nullptr},
        {L"CMLSCALE", L"-2.5", L"-2.5"},
        {L"LTSCALE", L"0", nullptr},
        {L"CMLSTYLE", L"standard", L"STANDARD"},
        {L"CLAYER", L"walls", nullptr},
        {L"CELTYPE", L"bylayer", L"bylayer"},
        {L"UCSORG", L"1,2,3", L"1,2,3"},
        {L"UCSORG", L"1", nullptr},
        {L"TILEMODE", L"1", L"1"},
        {L"TILEMODE", L"0", nullptr},
        {L"VIEWSIZE", L"5", nullptr}, // there is no view here
        {L"NOSUCH", L"1", nullptr},
    };
    for (const SetCase& each : cases) {
        SCOPED_TRACE(testing::PrintToString(each.name) + testing::PrintToString(each.text));
        const auto before = variableText(each.name);
        EXPECT_EQ(setVariableText(each.name, each.text).has_value(), each.result == nullptr);
        EXPECT_EQ(variableText(each.name),
                  each.result != nullptr ? std::optional<std::wstring>(each.result) : before);
    }
}

TEST_F(SystemVariables, dimzinOfTheDrawingGoesBeforeThatOfTheSession) {
    EXPECT_EQ(variableText(L"DIMZIN"), L"8");
    m_database.core().loadVariable("DIMZIN", 4);
    EXPECT_EQ(variableText(L"DIMZIN"), L"4");
    EXPECT_FALSE(setVariableText(L"DIMZIN", L"0"));
    EXPECT_EQ(PromptSession::current().dimzin, 8);
}

} // namespace
