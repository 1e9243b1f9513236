#include "CMlstyleNewDlg.h"
#include "CMlstyleRenameDlg.h"
#include "StyleWorld.h"
#include "dialogRun.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPointer>

#include <tuple>

using namespace orvex::testing;

namespace {

class StyleNameDialogs : public StyleWorld {
protected:
    StyleNameDialogs() {
        addStyle(L"Wall-2"); // begins like the next one
        addStyle(L"Wall");
    }
};

// Whether the dialog takes that name as it stands.
bool takes(CDialog& dialog, const char* button, const std::wstring& name) {
    child<QLineEdit>(dialog, "lineEditNewStyleName").setText(QString::fromStdWString(name));
    return child<QPushButton>(dialog, button).isEnabled();
}

TEST_F(StyleNameDialogs, letAnAllowedNamePass) {
    std::vector<std::tuple<std::wstring, bool, bool>> names{
        // typed, for new, for renaming
        {L"A", true, true},
        {L"", false, false},
        {L"Storey2", true, true},
        {L"A-B_1$", true, false},
        {L"Wand\u00e4", false, false},
        {L"\u0141\u4e2d", false, false},
        // Taken, in any case; "Wall-2" is what the rename dialog starts from.
        {L"standard", false, false},
        {L"WALL", false, false},
        {L"wall-2", false, false},
        {L"Wall2", true, true},
        {std::wstring(3000, L'x'), true, true}, // nobody enforces a length
    };
    for (const wchar_t refused : std::wstring(LR"(~`!@#%^&*()=+[]\{}|:;'"<>?/,. )")) {
        names.emplace_back(std::wstring(L"A") + refused + L"B", false, false);
    }
    CMlstyleNewDlg fresh(nullptr);
    CMlstyleRenameDlg renamed(nullptr);
    fresh.m_dictionaryId = renamed.m_dictionaryId = dictionaryId();
    renamed.m_oldName = L"Wall-2";
    runDialog(fresh, [&] {
        EXPECT_FALSE(child<QPushButton>(fresh, "pBtnContinue").isEnabled());
        for (const auto& [name, forNew, forRenaming] : names) {
            EXPECT_EQ(takes(fresh, "pBtnContinue", name), forNew) << name;
        }
        fresh.OnCancel();
    });
    runDialog(renamed, [&] {
        EXPECT_FALSE(child<QPushButton>(renamed, "pBtnOK").isEnabled());
        for (const auto& [name, forNew, forRenaming] : names) {
            EXPECT_EQ(takes(renamed, "pBtnOK", name), forRenaming) << name;
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

// Opens a dialog and accepts it; where it was opened. The view goes with its dialog.
template <class Dialog>
QRect accept(KdDbObjectId dictionary) {
    auto dialog = std::make_unique<Dialog>(nullptr);
    dialog->m_dictionaryId = dictionary;
    const QPointer<QWidget> view = dialog->GetSafeHwnd();
    QRect opened;
    runDialog(*dialog, [&] {
        opened = view->geometry();
        dialog->OnOK();
    });
    dialog.reset();
    EXPECT_TRUE(view.isNull());
    return opened;
}

TEST_F(StyleNameDialogs, openWhereTheyWereAccepted) {
    for (const auto& [prefix, open] : {std::pair{L"MlstyleNewPos", &accept<CMlstyleNewDlg>},
                                       {L"MlstyleRenamePos", &accept<CMlstyleRenameDlg>}}) {
        const QRect byDefault = open(dictionaryId());
        EXPECT_EQ(setting(std::wstring(prefix) + L"Right"), byDefault.x() + byDefault.width());
        const QRect position = storePosition(prefix);
        EXPECT_EQ(open(dictionaryId()), position);
        // A single key that isn't stored leaves the default position.
        AfxGetApp()->WriteProfileInt(L"Settings", (std::wstring(prefix) + L"Top").c_str(), -10000);
        EXPECT_NE(open(dictionaryId()), position);
    }
}

} // namespace
