#include "CMlStyleLoadDlg.h"

#include "MlineStyleContent.h"
#include "StyleWorld.h"
#include "dialogRun.h"
#include "textCodec.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;
using namespace orvex::testing;
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

    // Name, description and number of elements.
    [[nodiscard]] std::wstring summary(const wchar_t* name) {
        const KdDbMlineStyle& found = *style(name);
        return found.name() + (L" " + std::wstring(found.description())) + L' ' +
               std::to_wstring(found.numElements());
    }

    static std::wstring rememberedFile() {
        return AfxGetApp()->GetProfileString(L"Settings", L"MlstyleFile").text();
    }

    fs::path m_root = fs::temp_directory_path() / "root";
    std::unique_ptr<CMlStyleLoadDlg> m_dialog;
};

TEST_F(LoadDialog, listsTheDefaultLibraryAndNeedsASelection) {
    const QRect position = storePosition(L"MlstyleLoadDlgPos");
    load([&] {
        EXPECT_EQ(m_dialog->GetSafeHwnd()->geometry(), position);
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

// Whatever follows a line "2" is listed; without a block a style has what a new one has.
TEST_F(LoadDialog, makesANewStyleAndOverwritesOneThatIsThere) {
    write("Support/ORVEX.mln", block("Curb") + block("WALL") + "2\n Ghost\n");
    EXPECT_EQ(load([&] { loadRow(0); }), 1);
    EXPECT_NE(setting(L"MlstyleLoadDlgPosRight"), -10000);
    EXPECT_TRUE(m_dialog->m_chosenName == L"Curb");
    EXPECT_EQ(m_dialog->m_styleId, styleId(L"Curb"));
    EXPECT_EQ(summary(L"Curb"), L"Curb loaded 1");

    const KdDbObjectId wall = styleId(L"Wall");
    EXPECT_EQ(load([&] {
                  clickRow(1);
                  QTest::mouseDClick(list().viewport(), Qt::LeftButton, {},
                                     list().visualItemRect(list().item(1)).center());
              }),
              1);
    EXPECT_EQ(styleId(L"WALL"), wall);
    EXPECT_EQ(summary(L"Wall"), L"Wall loaded 1");

    load([&] { loadRow(2); });
    ASSERT_EQ(summary(L"Ghost"), L"Ghost  2");
    const auto& elements = style(L"Ghost")->values().elements;
    EXPECT_EQ(elements[0].offset, 0.5);
    EXPECT_EQ(elements[1].offset, -0.5);
    EXPECT_EQ(elements[1].color.colorIndex(), 256);
    EXPECT_FALSE(elements[1].linetype.isNull());
}

TEST_F(LoadDialog, aStyleInUseIsLeftAlone) {
    use("Wall");
    load([&] {
        loadRow(1);
        EXPECT_TRUE(m_dialog->GetSafeHwnd()->isVisible());
        loadRow(0);
    });
    EXPECT_EQ(summary(L"Wall"), L"Wall mine 2");
    EXPECT_EQ(summary(L"Curb"), L"Curb loaded 1");
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
    EXPECT_EQ(style(L"Curb"), nullptr);
    EXPECT_EQ(m_chooser.asked, L"");
    EXPECT_EQ(setting(L"MlstyleLoadDlgPosRight"), -10000);
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

    fs::remove(other);
    load([&] {
        EXPECT_THAT(listed(), IsEmpty());
        EXPECT_FALSE(mayLoad());
        press("pBtnCancel");
    });
}

} // namespace
