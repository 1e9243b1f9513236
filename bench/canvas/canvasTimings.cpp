// Times a canvas on a drawing that make_drawing.py has made.
//
//   canvas_timings DRAWING MULTILINES
//
// Prints a line for each phase: its name, the whole time, and the longest pass of the event loop in
// it, for no input is answered during a pass. Milliseconds.

#include "BlockList.h"
#include "Canvas.h"
#include "ChangeLog.h"
#include "DatabaseCore.h"
#include "KdDbDatabase.h"
#include "KdDbLayerTable.h"
#include "KdDbMline.h"
#include "MlineContent.h"
#include "ModuleLoader.h"
#include "PlanPicture.h"
#include "Session.h"
#include "WellKnownObjects.h"
#include "findSnap.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <malloc.h>
#include <string>
#include <vector>

namespace {

using namespace orvex;
using Clock = std::chrono::steady_clock;

constexpr int kWidth = 1600;
constexpr int kHeight = 1200;
constexpr double kCell = 2000.0; // of the drawing's grid
constexpr double kShift = 1234.5678;

double milliseconds(Clock::duration time) {
    return std::chrono::duration<double, std::milli>(time).count();
}

template <class Work>
double timeOf(Work&& work) {
    const auto start = Clock::now();
    work();
    return milliseconds(Clock::now() - start);
}

// Runs phases of a canvas and prints what they took.
class Watch {
public:
    explicit Watch(Canvas& canvas) : m_canvas(canvas) {}

    // The inputs one after the other, a pass after each, then passes until nothing is left to do.
    void phase(const char* name, const std::vector<std::function<void()>>& inputs) {
        double longest = 0.0;
        const double whole = timeOf([&] {
            for (const auto& input : inputs) {
                longest = std::max(longest, timeOf([&] {
                                       input();
                                       QCoreApplication::processEvents();
                                   }));
            }
            while (!m_canvas.isSettled()) {
                longest = std::max(longest, timeOf([] { QCoreApplication::processEvents(); }));
            }
            longest = std::max(longest, timeOf([] { QCoreApplication::processEvents(); }));
        });
        std::printf("%-28s %9.2f %9.2f\n", name, whole, longest);
    }

private:
    Canvas& m_canvas;
};

void wheel(Canvas& canvas, const QPoint& pixel, int notches) {
    QWheelEvent event(pixel, canvas.mapToGlobal(pixel), {}, {0, notches * 120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&canvas, &event);
}

void mouse(Canvas& canvas, QEvent::Type type, const QPoint& pixel, Qt::MouseButton button) {
    QMouseEvent event(type, pixel, canvas.mapToGlobal(pixel),
                      type == QEvent::MouseMove ? Qt::NoButton : button,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : button, Qt::NoModifier);
    QCoreApplication::sendEvent(&canvas, &event);
}

std::vector<std::function<void()>> panning(Canvas& canvas, int steps) {
    std::vector<std::function<void()>> inputs;
    QPoint pixel(kWidth / 2, kHeight / 2);
    inputs.emplace_back(
        [&canvas, pixel] { mouse(canvas, QEvent::MouseButtonPress, pixel, Qt::MiddleButton); });
    for (int step = 0; step < steps; ++step) {
        pixel += QPoint(11, 7);
        inputs.emplace_back(
            [&canvas, pixel] { mouse(canvas, QEvent::MouseMove, pixel, Qt::MiddleButton); });
    }
    inputs.emplace_back(
        [&canvas, pixel] { mouse(canvas, QEvent::MouseButtonRelease, pixel, Qt::MiddleButton); });
    return inputs;
}

std::vector<std::function<void()>> hovering(Canvas& canvas, int steps) {
    std::vector<std::function<void()>> inputs;
    inputs.reserve(static_cast<std::size_t>(steps));
    for (int step = 0; step < steps; ++step) {
        const QPoint pixel(300 + 13 * step, 200 + 9 * step);
        inputs.emplace_back(
            [&canvas, pixel] { mouse(canvas, QEvent::MouseMove, pixel, Qt::NoButton); });
    }
    return inputs;
}

// Takes the first list of a multiline's first vertex to another position.
void change(DatabaseCore& core, KdDbStub& stub) {
    auto* mline = static_cast<KdDbMline*>(core.open(stub, true));
    if (mline == nullptr) {
        return;
    }
    auto content =
        std::make_shared<MlineContent>(static_cast<const MlineContent&>(*mline->content()));
    for (ChainVertex& vertex : content->vertices) {
        vertex.position.y += 7.0;
    }
    mline->setContent(content);
    mline->close();
}

// All of the view painted from nothing; milliseconds, the best of some.
double fullRepaint(Scene& scene, const PlanView& view) {
    double best = 1e9;
    for (int round = 0; round < 5; ++round) {
        best = std::min(best, timeOf([&] {
                            PlanPicture picture;
                            picture.setScene(&scene);
                            picture.setView(view, 1.0);
                            picture.paintSome(Clock::time_point::max());
                            QImage image(kWidth, kHeight, QImage::Format_RGB32);
                            QPainter painter(&image);
                            picture.draw(painter, image.rect());
                        }));
    }
    return best;
}

// Every line of the drawing by a painter's own calls, smooth as pictures of drawings are or not.
double plainRepaint(Scene& scene, const PlanView& view, bool smooth) {
    double best = 1e9;
    for (int round = 0; round < 3; ++round) {
        best = std::min(best, timeOf([&] {
                            QImage image(kWidth, kHeight, QImage::Format_RGB32);
                            image.fill(Qt::black);
                            QPainter painter(&image);
                            painter.setRenderHint(QPainter::Antialiasing, smooth);
                            scene.visitAll([&](KdDbStub&, const Appearance& appearance) {
                                for (const Stroke& stroke : appearance.strokes) {
                                    painter.setPen(QPen(QColor::fromRgb(stroke.rgb), 1.0));
                                    for (std::size_t i = 0; i + 1 < stroke.points.size(); ++i) {
                                        const PlanPoint a = view.toPixels(stroke.points[i]);
                                        const PlanPoint b = view.toPixels(stroke.points[i + 1]);
                                        painter.drawLine(QPointF(a.x, a.y), QPointF(b.x, b.y));
                                    }
                                }
                            });
                        }));
    }
    return best;
}

// A view of some hundred multilines in the middle of the grid.
PlanView hundredInView(int multilines) {
    const double side = std::ceil(std::sqrt(multilines));
    const double middle = kShift + std::floor(side / 2) * kCell;
    PlanView view(kWidth, kHeight);
    view.setView({middle, middle}, kCell * 10.0 * std::sqrt(static_cast<double>(kHeight) / kWidth));
    return view;
}

void measurePhases(Canvas& canvas, Session& session, int multilines) {
    Watch watch(canvas);
    DatabaseCore& core = session.database().core();
    watch.phase("open", {[&] { canvas.setSession(&session); }});
    watch.phase("pan at extents", panning(canvas, 60));
    watch.phase("point at extents", hovering(canvas, 60));
    std::vector<std::function<void()>> in(30, [&] { wheel(canvas, {801, 601}, 1); });
    watch.phase("zoom in by 30 notches", in);
    watch.phase("pan near", panning(canvas, 60));
    watch.phase("point near", hovering(canvas, 60));
    std::vector<std::function<void()>> out(30, [&] { wheel(canvas, {801, 601}, -1); });
    watch.phase("zoom out by 30 notches", out);
    watch.phase("extents", {[&] { canvas.zoomExtents(); }});
    const auto& entities = core.blocks().modelSpace().entities;
    KdDbStub& one = *entities[entities.size() / 2 / 2 * 2];
    watch.phase("edit one at extents", {[&] {
                    core.changes().beginCommand();
                    change(core, one);
                    core.changes().endCommand();
                    canvas.refresh();
                }});
    const PlanView near = hundredInView(multilines);
    session.view().setView(near.center(), near.viewHeight());
    watch.phase("go near", {[&] { canvas.viewChanged(); }});
    watch.phase("edit one near", {[&] {
                    core.changes().beginCommand();
                    change(core, one);
                    core.changes().endCommand();
                    canvas.refresh();
                }});
    core.changes().beginCommand();
    for (KdDbStub* stub : entities) {
        if (stub->kind == ObjectKind::mline) {
            change(core, *stub);
        }
    }
    core.changes().endCommand();
    malloc_trim(0); // what the edits have left to the allocator is their cost, not the canvas's
    watch.phase("all have changed", {[&] { canvas.refresh(); }});
    core.changes().undo();
    malloc_trim(0);
    watch.phase("all changes undone", {[&] { canvas.refresh(); }});
    auto* layer =
        static_cast<KdDbLayerTableRecord*>(core.open(*core.wellKnown().findLayer(L"WALLS"), true));
    KdCmColor blue;
    blue.setColorIndex(5);
    layer->setColor(blue);
    layer->close();
    watch.phase("layer has changed", {[&] { canvas.refresh(); }});
}

void measurePainting(Session& session, int multilines) {
    PlanView all(kWidth, kHeight);
    all.zoomTo(session.scene().extents());
    std::printf("%-28s %9.2f\n", "repaint at extents", fullRepaint(session.scene(), all));
    std::printf("%-28s %9.2f\n", "plain calls, smooth", plainRepaint(session.scene(), all, true));
    std::printf("%-28s %9.2f\n", "plain calls", plainRepaint(session.scene(), all, false));
    std::printf("%-28s %9.2f\n", "repaint of 100 multilines",
                fullRepaint(session.scene(), hundredInView(multilines)));
}

// The search of a move of the mouse while a point is asked: the mean and the longest of many, in
// the processor's time, in places around the middle that are so many pixels apart.
void measureSnap(Session& session, const char* name, const PlanView& view, int apart) {
    constexpr int kSide = 20;
    SnapQuery query;
    query.unitsPerPixel = view.unitsPerPixel();
    double sum = 0.0;
    double longest = 0.0;
    for (int i = 0; i < kSide * kSide; ++i) {
        const int column = i % kSide - kSide / 2;
        const int row = i / kSide - kSide / 2;
        query.cursor = view.toPlan({kWidth / 2.0 + column * apart, kHeight / 2.0 + row * apart});
        query.base = view.center();
        const std::clock_t begin = std::clock();
        query.held = findSnap(session.scene(), query);
        const double time = 1e3 * static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
        sum += time;
        longest = std::max(longest, time);
    }
    std::printf("%-28s %9.3f %9.3f\n", name, sum / (kSide * kSide), longest);
}

void measureSnaps(Session& session, int multilines) {
    PlanView view(kWidth, kHeight);
    view.zoomTo(session.scene().extents());
    measureSnap(session, "snap at extents", view, 50);
    view.setView(view.center(), 100.0 * view.viewHeight());
    measureSnap(session, "snap far out", view, 1);
    measureSnap(session, "snap among 100 multilines", hundredInView(multilines), 50);
}

} // namespace

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    const QApplication application(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "usage: canvas_timings DRAWING MULTILINES\n");
        return 2;
    }
    auto opened = DrawingFile::open(argv[1]);
    if (!opened) {
        std::fprintf(stderr, "canvas_timings: %s can't be opened\n", argv[1]);
        return 1;
    }
    SessionSetup setup;
    setup.drawing = std::move(*opened);
    ModuleLoader modules;
    Session session(std::move(setup), modules);
    Canvas canvas;
    canvas.resize(kWidth, kHeight);
    canvas.show();
    QCoreApplication::processEvents();
    const int multilines = std::atoi(argv[2]);
    measureSnaps(session, multilines);
    measurePhases(canvas, session, multilines);
    measurePainting(session, multilines);
    canvas.setSession(nullptr);
    return 0;
}
