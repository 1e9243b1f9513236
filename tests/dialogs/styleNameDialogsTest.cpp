#include "CMlstyleNewDlg.h"
#include "CMlstyleRenameDlg.h"
#include "StyleWorld.h"
#include "dialogRun.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using orvex::testing::child;
using orvex::testing::runDialog;
using orvex::testing::StyleWorld;

namespace {

class StyleNameDialogs : public StyleWorld {
protected:
    StyleNameDialogs() {
        addStyle(L"Wall");
        addStyle(L"Wall-2");
    }
};

struct Name {
    std::wstring typed;
    bool forNew;
    bool forRenaming;
};

std::vector<Name> names() {
    std::vector<Name> all{
        {L"A", true, true},
        {L"", false, false},
        {L"Storey2", true, true},
        {L"A-B_1$", true, false},
        {L"A.B", false, false},
        {L"A B", false, false},
        {L"Wand\u00e4", false, false},
        {L"\u0141\u4e2d", false, false},
        // Taken, in any case; "Wall-2" is what the rename dialog starts from.
        {L"standard", false, false},
        {L"WALL", false, false},
        {L"wall-2", false, false},
        {L"Wall2", true, true},
        // Nobody enforces a length.
        {std::wstring(32, L'x'), true, true},
        {std::wstring(3000, L'x'), true, true},
    };
    for (const wchar_t refused : std::wstring(LR"(~`!@#%^&*()=+[]\{}|:;'"<>?/,.)")) {
        all.push_back({std::wstring(L"A") + refused + L"B", false, false});
    }
    return all;
}

TEST_F(StyleNameDialogs, letAnAllowedNamePass) {
    CMlstyleNewDlg fresh(nullptr);
    fresh.m_dictionaryId = dictionaryId();
    runDialog(fresh, [&] {
        const auto& accept = child<QPushButton>(fresh, "pBtnContinue");
        EXPECT_FALSE(accept.isEnabled());
        for (const Name& name : names()) {
            child<QLineEdit>(fresh, "lineEditNewStyleName")
                .setText(QString::fromStdWString(name.typed));
            EXPECT_EQ(accept.isEnabled(), name.forNew) << name.typed;
        }
        fresh.OnCancel();
    });

    CMlstyleRenameDlg renamed(nullptr);
    renamed.m_dictionaryId = dictionaryId();
    renamed.m_oldName = L"Wall-2";
    runDialog(renamed, [&] {
        const auto& accept = child<QPushButton>(renamed, "pBtnOK");
        EXPECT_FALSE(accept.isEnabled());
        for (const Name& name : names()) {
            child<QLineEdit>(renamed, "lineEditNewStyleName")
                .setText(QString::fromStdWString(name.typed));
            EXPECT_EQ(accept.isEnabled(), name.forRenaming) << name.typed;
        }
        renamed.OnCancel();
    });
}

TEST_F(StyleNameDialogs, newGivesTheNameAsTypedAndTheStyleToStartWith) {
    CMlstyleNewDlg dialog(nullptr);
    dialog.m_dictionaryId = dictionaryId();
    dialog.m_startWith = L"wall";
    const int result = runDialog(dialog, [&] {
        auto& combo = child<QComboBox>(dialog, "cbBoxStartWith");
        EXPECT_EQ(combo.currentText(), "Wall");
        EXPECT_EQ(combo.count(), 3);
        auto& field = child<QLineEdit>(dialog, "lineEditNewStyleName");
        QTest::keyClick(&field, Qt::Key_Return); // not past a disabled Continue
        QTest::keyClicks(&field, "Ring-A");
        QTest::keyClicks(&combo, "s");
        QTest::keyClick(&field, Qt::Key_Return);
    });
    EXPECT_EQ(result, 1);
    EXPECT_EQ(dialog.m_newName, L"Ring-A");
    EXPECT_TRUE(dialog.m_startWith == L"STANDARD");
}

TEST_F(StyleNameDialogs, renameShowsTheOldNameAsItIs) {
    CMlstyleRenameDlg dialog(nullptr);
    dialog.m_dictionaryId = dictionaryId();
    dialog.m_oldName = L"<b>a&b</b>";
    const int result = runDialog(dialog, [&] {
        const auto& label = child<QLabel>(dialog, "labelOldStyleNameResult");
        EXPECT_EQ(label.text(), "<b>a&b</b>");
        EXPECT_EQ(label.textFormat(), Qt::PlainText);
        EXPECT_FALSE(child<QComboBox>(dialog, "renameComBo").isVisible());
        QTest::keyClicks(&child<QLineEdit>(dialog, "lineEditNewStyleName"), "Brick7");
        QTest::mouseClick(&child<QPushButton>(dialog, "pBtnOK"), Qt::LeftButton);
    });
    EXPECT_EQ(result, 1);
    EXPECT_EQ(dialog.m_newName, L"Brick7");
    EXPECT_EQ(dialog.m_oldName, L"<b>a&b</b>");
}

template <class Dialog>
int openAndEnd(KdDbObjectId dictionary, const QRect& place, const char* button, QRect& opened) {
    Dialog dialog(nullptr);
    dialog.m_dictionaryId = dictionary;
    return runDialog(dialog, [&] {
        opened = dialog.GetSafeHwnd()->geometry();
        dialog.GetSafeHwnd()->setGeometry(place);
        child<QLineEdit>(dialog, "lineEditNewStyleName").setText("Z");
        QTest::mouseClick(&child<QPushButton>(dialog, button), Qt::LeftButton);
    });
}

TEST_F(StyleNameDialogs, keepTheirPlaceWhenAcceptedAndOnlyThen) {
    const QRect place(150, 120, 420, 230);
    QRect opened;
    EXPECT_EQ(openAndEnd<CMlstyleNewDlg>(dictionaryId(), place, "pBtnCancel", opened), 2);
    EXPECT_EQ(setting(L"MlstyleNewPosLeft"), -10000);
    EXPECT_EQ(openAndEnd<CMlstyleNewDlg>(dictionaryId(), place, "pBtnContinue", opened), 1);
    EXPECT_EQ(setting(L"MlstyleNewPosLeft"), 150);
    EXPECT_EQ(setting(L"MlstyleNewPosBottom"), 350);
    openAndEnd<CMlstyleNewDlg>(dictionaryId(), place, "pBtnCancel", opened);
    EXPECT_EQ(opened, place);

    EXPECT_EQ(openAndEnd<CMlstyleRenameDlg>(dictionaryId(), place, "pBtnOK", opened), 1);
    EXPECT_NE(opened, place);
    EXPECT_EQ(setting(L"MlstyleRenamePosRight"), 570);
    // A single key that isn't stored leaves the default place.
    AfxGetApp()->WriteProfileInt(L"Settings", L"MlstyleRenamePosTop", -10000);
    openAndEnd<CMlstyleRenameDlg>(dictionaryId(), place, "pBtnCancel", opened);
    EXPECT_NE(opened, place);
}

} // namespace
