#include "GripDesk.h"

#include "Canvas.h"
#include "CommandRunner.h"
#include "DeskSettings.h"
#include "KdDbStub.h"
#include "SelectDesk.h"
#include "Session.h"
#include "clickedPoint.h"
#include "lockedLayers.h"
#include "mlineEdits.h"
#include "qtWide.h"
#include "userFrame.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>

#include <algorithm>
#include <cmath>
#include <utility>

namespace orvex {

namespace {

constexpr std::size_t kMostGrips = 200; // of more none could be told from another
constexpr double kSamePlace = 1e-9;     // drawing units
constexpr const wchar_t* kTogetherKey = L"MoveCommonVertices";

struct GripPlace {
    PlanPoint place;
    KdDbStub* mline = nullptr;
    unsigned vertex = 0;
};

// Nothing when there are too many.
std::vector<GripPlace> gripPlaces(const std::vector<KdDbStub*>& entities) {
    std::vector<GripPlace> places;
    for (KdDbStub* const entity : entities) {
        if (entity->kind != ObjectKind::mline || isOnLockedLayer(*entity)) {
            continue;
        }
        const auto content = contentOf(*entity);
        const std::size_t count = content != nullptr ? content->vertices.size() : 0;
        if (places.size() + count > kMostGrips) {
            return {};
        }
        for (unsigned v = 0; v < count; ++v) {
            const KdGePoint3d& place = content->vertices[v].position;
            places.push_back({{place.x, place.y}, entity, v});
        }
    }
    return places;
}

} // namespace

GripDesk::GripDesk(QMainWindow& window, Canvas& canvas, CommandRunner& runner, SelectDesk& select,
                   DeskSettings& settings)
    : QObject(&window), m_window(window), m_canvas(canvas), m_runner(runner), m_select(select),
      m_settings(settings), m_together(new QAction(tr("Move &Common Vertices Together"), this)) {
    m_together->setObjectName(QStringLiteral("moveTogether"));
    m_together->setCheckable(true);
    m_together->setChecked(m_settings.text(kTogetherKey) == QLatin1String("1"));
    m_together->setStatusTip(tr("Vertices of selected multilines in the same place move as one"));
    connect(m_together, &QAction::toggled, this, [this](bool isOn) {
        m_settings.setText(kTogetherKey, isOn ? QStringLiteral("1") : QStringLiteral("0"));
    });
    connect(&select, &SelectDesk::chosenChanged, this, &GripDesk::makeGrips);
    connect(&canvas, &Canvas::gripTaken, this,
            [this](int grip) { start(grip, QStringLiteral("Move")); });
    connect(&canvas, &Canvas::selectionDragged, this, &GripDesk::moveSelection);
    connect(&canvas, &Canvas::gripMenuWanted, this, &GripDesk::showMenu);
}

void GripDesk::setSession(Session& session) {
    m_session = &session;
    makeGrips();
}

void GripDesk::makeGrips() {
    m_grips.clear();
    std::vector<PlanPoint> places;
    for (const GripPlace& each : gripPlaces(m_select.chosen())) {
        const auto isThere = [&each](const PlanPoint& place) {
            return std::hypot(place.x - each.place.x, place.y - each.place.y) <= kSamePlace;
        };
        const auto index = static_cast<std::size_t>(
            std::find_if(places.begin(), places.end(), isThere) - places.begin());
        if (index == places.size()) {
            places.push_back(each.place);
            m_grips.emplace_back();
        }
        m_grips[index].push_back({each.mline, each.vertex});
    }
    m_canvas.setGrips(std::move(places));
}

void GripDesk::start(int grip, const QString& act) {
    if (static_cast<std::size_t>(grip) >= m_grips.size()) {
        return; // what it was on is gone
    }
    QStringList answers;
    for (const Vertex& vertex : m_grips[static_cast<std::size_t>(grip)]) {
        if (!answers.isEmpty()) {
            if (!m_together->isChecked()) {
                break;
            }
            answers << QStringLiteral("Together");
        }
        answers << '#' + QString::number(vertex.mline->handle, 16).toUpper()
                << QString::number(vertex.index);
    }
    m_runner.start(QStringLiteral("MLVERTEX"), answers << act);
}

void GripDesk::moveSelection(double x, double y) {
    const std::vector<PlanPoint>& places = m_canvas.grips();
    const auto away = [x, y](const PlanPoint& place) {
        return std::hypot(place.x - x, place.y - y);
    };
    const auto nearest = std::min_element(
        places.begin(), places.end(),
        [&away](const PlanPoint& a, const PlanPoint& b) { return away(a) < away(b); });
    const KdGePoint3d base = nearest == places.end()
                                 ? clickedPoint(x, y, m_session->view().unitsPerPixel())
                                 : worldToUser({nearest->x, nearest->y, 0.0});
    m_runner.start(QStringLiteral("MOVE"), {toQt(pointText(base))});
}

void GripDesk::showMenu(int grip, const QPoint& at) {
    auto* const menu = new QMenu(&m_window);
    menu->setObjectName(QStringLiteral("gripMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [&](const QString& text, const char* act) {
        connect(menu->addAction(text), &QAction::triggered, this,
                [this, grip, act] { start(grip, QLatin1String(act)); });
    };
    add(tr("&Move Vertex"), "Move");
    add(tr("&Add Vertex"), "Add");
    add(tr("&Remove Vertex"), "Remove");
    menu->addSeparator();
    menu->addAction(m_together);
    menu->popup(at);
}

} // namespace orvex
