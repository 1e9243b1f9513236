#include "commandFunctions.h"

#include "CMLEditDialog.h"
#include "CMlineStyleDialog.h"
#include "CStdStr.h"
#include "CommandResources.h"
#include "mlineEditOperation.h"
#include "promptLibrary.h"
#include "promptStatus.h"
#include "toolTable.h"

#include <optional>

void cmd_vomlstyle() {
    std::optional<CMlineStyleDialog> manager; // goes after the library was released
    const CommandResources resources;
    if (resources.handle() == nullptr) {
        return;
    }
    manager.emplace(nullptr);
    manager->DoModal();
}

void cmd_vomledit() {
    std::optional<CMLEditDialog> palette; // goes after the library was released
    const CommandResources resources;
    if (resources.handle() == nullptr) {
        return;
    }
    palette.emplace(nullptr);
    palette->DoModal();
    mlineEditOperation(palette->m_toolNumber, resources.handle());
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
