#pragma once

#include "Canvas.h"
#include "DatabaseCore.h"
#include "KdDbDatabase.h"
#include "ModuleLoader.h"
#include "PromptSession.h"
#include "Session.h"
#include "TestPaths.h"
#include "playOn.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QWheelEvent>

#include <gmock/gmock.h>

#include <memory>
#include <string>

namespace orvex::testing {

constexpr int kWidth = 700;
constexpr int kHeight = 500;

// A canvas of 700 by 500 pixels that shows the sample floor plan.
class CanvasFixture : public ::testing::Test {
protected:
    CanvasFixture() : session(openFloorplan()) {
        canvas.resize(kWidth, kHeight);
        canvas.setSession(session.get());
        canvas.show();
        settle();
    }
    ~CanvasFixture() override { canvas.setSession(nullptr); }

    std::unique_ptr<Session> openFloorplan() {
        SessionSetup setup;
        setup.drawing =
            std::move(*DrawingFile::open((sourceDir() / "samples/floorplan.dxf").string()));
        setup.moduleFiles = {(binDir() / "libOmxMLStyle.omx").string()};
        return std::make_unique<Session>(std::move(setup), modules);
    }

    void settle(Canvas& which) {
        QElapsedTimer time;
        time.start();
        do {
            QCoreApplication::processEvents();
            ASSERT_LT(time.elapsed(), 60'000) << "the canvas never settles";
        } while (!which.isSettled());
        QCoreApplication::processEvents();
    }
    void settle() { settle(canvas); }

    // The canvas as it is, without what moves with the cursor.
    QImage picture(Canvas& which) {
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(&which, &leave);
        settle(which);
        return which.grab().toImage().convertToFormat(QImage::Format_RGB32);
    }
    QImage picture() { return picture(canvas); }

    // Another canvas of the same view, which has painted nothing before.
    QImage pictureFromScratch() {
        Canvas fresh;
        fresh.resize(kWidth, kHeight);
        fresh.setSession(session.get());
        fresh.show();
        settle(fresh);
        QImage image = picture(fresh);
        fresh.setSession(nullptr);
        return image;
    }

    void wheel(const QPoint& pixel, int notches) {
        QWheelEvent event(pixel, canvas.mapToGlobal(pixel), {}, {0, notches * 120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&canvas, &event);
    }
    void mouse(QEvent::Type type, const QPoint& pixel, Qt::MouseButton button,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        const bool isDown = type != QEvent::MouseButtonRelease;
        QMouseEvent event(type, pixel, canvas.mapToGlobal(pixel),
                          type == QEvent::MouseMove ? Qt::NoButton : button,
                          isDown ? button : Qt::NoButton, modifiers);
        QCoreApplication::sendEvent(&canvas, &event);
    }
    void drag(const QPoint& from, const QPoint& to, Qt::MouseButton button,
              Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        mouse(QEvent::MouseButtonPress, from, button, modifiers);
        mouse(QEvent::MouseMove, (from + to) / 2, button, modifiers);
        mouse(QEvent::MouseMove, to, button, modifiers);
        mouse(QEvent::MouseButtonRelease, to, button, modifiers);
    }
    void hover(const QPoint& pixel) {
        mouse(QEvent::MouseMove, pixel, Qt::NoButton);
        settle();
    }

    void play(const std::string& text) { playOn(*session, text); }

    [[nodiscard]] PlanPoint planAt(const QPoint& pixel) const {
        return session->view().toPlan({pixel.x() + 0.5, pixel.y() + 0.5});
    }
    [[nodiscard]] QPoint pixelAt(PlanPoint plan) const {
        const PlanPoint pixel = session->view().toPixels(plan);
        return {static_cast<int>(std::floor(pixel.x)), static_cast<int>(std::floor(pixel.y))};
    }

    ModuleLoader modules;
    std::unique_ptr<Session> session;
    Canvas canvas;
};

} // namespace orvex::testing
