#include "CMLEditDialog.h"

#include "dialogRun.h"
#include "resourceLibrary.h"

#include <QDir>
#include <QLabel>
#include <QPushButton>

#include <gmock/gmock.h>

using orvex::testing::child;
using orvex::testing::runDialog;

namespace {

struct Row {
    int number;
    int control;
    const char* button;
    const char* label; // none for Close
    const char* caption;
};

constexpr Row kRows[] = {
    {1, 5759, "closedCrossBtn", "label_2", "Closed Cross"},
    {2, 5760, "openCrossBtn", "label_3", "Open Cross"},
    {3, 5761, "mergedCrossBtn", "label_6", "Merged Cross"},
    {4, 5762, "closedTeeBtn", "CloseTeeBtn", "Closed Tee"},
    {5, 5763, "openTeeBtn", "CloseTeeBtn_2", "Open Tee"},
    {6, 5764, "mergedTeeBtn", "CloseTeeBtn_3", "Merged Tee"},
    {7, 5765, "cornerJointBtn", "label_4", "Corner Joint"},
    {8, 5767, "addVertexBtn", "label_14", "Add Vertex"},
    {9, 5766, "deleteVertexBtn", "label_16", "Delete Vertex"},
    {10, 5768, "cutSingleBtn", "label_5", "Cut Single"},
    {11, 5769, "cutAllBtn", "label_15", "Cut All"},
    {12, 5770, "weldAllBtn", "label_17", "Weld All"},
    {13, 5771, "closeBtn", nullptr, "&Close"},
};

class Palette : public testing::Test {
protected:
    ~Palette() override { AfxFreeLibrary(m_library); }

    HINSTANCE m_library = loadResourceDll(L"OmxMLStyleRes.dll");
};

TEST_F(Palette, eachButtonGivesItsNumberAndEndsTheDialog) {
    for (const Row& row : kRows) {
        CMLEditDialog dialog(nullptr);
        EXPECT_EQ(dialog.m_toolNumber, 0);
        auto& button = child<QPushButton>(dialog, row.button);
        const int result = runDialog(dialog, [&] { QTest::mouseClick(&button, Qt::LeftButton); });
        EXPECT_EQ(result, 1) << row.button;
        EXPECT_EQ(dialog.m_toolNumber, row.number) << row.button;
    }
}

TEST_F(Palette, keysAndTheCloseControlEndItWithoutATool) {
    CMLEditDialog escaped(nullptr);
    runDialog(escaped, [&] { QTest::keyClick(escaped.GetSafeHwnd(), Qt::Key_Escape); });
    EXPECT_EQ(escaped.m_toolNumber, 0);

    CMLEditDialog closed(nullptr);
    runDialog(closed, [&] { closed.GetSafeHwnd()->close(); });
    EXPECT_EQ(closed.m_toolNumber, 0);

    // Enter is for the default button, wherever the focus is.
    CMLEditDialog entered(nullptr);
    runDialog(entered, [&] {
        auto& tool = child<QPushButton>(entered, "cutAllBtn");
        tool.setFocus();
        QTest::keyClick(&tool, Qt::Key_Return);
    });
    EXPECT_EQ(entered.m_toolNumber, 13);
}

TEST_F(Palette, registersEachButtonUnderItsControlNumber) {
    CMLEditDialog dialog(nullptr);
    for (const Row& row : kRows) {
        EXPECT_EQ(GetDlgItem(dialog.GetSafeHwnd(), row.control),
                  &child<QPushButton>(dialog, row.button));
    }
}

// The captions stand in rows of their own, so nothing but the layout ties them to the buttons.
TEST_F(Palette, showsEachCaptionRightBelowItsButton) {
    CMLEditDialog dialog(nullptr);
    const auto placed = [&](const QWidget& widget) {
        return QRect(widget.mapTo(dialog.GetSafeHwnd(), QPoint()), widget.size());
    };
    runDialog(dialog, [&] {
        for (const Row& row : kRows) {
            const auto& button = child<QPushButton>(dialog, row.button);
            if (row.label == nullptr) {
                EXPECT_EQ(button.text(), row.caption);
                continue;
            }
            EXPECT_EQ(button.size(), QSize(41, 38)) << row.button;
            const auto& label = child<QLabel>(dialog, row.label);
            EXPECT_EQ(label.text(), row.caption);
            EXPECT_NEAR(placed(label).center().x(), placed(button).center().x(), 1) << row.label;
            EXPECT_EQ(placed(label).top(), placed(button).bottom() + 1) << row.label;
        }
        dialog.OnClose();
    });
}

TEST_F(Palette, showsTwelveDifferentPictures) {
    CMLEditDialog dialog(nullptr);
    std::vector<QImage> seen;
    for (const Row& row : kRows) {
        if (row.label == nullptr) {
            continue;
        }
        const QIcon icon = child<QPushButton>(dialog, row.button).icon();
        ASSERT_THAT(icon.availableSizes(), testing::ElementsAre(QSize(41, 38))) << row.button;
        const QImage picture = icon.pixmap(41, 38).toImage();
        EXPECT_THAT(seen, testing::Not(testing::Contains(picture))) << row.button;
        seen.push_back(picture);
    }
}

TEST_F(Palette, findsThePicturesThatItsButtonsAskFor) {
    const wchar_t* const names[] = {L"CLOSE_CROSS",  L"OPEN_CROSS", L"MERGED_CROSS",
                                    L"CLOSE_TREE",   L"OPEN_TREE",  L"MERGED_TREE",
                                    L"CORNER_JOINT", L"ADD_VERTEX", L"DELETE_VERTEX",
                                    L"CUT_SINGLE",   L"CUT_ALL",    L"WELD_ALL"};
    for (const std::wstring name : names) {
        const std::wstring stem = L"IDB_" + name;
        CBitmapButton button;
        EXPECT_TRUE(button.LoadBitmaps((stem + L"_UP").c_str(), (stem + L"_DOWN").c_str(),
                                       (stem + L"_FOCUS").c_str()))
            << name;
    }
    EXPECT_EQ(QDir(":/").entryList({"IDB_*"}).size(), 36);
}

} // namespace
