#include "DatabaseCore.h"
#include "HostCommand.h"
#include "KdDbDatabase.h"
#include "Session.h"
#include "hostText.h"
#include "nameQuestions.h"
#include "promptLibrary.h"
#include "promptStatus.h"
#include "textCodec.h"
#include "variableText.h"

namespace orvex {

namespace {

// What the value may be, where it names something in the drawing.
void offerValues(DatabaseCore& core, const std::wstring& variable) {
    if (variable == L"CMLSTYLE") {
        offerNames(styleNames(core));
    } else if (variable == L"CLAYER") {
        offerNames(layerNames(core));
    }
}

} // namespace

void setVariableCommand(Session& session) {
    wchar_t text[kPromptTextSize] = L"";
    if (kdedGetString(wideHostText("Variable name: ").c_str(), text) != kPromptNormal) {
        return;
    }
    const std::wstring name = foldCase(text);
    const std::optional<std::wstring> value = variableText(name);
    if (!value) {
        rejectAnswer(wideHostText("there is no variable '%1'", {name}));
        return;
    }
    const std::wstring prompt = wideHostText("New value for %1 <%2>: ", {name, *value});
    offerValues(session.database().core(), name);
    if (kdedGetString(prompt.c_str(), text) != kPromptNormal) {
        return;
    }
    if (const auto refusal = setVariableText(name, text)) {
        rejectAnswer(widen(refusal->text));
    }
}

} // namespace orvex
