#include "commandFunctions.h"

#include "CStdStr.h"
#include "CommandResources.h"
#include "dialogs.h"
#include "mlineEditOperation.h"
#include "promptLibrary.h"
#include "promptStatus.h"
#include "toolTable.h"

#include <memory>

void cmd_vomlstyle() {
    std::unique_ptr<ModuleDialog> dialog; // goes after the library was released
    const CommandResources resources;
    if (resources.handle() == nullptr) {
        return;
    }
    dialog = makeStyleDialog();
    dialog->doModal();
}

void cmd_vomledit() {
    std::unique_ptr<ModuleDialog> dialog;
    const CommandResources resources;
    if (resources.handle() == nullptr) {
        return;
    }
    dialog = makeToolPalette();
    dialog->doModal();
    mlineEditOperation(dialog->toolNumber(), resources.handle());
}

void cmd_vomleditcli() {
    const CommandResources resources;
    if (resources.handle() == nullptr) {
        return;
    }
    CStdStr<wchar_t> text;
    text.LoadStringW(4000U);
    kdedInitGet(0, text);
    text.LoadStringW(4001U);
    wchar_t keyword[kPromptTextSize] = L"";
    if (kdedGetKword(text, keyword) == kPromptNormal) {
        mlineEditOperation(toolOfKeyword(keyword), resources.handle());
    }
}
