#include "CMlStyleLoadDlg.h"

#include "MlineStyleContent.h"
#include "StyleWorld.h"
#include "dialogRun.h"
#include "textCodec.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;
using orvex::testing::child;
using orvex::testing::runDialog;
using orvex::testing::StyleWorld;
using orvex::testing::textsOf;
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
    [[nodiscard]] std::vector<std::string> listed() { return textsOf(list()); }
    [[nodiscard]] bool mayLoad() { return child<QPushButton>(*m_dialog, "pBtnOK").isEnabled(); }
    void clickRow(int row) { orvex::testing::clickRow(list(), row); }
    void press(const char* name) { orvex::testing::press(*m_dialog->GetSafeHwnd(), name); }
    void loadRow(int row) {
        clickRow(row);
        press("pBtnOK");
    }

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
        EXPECT_FALSE(mayLoad());
        clickRow(1);
        EXPECT_TRUE(mayLoad());
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                          QPoint(20, list().viewport()->height() - 5));
        EXPECT_FALSE(mayLoad());
        m_dialog->OnOK(); // nothing is selected
        EXPECT_TRUE(m_dialog->GetSafeHwnd()->isVisible());
        press("pBtnCancel");
    });
    EXPECT_TRUE(m_dialog->m_chosenName.IsEmpty());
    EXPECT_EQ(rememberedFile(), L"");
}

TEST_F(LoadDialog, makesANewStyleAndOverwritesOneThatIsThere) {
    EXPECT_EQ(load([&] { loadRow(0); }), 1);
    EXPECT_TRUE(m_dialog->m_chosenName == L"Curb");
    EXPECT_EQ(m_dialog->m_styleId, styleId(L"Curb"));
    ASSERT_EQ(description(L"Curb"), L"loaded");
    EXPECT_STREQ(style(L"Curb")->name(), L"Curb");
    EXPECT_EQ(style(L"Curb")->numElements(), 1);

    const KdDbObjectId wall = styleId(L"Wall");
    EXPECT_EQ(load([&] {
                  clickRow(1);
                  QTest::mouseDClick(list().viewport(), Qt::LeftButton, {},
                                     list().visualItemRect(list().item(1)).center());
              }),
              1);
    EXPECT_EQ(styleId(L"WALL"), wall);
    EXPECT_EQ(description(L"Wall"), L"loaded");
    EXPECT_STREQ(style(L"Wall")->name(), L"Wall");
}

TEST_F(LoadDialog, aStyleInUseIsLeftAlone) {
    use("Wall");
    load([&] {
        loadRow(1);
        EXPECT_TRUE(m_dialog->GetSafeHwnd()->isVisible());
        loadRow(0);
    });
    EXPECT_EQ(description(L"Wall"), L"mine");
    EXPECT_EQ(description(L"Curb"), L"loaded");
}

// Whatever stands below a line "2" is listed.
TEST_F(LoadDialog, aStyleWithoutABlockHasTheElementsOfANewOne) {
    write("Support/ORVEX.mln", "2\n Ghost\n" + block("Curb"));
    load([&] { loadRow(0); });
    ASSERT_EQ(description(L"Ghost"), L"");
    const auto& elements = style(L"Ghost")->values().elements;
    ASSERT_EQ(elements.size(), 2U);
    EXPECT_EQ(elements[0].offset, 0.5);
    EXPECT_EQ(elements[1].offset, -0.5);
    EXPECT_EQ(elements[1].color.colorIndex(), 256);
    EXPECT_FALSE(elements[1].linetype.isNull());
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
        EXPECT_TRUE(mayLoad());

        m_chooser.choice = other;
        press("pBtnFile");
        EXPECT_THAT(listed(), ElementsAre("Kerb"));
        EXPECT_FALSE(mayLoad());
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
        EXPECT_FALSE(mayLoad());
        press("pBtnCancel");
    });
}

TEST_F(LoadDialog, keepsItsPlaceWhenAStyleIsLoaded) {
    const QRect place(140, 110, 450, 320);
    for (const bool loads : {false, true}) {
        load([&] {
            m_dialog->GetSafeHwnd()->setGeometry(place);
            clickRow(0);
            press(loads ? "pBtnOK" : "pBtnCancel");
        });
        EXPECT_EQ(setting(L"MlstyleLoadDlgPosRight"), loads ? 590 : -10000);
    }
    load([&] {
        EXPECT_EQ(m_dialog->GetSafeHwnd()->geometry(), place);
        press("pBtnCancel");
    });
}

} // namespace
