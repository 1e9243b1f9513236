#pragma once

#include "Appearance.h"
#include "KdGePoint3d.h"
#include "ToolWatch.h"
#include "viewChange.h"

#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QTimer>

#include <optional>
#include <vector>

namespace orvex {

class Canvas;
class DeskPrompts;
class OverlapPicks;
class Session;

// What a click would do, as soon as the mouse is slow enough to be read: the multilines that a tool
// or a command would change, or why it wouldn't. Gone before the click itself shows.
class GhostDesk final : public QObject {
    Q_OBJECT

public:
    // All outlive it.
    GhostDesk(QObject* parent, Canvas& canvas, DeskPrompts& prompts, OverlapPicks& overlaps);

    void setSession(Session& session);

    // As they are, and as they would be; empty where nothing is shown.
    [[nodiscard]] const std::vector<Appearance>& before() const { return m_before; }
    [[nodiscard]] const std::vector<Appearance>& after() const { return m_after; }
    [[nodiscard]] const QString& words() const { return m_words; }
    // Whether it is among them.
    [[nodiscard]] bool changes(const KdDbStub* entity) const;
    [[nodiscard]] bool changesTarget() const { return m_asked && changes(m_asked->entity); }

signals:
    void changed();

private:
    struct Asked {
        const KdDbStub* entity;
        KdGePoint3d point; // as a click would give it
        ViewState view;
        ToolWatch::Stage stage;
        friend bool operator==(const Asked&, const Asked&) = default;
    };

    void moved(PlanPoint place);
    void ask();
    void drop();
    void askTool(KdDbStub& entity, const KdGePoint3d& point);
    void tryPick(KdDbStub& entity, const KdGePoint3d& place); // world
    [[nodiscard]] bool isPickTried() const;                   // by the command itself
    [[nodiscard]] bool isAsking() const;

    DeskPrompts& m_prompts;
    OverlapPicks& m_overlaps;
    Session* m_session = nullptr;
    QTimer m_rest;
    QElapsedTimer m_sinceMove;
    PlanPoint m_place;
    PlanPoint m_pixel; // of the place, when it was told
    bool m_waitsForMove = true;
    std::optional<Asked> m_asked; // what is shown
    std::vector<const KdDbStub*> m_changed;
    std::vector<Appearance> m_before;
    std::vector<Appearance> m_after;
    QString m_words;
};

} // namespace orvex
