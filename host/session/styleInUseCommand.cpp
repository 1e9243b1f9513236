// MLSTYLEINUSE: changes a style that multilines use, which MLSTYLE alone doesn't allow.

#include "DatabaseCore.h"
#include "HostCommand.h"
#include "KdDbDatabase.h"
#include "KdDbDictionary.h"
#include "KdDbMlineStyle.h"
#include "MlineStyleContent.h"
#include "Opened.h"
#include "Session.h"
#include "WellKnownObjects.h"
#include "commandOutput.h"
#include "hostText.h"
#include "kddbObjects.h"
#include "promptLibrary.h"
#include "promptStatus.h"
#include "restyle.h"
#include "textCodec.h"
#include "variableText.h"

namespace orvex {

namespace {

void printLine(const std::wstring& line) {
    kdutPrintf(L"%ls", line.c_str());
}

// An empty answer is the fallback; nothing for a cancel.
std::optional<std::wstring> askName(const std::wstring& question, const std::wstring& fallback) {
    wchar_t text[kPromptTextSize] = L"";
    switch (kdedGetString((question + L" <" + fallback + L">: ").c_str(), text)) {
    case kPromptNormal:
        return std::wstring(text);
    case kPromptNone:
        return fallback;
    default:
        return std::nullopt;
    }
}

std::wstring freeName(DatabaseCore& core, const std::wstring& name) {
    for (int number = 2;; ++number) {
        std::wstring candidate = name + L'-' + std::to_wstring(number);
        if (core.wellKnown().findStyle(candidate) == nullptr) {
            return candidate;
        }
    }
}

// In the drawing under a name of its own; null when that fails.
KdDbStub* copyStyle(DatabaseCore& core, KdDbStub& original, const std::wstring& name) {
    const Opened<KdDbMlineStyle> style(KdDbObjectId(&original), kForRead);
    const Opened<KdDbDictionary> styles(KdDbObjectId(core.wellKnown().styleDictionary), kForWrite);
    if (!style || !styles) {
        return nullptr;
    }
    auto copy = std::make_unique<KdDbMlineStyle>(*style);
    copy->setName(name.c_str());
    KdDbObjectId id;
    KdDbMlineStyle* const added = copy.get();
    styles->setAt(name.c_str(), added, id);
    if (id.isNull()) {
        return nullptr;
    }
    (void)copy.release(); // it is the drawing's now
    added->close();
    return id.stub();
}

bool renameStyle(DatabaseCore& core, KdDbStub& stub, const std::wstring& name) {
    const Opened<KdDbMlineStyle> style(KdDbObjectId(&stub), kForWrite);
    const Opened<KdDbDictionary> styles(KdDbObjectId(core.wellKnown().styleDictionary), kForWrite);
    std::wstring key;
    if (!style || !styles || name.empty() || core.wellKnown().findStyle(name) != nullptr) {
        return false;
    }
    styles->nameAt(KdDbObjectId(&stub), key);
    style->setName(name.c_str());
    styles->setName(key.c_str(), name.c_str());
    return true;
}

// The copy may take the name of the old style, which goes once nothing uses it.
void nameCopy(DatabaseCore& core, KdDbStub& old, KdDbStub& copy) {
    const std::wstring oldName = core.wellKnown().nameOfStyle(old);
    const std::wstring copyName = core.wellKnown().nameOfStyle(copy);
    const bool isOldFree = !isStyleUsed(core, KdDbObjectId(&old));
    const auto newName =
        askName(isOldFree ? wideHostText("Its name, '%1' to replace that style", {oldName})
                          : wideHostText("Its name"),
                copyName);
    if (!newName || *newName == copyName) {
        return;
    }
    const bool replacesOld = core.wellKnown().findStyle(*newName) == &old;
    if (replacesOld && !isOldFree) {
        printLine(wideHostText("'%1' is still in use; the copy stays '%2'.", {oldName, copyName}));
        return;
    }
    const bool isCurrent = variableText(L"CMLSTYLE") == copyName;
    if (replacesOld) {
        core.erase(old);
    }
    const std::wstring& name = replacesOld ? oldName : *newName;
    if (!renameStyle(core, copy, name)) {
        printLine(
            wideHostText("There is a style of that name already; it stays '%1'.", {copyName}));
    } else if (isCurrent) {
        setVariableText(L"CMLSTYLE", name);
    }
}

bool askWhetherAll(std::size_t count, const std::wstring& from, const std::wstring& to) {
    const std::wstring question =
        wideHostText("Shall all %1 that use '%2' take '%3' [Yes/No] <Yes>: ",
                     {std::to_wstring(count), from, to});
    wchar_t word[kPromptTextSize] = L"";
    kdedInitGet(0, L"Yes No");
    const int status = kdedGetKword(question.c_str(), word);
    return status == kPromptNone || (status == kPromptNormal && std::wstring(word) == L"Yes");
}

} // namespace

void styleInUseCommand(Session& session) {
    const Result<Session::CommandFunction> edit = session.findModuleCommand(L"MLSTYLE");
    if (!edit) {
        rejectAnswer(widen(edit.failure().text));
        return;
    }
    DatabaseCore& core = session.database().core();
    const auto name =
        askName(wideHostText("Style to change"), variableText(L"CMLSTYLE").value_or(L""));
    KdDbStub* const old = name ? core.wellKnown().findStyle(*name) : nullptr;
    if (old == nullptr) {
        if (name) {
            printLine(wideHostText("There is no style '%1'.", {*name}));
        }
        return;
    }
    KdDbStub* const copy = copyStyle(core, *old, freeName(core, *name));
    if (copy == nullptr || setVariableText(L"CMLSTYLE", core.wellKnown().nameOfStyle(*copy))) {
        printLine(wideHostText("The style can't be copied."));
        return;
    }
    (*edit)();
    if (copy->erased || old->erased) {
        printLine(wideHostText("The copy was deleted; nothing takes it."));
        return;
    }
    const std::wstring copyName = core.wellKnown().nameOfStyle(*copy);
    const std::vector<KdDbStub*> uses = mlinesOfStyle(core, KdDbObjectId(old));
    if (uses.empty() || !askWhetherAll(uses.size(), *name, copyName)) {
        return;
    }
    restyle(uses, KdDbObjectId(copy));
    nameCopy(core, *old, *copy);
}

} // namespace orvex
