#include "answerFromText.h"

#include "PromptSession.h"
#include "TransparentCommands.h"
#include "hostText.h"
#include "textCodec.h"
#include "typedAnswer.h"
#include "userFrame.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace orvex {

namespace {

std::wstring notWanted(PromptKind kind, const std::wstring& text) {
    switch (kind) {
    case PromptKind::keyword:
        return wideHostText("'%1' is not a keyword", {text});
    case PromptKind::entity:
        return wideHostText("'%1' is not a pick", {text});
    case PromptKind::selection:
        return wideHostText("'%1' is not a pick or #HANDLE", {text});
    case PromptKind::point:
        return wideHostText("'%1' is not a point", {text});
    case PromptKind::real:
        return wideHostText("'%1' is not a number", {text});
    case PromptKind::command:
    case PromptKind::text:
        break;
    }
    return wideHostText("'%1' is not an answer", {text});
}

// These are for a cursor, which a script has not.
bool isSnapWord(const std::wstring& text) {
    constexpr std::array<std::wstring_view, 9> kWords{L"END", L"MID", L"INT", L"PER", L"NEA",
                                                      L"VER", L"ELE", L"CRO", L"NON"};
    return std::ranges::find(kWords, foldCase(text)) != kWords.end();
}

std::wstring withPoint(std::wstring text) {
    std::ranges::replace(text, L',', L'.');
    return text;
}

bool hasDecimalComma(const std::wstring& text) {
    return std::ranges::count(text, L',') == 1 && parseReal(withPoint(text)).has_value();
}

TextReading readPointAnswer(const PromptRequest& request, const std::wstring& text) {
    const bool isPick = request.kind != PromptKind::point;
    PointReading reading = readPoint(text, worldToUser(PromptSession::current().lastPoint));
    if (auto* const broken = std::get_if<BrokenPoint>(&reading)) {
        return std::move(*broken);
    }
    const auto* const typed = std::get_if<TypedPoint>(&reading);
    if (typed == nullptr) {
        return {};
    }
    if (isPick && text.starts_with(L'@')) {
        return BrokenPoint{0, wideHostText("only points are counted from the last point")};
    }
    if (!isPick && typed->handle) {
        return BrokenPoint{text.find(L'#'), wideHostText("only picks have a handle")};
    }
    PromptAnswer answer;
    answer.kind = PromptAnswer::Kind::point;
    answer.point = typed->point;
    answer.handle = typed->handle;
    return answer;
}

} // namespace

TextReading answerFromText(const PromptRequest& request, const std::wstring& text) {
    using Kind = PromptAnswer::Kind;
    PromptAnswer answer; // cancels
    if (text == kCancelText) {
        return answer;
    }
    if (text.empty()) {
        answer.kind = Kind::empty;
        return answer;
    }
    if (const auto keyword = matchKeyword(request.keywords, text)) {
        answer.kind = Kind::keyword;
        answer.keyword = *keyword;
        return answer;
    }
    const bool isText = request.kind == PromptKind::command || request.kind == PromptKind::text;
    if (const auto name = transparentCommand(text); name && !isText && !request.isWithin) {
        answer.kind = Kind::transparent;
        answer.text = *name;
        return answer;
    }
    switch (request.kind) {
    case PromptKind::command:
    case PromptKind::text:
        answer.kind = Kind::text;
        answer.text = text;
        return answer;
    case PromptKind::keyword:
        return {};
    case PromptKind::real:
        if (const auto number = parseReal(text)) {
            answer.kind = Kind::number;
            answer.number = *number;
            return answer;
        }
        return {};
    case PromptKind::selection:
        if (const auto handle = parseHandlePick(text)) {
            answer.kind = Kind::handle;
            answer.handle = handle;
            return answer;
        }
        [[fallthrough]];
    case PromptKind::entity:
    case PromptKind::point:
        break;
    }
    return readPointAnswer(request, text);
}

std::wstring complaintAbout(const PromptRequest& request, const std::wstring& text,
                            const TextReading& reading) {
    std::wstring message = notWanted(request.kind, text);
    if (const auto* const broken = std::get_if<BrokenPoint>(&reading)) {
        return wideHostText("%1: at character %2, %3",
                            {message, std::to_wstring(broken->place + 1), broken->reason});
    }
    if (request.kind == PromptKind::point && isSnapWord(text)) {
        return wideHostText("%1: a snap word needs the cursor of a window", {message});
    }
    if (request.kind == PromptKind::point && parseReal(text)) {
        return wideHostText("%1: a bare length needs the cursor of a window", {message});
    }
    if (!request.keywords.empty()) {
        std::wstring list;
        for (const std::wstring& keyword : request.keywords) {
            list += (list.empty() ? L"" : L" ") + keyword;
        }
        message = request.kind == PromptKind::keyword
                      ? wideHostText("%1 on offer (%2)", {message, list})
                      : wideHostText("%1 or one of the keywords (%2)", {message, list});
    } else if (request.kind == PromptKind::keyword) {
        message = wideHostText("%1 on offer", {message});
    }
    if (request.kind == PromptKind::real && hasDecimalComma(text)) {
        message = wideHostText("%1: decimals follow a point, %2", {message, withPoint(text)});
    }
    return message;
}

} // namespace orvex
