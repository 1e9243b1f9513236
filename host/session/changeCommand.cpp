// MLCHANGE and MLRESTYLE: other settings for multilines that are drawn.

#include "DatabaseCore.h"
#include "HostCommand.h"
#include "KdDbDatabase.h"
#include "KdDbMline.h"
#include "KdDbMlineStyle.h"
#include "MlineStyleContent.h"
#include "ObjectTable.h"
#include "Opened.h"
#include "Session.h"
#include "WellKnownObjects.h"
#include "changeMline.h"
#include "commandOutput.h"
#include "editMlines.h"
#include "hostText.h"
#include "kddbObjects.h"
#include "lockedLayers.h"
#include "mlineEdits.h"
#include "nameQuestions.h"
#include "promptLibrary.h"
#include "promptStatus.h"
#include "restyle.h"
#include "selection.h"
#include "textCodec.h"
#include "vertexEdits.h"

#include <algorithm>

namespace orvex {

namespace {

struct AskedChange {
    MlineChange change;
    std::optional<std::wstring> layer;
    bool isRefused = false; // an answer named what there isn't; it has been told
};

void printLine(const std::wstring& line) {
    kdutPrintf(L"%ls", line.c_str());
}

std::optional<MlineChange::Style> styleCalled(DatabaseCore& core, const std::wstring& name) {
    KdDbStub* const stub = core.wellKnown().findStyle(name);
    const Opened<KdDbMlineStyle> style(KdDbObjectId(stub), kForRead);
    if (!style) {
        printLine(
            wideHostText("There is no style '%1'%2.", {name, namesThereAre(styleNames(core))}));
        return std::nullopt;
    }
    return MlineChange::Style{KdDbObjectId(stub), layoutOf(style->values())};
}

// Nothing for a cancel.
std::optional<std::wstring> askText(const wchar_t* prompt) {
    wchar_t text[kPromptTextSize] = L"";
    return kdedGetString(prompt, text) == kPromptNormal ? std::optional<std::wstring>(text)
                                                        : std::nullopt;
}

std::optional<std::wstring> askKeyword(const wchar_t* prompt, const wchar_t* keywords) {
    wchar_t keyword[kPromptTextSize] = L"";
    kdedInitGet(0, keywords);
    return kdedGetKword(prompt, keyword) == kPromptNormal ? std::optional<std::wstring>(keyword)
                                                          : std::nullopt;
}

void askLayer(DatabaseCore& core, AskedChange& asked) {
    offerNames(layerNames(core));
    const auto name = askText(wideHostText("Layer name: ").c_str());
    if (name && core.wellKnown().findLayer(*name) == nullptr) {
        printLine(wideHostText("There is no layer '%1'.", {*name}));
        asked.isRefused = true;
    } else if (name) {
        asked.layer = name;
    }
}

void askStyle(DatabaseCore& core, AskedChange& asked) {
    offerNames(styleNames(core));
    if (const auto name = askText(wideHostText("Style name: ").c_str())) {
        asked.change.style = styleCalled(core, *name);
        asked.isRefused = asked.isRefused || !asked.change.style;
    }
}

void askJustification(MlineChange& change) {
    if (const auto word = askKeyword(wideHostText("Justification [Top/Zero/Bottom]: ").c_str(),
                                     L"Top Zero Bottom")) {
        change.justification = *word == L"Top" ? 0 : *word == L"Zero" ? 1 : 2;
    }
}

void askCaps(MlineChange& change) {
    if (const auto word = askKeyword(wideHostText("Caps [Both/Start/End/None]: ").c_str(),
                                     L"Both Start End None")) {
        change.caps = {*word == L"Both" || *word == L"Start", *word == L"Both" || *word == L"End"};
    }
}

void askScale(MlineChange& change) {
    double scale = 0.0;
    if (kdedGetReal(wideHostText("Scale: ").c_str(), &scale) == kPromptNormal) {
        change.scale = scale;
    }
}

void askOne(DatabaseCore& core, const std::wstring& what, AskedChange& asked) {
    if (what == L"STyle") {
        askStyle(core, asked);
    } else if (what == L"SCale") {
        askScale(asked.change);
    } else if (what == L"Justification") {
        askJustification(asked.change);
    } else if (what == L"LAyer") {
        askLayer(core, asked);
    } else if (what == L"CAps") {
        askCaps(asked.change);
    } else if (what == L"KeepLines") {
        asked.change.keepsLines = true;
    } else {
        asked.change.closed = what == L"CLose";
    }
}

// Nothing when nothing is to be done.
std::optional<AskedChange> askChange(DatabaseCore& core) {
    AskedChange asked;
    for (;;) {
        wchar_t what[kPromptTextSize] = L"";
        kdedInitGet(0, L"STyle SCale Justification LAyer CAps CLose Open KeepLines");
        switch (kdedGetKword(
            wideHostText("Change [STyle/SCale/Justification/LAyer/CAps/CLose/Open/KeepLines], "
                         "Enter to apply: ")
                .c_str(),
            what)) {
        case kPromptNormal:
            askOne(core, what, asked);
            break;
        case kPromptNone:
            return asked.isRefused ? std::nullopt : std::optional(asked);
        default:
            return std::nullopt;
        }
    }
}

void putOnLayer(MlineContent& mline, const std::wstring& layer) {
    EntityTraits traits = mline.traits != nullptr ? *mline.traits : EntityTraits();
    traits.layer = layer;
    mline.traits = shareTraits(traits);
}

void changeAll(const std::vector<KdDbStub*>& mlines, const AskedChange& asked) {
    std::size_t moved = 0;
    std::size_t lostGaps = 0;
    editEach(
        mlines,
        [&](const MlineContent& mline) -> Result<MlineContent> {
            const std::optional<StyleLayout> style = styleLayoutOf(mline);
            Result<ChangedMline> result = changed(mline, style ? &*style : nullptr, asked.change);
            if (!result) {
                return result.failure();
            }
            moved += result->hasMovedGaps ? 1 : 0;
            if (mline.elementCount() == result->mline.elementCount()) {
                const std::size_t had = heldGaps(mline);
                const std::size_t has = heldGaps(result->mline);
                lostGaps += had > has ? had - has : 0;
            }
            if (asked.layer) {
                putOnLayer(result->mline, *asked.layer);
            }
            return std::move(result->mline);
        },
        hostText("%1 of %2 multilines changed."));
    if (moved > 0) {
        printLine(wideHostText("In %1 of them gaps of single elements went to the nearest element.",
                               {std::to_wstring(moved)}));
    }
    tellLostGaps(lostGaps);
}

bool uses(KdDbStub& stub, KdDbObjectId style) {
    return stub.kind == ObjectKind::mline && !stub.erased &&
           KdDbMline::styleOf(KdDbObjectId(&stub)) == style;
}

} // namespace

void changeCommand(Session& session) {
    const std::optional<Selection> selection = askSelection(session, SelectionKind::mlines);
    if (!selection || selection->entities.empty()) {
        return;
    }
    if (const auto asked = askChange(session.database().core())) {
        changeAll(selection->entities, *asked);
    }
}

std::vector<KdDbStub*> mlinesOfStyle(DatabaseCore& core, KdDbObjectId style) {
    std::vector<KdDbStub*> found;
    std::size_t locked = 0;
    for (KdDbStub& stub : core.objects().stubs()) {
        if (!uses(stub, style)) {
            continue;
        }
        if (isOnLockedLayer(stub)) {
            ++locked;
        } else {
            found.push_back(&stub);
        }
    }
    if (locked > 0) {
        printLine(wideHostText("%1 on locked layers left out.", {std::to_wstring(locked)}));
    }
    return found;
}

bool isStyleUsed(DatabaseCore& core, KdDbObjectId style) {
    auto& stubs = core.objects().stubs();
    return std::any_of(stubs.begin(), stubs.end(),
                       [style](KdDbStub& stub) { return uses(stub, style); });
}

void restyle(const std::vector<KdDbStub*>& mlines, KdDbObjectId style) {
    AskedChange asked;
    if (const Opened<KdDbMlineStyle> opened(style, kForRead); opened) {
        asked.change.style = {style, layoutOf(opened->values())};
        changeAll(mlines, asked);
    }
}

void restyleCommand(Session& session) {
    DatabaseCore& core = session.database().core();
    const std::vector<std::wstring> names = styleNames(core);
    offerNames(names);
    const auto oldName = askText(wideHostText("Style until now: ").c_str());
    offerNames(names);
    const auto newName = oldName ? askText(wideHostText("New style: ").c_str()) : std::nullopt;
    if (!newName) {
        return;
    }
    const auto oldStyle = styleCalled(core, *oldName);
    const auto newStyle = styleCalled(core, *newName);
    if (oldStyle && newStyle && oldStyle->id != newStyle->id) {
        restyle(mlinesOfStyle(core, oldStyle->id), newStyle->id);
    }
}

} // namespace orvex
