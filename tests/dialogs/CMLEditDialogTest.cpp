#include "CMLEditDialog.h"

#include "dialogRun.h"
#include "resourceLibrary.h"

#include <QDir>
#include <QLabel>

#include <gmock/gmock.h>

using orvex::testing::child;
using orvex::testing::press;
using orvex::testing::runDialog;

namespace {

// In the order of their numbers.
struct Tool {
    int control;
    const char* button;
    const char* label;
    const char* caption;
};

constexpr Tool kTools[] = {
    {5759, "closedCrossBtn", "label_2", "Closed Cross"},
    {5760, "openCrossBtn", "label_3", "Open Cross"},
    {5761, "mergedCrossBtn", "label_6", "Merged Cross"},
    {5762, "closedTeeBtn", "CloseTeeBtn", "Closed Tee"},
    {5763, "openTeeBtn", "CloseTeeBtn_2", "Open Tee"},
    {5764, "mergedTeeBtn", "CloseTeeBtn_3", "Merged Tee"},
    {5765, "cornerJointBtn", "label_4", "Corner Joint"},
    {5767, "addVertexBtn", "label_14", "Add Vertex"},
    {5766, "deleteVertexBtn", "label_16", "Delete Vertex"},
    {5768, "cutSingleBtn", "label_5", "Cut Single"},
    {5769, "cutAllBtn", "label_15", "Cut All"},
    {5770, "weldAllBtn", "label_17", "Weld All"},
};

class Palette : public testing::Test {
protected:
    ~Palette() override { AfxFreeLibrary(m_library); }

    HINSTANCE m_library = loadResourceDll(L"OmxMLStyleRes.dll");
};

// Pictures and captions stand in rows of their own: nothing but the layout ties them to the
// buttons.
TEST_F(Palette, eachButtonShowsItsToolAndGivesItsNumber) {
    std::vector<QImage> seen;
    int number = 0;
    for (const Tool& tool : kTools) {
        CMLEditDialog dialog(nullptr);
        auto& button = child<QPushButton>(dialog, tool.button);
        EXPECT_EQ(GetDlgItem(dialog.GetSafeHwnd(), tool.control), &button);
        const int result = runDialog(dialog, [&] {
            ASSERT_THAT(button.icon().availableSizes(), testing::ElementsAre(QSize(41, 38)));
            const QImage picture = button.icon().pixmap(41, 38).toImage();
            EXPECT_THAT(seen, testing::Not(testing::Contains(picture))) << tool.button;
            seen.push_back(picture);

            const auto& label = child<QLabel>(dialog, tool.label);
            EXPECT_EQ(label.text(), tool.caption);
            const QPoint below(button.width() / 2, button.height());
            const QPoint top(label.width() / 2, 0);
            const QPoint apart = label.mapToGlobal(top) - button.mapToGlobal(below);
            EXPECT_NEAR(apart.x(), 0, 1) << tool.label;
            EXPECT_EQ(apart.y(), 0) << tool.label;
            press(*dialog.GetSafeHwnd(), tool.button);
        });
        EXPECT_EQ(result, 1) << tool.button;
        EXPECT_EQ(dialog.m_toolNumber, ++number) << tool.button;
    }
}

TEST_F(Palette, keysAndTheCloseControlEndItWithoutATool) {
    const struct {
        void (*leave)(QWidget& view);
        int number;
    } cases[] = {
        {[](QWidget& view) { QTest::keyClick(&view, Qt::Key_Escape); }, 0},
        {[](QWidget& view) { view.close(); }, 0},
        {[](QWidget& view) { press(view, "closeBtn"); }, 13},
        // Enter is for the default button, wherever the focus is.
        {[](QWidget& view) {
             child<QWidget>(view, "cutAllBtn").setFocus();
             QTest::keyClick(view.focusWidget(), Qt::Key_Return);
         },
         13},
    };
    for (const auto& [leave, number] : cases) {
        CMLEditDialog dialog(nullptr);
        runDialog(dialog, [&, act = leave] { act(*dialog.GetSafeHwnd()); });
        EXPECT_EQ(dialog.m_toolNumber, number);
    }
}

TEST_F(Palette, hasThreePicturesOfEachOwnerDrawnButton) {
    const QStringList pictures = QDir(":/").entryList({"IDB_*_UP*"});
    EXPECT_EQ(pictures.size(), 12);
    for (const QString& up : pictures) {
        const std::wstring stem = up.left(up.indexOf("_UP")).toStdWString();
        CBitmapButton button;
        EXPECT_TRUE(button.LoadBitmaps((stem + L"_UP").c_str(), (stem + L"_DOWN").c_str(),
                                       (stem + L"_FOCUS").c_str()))
            << stem;
    }
}

} // namespace
