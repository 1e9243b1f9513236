#include "CMLEditDialog.h"

#include "dialogRun.h"
#include "resourceLibrary.h"
#include "toolTable.h"

#include <QLabel>

#include <gmock/gmock.h>

using mledit::ToolRow;
using namespace orvex::testing;

namespace {

class Palette : public testing::Test {
protected:
    ~Palette() override { AfxFreeLibrary(m_library); }

    HINSTANCE m_library = loadResourceDll(L"OmxMLStyleRes.dll");
};

// Nothing but the layout ties a caption to its button.
std::string captionBelow(const QPushButton& button) {
    const QPoint wanted = button.mapToGlobal(QPoint(button.width() / 2, button.height()));
    for (const QLabel* const label : button.window()->findChildren<QLabel*>()) {
        const QPoint apart = label->mapToGlobal(QPoint(label->width() / 2, 0)) - wanted;
        if (std::abs(apart.x()) <= 1 && apart.y() == 0) {
            return label->text().toStdString();
        }
    }
    return "nothing";
}

TEST_F(Palette, eachButtonShowsItsToolAndGivesItsNumber) {
    const std::pair<int, const char*> expected[] = {
        {5759, "Closed Cross"},  {5760, "Open Cross"}, {5761, "Merged Cross"}, {5762, "Closed Tee"},
        {5763, "Open Tee"},      {5764, "Merged Tee"}, {5765, "Corner Joint"}, {5767, "Add Vertex"},
        {5766, "Delete Vertex"}, {5768, "Cut Single"}, {5769, "Cut All"},      {5770, "Weld All"},
    };
    std::vector<QImage> seen;
    int number = 0;
    for (const auto& [control, caption] : expected) {
        const ToolRow& row = *mledit::findTool(++number);
        CMLEditDialog dialog(nullptr);
        auto& button = child<QPushButton>(dialog, row.button);
        EXPECT_EQ(GetDlgItem(dialog.GetSafeHwnd(), control), &button);
        const int result = runDialog(dialog, [&, text = caption] {
            ASSERT_THAT(button.icon().availableSizes(), testing::ElementsAre(QSize(41, 38)));
            const QImage picture = button.icon().pixmap(41, 38).toImage();
            EXPECT_THAT(seen, testing::Not(testing::Contains(picture))) << text;
            seen.push_back(picture);
            EXPECT_EQ(captionBelow(button), text);
            press(*dialog.GetSafeHwnd(), row.button);
        });
        EXPECT_EQ(result, 1) << caption;
        EXPECT_EQ(dialog.m_toolNumber, number) << caption;
        CBitmapButton drawn;
        const std::wstring name = row.bitmap;
        EXPECT_TRUE(drawn.LoadBitmaps((name + L"_UP").c_str(), (name + L"_DOWN").c_str(),
                                      (name + L"_FOCUS").c_str()));
    }
}

TEST_F(Palette, captionsOfALargeFontStandUnderTheirPictures) {
    const TextSize large(kLargeTextSize);
    CMLEditDialog dialog(nullptr);
    runDialog(dialog, [&] {
        for (int number = 1; number <= 12; ++number) {
            auto& button = child<QPushButton>(dialog, mledit::findTool(number)->button);
            EXPECT_EQ(captionBelow(button), button.accessibleName().toStdString());
        }
        press(*dialog.GetSafeHwnd(), "closeBtn");
    });
}

TEST_F(Palette, keysAndTheCloseControlEndIt) {
    const std::pair<void (*)(QWidget & view), int> cases[] = {
        {[](QWidget& view) { QTest::keyClick(&view, Qt::Key_Escape); }, 0},
        {[](QWidget& view) { press(view, "closeBtn"); }, 13},
        {[](QWidget& view) { QTest::keyClick(&view, Qt::Key_Return); }, 13},
        {[](QWidget& view) {
             child<QWidget>(view, "cutAllBtn").setFocus();
             QTest::keyClick(view.focusWidget(), Qt::Key_Return);
         },
         11},
    };
    for (const auto& [leave, number] : cases) {
        CMLEditDialog dialog(nullptr);
        runDialog(dialog, [&, act = leave] { act(*dialog.GetSafeHwnd()); });
        EXPECT_EQ(dialog.m_toolNumber, number);
    }
}

} // namespace
