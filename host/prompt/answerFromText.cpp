#include "answerFromText.h"

#include "typedAnswer.h"

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

} // namespace

std::optional<PromptAnswer> answerFromText(const PromptRequest& request, const std::wstring& text) {
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
    if (request.kind == PromptKind::command || request.kind == PromptKind::text) {
        answer.kind = Kind::text;
        answer.text = text;
        return answer;
    }
    if (request.kind == PromptKind::real) {
        if (const auto number = parseReal(text)) {
            answer.kind = Kind::number;
            answer.number = *number;
            return answer;
        }
    } else if (request.kind != PromptKind::keyword) {
        const bool isPick = request.kind != PromptKind::point;
        const auto handle = parseHandlePick(text);
        if (handle && request.kind == PromptKind::selection) {
            answer.kind = Kind::handle;
            answer.handle = handle;
            return answer;
        }
        const auto pick = parsePick(text);
        if (pick && (isPick || !pick->handle)) {
            answer.kind = Kind::point;
            answer.point = pick->point;
            answer.handle = pick->handle;
            return answer;
        }
    }
    return std::nullopt;
}

std::wstring complaintAbout(const PromptRequest& request, const std::wstring& text) {
    std::wstring message = L"'" + text + L"' is not " + wanted(request.kind);
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
    return message;
}

} // namespace orvex
