#include "CMlStyleLoadDlg.h"

#include "StyleWorld.h"
#include "dialogRun.h"
#include "textCodec.h"

#include <QListWidget>
#include <QPushButton>

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;
using orvex::testing::child;
using orvex::testing::runDialog;
using orvex::testing::StyleWorld;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// The block of a style that has one element on its axis and shows its joints.
std::string block(const std::string& name) {
    return "MLSTYLE\n2\n " + name +
           "\n70\n 2\n3\n loaded\n71\n 1\n49\n 0.0\n62\n 3\n6\n ByLayer\n0\n";
}

class LoadDialog : public StyleWorld {
protected:
    LoadDialog() {
        fs::create_directories(m_root / "Support");
        setenv("ORVEX_ROOT", m_root.c_str(), 1);
        write("Support/ORVEX.mln", block("Curb") + block("WALL"));
        addStyle(L"Wall", L"mine");
    }

    std::wstring write(const std::string& name, const std::string& text) {
        std::ofstream(m_root / name, std::ios::binary) << text;
        return orvex::widen((m_root / name).string());
    }

    // Runs `act` in the dialog.
    template <class Act>
    int load(Act act) {
        m_dialog = std::make_unique<CMlStyleLoadDlg>(nullptr);
        m_dialog->m_dictionaryId = dictionaryId();
        return runDialog(*m_dialog, act);
    }

    [[nodiscard]] QListWidget& list() { return child<QListWidget>(*m_dialog, "listWidget"); }
    [[nodiscard]] QPushButton& button(const char* name) {
        return child<QPushButton>(*m_dialog, name);
    }
    [[nodiscard]] std::vector<std::string> listed() {
        std::vector<std::string> names;
        for (int row = 0; row < list().count(); ++row) {
            names.push_back(list().item(row)->text().toStdString());
        }
        return names;
    }

    [[nodiscard]] QPoint middleOf(int row) {
        return list().visualItemRect(list().item(row)).center();
    }
    void clickRow(int row) {
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, middleOf(row));
    }
    void press(const char* name) { QTest::mouseClick(&button(name), Qt::LeftButton); }

    [[nodiscard]] std::wstring description(const wchar_t* name) {
        const KdDbMlineStyle* const found = style(name);
        return found != nullptr ? found->description() : L"none";
    }

    static std::wstring rememberedFile() {
        return AfxGetApp()->GetProfileString(L"Settings", L"MlstyleFile").text();
    }

    fs::path m_root = fs::temp_directory_path() / "root";
    std::unique_ptr<CMlStyleLoadDlg> m_dialog;
};

TEST_F(LoadDialog, listsTheDefaultLibraryAndNeedsASelection) {
    load([&] {
        EXPECT_THAT(listed(), ElementsAre("Curb", "WALL"));
        EXPECT_FALSE(button("pBtnOK").isEnabled());
        clickRow(1);
        EXPECT_TRUE(button("pBtnOK").isEnabled());
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                          QPoint(20, list().viewport()->height() - 5));
        EXPECT_FALSE(button("pBtnOK").isEnabled());
        m_dialog->OnOK(); // nothing is selected
        EXPECT_TRUE(m_dialog->GetSafeHwnd()->isVisible());
        press("pBtnCancel");
    });
    EXPECT_TRUE(m_dialog->m_chosenName.IsEmpty());
    EXPECT_EQ(rememberedFile(), L"");
}

TEST_F(LoadDialog, aNewStyleIsMadeAndOneThatIsThereIsOverwritten) {
    EXPECT_EQ(load([&] {
                  clickRow(0);
                  press("pBtnOK");
              }),
              1);
    EXPECT_TRUE(m_dialog->m_chosenName == L"Curb");
    EXPECT_EQ(m_dialog->m_styleId, styleId(L"Curb"));
    ASSERT_EQ(description(L"Curb"), L"loaded");
    EXPECT_STREQ(style(L"Curb")->name(), L"Curb");
    EXPECT_EQ(style(L"Curb")->numElements(), 1);
    EXPECT_TRUE(style(L"Curb")->showMiters());

    const KdDbObjectId wall = styleId(L"Wall");
    EXPECT_EQ(load([&] {
                  clickRow(1);
                  QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, middleOf(1));
              }),
              1);
    EXPECT_EQ(styleId(L"WALL"), wall);
    EXPECT_EQ(description(L"Wall"), L"loaded");
    EXPECT_STREQ(style(L"Wall")->name(), L"Wall");
}

TEST_F(LoadDialog, aStyleInUseIsLeftAlone) {
    use("Wall");
    EXPECT_EQ(load([&] {
                  clickRow(1);
                  press("pBtnOK");
                  EXPECT_TRUE(m_dialog->GetSafeHwnd()->isVisible());
                  EXPECT_EQ(description(L"Wall"), L"mine");
                  clickRow(0);
                  press("pBtnOK");
              }),
              1);
    EXPECT_EQ(description(L"Wall"), L"mine");
    EXPECT_EQ(description(L"Curb"), L"loaded");
}

// Whatever stands below a line "2" is listed.
TEST_F(LoadDialog, aStyleWithoutABlockKeepsWhatANewOneHas) {
    write("Support/ORVEX.mln", "2\n Ghost\n" + block("Curb"));
    load([&] {
        clickRow(0);
        press("pBtnOK");
    });
    ASSERT_EQ(description(L"Ghost"), L"");
    ASSERT_EQ(style(L"Ghost")->numElements(), 2);
    for (const int index : {0, 1}) {
        double offset = 0.0;
        KdCmColor color;
        KdDbObjectId linetype;
        (void)style(L"Ghost")->getElementAt(index, offset, color, linetype);
        EXPECT_EQ(offset, index == 0 ? 0.5 : -0.5);
        EXPECT_EQ(color.colorIndex(), 256);
        EXPECT_FALSE(linetype.isNull());
    }
}

TEST_F(LoadDialog, enterAndBlankCancelWhereverTheFocusIs) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        for (const char* const focused : {"listWidget", "pBtnOK", "pBtnFile"}) {
            EXPECT_EQ(load([&] {
                          clickRow(0);
                          auto& widget = child<QWidget>(*m_dialog, focused);
                          widget.setFocus();
                          QTest::keyClick(&widget, key);
                      }),
                      2)
                << focused;
        }
    }
    EXPECT_EQ(description(L"Curb"), L"none");
    EXPECT_EQ(m_chooser.asked, L"");
}

TEST_F(LoadDialog, remembersAChosenFileAtOnce) {
    const std::wstring other = write("other.mln", block("Kerb"));
    const std::wstring gone = orvex::widen((m_root / "gone.mln").string());
    load([&] {
        clickRow(0);
        press("pBtnFile"); // no choice
        EXPECT_EQ(rememberedFile(), L"");
        EXPECT_EQ(m_chooser.asked, L"Load Multiline Style From File|" +
                                       orvex::widen((m_root / "Support/ORVEX.mln").string()) +
                                       L"|mln|64");
        m_chooser.choice = gone;
        press("pBtnFile");
        EXPECT_EQ(rememberedFile(), gone);
        EXPECT_THAT(listed(), ElementsAre("Curb", "WALL"));
        EXPECT_TRUE(button("pBtnOK").isEnabled());

        m_chooser.choice = other;
        press("pBtnFile");
        EXPECT_THAT(listed(), ElementsAre("Kerb"));
        EXPECT_FALSE(button("pBtnOK").isEnabled());
        press("pBtnCancel");
    });
    EXPECT_EQ(rememberedFile(), other);

    load([&] {
        EXPECT_THAT(listed(), ElementsAre("Kerb"));
        press("pBtnCancel");
    });
    fs::remove(other);
    load([&] {
        EXPECT_THAT(listed(), IsEmpty());
        EXPECT_FALSE(button("pBtnOK").isEnabled());
        press("pBtnCancel");
    });
}

TEST_F(LoadDialog, keepsItsPlaceWhenAStyleIsLoaded) {
    const QRect place(140, 110, 450, 320);
    load([&] {
        m_dialog->GetSafeHwnd()->setGeometry(place);
        press("pBtnCancel");
    });
    EXPECT_EQ(setting(L"MlstyleLoadDlgPosLeft"), -10000);
    load([&] {
        m_dialog->GetSafeHwnd()->setGeometry(place);
        clickRow(0);
        press("pBtnOK");
    });
    EXPECT_EQ(setting(L"MlstyleLoadDlgPosRight"), 590);
    load([&] {
        EXPECT_EQ(m_dialog->GetSafeHwnd()->geometry(), place);
        press("pBtnCancel");
    });
}

} // namespace
