#include "WallsFixture.h"

#include "drawingNames.h"
#include "selectionFacts.h"

#include <QComboBox>
#include <QDialog>
#include <QMenu>

namespace orvex::testing {

namespace {

class GripFixture : public WallsFixture {
protected:
    Step grips(std::size_t count) {
        return [this, count] { EXPECT_EQ(canvas()->grips().size(), count); };
    }
    Step box(const char* name, const QString& text) {
        return [this, name, text] {
            auto* const box = window->findChild<QComboBox*>(name);
            ASSERT_GE(box->findText(text), 0) << text.toStdString();
            box->setCurrentIndex(box->findText(text));
            emit box->activated(box->currentIndex());
        };
    }
    // A vertex, by the menu that is open.
    Step addByMenu() {
        return [this] {
            auto* const menu = window->findChild<QMenu*>("gripMenu");
            ASSERT_NE(menu, nullptr);
            menu->actions()[1]->trigger();
            menu->close();
        };
    }
    [[nodiscard]] QString shown(const char* name) const {
        return window->findChild<QComboBox*>(name)->currentText();
    }
};

// A vertex by a drag, by two clicks, and by typing; what is seen while it is hot is what comes out.
TEST_F(GripFixture, gripsMoveVerticesAsTheirScriptDoes) {
    playOnWalls({
        clickAt(200, 0),
        grips(2),
        drag({400, 0}, {450, 60}),
        grips(2),
        [this] {
            EXPECT_NEAR(canvas()->grips()[1].x, 450, 2);
            EXPECT_EQ(canvas()->selected().size(), 1U);
        },
        clickAt(0, 0),
        [this] {
            EXPECT_EQ(canvas()->aim().kind, AimKind::point);
            EXPECT_FALSE(canvas()->aim().preview({0, 50}).strokes.empty());
            EXPECT_FALSE(canvas()->aim().guide({1, -19}, {}).marker) << "itself";
            EXPECT_TRUE(canvas()->aim().guide({301, 5}, {}).marker);
        },
        type("@-20,30"), // from the grip
        clickAt(-20, 30),
        key(Qt::Key_Escape), // lets go
        [this] { EXPECT_EQ(prompt(), "Command:"); },
        [this] { QTest::mouseClick(canvas(), Qt::RightButton, {}, pixelAt(-20, 30)); },
        addByMenu(),
        clickAt(200, 120),
        grips(3),
        // A drag of what is selected is a move from the nearest grip.
        drag({40, 54.5}, {220, 160}),
        [this] { EXPECT_TRUE(history().contains("Command: MOVE")); },
        trigger("selectPrevious"),
        grips(3),
        key(Qt::Key_Escape),
        grips(0),
    });
    expectSameBy(script());
}

TEST_F(GripFixture, commonVerticesMoveTogetherWhereTheUserSaysSo) {
    playOnWalls({
        clickAt(650, 0),
        trigger("selectAll"),
        drag({600, 0}, {600, 80}),
        [this] { EXPECT_FALSE(history().contains(": Together")); },
        trigger("moveTogether"),
        drag({700, 0}, {700, 80}),
        [this] { EXPECT_TRUE(history().contains(": Together")); },
        trigger("moveTogether"),
    });
}

// Fields show what is common and apply to all as one step; the selection stays.
TEST_F(GripFixture, thePanelChangesAllThatIsSelected) {
    std::string before;
    playOnWalls({
        trigger("properties"),
        clickAt(200, 0),
        clickAt(100, 50),
        [this] {
            EXPECT_EQ(shown("propertyJustification"), "Top");
            EXPECT_EQ(shown("propertyClosed"), "Open");
        },
        box("propertyJustification", "Bottom"),
        [this, &before] {
            EXPECT_EQ(canvas()->selected().size(), 2U);
            EXPECT_EQ(shown("propertyJustification"), "Bottom");
            before = bytes();
            auto& scale = *window->findChild<QLineEdit*>("propertyScale");
            EXPECT_EQ(scale.text(), "20");
            scale.setText("0");
            QTest::keyClick(&scale, Qt::Key_Return);
            EXPECT_EQ(scale.text(), "20");           // no scale at all
            QTest::keyClick(&scale, Qt::Key_Return); // nothing edited
        },
        [this, &before] {
            EXPECT_EQ(bytes(), before);
            auto& scale = *window->findChild<QLineEdit*>("propertyScale");
            scale.setText("30");
            QTest::keyClick(&scale, Qt::Key_Return);
        },
        [this] { EXPECT_EQ(canvas()->selected().size(), 2U); },
        clickAt(300, 50), // of another scale
        [this] {
            EXPECT_EQ(window->findChild<QLineEdit*>("propertyScale")->text(), "");
            EXPECT_EQ(shown("propertyJustification"), "(differ)");
            EXPECT_EQ(shown("propertyStyle").toUpper(), "STANDARD");
        },
    });
    expectSameBy(script());
}

// ROTATE takes its angle from a click, and shows what goes with the cursor.
TEST_F(GripFixture, movingCommandsShowWhatTheyMove) {
    playOnWalls({
        clickAt(200, 0),
        type("ROTATE\n0,0"),
        [this] {
            const Aim& aim = canvas()->aim();
            ASSERT_EQ(aim.kind, AimKind::point);
            ASSERT_EQ(aim.group.entities.size(), 1U);
            const auto map = aim.group.map({0, 50});
            ASSERT_TRUE(map);
            EXPECT_NEAR(map->xy, -1.0, 1e-12);
        },
        clickAt(0, 200),
        trigger("selectPrevious"),
        type("MIRROR\n50,0"),
        [this] {
            EXPECT_FALSE(canvas()->aim().group.map({50, 0}));
            EXPECT_TRUE(canvas()->aim().group.map({50, 10}));
        },
        type("50,100"),
        clickAt(300, 50),
        type("STRETCH"),
        clickAt(900, 900), // nothing lies there
        clickAt(950, 950),
        [this] { EXPECT_TRUE(prompt().startsWith("First corner")); },
        clickAt(250, 150),
        clickAt(350, 60),
        type("300,100"),
        [this] {
            EXPECT_FALSE(canvas()->aim().preview({320, 130}).strokes.empty());
        },
        type("@20,30"),
    });
    expectSameBy(script());
}

// A copy that is free to be modified takes the place of a style in use, in one step.
TEST_F(GripFixture, aStyleInUseGivesWayToItsCopy) {
    std::string before;
    const auto styleOf = [this](std::size_t index) {
        std::vector<KdDbStub*> seen = window->session()->scene().allSeen();
        return factsOf({seen[index]}).style.value_or("").toUpper();
    };
    playOnWalls({
        [&] { before = bytes(); },
        type("MLSTYLEINUSE"),
        key(Qt::Key_Return), // the current one
        inDialog<QDialog>([](QDialog& dialog) { dialog.reject(); }),
        [this] { EXPECT_TRUE(prompt().startsWith("Shall all 5")); },
        key(Qt::Key_Return),
        type("WALLS"),
        [&] {
            EXPECT_EQ(styleOf(0), "WALLS");
            EXPECT_EQ(styleOf(4), "WALLS");
            EXPECT_EQ(window->findChild<QLabel*>("statusStyle")->text(), "Style: WALLS");
        },
        trigger("undo"),
        [&] { EXPECT_EQ(bytes(), before); },
        // The copy in place of the old style, which goes.
        type("MLSTYLEINUSE"),
        key(Qt::Key_Return),
        inDialog<QDialog>([](QDialog& dialog) { dialog.reject(); }),
        key(Qt::Key_Return),
        type("standard"),
        [&] {
            EXPECT_EQ(styleOf(4), "STANDARD");
            EXPECT_EQ(styleNames(window->session()->database()).size(), 1);
            EXPECT_NE(bytes(), before);
        },
        trigger("undo"),
        [&] { EXPECT_EQ(bytes(), before); },
    });
}

// What EXTEND will make of an end is seen before the click, or why it won't.
TEST_F(GripFixture, extendShowsTheEndAsItWillBe) {
    const auto hints = [this]() -> const CanvasHints& { return canvas()->hints(); };
    playOnWalls({
        type("EXTEND"),
        clickAt(200, 0),
        type("Axis"),
        hover(300, 30),
        until([=] { return !hints().after.empty(); }),
        [=] { EXPECT_TRUE(hints().changesTarget); },
        hover(650, 0),
        until([=] { return !hints().words.isEmpty(); }),
        [=] { EXPECT_TRUE(hints().after.empty()); },
        key(Qt::Key_Escape),
    });
}

// From grip to grip by Tab, a vertex moved, another added by the menu.
TEST_F(GripFixture, gripsAreReachedByKeysAlone) {
    const auto onCanvas = [this](Qt::Key which, Qt::KeyboardModifiers modifiers = {}) {
        return Step([this, which, modifiers] { QTest::keyClick(canvas(), which, modifiers); });
    };
    playOnWalls({
        clickAt(200, 0),
        trigger("nextArea"),
        onCanvas(Qt::Key_Tab),
        onCanvas(Qt::Key_Tab),
        onCanvas(Qt::Key_Return),
        [this] { EXPECT_TRUE(history().contains("MLVERTEX")); },
        type("450,60"),
        [this] { EXPECT_NEAR(canvas()->grips()[1].x, 450, 1e-9); },
        onCanvas(Qt::Key_Tab, Qt::ShiftModifier),
        onCanvas(Qt::Key_F10, Qt::ShiftModifier),
        addByMenu(),
        type("200,90"),
        grips(3),
    });
    expectSameBy(script());
}

} // namespace

} // namespace orvex::testing
