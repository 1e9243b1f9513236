#include "ScriptSource.h"

#include <gmock/gmock.h>

namespace {

using orvex::PromptAnswer;
using orvex::PromptKind;
using orvex::PromptRequest;
using orvex::ScriptSource;
using Kind = PromptAnswer::Kind;

PromptRequest request(PromptKind kind, std::vector<std::wstring> keywords = {}) {
    PromptRequest result;
    result.kind = kind;
    result.keywords = std::move(keywords);
    return result;
}

ScriptSource script(std::string_view text) {
    return {text, [](const std::wstring&) {}};
}

TEST(Keywords, matchInFullOrCutToTheirCapitalsInAnyCase) {
    const std::vector<std::wstring> keywords{L"Scale", L"STyle", L"CC", L"UNDO", L"S"};
    const auto match = [&](const wchar_t* typed) {
        return orvex::matchKeyword(keywords, typed).value_or(L"none");
    };
    EXPECT_EQ(match(L"scale"), L"Scale");
    EXPECT_EQ(match(L"st"), L"STyle");
    EXPECT_EQ(match(L"cc"), L"CC");
    EXPECT_EQ(match(L"Undo"), L"UNDO");
    EXPECT_EQ(match(L"s"), L"S"); // in full goes before another keyword's capitals
    EXPECT_EQ(match(L"sty"), L"none");
    EXPECT_EQ(match(L""), L"none");
}

TEST(Script, dropsCommentsCarriageReturnsAndBlanksAtBothEnds) {
    ScriptSource source = script("\xEF\xBB\xBF; first\r\n  -MLEDIT \t\r\n\t; second\n\nlast");
    PromptAnswer answer = source.ask(request(PromptKind::command));
    EXPECT_EQ(answer.text, L"-MLEDIT");
    EXPECT_EQ(source.line(), 2U);
    EXPECT_EQ(source.ask(request(PromptKind::command)).kind, Kind::empty);
    EXPECT_FALSE(source.atEnd());
    EXPECT_EQ(source.ask(request(PromptKind::text)).text, L"last");
    EXPECT_TRUE(source.atEnd());
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(source.ask(request(PromptKind::text)).kind, Kind::cancel);
    }
    EXPECT_TRUE(script("; only a comment\n").atEnd()); // no line begins after the last end
    ScriptSource cancelling = script("*CANCEL*\nCC");
    EXPECT_EQ(cancelling.ask(request(PromptKind::keyword, {L"CC"})).kind, Kind::cancel);
    EXPECT_EQ(cancelling.ask(request(PromptKind::keyword, {L"CC"})).keyword, L"CC");
    EXPECT_FALSE(source.failure() || cancelling.failure());
}

struct PickCase {
    const char* line;
    double x, y, z;
    std::optional<std::uint64_t> handle;
};

TEST(Script, readsPointsAndPicks) {
    const std::vector<PickCase> cases{
        {"1,2", 1, 2, 0, {}},
        {"-1.5e1,+2,.5", -15, 2, 0.5, {}},
        {"1 , 2 #2a", 1, 2, 0, 0x2A},
        {"1,2#0", 1, 2, 0, 0},
        {"1,2,3 # FFFFFFFFFFFFFFFF", 1, 2, 3, 0xFFFFFFFFFFFFFFFF},
        {"1,2 #10000000000000000", 1, 2, 0, 0}, // no handle is that large
    };
    for (const PickCase& each : cases) {
        SCOPED_TRACE(each.line);
        ScriptSource source = script(each.line);
        const PromptAnswer answer = source.ask(request(PromptKind::entity));
        EXPECT_EQ(answer.kind, Kind::point);
        EXPECT_EQ(answer.point, (KdGePoint3d{each.x, each.y, each.z}));
        EXPECT_EQ(answer.handle, each.handle);
    }
}

struct MisfitCase {
    PromptKind kind;
    const char* line;
};

TEST(Script, failsAtAnAnswerThatFitsNoPromptAndCancelsFromThenOn) {
    const std::vector<MisfitCase> cases{
        {PromptKind::entity, "1"},     {PromptKind::entity, "1,2,3,4"},
        {PromptKind::entity, "1,"},    {PromptKind::entity, "1,inf"},
        {PromptKind::selection, "#"},  {PromptKind::selection, "2A"},
        {PromptKind::entity, "1,2 #"}, {PromptKind::entity, "1,2 #XY"},
        {PromptKind::entity, "#2A"},   {PromptKind::point, "1,2 #2A"},
        {PromptKind::point, "0x10,2"}, {PromptKind::keyword, "1,2"},
        {PromptKind::real, "1 2"},     {PromptKind::real, "nan"},
        {PromptKind::real, "+-1"},     {PromptKind::entity, "*cancel*"},
    };
    for (const MisfitCase& each : cases) {
        SCOPED_TRACE(each.line);
        ScriptSource source = script(std::string("; comment\n") + each.line + "\n1,2\n");
        EXPECT_EQ(source.ask(request(each.kind, {L"CC"})).kind, Kind::cancel);
        ASSERT_TRUE(source.failure());
        EXPECT_EQ(source.failure()->line, 2U);
        EXPECT_THAT(source.failure()->text, testing::HasSubstr(std::string("'") + each.line + "'"));
        EXPECT_TRUE(source.atEnd());
        EXPECT_EQ(source.ask(request(PromptKind::entity)).kind, Kind::cancel);
    }
}

TEST(Script, tellsTheFirstLineThatIsNoUtf8) {
    EXPECT_EQ(ScriptSource::firstLineThatIsNoUtf8("a\n\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80"),
              std::nullopt);
    for (const char* bytes : {"\xE4", "\xC3", "\xC0\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80",
                              "\xE0\x80\x80", "\xF0\x80\x80\x80", "\x80"}) {
        EXPECT_EQ(ScriptSource::firstLineThatIsNoUtf8(std::string("a\nb\n") + bytes), 3U);
    }
}

} // namespace
