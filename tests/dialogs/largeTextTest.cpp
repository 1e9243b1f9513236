#include "CMLEditDialog.h"
#include "CMlStyleLoadDlg.h"
#include "CMlineStyleDialog.h"
#include "CMlstyleNewDlg.h"
#include "CMlstyleNewModDlg.h"
#include "CMlstyleRenameDlg.h"
#include "StyleWorld.h"
#include "dialogRun.h"
#include "layoutFaults.h"
#include "resourceLibrary.h"

#include <QLabel>
#include <QTableWidget>

#include <gmock/gmock.h>

#include <functional>

using namespace orvex::testing;
using testing::IsEmpty;

namespace {

class LargeText : public StyleWorld {
protected:
    LargeText() {
        AfxSetResourceHandle(m_library);
        addStyle(L"Wall", L"brick");
    }
    ~LargeText() override {
        AfxSetResourceHandle(m_handleBefore);
        AfxFreeLibrary(m_library);
    }

private:
    HINSTANCE m_library = loadResourceDll(L"OmxMLStyleRes.dll");
    HINSTANCE m_handleBefore = AfxGetResourceHandle();
};

TEST_F(LargeText, everyDialogShowsAllItSays) {
    using Look = std::function<void(QDialog & view)>;
    const auto run = [](CDialog& dialog, const Look& look) {
        runDialog(dialog, [&] {
            auto& view = *qobject_cast<QDialog*>(dialog.GetSafeHwnd());
            look(view);
            view.QDialog::reject();
        });
    };
    const std::pair<const char*, std::function<void(const Look&)>> dialogs[] = {
        {"manager",
         [&](const Look& look) {
             CMlineStyleDialog dialog(nullptr);
             run(dialog, look);
         }},
        {"new",
         [&](const Look& look) {
             CMlstyleNewDlg dialog(nullptr);
             dialog.m_dictionaryId = dictionaryId();
             dialog.m_startWith = L"STANDARD";
             run(dialog, look);
         }},
        {"modify",
         [&](const Look& look) {
             CMlstyleNewModDlg dialog(nullptr);
             dialog.m_dictionaryId = dictionaryId();
             dialog.m_mode = CMlstyleNewModDlg::modeModify;
             dialog.m_styleName = L"Wall";
             run(dialog, [&](QDialog& view) {
                 child<QTableWidget>(view, "listWidget").selectRow(0);
                 QTest::mouseClick(child<QTableWidget>(view, "listWidget").viewport(),
                                   Qt::LeftButton, {}, {20, 10});
                 look(view);
             });
         }},
        {"rename",
         [&](const Look& look) {
             CMlstyleRenameDlg dialog(nullptr);
             dialog.m_dictionaryId = dictionaryId();
             dialog.m_oldName = L"Wall";
             run(dialog, look);
         }},
        {"load",
         [&](const Look& look) {
             CMlStyleLoadDlg dialog(nullptr);
             dialog.m_dictionaryId = dictionaryId();
             run(dialog, look);
         }},
        {"palette",
         [&](const Look& look) {
             CMLEditDialog dialog(nullptr);
             run(dialog, look);
         }},
    };
    for (const int points : {kUsualTextSize, kLargeTextSize}) {
        const TextSize size(points);
        for (const auto& [name, show] : dialogs) {
            show([&, title = name](QDialog& view) {
                EXPECT_THAT(layoutFaults(view), IsEmpty()) << title << " at " << points;
            });
        }
    }
}

} // namespace
