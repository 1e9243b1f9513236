// MLVERTEX: moves, adds or removes vertices of multilines.

#include "HostCommand.h"
#include "KdDbMline.h"
#include "KdDbStub.h"
#include "PromptSession.h"
#include "Session.h"
#include "commandOutput.h"
#include "editMlines.h"
#include "handleText.h"
#include "hostText.h"
#include "impossible.h"
#include "mlineEdits.h"
#include "promptLibrary.h"
#include "promptStatus.h"
#include "textCodec.h"
#include "userFrame.h"
#include "vertexEdits.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

namespace orvex {

namespace {

enum class VertexAct { move, add, remove };

struct VertexTarget {
    KdDbStub* mline = nullptr;
    unsigned vertex = 0;
};

struct VertexTask {
    std::vector<VertexTarget> targets; // never empty
    VertexAct act = VertexAct::move;
};

struct EditedVertices {
    std::vector<std::pair<KdDbStub*, MlineContent>> mlines; // each once
    std::size_t lostGaps = 0;
};

unsigned nearestVertex(const MlineContent& mline, const KdGePoint3d& place) {
    const auto distance = [&place](const ChainVertex& vertex) {
        return std::hypot(vertex.position.x - place.x, vertex.position.y - place.y);
    };
    const auto nearest = std::min_element(
        mline.vertices.begin(), mline.vertices.end(),
        [&](const ChainVertex& a, const ChainVertex& b) { return distance(a) < distance(b); });
    return static_cast<unsigned>(nearest - mline.vertices.begin());
}

// Nothing when the user gives up or names what there isn't, which has been told.
std::optional<VertexTarget> askTarget() {
    const std::optional<NamedMline> named = askMlineToChange(wideHostText("Multiline: ").c_str());
    if (!named) {
        return std::nullopt;
    }
    VertexTarget target{named->stub, 0};
    bool isEmptyAnswer = false;
    const bool hasNearest = named->place.has_value();
    const std::optional<unsigned> vertex = askIndex(
        (hasNearest ? wideHostText("Vertex <nearest>: ") : wideHostText("Vertex: ")).c_str(),
        &isEmptyAnswer);
    if (!vertex && !(isEmptyAnswer && hasNearest)) {
        return std::nullopt;
    }
    target.vertex = vertex ? *vertex : nearestVertex(*named->content, *named->place);
    if (target.vertex >= named->content->vertices.size()) {
        kdutPrintf(L"%ls",
                   wideHostText("It has no vertex %1.", {std::to_wstring(target.vertex)}).c_str());
        return std::nullopt;
    }
    return target;
}

std::optional<VertexTask> askTask() {
    VertexTask task;
    for (;;) {
        const std::optional<VertexTarget> target = askTarget();
        if (!target) {
            return std::nullopt;
        }
        task.targets.push_back(*target);
        wchar_t word[kPromptTextSize] = L"";
        kdedInitGet(0, L"Move Add Remove Together");
        if (kdedGetKword(wideHostText("Vertex [Move/Add/Remove/Together with another]: ").c_str(),
                         word) != kPromptNormal) {
            return std::nullopt;
        }
        const std::wstring_view chosen = word;
        if (chosen != L"Together") {
            task.act = chosen == L"Move"  ? VertexAct::move
                       : chosen == L"Add" ? VertexAct::add
                                          : VertexAct::remove;
            return task;
        }
    }
}

Result<VertexEdit> edited(const MlineContent& mline, unsigned vertex, VertexAct act,
                          const KdGePoint3d& place) {
    const std::optional<StyleLayout> style = styleLayoutOf(mline);
    if (!style) {
        return impossible(hostText("its style is missing"));
    }
    switch (act) {
    case VertexAct::move:
        return withVertexMoved(mline, *style, vertex, place);
    case VertexAct::add:
        return withVertexAdded(mline, *style, vertex, place);
    case VertexAct::remove:
        break;
    }
    return withVertexRemoved(mline, *style, vertex);
}

// All or none, so that walls which meet stay together. Later vertices first, since an edit
// renumbers those after it.
Result<EditedVertices> editedVertices(const VertexTask& task, const KdGePoint3d& place) {
    std::vector<VertexTarget> targets = task.targets;
    std::stable_sort(
        targets.begin(), targets.end(), [](const VertexTarget& a, const VertexTarget& b) {
            return a.mline != b.mline ? a.mline->handle < b.mline->handle : a.vertex > b.vertex;
        });
    EditedVertices all;
    for (const VertexTarget& target : targets) {
        if (all.mlines.empty() || all.mlines.back().first != target.mline) {
            const auto content = contentOf(*target.mline);
            if (content == nullptr) {
                return impossible(hostText("it can't be read"));
            }
            all.mlines.emplace_back(target.mline, *content);
        }
        MlineContent& mline = all.mlines.back().second;
        Result<VertexEdit> result = edited(mline, target.vertex, task.act, place);
        if (!result) {
            return impossible(hostText("multiline %1: %2",
                                       {handleText(target.mline->handle), result.failure().text}));
        }
        all.lostGaps += result->lostGaps;
        mline = std::move(result->mline);
    }
    return all;
}

// What would be there, by the edit itself; nothing where it refuses.
PromptPreviews previewsOf(const VertexTask& task) {
    return [&task](const KdGePoint3d& cursor) {
        std::vector<std::unique_ptr<KdDbEntity>> entities;
        if (Result<EditedVertices> result = editedVertices(task, cursor)) {
            for (auto& [stub, content] : result->mlines) {
                entities.push_back(freeMline(std::move(content)));
            }
        }
        return entities;
    };
}

// Vertices that move with the cursor are nothing to snap to meanwhile.
class InHand {
public:
    InHand(Session& session, const VertexTask& task) : m_session(session) {
        for (const VertexTarget& target : task.targets) {
            m_session.snapMemory().inHand.vertices.push_back({target.mline->handle, target.vertex});
        }
    }
    ~InHand() { m_session.snapMemory().inHand = {}; }
    InHand(const InHand&) = delete;
    InHand& operator=(const InHand&) = delete;

private:
    Session& m_session;
};

// Relative points count from the vertex.
std::optional<KdGePoint3d> askPlace(Session& session, const VertexTask& task) {
    const VertexTarget& first = task.targets.front();
    const KdGePoint3d base = contentOf(*first.mline)->vertices[first.vertex].position;
    const PreviewScope preview(previewsOf(task));
    KdGePoint3d& lastPoint = PromptSession::current().lastPoint;
    const KdGePoint3d lastBefore = std::exchange(lastPoint, base);
    std::optional<InHand> inHand;
    if (task.act == VertexAct::move) {
        inHand.emplace(session, task);
    }
    const auto place =
        askPoint((task.act == VertexAct::move ? wideHostText("New place of the vertex: ")
                                              : wideHostText("Place of the new vertex: "))
                     .c_str(),
                 base);
    if (!place) {
        lastPoint = lastBefore;
    }
    return place;
}

} // namespace

void vertexCommand(Session& session) {
    const std::optional<VertexTask> task = askTask();
    if (!task) {
        return;
    }
    const std::optional<KdGePoint3d> place =
        task->act == VertexAct::remove ? KdGePoint3d() : askPlace(session, *task);
    if (!place) {
        return;
    }
    Result<EditedVertices> result = editedVertices(*task, *place);
    if (!result) {
        kdutPrintf(L"%ls",
                   widen(hostText("Nothing changed. %1.", {result.failure().text})).c_str());
        return;
    }
    for (auto& [stub, content] : result->mlines) {
        storeContent(*stub, std::move(content));
    }
    tellLostGaps(result->lostGaps);
}

} // namespace orvex
