#include "commands.h"

#include "CMLEditDialog.h"
#include "CMlineEdit.h"
#include "CMlineStyleDialog.h"
#include "CStdStr.h"
#include "moduleResources.h"
#include "promptLibrary.h"
#include "promptStatus.h"
#include "textNumbers.h"
#include "toolTable.h"

#include <optional>

using mledit::CommandResources;

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
    text.LoadStringW(mledit::texts::kToolKeywords);
    kdedInitGet(0, text);
    text.LoadStringW(mledit::texts::kToolPrompt);
    wchar_t keyword[kPromptTextSize] = L"";
    if (kdedGetKword(text, keyword) == kPromptNormal) {
        const mledit::ToolRow* const row = mledit::findTool(keyword);
        mlineEditOperation(row != nullptr ? static_cast<int>(row->tool) : 0, resources.handle());
    }
}

void mlineEditOperation(int tool, HINSTANCE resources) {
    CMlineEdit edit;
    if (const mledit::ToolRow* const row = mledit::findTool(tool)) {
        (edit.*row->run)(resources);
    }
}
