#include "selection.h"

#include "DatabaseCore.h"
#include "EntityReader.h"
#include "HostCommand.h"
#include "KdDbDatabase.h"
#include "KdDbMline.h"
#include "PromptSession.h"
#include "PromptWatcher.h"
#include "Session.h"
#include "WellKnownObjects.h"
#include "commandOutput.h"
#include "handleText.h"
#include "hostText.h"
#include "lockedLayers.h"
#include "nameQuestions.h"
#include "promptExchange.h"
#include "promptLibrary.h"
#include "promptStatus.h"
#include "textCodec.h"
#include "typedPoint.h"
#include "userFrame.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace orvex {

namespace {

using Entities = std::vector<KdDbStub*>;

constexpr const wchar_t* kKeywords = L"ALL Window Crossing STYLE LAYER Previous Remove Add";

PlanBox boxOf(const KdGePoint3d& corner, const KdGePoint3d& other) {
    PlanBox box;
    for (const KdGePoint3d& point : {userToWorld(corner), userToWorld(other)}) {
        box.include(PlanPoint{point.x, point.y});
    }
    return box;
}

Entities inBox(Session& session, const PlanBox& box, bool isCrossing) {
    return isCrossing ? session.scene().entitiesTouching(box) : session.scene().entitiesWithin(box);
}

// Two more questions; nothing when one isn't answered by a point.
std::optional<Entities> askBox(Session& session, bool isCrossing) {
    double first[3] = {0.0, 0.0, 0.0};
    double second[3] = {0.0, 0.0, 0.0};
    if (kdedGetPoint(nullptr, wideHostText("First corner: ").c_str(), first) != kPromptNormal ||
        kdedGetPoint(first, wideHostText("Opposite corner: ").c_str(), second) != kPromptNormal) {
        return std::nullopt;
    }
    return inBox(session, boxOf({first[0], first[1], first[2]}, {second[0], second[1], second[2]}),
                 isCrossing);
}

template <class Test>
Entities seenWith(Session& session, Test&& test) {
    Entities found = session.scene().allSeen();
    std::erase_if(found, [&](KdDbStub* entity) { return !test(*entity); });
    return found;
}

std::optional<Entities> askStyle(Session& session) {
    wchar_t name[kPromptTextSize] = L"";
    offerNames(styleNames(session.database().core()));
    if (kdedGetString(wideHostText("Style name: ").c_str(), name) != kPromptNormal) {
        return std::nullopt;
    }
    auto found = seenOfStyle(session, name);
    if (!found) {
        rejectAnswer(wideHostText("there is no style '%1'", {name}));
    }
    return found;
}

std::wstring layerOf(const KdDbStub& entity) {
    const auto reading = readEntity(entity);
    return reading ? reading->traits().layer : std::wstring();
}

std::optional<Entities> askLayer(Session& session) {
    wchar_t name[kPromptTextSize] = L"";
    offerNames(layerNames(session.database().core()));
    if (kdedGetString(wideHostText("Layer name: ").c_str(), name) != kPromptNormal) {
        return std::nullopt;
    }
    auto found = seenOnLayer(session, name);
    if (!found) {
        rejectAnswer(wideHostText("there is no layer '%1'", {name}));
    }
    return found;
}

// The corners of a box are points that were given: "@" means the same after a box that was drawn
// before the command as after one that answered it.
void leaveLastCorner(const std::vector<std::wstring>& lines) {
    KdGePoint3d& lastPoint = PromptSession::current().lastPoint;
    for (std::size_t i = 0; i + 2 < lines.size(); ++i) {
        if (lines[i] != L"C" && lines[i] != L"W") {
            i += lines[i] == L"STYLE" || lines[i] == L"LAYER" ? 1 : 0; // a name follows
            continue;
        }
        i += 2;
        const PointReading corner = readPoint(lines[i], worldToUser(lastPoint));
        if (const auto* const typed = std::get_if<TypedPoint>(&corner)) {
            lastPoint = userToWorld(typed->point);
        }
    }
}

// A selection while it is made.
class SelectionInProgress {
public:
    SelectionInProgress(Session& session, SelectionKind kind) : m_session(session), m_kind(kind) {}
    ~SelectionInProgress() { m_session.selectionMemory().progress.reset(); }
    SelectionInProgress(const SelectionInProgress&) = delete;
    SelectionInProgress& operator=(const SelectionInProgress&) = delete;

    // False for a cancel.
    bool ask() {
        for (;;) {
            publish();
            kdedInitGet(0, kKeywords);
            const PromptAnswer answer = askUser(PromptKind::selection, prompt().c_str());
            switch (answer.kind) {
            case PromptAnswer::Kind::empty:
                return true;
            case PromptAnswer::Kind::keyword:
                if (!takeKeyword(answer.keyword)) {
                    return false;
                }
                break;
            case PromptAnswer::Kind::point:
            case PromptAnswer::Kind::handle:
                takePick(answer);
                break;
            default:
                return false;
            }
        }
    }

    // What was selected by hand, as if it had been answered.
    void takeChosen() {
        SelectionMemory& memory = m_session.selectionMemory();
        const Entities chosen = std::exchange(memory.chosen, {});
        std::vector<std::wstring> lines = std::exchange(memory.chosenLines, {});
        if (lines.empty() && chosen == memory.previous) {
            lines = {L"Previous"};
        } else if (lines.empty()) {
            for (const KdDbStub* const entity : chosen) {
                lines.push_back(widen('#' + handleText(entity->handle)));
            }
        }
        lines.emplace_back();
        for (const std::wstring& line : lines) {
            printLines(prompt() + line);
            m_session.record().line(line);
        }
        leaveLastCorner(lines);
        take(chosen);
    }

    void take(const Entities& entities) {
        m_isUntouched = false;
        for (KdDbStub* const entity : entities) {
            if (m_removes) {
                m_selected.erase(entity);
            } else if (!entity->erased) {
                m_selected.insert(entity);
            }
        }
    }

    [[nodiscard]] bool isUntouched() const { return m_isUntouched; }
    [[nodiscard]] Entities entities() const {
        Entities all(m_selected.begin(), m_selected.end());
        std::sort(all.begin(), all.end(),
                  [](const KdDbStub* a, const KdDbStub* b) { return a->ordinal < b->ordinal; });
        return all;
    }

private:
    [[nodiscard]] std::wstring prompt() const {
        const bool takesMlines = m_kind == SelectionKind::mlines;
        const std::wstring what = m_removes     ? (takesMlines ? wideHostText("Remove multilines")
                                                               : wideHostText("Remove entities"))
                                  : takesMlines ? wideHostText("Select multilines")
                                                : wideHostText("Select entities");
        return wideHostText("%1 or [ALL/Window/Crossing/STYLE/LAYER/Previous/Remove/Add]: ",
                            {what});
    }
    bool takeKeyword(std::wstring_view keyword) {
        std::optional<Entities> found;
        if (keyword == L"Remove" || keyword == L"Add") {
            m_removes = keyword == L"Remove";
            return true;
        }
        if (keyword == L"ALL") {
            found = m_session.scene().allSeen();
        } else if (keyword == L"Previous") {
            found = m_session.selectionMemory().previous;
        } else if (keyword == L"STYLE") {
            found = askStyle(m_session);
        } else if (keyword == L"LAYER") {
            found = askLayer(m_session);
        } else {
            found = askBox(m_session, keyword == L"Crossing");
        }
        if (found) {
            take(*found);
        }
        return found.has_value();
    }

    void takePick(const PromptAnswer& answer) {
        KdDbStub* const found = entityOf(answer);
        const bool isWanted = found != nullptr &&
                              (m_kind != SelectionKind::mlines || found->kind == ObjectKind::mline);
        if (PromptWatcher* const watcher = PromptSession::current().watcher; watcher && !isWanted) {
            watcher->missed(found == nullptr ? PickRefusal::nothingHere : PickRefusal::noMultiline,
                            found, found == nullptr);
        }
        if (found == nullptr) {
            m_isUntouched = false;
            kdutPrintf(L"%ls", wideHostText("Nothing found there.").c_str());
            return;
        }
        take({found});
    }

    // Before each question, for a window.
    void publish() {
        SelectionProgress progress{entities(), m_kind == SelectionKind::mlines, m_removes,
                                   m_isUntouched};
        if (progress.takesMlines) {
            std::erase_if(progress.entities,
                          [](const KdDbStub* entity) { return entity->kind != ObjectKind::mline; });
        }
        m_session.selectionMemory().progress = std::move(progress);
    }

    Session& m_session;
    SelectionKind m_kind;
    std::unordered_set<KdDbStub*> m_selected;
    bool m_removes = false;
    bool m_isUntouched = true;
};

// Takes out what a command must not change, or what it can't, and says so.
class Sieve {
public:
    explicit Sieve(DatabaseCore& core) : m_core(core) {}

    Entities operator()(Entities entities, SelectionKind kind, bool tellsOthers) {
        const std::size_t all = entities.size();
        if (kind == SelectionKind::mlines) {
            std::erase_if(entities,
                          [](const KdDbStub* entity) { return entity->kind != ObjectKind::mline; });
        }
        const std::size_t usable = entities.size();
        std::erase_if(entities, [this](const KdDbStub* entity) { return isLocked(*entity); });
        if (tellsOthers) {
            printCount(all - usable, markedText("%1 other than multilines left out."));
        }
        printCount(usable - entities.size(), markedText("%1 on locked layers left out."));
        return entities;
    }

private:
    static void printCount(std::size_t count, const char* what) {
        if (count > 0) {
            kdutPrintf(L"%ls", wideHostText(what, {std::to_wstring(count)}).c_str());
        }
    }
    bool isLocked(const KdDbStub& entity) {
        const std::wstring layer = layerOf(entity);
        const auto known = m_locked.find(layer);
        return known != m_locked.end()
                   ? known->second
                   : m_locked.emplace(layer, isLayerLocked(m_core, layer)).first->second;
    }

    DatabaseCore& m_core;
    std::unordered_map<std::wstring, bool> m_locked; // by layer
};

} // namespace

std::optional<Selection> askSelection(Session& session, SelectionKind kind, bool emptyMeansAll) {
    SelectionInProgress progress(session, kind);
    SelectionMemory& memory = session.selectionMemory();
    if (!memory.chosen.empty()) {
        progress.takeChosen();
    } else if (!progress.ask()) {
        return std::nullopt;
    }
    Selection selection;
    selection.isEmptyAnswer = progress.isUntouched();
    selection.entities = Sieve(session.database().core())(progress.entities(), kind, true);
    if (!selection.entities.empty()) {
        memory.previous = selection.entities;
        memory.inUse = selection.entities;
    } else if (!emptyMeansAll || !selection.isEmptyAnswer) {
        kdutPrintf(L"%ls", wideHostText("Nothing selected.").c_str());
    }
    return selection;
}

std::optional<std::vector<KdDbStub*>> seenOfStyle(Session& session, const std::wstring& name) {
    KdDbStub* const style = session.database().core().wellKnown().findStyle(name);
    if (style == nullptr) {
        return std::nullopt;
    }
    const KdDbObjectId id(style);
    return seenWith(session, [id](KdDbStub& entity) {
        return entity.kind == ObjectKind::mline && KdDbMline::styleOf(KdDbObjectId(&entity)) == id;
    });
}

std::optional<std::vector<KdDbStub*>> seenOnLayer(Session& session, const std::wstring& name) {
    if (session.database().core().wellKnown().findLayer(name) == nullptr) {
        return std::nullopt;
    }
    const std::wstring folded = foldCase(name);
    return seenWith(
        session, [&folded](const KdDbStub& entity) { return foldCase(layerOf(entity)) == folded; });
}

Selection selectAll(Session& session, SelectionKind kind) {
    Selection selection;
    selection.entities = Sieve(session.database().core())(session.scene().allSeen(), kind, false);
    return selection;
}

} // namespace orvex
