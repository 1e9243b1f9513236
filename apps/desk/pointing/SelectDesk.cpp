#include "SelectDesk.h"

#include "Canvas.h"
#include "CommandRunner.h"
#include "DeskPrompts.h"
#include "KdDbStub.h"
#include "Session.h"
#include "canvasMarks.h"
#include "clickedPoint.h"
#include "drawingNames.h"
#include "qtWide.h"
#include "selection.h"
#include "selectionLines.h"
#include "userFrame.h"

#include <QAction>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QStatusBar>

#include <algorithm>
#include <array>
#include <unordered_set>
#include <utility>

namespace orvex {

namespace {

// Entries of the menu bar that take a selection; null separates groups.
constexpr auto kContextActions =
    std::to_array<const char*>({"erase", "move", "copy", "rotate", "mirror", "reverse", nullptr,
                                "mljoin", "properties", "list", nullptr, "deselect", "undo"});

bool isBefore(const KdDbStub* a, const KdDbStub* b) {
    return a->ordinal < b->ordinal;
}

// Without those, or with them, in drawing order.
std::vector<KdDbStub*> combined(std::vector<KdDbStub*> before,
                                const std::vector<KdDbStub*>& entities, bool takesAway) {
    if (takesAway) {
        const std::unordered_set<const KdDbStub*> gone(entities.begin(), entities.end());
        std::erase_if(before, [&gone](const KdDbStub* entity) { return gone.contains(entity); });
        return before;
    }
    before.insert(before.end(), entities.begin(), entities.end());
    std::sort(before.begin(), before.end(), isBefore);
    before.erase(std::unique(before.begin(), before.end()), before.end());
    return before;
}

PlanBox boxOf(PlanPoint first, PlanPoint second, double unitsPerPixel) {
    PlanBox box;
    for (const PlanPoint& corner : {first, second}) {
        const KdGePoint3d world = userToWorld(clickedPoint(corner.x, corner.y, unitsPerPixel));
        box.include(PlanPoint{world.x, world.y});
    }
    return box;
}

} // namespace

SelectDesk::SelectDesk(QMainWindow& window, Canvas& canvas, CommandRunner& runner,
                       DeskPrompts& prompts)
    : QObject(&window), m_window(window), m_canvas(canvas), m_runner(runner), m_prompts(prompts),
      m_count(new QLabel(&window)) {
    m_count->setObjectName(QStringLiteral("statusSelected"));
    window.statusBar()->addPermanentWidget(m_count);
    m_count->hide();
    connect(&canvas, &Canvas::picked, this, &SelectDesk::pick);
    connect(&canvas, &Canvas::windowDrawn, this, &SelectDesk::takeWindow);
    connect(&runner, &CommandRunner::commandStarted, this, [this] {
        m_session->selectionMemory().inUse.clear();
        m_count->hide();
    });
    connect(&runner, &CommandRunner::commandEnded, this, &SelectDesk::commandEnded);
}

void SelectDesk::setSession(Session& session) {
    m_session = &session;
    m_kept.clear();
    show();
    emit chosenChanged();
}

const std::vector<KdDbStub*>& SelectDesk::chosen() const {
    return m_session->selectionMemory().chosen;
}

void SelectDesk::choose(std::vector<KdDbStub*> entities, const QStringList& lines) {
    SelectionMemory& memory = m_session->selectionMemory();
    memory.chosen = std::move(entities);
    memory.chosenLines.clear();
    for (const QString& line : lines) {
        memory.chosenLines.push_back(toWide(line));
    }
    show();
    emit chosenChanged();
}

void SelectDesk::show() {
    const SelectionMemory& memory = m_session->selectionMemory();
    if (memory.progress) {
        m_canvas.setSelected(memory.progress->entities);
    } else if (m_runner.isBusy() && !memory.inUse.empty()) {
        m_canvas.setSelected(memory.inUse);
    } else {
        m_canvas.setSelected(memory.chosen);
        m_count->setVisible(!memory.chosen.empty());
        m_count->setText(tr("%1 selected").arg(memory.chosen.size()));
    }
}

void SelectDesk::startKeeping(const QString& command, const QStringList& answers) {
    if (!m_runner.isBusy() && !chosen().empty()) {
        m_kept = chosen();
        m_runner.start(command, answers);
    }
}

bool SelectDesk::clear() {
    const bool had = !chosen().empty();
    if (had) {
        choose({});
    }
    return had;
}

void SelectDesk::commandEnded() {
    SelectionMemory& memory = m_session->selectionMemory();
    memory.inUse.clear();
    if (!m_kept.empty()) {
        memory.chosen = std::exchange(m_kept, {});
    }
    std::erase_if(memory.chosen, [](const KdDbStub* entity) { return entity->erased; });
    memory.chosenLines.clear(); // they might select others by now
    show();
    emit chosenChanged();
}

void SelectDesk::pick(double x, double y, bool takesAway) {
    KdDbStub* const found = m_picker({x, y});
    if (found == nullptr) {
        return;
    }
    const auto& progress = m_session->selectionMemory().progress;
    const QStringList lines =
        pickLines(progress.value_or(SelectionProgress()), {x, y}, found->handle, takesAway,
                  m_session->view().unitsPerPixel());
    const PromptRequest* const request = m_prompts.request();
    if (request != nullptr && request->kind == PromptKind::selection) {
        m_prompts.answerLines(lines);
    } else { // nothing is taken while a command asks for something else
        take({found}, takesAway, lines);
    }
}

void SelectDesk::takeWindow(PlanPoint first, PlanPoint second, bool takesAway) {
    const auto& progress = m_session->selectionMemory().progress;
    const double unitsPerPixel = m_session->view().unitsPerPixel();
    const QStringList lines = windowLines(progress.value_or(SelectionProgress()), first, second,
                                          takesAway, unitsPerPixel);
    if (progress) {
        m_prompts.answerLines(lines);
        return;
    }
    const PlanBox box = boxOf(first, second, unitsPerPixel);
    Scene& scene = m_session->scene();
    take(isCrossingWindow(first.x, second.x) ? scene.entitiesTouching(box)
                                             : scene.entitiesWithin(box),
         takesAway, lines);
}

void SelectDesk::take(const std::vector<KdDbStub*>& entities, bool takesAway,
                      const QStringList& lines) {
    if (m_runner.isBusy()) {
        return;
    }
    const SelectionMemory& memory = m_session->selectionMemory();
    QStringList all;
    for (const std::wstring& line : memory.chosenLines) {
        all << toQt(line);
    }
    const bool isKnownByHandles = all.isEmpty() && !memory.chosen.empty();
    choose(combined(memory.chosen, entities, takesAway), isKnownByHandles ? all : all + lines);
}

void SelectDesk::takeNamed(const QString& keyword, const QString& name) {
    const QStringList lines{keyword, name};
    if (m_session->selectionMemory().progress) {
        m_prompts.answerLines(lines);
        return;
    }
    const auto found = keyword == QLatin1String("STYLE") ? seenOfStyle(*m_session, toWide(name))
                                                         : seenOnLayer(*m_session, toWide(name));
    take(found.value_or(std::vector<KdDbStub*>()), false, lines);
}

void SelectDesk::perform(SelectAct act) {
    const bool isAsked = m_session->selectionMemory().progress.has_value();
    switch (act) {
    case SelectAct::all:
    case SelectAct::previous: {
        const bool isAll = act == SelectAct::all;
        const QStringList lines{isAll ? QStringLiteral("ALL") : QStringLiteral("Previous")};
        if (isAsked) {
            m_prompts.answerLines(lines);
        } else {
            take(isAll ? m_session->scene().allSeen() : m_session->selectionMemory().previous,
                 false, lines);
        }
        break;
    }
    case SelectAct::none:
        if (!m_runner.isBusy()) {
            clear();
        }
        break;
    case SelectAct::erase: // by a key that is close to others: it cancels nothing
        if (!m_runner.isBusy()) {
            m_runner.start(QStringLiteral("ERASE"));
        }
        break;
    }
}

void SelectDesk::fillMenus(QMenu& styles, QMenu& layers) {
    const auto fill = [this](QMenu& menu, const QString& keyword,
                             QStringList (*namesOf)(KdDbDatabase&)) {
        connect(&menu, &QMenu::aboutToShow, this, [this, &menu, keyword, namesOf] {
            menu.clear();
            for (const QString& name : namesOf(m_session->database())) {
                QAction* const action =
                    menu.addAction(QString(name).replace('&', QLatin1String("&&")));
                connect(action, &QAction::triggered, this,
                        [this, keyword, name] { takeNamed(keyword, name); });
            }
        });
    };
    fill(styles, QStringLiteral("STYLE"), styleNames);
    fill(layers, QStringLiteral("LAYER"), layerNames);
}

bool SelectDesk::showContextMenu(const QPoint& at) {
    if (m_runner.isBusy() || chosen().empty()) {
        return false;
    }
    auto* const menu = new QMenu(&m_window);
    menu->setObjectName(QStringLiteral("selectionMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const char* const name : kContextActions) {
        if (name == nullptr) {
            menu->addSeparator();
        } else if (auto* const action = m_window.findChild<QAction*>(QLatin1String(name))) {
            menu->addAction(action);
        }
    }
    menu->popup(at);
    return true;
}

} // namespace orvex
