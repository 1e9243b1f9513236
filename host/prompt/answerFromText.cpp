#include "answerFromText.h"

#include "PromptSession.h"
#include "TransparentCommands.h"
#include "textCodec.h"
#include "typedAnswer.h"
#include "userFrame.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace orvex {

namespace {

std::wstring wanted(PromptKind kind) {
    switch (kind) {
    case PromptKind::keyword:
        return L"a keyword";
    case PromptKind::entity:
        return L"a pick";
    case PromptKind::selection:
        return L"a pick or #HANDLE";
    case PromptKind::point:
        return L"a point";
    case PromptKind::real:
        return L"a number";
    case PromptKind::command:
    case PromptKind::text:
        break;
    }
    return L"an answer";
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
        return BrokenPoint{0, L"only points are counted from the last point"};
    }
    if (!isPick && typed->handle) {
        return BrokenPoint{text.find(L'#'), L"only picks have a handle"};
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
    PromptAnswer answer;
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
    std::wstring message = L"'" + text + L"' is not " + wanted(request.kind);
    if (const auto* const broken = std::get_if<BrokenPoint>(&reading)) {
        return message + L": at character " + std::to_wstring(broken->place + 1) + L", " +
               broken->reason;
    }
    if (request.kind == PromptKind::point && (parseReal(text) || isSnapWord(text))) {
        return message + L": " + (isSnapWord(text) ? L"a snap word" : L"a bare length") +
               L" needs the cursor of a window";
    }
    if (!request.keywords.empty()) {
        message +=
            request.kind == PromptKind::keyword ? L" on offer (" : L" or one of the keywords (";
        for (const std::wstring& keyword : request.keywords) {
            message += keyword + L' ';
        }
        message.back() = L')';
    } else if (request.kind == PromptKind::keyword) {
        message += L" on offer";
    }
    if (request.kind == PromptKind::real && hasDecimalComma(text)) {
        message += L": decimals follow a point, " + withPoint(text);
    }
    return message;
}

} // namespace orvex
