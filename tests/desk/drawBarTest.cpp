#include "DeskFixture.h"

#include "ChoiceBox.h"

#include <QAbstractItemView>
#include <QStandardItemModel>

namespace orvex::testing {

namespace {

class DrawBarFixture : public DeskFixture {
protected:
    // As a user does: opens the box, chooses, and the box closes.
    Step choose(const char* box, const QString& value) {
        return [this, box, value] {
            auto* const choices = window->findChild<ChoiceBox*>(box);
            choices->showPopup();
            const int index = choices->findData(value);
            ASSERT_GE(index, 0) << value.toStdString();
            choices->hidePopup();
            emit choices->activated(index);
        };
    }
    Step enterScale(const QString& text) {
        return [this, text] {
            auto* const field = window->findChild<QLineEdit*>("scaleField");
            field->setText(text);
            QTest::keyClick(field, Qt::Key_Return);
        };
    }
    QString shown(const char* box) const {
        return window->findChild<ChoiceBox*>(box)->currentText();
    }
};

// Settings chosen before MLINE, in it, and typed; each by the lines of a script.
TEST_F(DrawBarFixture, whatTheBarSetsIsWhatItsLinesSet) {
    play({
        openPlan(),
        choose("layerBox", "WALL-EXT"),
        [this] { EXPECT_EQ(lastLine(), "New value for CLAYER <0>: WALL-EXT"); },
        enterScale("0"),
        [this] { EXPECT_THAT(history().toStdString(), ::testing::EndsWith("one place.")); },
        enterScale("2.5"),
        type("MLINE"),
        choose("styleBox", "CAVITY300"),
        choose("justificationBox", "2"),
        [this] {
            EXPECT_EQ(shown("styleBox"), "CAVITY300");
            EXPECT_EQ(shown("justificationBox"), "Bottom");
            EXPECT_EQ(window->findChild<QLabel*>("statusStyle")->text(), "Style: CAVITY300");
        },
        choose("layerBox", "0"),
        type("0,0"),
        [this] { EXPECT_FALSE(window->findChild<ChoiceBox*>("layerBox")->isEnabled()); },
        type("0,0"),
        [this] { EXPECT_THAT(history().toStdString(), ::testing::HasSubstr("It is left out")); },
        type("1000,0"),
        key(Qt::Key_Return),
        [this] { EXPECT_TRUE(window->findChild<ChoiceBox*>("layerBox")->isEnabled()); },
        trigger("save"),
    });
    expectSavedByScript();
}

TEST_F(DrawBarFixture, aHiddenLayerCantBeChosenAndALockedOneCan) {
    std::string text = original;
    const auto setFlag = [&text](const std::string& layer, const std::string& flags) {
        const std::size_t name = text.find("\n  2\n" + layer + "\n 70\n");
        ASSERT_NE(name, std::string::npos) << layer;
        const std::size_t at = name + layer.size() + 10;
        text.replace(at, text.find('\n', at) - at, flags);
    };
    setFlag("WALL-EXT", "     1");
    setFlag("Defpoints", "     4");
    writeFile(plan, text);
    play({
        openPlan(),
        [this] {
            auto* const box = window->findChild<ChoiceBox*>("layerBox");
            box->showPopup();
            auto* const model = qobject_cast<QStandardItemModel*>(box->model());
            EXPECT_FALSE(model->item(box->findData("WALL-EXT"))->isEnabled());
            EXPECT_TRUE(model->item(box->findData("Defpoints"))->isEnabled());
            box->hidePopup();
        },
    });
}

TEST_F(DrawBarFixture, aWrongStyleNameListsThoseThereAreAndTabCompletesOne) {
    play({
        openPlan(),
        type("MLINE\nST\nnothing"),
        [this] {
            EXPECT_THAT(history().toStdString(),
                        ::testing::ContainsRegex("no style 'nothing'; there are .*CAVITY300"));
        },
        type("ST"),
        [this] {
            QTest::keyClicks(&input(), "cav");
            QTest::keyClick(&input(), Qt::Key_Tab);
            EXPECT_EQ(input().text(), "CAVITY300");
            input().clear();
        },
        key(Qt::Key_Escape),
        key(Qt::Key_Escape),
    });
}

} // namespace

} // namespace orvex::testing
