#include "BlockList.h"
#include "CanvasFixture.h"
#include "ChangeLog.h"
#include "KdDbLayerTable.h"
#include "KdDbMline.h"
#include "KdDbMlineStyle.h"
#include "MlineContent.h"
#include "PlanPicture.h"
#include "WellKnownObjects.h"

#include <functional>
#include <random>

namespace orvex::testing {
namespace {

// The number of pixels that differ, for messages that say something.
int differences(const QImage& a, const QImage& b) {
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            count += a.pixel(x, y) != b.pixel(x, y) ? 1 : 0;
        }
    }
    return count;
}

TEST_F(CanvasFixture, manyMovementsComeToThePictureOfTheirEnd) {
    std::mt19937 random(7);
    const auto number = [&](int from, int to) {
        return std::uniform_int_distribution<int>(from, to)(random);
    };
    for (int round = 0; round < 12; ++round) {
        for (int step = 0; step < 12; ++step) {
            const QPoint from(number(0, kWidth), number(0, kHeight));
            drag(from, from + QPoint(number(-90, 90), number(-90, 90)), Qt::MiddleButton);
            if (step % 5 == 0) {
                wheel(from, number(-2, 2));
            }
            if (step % 3 == 0) {
                QCoreApplication::processEvents(); // some tiles are painted, others aren't
            }
        }
        settle();
        ASSERT_EQ(differences(picture(), pictureFromScratch()), 0) << round;
    }
}

// Edits of any kind, by the database's own means.
class EditedCanvas : public CanvasFixture {
protected:
    DatabaseCore& core() { return session->database().core(); }
    int number(int from, int to) { return std::uniform_int_distribution<int>(from, to)(m_random); }
    KdDbStub& anyEntity() {
        const auto& all = core().blocks().modelSpace().entities;
        return *all[static_cast<std::size_t>(number(0, static_cast<int>(all.size()) - 1))];
    }
    KdDbStub& anyMline() {
        for (;;) {
            KdDbStub& stub = anyEntity();
            if (stub.kind == ObjectKind::mline && !stub.erased) {
                return stub;
            }
        }
    }
    void moveBy(KdDbStub& stub, double x, double y) {
        auto* mline = static_cast<KdDbMline*>(core().open(stub, true));
        auto content =
            std::make_shared<MlineContent>(static_cast<const MlineContent&>(*mline->content()));
        for (ChainVertex& vertex : content->vertices) {
            vertex.position.x += x;
            vertex.position.y += y;
        }
        mline->setContent(content);
        mline->close();
    }
    void edit() {
        core().changes().beginCommand();
        switch (number(0, 5)) {
        case 0:
            core().erase(anyMline());
            break;
        case 1:
            session->scene().hide(anyEntity());
            break;
        case 2:
            moveBy(anyMline(), 1e5, 1e5); // out of sight
            break;
        default:
            moveBy(anyMline(), number(-900, 900), number(-900, 900));
        }
        core().changes().endCommand();
        if (number(0, 4) == 0) {
            core().changes().undo();
        }
        if (number(0, 9) == 0) {
            play("MLINE\n1000,2000\n5000,4000\n7000,1000\nC\n");
        }
    }

private:
    std::mt19937 m_random{11};
};

TEST_F(EditedCanvas, editsComeToThePictureOfTheEditedDrawing) {
    for (int round = 0; round < 40; ++round) {
        if (round % 8 == 0) {
            canvas.zoomExtents();
            wheel({number(0, kWidth), number(0, kHeight)}, number(-12, 12));
            settle();
        }
        const int edits = number(1, 3);
        for (int i = 0; i < edits; ++i) {
            edit();
            canvas.refresh();
            if (number(0, 1) == 0) {
                QCoreApplication::processEvents(); // the next edit comes while this is painted
            }
        }
        settle();
        ASSERT_EQ(differences(picture(), pictureFromScratch()), 0) << round;
    }
}

TEST_F(EditedCanvas, layersAndStylesChangeAllThatUsesThem) {
    auto& mline = *static_cast<KdDbMline*>(core().load(anyMline()));
    const std::wstring name = mline.traits().layer;
    auto* style = static_cast<KdDbMlineStyle*>(core().load(*mline.style().stub()));
    auto* layer =
        static_cast<KdDbLayerTableRecord*>(core().load(*core().wellKnown().findLayer(name)));
    const std::function<void()> changes[] = {
        [&] { style->setFilled(!style->filled()); },
        [&] { layer->setIsOff(true); },
        [&] { layer->setIsOff(false); },
    };
    for (const auto& change : changes) {
        const QImage before = picture();
        core().changes().beginCommand();
        change();
        core().changes().endCommand();
        canvas.refresh();
        const QImage after = picture();
        EXPECT_EQ(differences(after, pictureFromScratch()), 0);
        EXPECT_GT(differences(after, before), 0);
    }
}

TEST_F(EditedCanvas, anEditPaintsNoMoreThanItsPlace) {
    PlanPicture whole;
    whole.setScene(&session->scene());
    whole.setView(session->view(), 1.0);
    const auto never = Deadline::max();
    (void)session->scene().takeDifference();
    whole.paintSome(never);
    ASSERT_TRUE(whole.isComplete());

    KdDbStub& mline = anyMline();
    PlanBox places = session->scene().appearance(mline).box();
    moveBy(mline, 300, -200);
    places.include(session->scene().appearance(mline).box());
    ASSERT_TRUE(session->scene().prepareSome(std::chrono::hours(1)));
    whole.takeDifference(session->scene().takeDifference());
    ASSERT_FALSE(whole.isComplete());
    const QRect painted = whole.paintSome(never).boundingRect();
    EXPECT_TRUE(whole.isComplete());
    constexpr int kLines = 3; // pixels that lines reach over the box
    const QPoint low = pixelAt({places.low.x, places.high.y}) - QPoint(kLines, kLines);
    const QPoint high = pixelAt({places.high.x, places.low.y}) + QPoint(kLines, kLines);
    EXPECT_TRUE(QRect(low, high).contains(painted));
    EXPECT_FALSE(painted.isEmpty());
}

TEST_F(EditedCanvas, highlightsWhatAPickWouldFind) {
    KdDbStub& mline = anyMline();
    for (const AimKind aim : {AimKind::none, AimKind::entity, AimKind::point}) {
        canvas.setAim({.kind = aim});
        const Appearance appearance = session->scene().appearance(mline);
        const Stroke& stroke = appearance.strokes.front();
        const PlanPoint on{(stroke.points[0].x + stroke.points[1].x) / 2,
                           (stroke.points[0].y + stroke.points[1].y) / 2};
        const QImage plain = picture();
        const QPoint pixel = pixelAt(on);
        const PlanPoint at = planAt(pixel);
        KdDbStub* const found =
            session->scene().entityAt({at.x, at.y, 0}, PromptSession::current().pickBox);
        ASSERT_NE(found, nullptr);
        hover(pixel);
        const QImage highlit = canvas.grab().toImage().convertToFormat(QImage::Format_RGB32);
        int thicker = 0; // pixels beside the cursor's own cross and box
        const int ratio = highlit.width() / kWidth;
        for (int y = 0; y < highlit.height(); ++y) {
            for (int x = 0; x < highlit.width(); ++x) {
                const QPoint way = QPoint(x / ratio, y / ratio) - pixel;
                const bool isBeside = way.x() != 0 && way.y() != 0 &&
                                      std::max(std::abs(way.x()), std::abs(way.y())) > 5;
                thicker += isBeside && highlit.pixel(x, y) != plain.pixel(x, y) ? 1 : 0;
            }
        }
        hover({2, 2});
        if (aim == AimKind::point) {
            EXPECT_EQ(thicker, 0);
        } else {
            EXPECT_GT(thicker, 20);
        }
        EXPECT_EQ(differences(picture(), plain), 0) << "nothing stays behind";
    }
}

TEST_F(EditedCanvas, theHighlightFollowsTheDrawingUnderTheCursor) {
    canvas.setAim({.kind = AimKind::entity});
    const Appearance appearance = session->scene().appearance(anyMline());
    const QPoint pixel = pixelAt(appearance.strokes.front().points.front());
    const auto grabbed = [&] { return canvas.grab().toImage(); };
    hover(pixel);
    const QImage before = grabbed();
    const PlanPoint at = planAt(pixel);
    core().erase(*session->scene().entityAt({at.x, at.y, 0}, PromptSession::current().pickBox));
    canvas.refresh();
    settle();
    const QImage erased = grabbed();
    EXPECT_GT(differences(erased, before), 0);
    wheel(pixel + QPoint(40, 30), 3);
    settle();
    const QImage zoomed = grabbed();
    hover({1, 1});
    hover(pixel); // whatever is there now is found anew
    EXPECT_EQ(differences(grabbed(), zoomed), 0);
    canvas.zoomPrevious();
    settle();
    EXPECT_EQ(differences(grabbed(), erased), 0);
}

} // namespace
} // namespace orvex::testing
