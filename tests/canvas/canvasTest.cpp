#include "CanvasFixture.h"

#include <QSignalSpy>

namespace orvex::testing {
namespace {

using ::testing::DoubleNear;

TEST_F(CanvasFixture, showsTheExtentsFirstAndFollowsItsSize) {
    const PlanBox extents = session->scene().extents();
    const PlanView& view = session->view();
    EXPECT_EQ(view.width(), kWidth);
    EXPECT_EQ(view.height(), kHeight);
    EXPECT_LE(view.toPixels(extents.high).x, kWidth);
    EXPECT_GE(view.toPixels(extents.low).x, 0);
    const double fits = std::max((extents.high.x - extents.low.x) / kWidth,
                                 (extents.high.y - extents.low.y) / kHeight);
    EXPECT_NEAR(view.unitsPerPixel(), 1.1 * fits, 1e-9);

    wheel({10, 10}, 3);
    const double scale = view.unitsPerPixel();
    canvas.resize(400, 300);
    settle();
    EXPECT_EQ(view.width(), 400);
    EXPECT_DOUBLE_EQ(view.unitsPerPixel(), scale);
}

TEST_F(CanvasFixture, theWheelKeepsThePlanUnderTheCursor) {
    const QPoint pixel(123, 321);
    const PlanPoint before = planAt(pixel);
    const double scale = session->view().unitsPerPixel();
    wheel(pixel, 2);
    wheel(pixel, 3);
    EXPECT_NEAR(planAt(pixel).x, before.x, 1e-9);
    EXPECT_NEAR(planAt(pixel).y, before.y, 1e-9);
    EXPECT_NEAR(session->view().unitsPerPixel(), scale / std::pow(1.2, 5), 1e-9);
    canvas.zoomPrevious(); // all of the wheel's turns at once
    EXPECT_DOUBLE_EQ(session->view().unitsPerPixel(), scale);
}

TEST_F(CanvasFixture, theWheelLeadsBackFromWhereOnlyCommandsLead) {
    for (const double height : {1e-12, 1e33}) {
        session->view().setView({2400.0, 0.0}, height);
        canvas.viewChanged();
        wheel({300, 200}, height < 1.0 ? 10 : -10); // on there by no means
        EXPECT_EQ(session->view().viewHeight(), height);
        wheel({300, 200}, height < 1.0 ? -5 : 5);
        const double zoom = std::pow(1.2, height < 1.0 ? 5 : -5);
        EXPECT_NEAR(session->view().viewHeight() / height / zoom, 1.0, 1e-9);
    }
}

TEST_F(CanvasFixture, pansWithTheMiddleButtonAndByADragWithCtrl) {
    const PlanPoint place = planAt({200, 200});
    drag({200, 200}, {260, 170}, Qt::MiddleButton);
    EXPECT_NEAR(planAt({260, 170}).x, place.x, 1e-9);
    EXPECT_NEAR(planAt({260, 170}).y, place.y, 1e-9);
    QSignalSpy clicks(&canvas, &Canvas::clicked);
    canvas.setAim({.kind = AimKind::point});
    drag({260, 170}, {200, 200}, Qt::LeftButton, Qt::ControlModifier);
    EXPECT_NEAR(planAt({200, 200}).x, place.x, 1e-9);
    EXPECT_EQ(clicks.count(), 0);
    drag({200, 200}, {201, 201}, Qt::LeftButton, Qt::ControlModifier); // below 3 pixels
    EXPECT_EQ(clicks.count(), 1);
    EXPECT_NEAR(planAt({200, 200}).x, place.x, 1e-9);
    mouse(QEvent::MouseButtonDblClick, {5, 5}, Qt::MiddleButton);
    settle();
    EXPECT_NEAR(session->view().center().x,
                (session->scene().extents().low.x + session->scene().extents().high.x) / 2, 1e-9);
}

TEST_F(CanvasFixture, zoomsToAWindowOfTwoClicksOrADrag) {
    const PlanPoint middle = planAt({150, 125});
    const double scale = session->view().unitsPerPixel();
    QSignalSpy clicks(&canvas, &Canvas::clicked);
    canvas.setAim({.kind = AimKind::point});
    for (const bool isDrag : {false, true}) {
        canvas.startZoomWindow();
        if (isDrag) {
            drag({80, 75}, {220, 175}, Qt::LeftButton);
        } else {
            QTest::mouseClick(&canvas, Qt::LeftButton, {}, {80, 75});
            QTest::mouseClick(&canvas, Qt::LeftButton, {}, {220, 175});
        }
        EXPECT_NEAR(session->view().unitsPerPixel(), scale / 5, 1e-9); // 140 of 700, 100 of 500
        EXPECT_NEAR(session->view().center().x, middle.x, 1e-9);
        EXPECT_NEAR(session->view().center().y, middle.y, 1e-9);
        canvas.zoomPrevious();
    }
    canvas.startZoomWindow();
    QTest::keyClick(&canvas, Qt::Key_Escape);
    EXPECT_EQ(clicks.count(), 0);
    QTest::mouseClick(&canvas, Qt::LeftButton, {}, {80, 75});
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(CanvasFixture, clicksTellThePlanOnlyWhenSomethingAsks) {
    QSignalSpy clicks(&canvas, &Canvas::clicked);
    QSignalSpy rightClicks(&canvas, &Canvas::rightClicked);
    qRegisterMetaType<QKeyEvent*>("QKeyEvent*");
    QSignalSpy keys(&canvas, &Canvas::keyTyped);
    QTest::mouseClick(&canvas, Qt::LeftButton, {}, {80, 75});
    EXPECT_EQ(clicks.count(), 0);
    for (const AimKind aim : {AimKind::entity, AimKind::point}) {
        canvas.setAim({.kind = aim});
        QTest::mouseClick(&canvas, Qt::LeftButton, {}, {80, 75});
        ASSERT_EQ(clicks.count(), 1);
        const auto click = clicks.takeFirst();
        EXPECT_THAT(click[0].toDouble(), DoubleNear(planAt({80, 75}).x, 1e-9));
        EXPECT_THAT(click[1].toDouble(), DoubleNear(planAt({80, 75}).y, 1e-9));
    }
    QTest::mouseClick(&canvas, Qt::RightButton, {}, {80, 75});
    QTest::keyClick(&canvas, Qt::Key_M);
    EXPECT_EQ(rightClicks.count(), 1);
    EXPECT_EQ(keys.count(), 1);
}

// Where a click goes is what the guide said of the place, once, and what the preview was given.
TEST_F(CanvasFixture, aGuideTurnsClicksAtPointsIntoItsOwn) {
    const QImage plain = picture();
    QSignalSpy clicks(&canvas, &Canvas::clicked);
    const QPoint pixel(80, 75);
    const PlanPoint target{planAt(pixel).x + 1.0 / 3.0, 0.1 + 0.2};
    std::vector<PlanPoint> previewed;
    int asked = 0;
    Aim aim{.kind = AimKind::point};
    aim.guide = [&](PlanPoint cursor, Qt::KeyboardModifiers modifiers) {
        ++asked;
        return (modifiers & Qt::ControlModifier) != 0
                   ? GuidedPoint{.at = cursor}
                   : GuidedPoint{.at = target, .isExact = true, .marker = SnapMode::middle};
    };
    aim.preview = [&](PlanPoint point) {
        previewed.push_back(point);
        return Appearance();
    };
    canvas.setAim(aim);
    hover(pixel);
    canvas.grab();
    EXPECT_EQ(previewed.back(), target);
    EXPECT_NE(canvas.grab().toImage(), plain);
    QTest::mouseClick(&canvas, Qt::LeftButton, {}, pixel);
    EXPECT_EQ(asked, 1);
    drag(pixel, pixel + QPoint(1, 1), Qt::LeftButton, Qt::ControlModifier);
    ASSERT_EQ(clicks.count(), 2);
    EXPECT_EQ((PlanPoint{clicks[0][0].toDouble(), clicks[0][1].toDouble()}), target);
    EXPECT_TRUE(clicks[0][2].toBool());
    EXPECT_NEAR(clicks[1][1].toDouble(), planAt(pixel).y, 1e-9);
    EXPECT_FALSE(clicks[1][2].toBool());

    asked = 0;
    aim.kind = AimKind::entity; // picks aren't guided
    canvas.setAim(aim);
    hover(pixel);
    QTest::mouseClick(&canvas, Qt::LeftButton, {}, pixel);
    EXPECT_EQ(asked, 0);
}

// What each press, drag and click of a selection means; Shift and direction go with it.
TEST_F(CanvasFixture, selectionsAreMadeByClicksAndWindows) {
    QSignalSpy picks(&canvas, &Canvas::picked);
    std::vector<std::pair<double, bool>> windows; // width with its sign, takes away
    QObject::connect(&canvas, &Canvas::windowDrawn,
                     [&](PlanPoint first, PlanPoint second, bool away) {
                         windows.emplace_back(second.x - first.x, away);
                     });
    canvas.setAim({.kind = AimKind::selection});
    const QPoint wall = pixelAt({5000.0, 0.0});
    const QPoint empty(3, 3);
    const double unit = session->view().unitsPerPixel();

    QTest::mouseClick(&canvas, Qt::LeftButton, {}, wall);
    QTest::mouseClick(&canvas, Qt::LeftButton, Qt::ShiftModifier, wall + QPoint(0, 1));
    ASSERT_EQ(picks.count(), 2);
    EXPECT_FALSE(picks[0][2].toBool());
    EXPECT_TRUE(picks[1][2].toBool());

    drag(wall, wall + QPoint(50, 40), Qt::LeftButton); // a drag may start on an entity
    drag({60, 60}, {20, 90}, Qt::LeftButton, Qt::ShiftModifier);
    QTest::mouseClick(&canvas, Qt::LeftButton, {}, empty);
    EXPECT_EQ(windows.size(), 2U) << "the first click beside all is a corner";
    QTest::mouseClick(&canvas, Qt::LeftButton, {}, {103, 50});
    ASSERT_EQ(windows.size(), 3U);
    EXPECT_NEAR(windows[0].first, 50 * unit, 1e-6);
    EXPECT_NEAR(windows[1].first, -40 * unit, 1e-6);
    EXPECT_NEAR(windows[2].first, 100 * unit, 1e-6);
    EXPECT_EQ((std::vector<bool>{windows[0].second, windows[1].second, windows[2].second}),
              (std::vector<bool>{false, true, false}));

    QTest::mouseClick(&canvas, Qt::LeftButton, {}, empty);
    EXPECT_TRUE(canvas.dropWindow());
    EXPECT_FALSE(canvas.dropWindow());
    EXPECT_EQ(picks.count(), 2);
    EXPECT_EQ(windows.size(), 3U);
}

TEST_F(CanvasFixture, selectedEntitiesAndMarksAreShownUntilTheyAreTakenAway) {
    const QImage plain = picture();
    KdDbStub* const wall = session->scene().entityAt({5000.0, 0.0, 0.0}, 50);
    ASSERT_NE(wall, nullptr);
    canvas.setSelected({wall});
    const QImage selected = picture();
    EXPECT_NE(selected, plain);
    const QPoint corner(40, 450);
    canvas.setSelected({});
    canvas.setMarks({{planAt(corner), MarkKind::left}});
    QImage marked = picture();
    EXPECT_NE(marked.pixel(corner), plain.pixel(corner));
    for (int y = corner.y() - 10; y <= corner.y() + 10; ++y) { // and nowhere else
        for (int x = corner.x() - 10; x <= corner.x() + 10; ++x) {
            marked.setPixel(x, y, plain.pixel(x, y));
        }
    }
    EXPECT_EQ(marked, plain);
    canvas.setMarks({});
    EXPECT_EQ(picture(), plain);
}

TEST_F(CanvasFixture, sessionsMayBeSwappedAndRemoved) {
    const QImage first = picture();
    auto other = openFloorplan();
    canvas.setSession(other.get());
    canvas.setSession(nullptr);
    canvas.zoomExtents();
    wheel({10, 10}, 1);
    hover({10, 10});
    const QImage empty = picture();
    EXPECT_NE(empty, first);
    EXPECT_EQ(empty.pixel(10, 10), empty.pixel(350, 250)) << "nothing but the ground";
    canvas.setSession(other.get());
    settle();
    EXPECT_EQ(picture(), first);
    other->view().setView({0, 0}, 12.0);
    canvas.viewChanged();
    EXPECT_NE(picture(), first);
    canvas.setSession(session.get()); // which has kept its view
    EXPECT_EQ(picture(), first);
    other.reset();
}

} // namespace
} // namespace orvex::testing
