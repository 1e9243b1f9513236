#include "CDataExchange.h"
#include "CDialog.h"
#include "CKdUiLineTypeComboBox.h"
#include "CKdUiTrueColorComboBox.h"
#include "DrawingChoices.h"
#include "MRUComboBox.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDialog>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace {

KdCmColor indexed(std::uint16_t index) {
    KdCmColor color;
    color.setColorIndex(index);
    return color;
}

KdCmColor trueColor(std::uint32_t rgb) {
    KdCmColor color;
    color.setColor(0xC2000000U | rgb);
    return color;
}

// A drawing whose language isn't English.
class Choices : public orvex::DrawingChoices {
public:
    Choices() : m_before(orvex::setDrawingChoices(this)) {}
    ~Choices() override { orvex::setDrawingChoices(m_before); }
    Choices(const Choices&) = delete;
    Choices& operator=(const Choices&) = delete;

    [[nodiscard]] std::wstring byLayerName() const override { return L"VonLayer"; }
    [[nodiscard]] std::wstring byBlockName() const override { return L"VonBlock"; }
    [[nodiscard]] std::vector<orvex::LinetypeChoice> linetypes() const override {
        return {{L"BYBLOCK", {}},     {L"ByLayer", {}},
                {L"CONTINUOUS", {}},  {L"DASHED", {0.5, -0.25}},
                {L"DOT", {0, -0.25}}, {L"BROKEN", {0, 0, 1e308, -1e308, 1e308}}};
    }
    [[nodiscard]] std::optional<KdCmColor> askColor(const KdCmColor& before) const override {
        asked.push_back(before);
        return answer;
    }

    std::optional<KdCmColor> answer;
    mutable std::vector<KdCmColor> asked;

private:
    orvex::DrawingChoices* m_before;
};

QStringList textsOf(const QComboBox& box) {
    QStringList all;
    for (int index = 0; index < box.count(); ++index) {
        all << box.itemText(index);
    }
    return all;
}

class ComboBoxes : public ::testing::Test {
protected:
    ComboBoxes() : widget(new VOUI::MRUComboBox(&view)), logic(105) {
        logic.SetHandle(&view);
        logic.SetDlgItem(1049, widget);
        colors.SubclassDlgItem(1049, &logic);
        QObject::connect(widget, &VOUI::MRUComboBox::selChanged, [this] { ++chosen; });
        view.show();
    }

    // As the user does: opens the list and clicks an entry.
    void choose(int index) {
        widget->showPopup();
        QAbstractItemView& list = *widget->view();
        QTest::qWait(QApplication::doubleClickInterval() / 10);
        const QRect place = list.visualRect(widget->model()->index(index, 0));
        QTest::mouseMove(list.viewport(), place.center());
        QTest::qWait(QApplication::doubleClickInterval()); // the box ignores clicks right away
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place.center());
    }

    Choices drawing;
    QDialog view;
    VOUI::MRUComboBox* widget;
    CDialog logic;
    CKdUiTrueColorComboBox colors;
    int chosen = 0;
};

TEST_F(ComboBoxes, colorsStandUnderTheirNames) {
    EXPECT_EQ(textsOf(*widget), QStringList({"VonLayer", "VonBlock", "1", "2", "3", "4", "5", "6",
                                             "7", "More Colors..."}));
    for (const auto& [color, index] : {std::pair{indexed(256), 0},
                                       {indexed(0), 1},
                                       {indexed(1), 2},
                                       {indexed(7), 8},
                                       {indexed(8), -1},
                                       {trueColor(0xFF0000), -1}}) {
        EXPECT_EQ(colors.FindItemByColor(color), index);
    }
    // Swatches show the colours themselves.
    const QImage red = widget->itemIcon(2).pixmap(20, 12).toImage();
    EXPECT_EQ(red.pixelColor(10, 6), QColor(255, 0, 0));
    EXPECT_EQ(chosen, 0);
}

TEST_F(ComboBoxes, recentColorsAreKeptUpToALimit) {
    colors.SetCurSel(0);
    EXPECT_EQ(colors.AddColorToMRU(indexed(1)), 2); // in the list already
    EXPECT_EQ(colors.AddColorToMRU(trueColor(0xFF8000)), 9);
    EXPECT_EQ(widget->itemText(9), "255,128,0");
    EXPECT_EQ(colors.AddColorToMRU(trueColor(0xFF8000)), 9);
    colors.SetCurSel(9);
    for (std::uint16_t index = 30; index < 50; ++index) {
        EXPECT_EQ(colors.AddColorToMRU(indexed(index)), 9);
    }
    EXPECT_EQ(widget->count(), 9 + 8 + 1);
    EXPECT_EQ(widget->itemText(9), "49");
    // What is shown doesn't go.
    KdCmColor current;
    colors.GetCurrentItemColor(current);
    EXPECT_EQ(current, trueColor(0xFF8000));
    EXPECT_EQ(colors.FindItemByColor(trueColor(0xFF8000)), colors.GetCurSel());
    EXPECT_EQ(chosen, 0);
    KdCmColor named = indexed(1); // another colour than the one without a name
    named.setNamesFromDictionaryKey(L"BOOK$Crimson");
    EXPECT_EQ(colors.AddColorToMRU(named), 9);
    EXPECT_EQ(widget->itemText(9), "Crimson");
}

TEST_F(ComboBoxes, theUsersChoiceIsToldAndOnlyThat) {
    choose(3);
    EXPECT_EQ(chosen, 1);
    EXPECT_EQ(colors.GetCurSel(), 3);
    colors.SetCurSel(5);
    EXPECT_EQ(chosen, 1);
    QTest::keyClick(widget, Qt::Key_Up);
    EXPECT_EQ(chosen, 2);
    EXPECT_EQ(colors.GetCurSel(), 4);
    QWheelEvent wheel({5, 5}, widget->mapToGlobal(QPoint(5, 5)), {}, {0, 120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &wheel);
    EXPECT_EQ(chosen, 2);
    EXPECT_EQ(colors.GetCurSel(), 4);
}

TEST_F(ComboBoxes, moreColorsAsksAndACancelChangesNothing) {
    colors.SetCurSel(4);
    choose(9);
    ASSERT_EQ(drawing.asked.size(), 1U);
    EXPECT_EQ(drawing.asked.front(), indexed(3));
    EXPECT_EQ(chosen, 0);
    EXPECT_EQ(colors.GetCurSel(), 4);

    drawing.answer = trueColor(0x0080FF);
    choose(9);
    EXPECT_EQ(chosen, 1);
    KdCmColor current;
    colors.GetCurrentItemColor(current);
    EXPECT_EQ(current, trueColor(0x0080FF));
    EXPECT_EQ(widget->currentText(), "0,128,255");
}

TEST_F(ComboBoxes, linetypesStandUnderLocalNamesWithSamples) {
    auto* const box = new VOUI::MRUComboBox(&view);
    logic.SetDlgItem(1055, box);
    QSignalSpy told(box, &VOUI::MRUComboBox::selChanged);
    CKdUiLineTypeComboBox linetypes;
    linetypes.SubclassDlgItem(1055, &logic);
    EXPECT_EQ(textsOf(*box),
              QStringList({"VonLayer", "VonBlock", "Continuous", "DASHED", "DOT", "BROKEN"}));
    EXPECT_EQ(linetypes.GetCurSel(), -1);
    linetypes.SetCurSel(linetypes.FindString(-1, L"dashed"));
    EXPECT_EQ(box->currentText(), "DASHED");
    EXPECT_EQ(told.count(), 0);

    // Two parts repeat every 16 pixels; of 0.75 units the pen is down for 10.7 pixels.
    const auto inkAt = [box](int index, int x) {
        return box->itemIcon(index).pixmap(64, 12).toImage().pixelColor(x, 6).alpha() > 0;
    };
    const std::tuple<int, std::vector<int>, std::vector<int>> inkAndGaps[] = {
        {2, {0, 31, 63}, {}},
        {3, {1, 9, 17, 25, 57}, {12, 14, 28, 46, 62}},
        {4, {0, 16, 32, 48}, {4, 12, 30, 40, 60}},
        {5, {0, 31, 63}, {}}, // no length that could be shown
    };
    for (const auto& [index, ink, gaps] : inkAndGaps) {
        for (const int x : ink) {
            EXPECT_TRUE(inkAt(index, x)) << index << ' ' << x;
        }
        for (const int x : gaps) {
            EXPECT_FALSE(inkAt(index, x)) << index << ' ' << x;
        }
    }
}

} // namespace
