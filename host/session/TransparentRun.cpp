#include "TransparentRun.h"

#include "ChangeLog.h"
#include "DatabaseCore.h"
#include "HostCommand.h"
#include "KdDbDatabase.h"
#include "Session.h"
#include "hostText.h"
#include "promptExchange.h"

#include <algorithm>
#include <utility>

namespace orvex {

namespace {

using Stage = ToolWatch::Stage;

constexpr const wchar_t* kUndo = L"Undo";
constexpr const wchar_t* kToolsUndo = L"UNDO";

bool offers(const PromptRequest& request, const wchar_t* keyword) {
    return std::find(request.keywords.begin(), request.keywords.end(), keyword) !=
           request.keywords.end();
}

PromptAnswer keywordAnswer(const std::wstring& keyword) {
    PromptAnswer answer;
    answer.kind = PromptAnswer::Kind::keyword;
    answer.keyword = keyword;
    return answer;
}

} // namespace

std::optional<PromptAnswer> TransparentRun::run(const std::wstring& name,
                                                const PromptRequest& request) {
    if (name == L"U") {
        return undo(request);
    }
    if (name == L"REDO") {
        return redo(request);
    }
    zoomCommand(m_session);
    m_session.display().refresh();
    return std::nullopt;
}

std::optional<PromptAnswer> TransparentRun::answerAhead(const PromptRequest& request) {
    const std::wstring tool = std::exchange(m_tool, {});
    return !tool.empty() && offers(request, tool.c_str()) ? std::optional(keywordAnswer(tool))
                                                          : std::nullopt;
}

std::optional<PromptAnswer> TransparentRun::undo(const PromptRequest& request) {
    if (offers(request, kUndo)) {
        return keywordAnswer(kUndo);
    }
    switch (m_session.toolWatch().stage()) {
    case Stage::first:
        return m_session.database().core().changes().rollBackToMark() ? afterCycle(request)
                                                                      : PromptAnswer();
    case Stage::second:
        return beginToolAnew();
    case Stage::none:
        break;
    }
    return PromptAnswer();
}

std::optional<PromptAnswer> TransparentRun::redo(const PromptRequest& request) {
    const bool isBetweenCycles = m_session.toolWatch().stage() == Stage::first;
    if (isBetweenCycles && m_session.database().core().changes().rollForward()) {
        return afterCycle(request);
    }
    printLines(wideHostText("There is nothing to redo."));
    return std::nullopt;
}

std::optional<PromptAnswer> TransparentRun::afterCycle(const PromptRequest& request) {
    m_session.display().refresh();
    return offers(request, kToolsUndo) ? std::optional(beginToolAnew()) : std::nullopt;
}

PromptAnswer TransparentRun::beginToolAnew() {
    if (const ToolKind* const tool = m_session.toolWatch().tool()) {
        m_session.followWith(L"-MLEDIT");
        m_tool = tool->keyword;
    }
    return {}; // ends the run that was
}

} // namespace orvex
