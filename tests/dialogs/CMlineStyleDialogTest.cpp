#include "CMlineStyleDialog.h"

#include "KdDbMline.h"
#include "StyleWorld.h"
#include "TKL_MlstyleBitmap.h"
#include "dialogRun.h"
#include "hostHeap.h"
#include "promptStatus.h"
#include "resourceLibrary.h"
#include "styleSample.h"
#include "systemVariables.h"
#include "wholeFiles.h"

#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTextEdit>
#include <QToolTip>

#include <gmock/gmock.h>

#include <filesystem>

namespace fs = std::filesystem;
using namespace orvex::testing;
using testing::ElementsAre;
using namespace mledit;

namespace {

std::wstring currentStyle() {
    resbuf value;
    EXPECT_EQ(kdedGetVar(L"CMLSTYLE", &value), kPromptNormal);
    std::wstring text = value.resval.rstring;
    rvex_free(value.resval.rstring);
    return text;
}

class StyleManager : public StyleWorld {
protected:
    StyleManager() {
        addStyle(L"Wall", L"brick");
        addStyle(L"Pipe", L"<b>steel</b>");
        addStyle(L"Kerb");
    }

    template <class Act>
    int manage(Act act) {
        m_dialog = std::make_unique<CMlineStyleDialog>(nullptr);
        return runDialog(*m_dialog, act);
    }
    [[nodiscard]] QListWidget& list() { return child<QListWidget>(*m_dialog, "listWidgetStyles"); }
    [[nodiscard]] std::string label(const char* name) {
        return child<QLabel>(*m_dialog, name).text().toStdString();
    }
    [[nodiscard]] std::string current() { return label("labelCurrentMultilineStyleResult"); }
    void press(const char* name) { orvex::testing::press(*m_dialog->GetSafeHwnd(), name); }
    void close() { press("pBtnClose"); }
    void select(const char* name) { orvex::testing::clickText(list(), name); }
    [[nodiscard]] std::string selected() {
        const auto items = list().selectedItems();
        return items.isEmpty() ? "" : items.front()->text().toStdString();
    }
    [[nodiscard]] std::vector<std::string> listed() { return textsOf(list()); }
    // Which of Set Current, Modify, Rename and Delete are on; New and Save always are.
    [[nodiscard]] std::string enabled() {
        std::string letters;
        for (const char* const name :
             {"pBtnSetCurrent", "pBtnModify", "pBtnRename", "pBtnDelete", "pBtnNew", "pBtnSave"}) {
            letters += child<QPushButton>(*m_dialog, name).isEnabled() ? name[4] : '-';
        }
        return letters;
    }

    std::unique_ptr<CMlineStyleDialog> m_dialog;
};

TEST_F(StyleManager, enablesTheButtonsOfWhatMayBeDone) {
    const struct {
        const char* style;
        const char* current;
        const char* unused; // what is on
        const char* used;
    } cases[] = {
        {"Wall", "STANDARD", "SMRDNS", "S---NS"},
        {"Wall", "Wall", "-MR-NS", "----NS"},
        {"STANDARD", "Wall", "SM-DNS", "S---NS"},
        {"STANDARD", "STANDARD", "-M--NS", "----NS"},
    };
    for (const bool areUsed : {false, true}) {
        for (const auto& each : cases) {
            makeCurrent(each.current);
            manage([&] {
                select(each.style);
                EXPECT_EQ(enabled(), areUsed ? each.used : each.unused) << each.style;
                close();
            });
        }
        use("Wall");
        use("STANDARD");
    }
}

TEST_F(StyleManager, keepsItsSizeWhateverTheNameOfTheCurrentStyle) {
    const std::string longName(255, 'W');
    addStyle(std::wstring(255, L'W').c_str());
    makeCurrent(longName);
    manage([&] {
        EXPECT_EQ(m_dialog->GetSafeHwnd()->size(), QSize(520, 500));
        EXPECT_EQ(current(), longName);
        auto& name = child<QLabel>(*m_dialog, "labelCurrentMultilineStyleResult");
        QHelpEvent asks(QEvent::ToolTip, QPoint(1, 1), name.mapToGlobal(QPoint(1, 1)));
        QCoreApplication::sendEvent(&name, &asks);
        EXPECT_TRUE(QToolTip::text().contains(QString::fromStdString(longName)));
        close();
    });
}

TEST_F(StyleManager, showsTheCurrentStyleFirstAndTextsAsTheyAre) {
    makeCurrent("Pipe");
    const HINSTANCE pictures = loadResourceDll(L"ORVEXRes.dll");
    manage([&] {
        EXPECT_FALSE(list().window()->windowIcon().pixmap(32, 32).isNull());
        EXPECT_THAT(listed(), ElementsAre("STANDARD", "Wall", "Pipe", "Kerb"));
        EXPECT_EQ(current(), "Pipe");
        EXPECT_EQ(selected(), "Pipe");
        EXPECT_EQ(m_dialog->GetSafeHwnd()->size(), QSize(520, 500));
        auto& description = child<QLabel>(*m_dialog, "labelDescription");
        EXPECT_EQ(description.text(), "<b>steel</b>");
        EXPECT_EQ(description.textFormat(), Qt::PlainText);
        select("Kerb");
        EXPECT_EQ(description.text(), "");
        QTest::keyClick(&list(), Qt::Key_Up); // keys change the buttons, too
        EXPECT_EQ(enabled(), "-MR-NS");
        EXPECT_TRUE(child<QTextEdit>(*m_dialog, "textEdit").toPlainText().isEmpty());

        inNextDialog([](const QWidget& loading) { orvex::testing::press(loading, "pBtnCancel"); });
        press("pBtnLoad");
        EXPECT_EQ(selected(), "STANDARD");
        EXPECT_EQ(enabled(), "SM-DNS");
        close();
    });
    AfxFreeLibrary(pictures);
}

TEST_F(StyleManager, makesAStyleCurrentAtOnce) {
    manage([&] {
        select("Wall");
        press("pBtnSetCurrent");
        EXPECT_EQ(current(), "Wall");
        EXPECT_EQ(enabled(), "-MR-NS");
        EXPECT_EQ(list().window()->focusWidget()->objectName(), "pBtnNew");
        EXPECT_EQ(currentStyle(), L"Wall");
        select("Kerb");
        QTest::mouseDClick(list().viewport(), Qt::LeftButton, {},
                           list().visualItemRect(list().currentItem()).center());
        EXPECT_EQ(current(), "Kerb");
        EXPECT_EQ(currentStyle(), L"Kerb");
        close();
    });
    EXPECT_EQ(currentStyle(), L"Kerb");
}

TEST_F(StyleManager, deletesAfterAQuestionAndNeverTheStandard) {
    makeCurrent("Kerb");
    const auto answer = [](QMessageBox::StandardButton wanted) {
        inNextDialog([wanted](QWidget& dialog) {
            auto* const box = qobject_cast<QMessageBox*>(&dialog);
            ASSERT_NE(box, nullptr);
            EXPECT_THAT(box->text().toStdString(), testing::EndsWith("\"Pipe\"?"));
            EXPECT_EQ(box->windowTitle(), "ORVEX");
            QTest::mouseClick(box->button(wanted), Qt::LeftButton);
        });
    };
    manage([&] {
        select("STANDARD");
        press("pBtnDelete"); // a question would stop here
        select("Pipe");
        answer(QMessageBox::No);
        press("pBtnDelete");
        EXPECT_EQ(list().count(), 4);
        answer(QMessageBox::Yes);
        press("pBtnDelete");
        EXPECT_THAT(listed(), ElementsAre("STANDARD", "Wall", "Kerb"));
        EXPECT_EQ(selected(), "Wall");
        EXPECT_EQ(list().window()->focusWidget(), &list());
        EXPECT_EQ(label("labelDescription"), "brick");
        close();
    });
    EXPECT_EQ(style(L"Pipe"), nullptr);
    EXPECT_NE(style(L"STANDARD"), nullptr);
}

// The label then shows a name that isn't current; it is so for whichever style was renamed.
TEST_F(StyleManager, showsARenamedStyleAsCurrentAndLeavesTheVariable) {
    manage([&] {
        select("Pipe");
        inNextDialog([](QWidget& dialog) {
            const auto& old = child<QLabel>(dialog, "labelOldStyleNameResult");
            EXPECT_EQ(old.text(), "Pipe");
            EXPECT_EQ(old.textFormat(), Qt::PlainText);
            EXPECT_FALSE(child<QWidget>(dialog, "renameComBo").isVisible());
            child<QLineEdit>(dialog, "lineEditNewStyleName").setText("Duct");
            orvex::testing::press(dialog, "pBtnOK");
        });
        press("pBtnRename");
        EXPECT_THAT(listed(), ElementsAre("STANDARD", "Wall", "Kerb", "Duct"));
        EXPECT_EQ(selected(), "Duct");
        EXPECT_EQ(current(), "Duct");
        EXPECT_EQ(enabled(), "-MR-NS");
        close();
    });
    EXPECT_EQ(currentStyle(), L"STANDARD");
    ASSERT_NE(style(L"Duct"), nullptr);
    EXPECT_STREQ(style(L"Duct")->name(), L"Duct");
    EXPECT_EQ(style(L"Pipe"), nullptr);
}

TEST_F(StyleManager, savesTheSelectedStyleIntoTheChosenLibrary) {
    const fs::path library = fs::temp_directory_path() / "own.mln";
    m_chooser.choice = library.wstring();
    manage([&] {
        select("Wall");
        press("pBtnSave");
        EXPECT_THAT(m_chooser.asked, testing::EndsWith(L"/Support/|mln|3"));
        select("Pipe");
        press("pBtnSave");
        m_chooser.choice.reset();
        press("pBtnSave");
        m_chooser.asked.clear();
        list().clearSelection();
        for (const char* const name :
             {"pBtnSave", "pBtnModify", "pBtnRename", "pBtnDelete", "pBtnSetCurrent"}) {
            press(name); // without a style nothing opens and nothing changes
        }
        EXPECT_EQ(current(), "STANDARD");
        EXPECT_EQ(m_chooser.asked, L"");
        close();
    });
    const std::string text = readFile(library);
    EXPECT_THAT(text, testing::StartsWith("MLSTYLE\n2\n Wall\n70\n 0\n3\n brick\n"));
    EXPECT_THAT(text, testing::HasSubstr("\n0\nMLSTYLE\n2\n Pipe\n"));
}

TEST_F(StyleManager, remembersItsPositionWhenItIsAcceptedByEnter) {
    const QRect position = storePosition(L"MlstylePos");
    const auto moveAnd = [&](auto leave) {
        return manage([&] {
            EXPECT_EQ(m_dialog->GetSafeHwnd()->geometry().topLeft(), position.topLeft());
            m_dialog->MoveWindow(CRect(40, 50, 560, 550));
            leave();
        });
    };
    moveAnd([&] { close(); });
    EXPECT_EQ(moveAnd([&] { QTest::keyClick(&list(), Qt::Key_Return); }), 1);
    EXPECT_EQ(setting(L"MlstylePosLeft"), 40);
    EXPECT_EQ(setting(L"MlstylePosBottom"), 550);
}

TEST_F(StyleManager, refusesToStartWithoutADrawing) {
    KdDocument* const document = orvex::setCurrentDocument(nullptr);
    EXPECT_EQ(CMlineStyleDialog(nullptr).DoModal(), -1);
    orvex::setCurrentDocument(document);
}

TEST(StyleSample, spreadsTheElementsOverTheHeight) {
    EXPECT_THAT(scaledOffsets({0.5, 0.1, -0.5}, 100), ElementsAre(50.0, 10.0, -50.0));
    EXPECT_THAT(scaledOffsets({0.5, 0.1, 0.5}, 100), ElementsAre(0.0, 0.0, 0.0));
    EXPECT_TRUE(scaledOffsets({}, 100).empty());
    const double right = 1.5707963267948966;
    const StyleSample sample = makeStyleSample(101, {50.0, -50.0}, {right, right / 3.0});
    EXPECT_EQ(sample.vertices[1].x, 50.0);
    EXPECT_EQ(sample.vertices[2].x, 101.0);
    EXPECT_NEAR(sample.miters[1].y, 1.0, 1e-12);
    EXPECT_NEAR(sample.distances[0][1], -100.0, 1e-12);
    EXPECT_NEAR(sample.distances[2][1], -200.0, 1e-12); // at 30 degrees twice as far
    EXPECT_THAT(makeStyleSample(0, {1.0, 2.0}, {0.0, 0.0}).distances[0], ElementsAre(0.0, 0.0));
}

TEST_F(StyleManager, buildsASampleAndChangesTheDrawingsView) {
    const auto scaleAfter = [](const KdDbMlineStyle* style) {
        EXPECT_EQ(TKL_MlstyleBitmap(100, 50, const_cast<KdDbMlineStyle*>(style)), nullptr);
        resbuf scale;
        kdedGetVar(L"LTSCALE", &scale);
        return scale.resval.rreal;
    };
    EXPECT_EQ(scaleAfter(nullptr), 1.0);
    EXPECT_EQ(scaleAfter(style(L"Wall")), 50.0);
    EXPECT_NE(style(L"Wall"), nullptr);
}

} // namespace
