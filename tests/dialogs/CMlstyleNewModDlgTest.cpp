#include "CMlstyleNewModDlg.h"

#include "KdDbLinetypeTable.h"
#include "MlineStyleContent.h"
#include "StyleWorld.h"
#include "dialogRun.h"
#include "fieldNumbers.h"
#include "messageBeep.h"
#include "resourceLibrary.h"
#include "styleAccessors.h"
#include "systemVariables.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QTableWidget>

#include <gmock/gmock.h>

#include <array>
#include <functional>

using namespace orvex::testing;
using testing::ElementsAre;

namespace {

constexpr double kDegree = 3.141592653589793 / 180.0;

class ModifyDialog : public StyleWorld {
protected:
    ModifyDialog() : m_beeperBefore(orvex::setBeeper([this] { ++m_beeps; })) {
        AfxSetResourceHandle(m_library);
        addStyle(L"Wall", L"brick");
        KdDbMlineStyle& wall = open(L"Wall");
        wall.setFilled(true);
        KdCmColor fill;
        fill.setColor(0xC2FF8000U);
        wall.setFillColor(fill);
        wall.setStartAngle(45.678 * kDegree);
        SetNumElements(&wall, 3);
        SetElemOffset(&wall, std::array{-0.25, 0.25, 0.0}.data(), 3);
        SetElemColor(&wall, std::array{0, 1, 30}.data(), 3);
        SetElemRgb(&wall, std::array{0x0080FFU, ~0U, ~0U}.data(), 3);
        std::wstring names[] = {L"DASHED", L"ByBlock", L"Continuous"};
        wchar_t* linetypes[] = {names[0].data(), names[1].data(), names[2].data()};
        SetElemLtype(&wall, linetypes, 3, curDoc()->database());
        wall.close();
    }
    ~ModifyDialog() override {
        orvex::setBeeper(m_beeperBefore);
        AfxSetResourceHandle(m_handleBefore);
        AfxFreeLibrary(m_library);
    }

    [[nodiscard]] KdDbMlineStyle& open(const wchar_t* name) const {
        KdDbMlineStyle* found = nullptr;
        kddbOpenObject(found, styleId(name), kForWrite);
        return *found;
    }

    // "offset colour line type" of each element.
    [[nodiscard]] std::vector<std::string> elements(const wchar_t* name) const {
        std::vector<std::string> all;
        for (const orvex::StyleElement& each : style(name)->values().elements) {
            KdDbLinetypeTableRecord* record = nullptr;
            kddbOpenObject(record, each.linetype, kForRead);
            all.push_back(QString("%1 %2 %3")
                              .arg(each.offset)
                              .arg(QString::fromStdWString(each.color.colorNameForDisplay()))
                              .arg(QString::fromStdWString(record->name()))
                              .toStdString());
        }
        return all;
    }

    // Runs `act` in the dialog over a style; with a new name over a copy of it.
    int modify(const wchar_t* name, std::function<void()> act, const wchar_t* newName = nullptr) {
        prepare(name, newName);
        return runDialog(*m_dialog, std::move(act));
    }
    void prepare(const wchar_t* name, const wchar_t* newName) {
        m_beeps = 0;
        m_dialog = std::make_unique<CMlstyleNewModDlg>(nullptr);
        m_dialog->m_dictionaryId = dictionaryId();
        m_dialog->m_mode =
            newName != nullptr ? CMlstyleNewModDlg::modeNew : CMlstyleNewModDlg::modeModify;
        m_dialog->m_styleName = name;
        m_dialog->m_newName = newName;
    }

    template <class W>
    [[nodiscard]] W& widget(const char* name) {
        return child<W>(*m_dialog, name);
    }
    void click(const char* button) {
        QTest::mouseClick(&widget<QAbstractButton>(button), Qt::LeftButton, {},
                          QPoint(8, widget<QAbstractButton>(button).height() / 2));
    }
    void type(const char* field, const QString& text) {
        auto& line = widget<QLineEdit>(field);
        QTest::mouseClick(&line, Qt::LeftButton);
        line.selectAll();
        QTest::keyClick(&line, Qt::Key_Delete);
        QTest::keyClicks(&line, text);
    }
    void leaveField() { widget<QLineEdit>("lEditDescription").setFocus(); }
    [[nodiscard]] QTableWidget& table() { return widget<QTableWidget>("listWidget"); }
    void clickRow(int row) {
        QTest::mouseClick(table().viewport(), Qt::LeftButton, {},
                          table().visualItemRect(table().item(row, 0)).center());
    }
    // By the keyboard, from the first entry on.
    void choose(const char* combo, const QString& text) {
        auto& box = widget<QComboBox>(combo);
        const int wanted = box.findText(text);
        ASSERT_GE(wanted, 0) << text.toStdString();
        while (box.currentIndex() != wanted) {
            QTest::keyClick(&box, box.currentIndex() < wanted ? Qt::Key_Down : Qt::Key_Up);
        }
    }
    [[nodiscard]] std::vector<std::string> rows() {
        std::vector<std::string> all;
        for (int row = 0; row < table().rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < table().columnCount(); ++column) {
                cells << table().item(row, column)->text();
            }
            all.push_back(cells.join(' ').toStdString());
        }
        return all;
    }
    [[nodiscard]] int selectedRow() {
        const auto selected = table().selectedItems();
        return selected.isEmpty() ? -1 : selected.front()->row();
    }
    int m_beeps = 0;
    std::unique_ptr<CMlstyleNewModDlg> m_dialog;

private:
    HINSTANCE m_library = loadResourceDll(L"OmxMLStyleRes.dll");
    HINSTANCE m_handleBefore = AfxGetResourceHandle();
    std::function<void()> m_beeperBefore;
};

TEST_F(ModifyDialog, showsAStyleRoundedAndOkWritesWhatItShows) {
    resbuf dropLeading;
    dropLeading.restype = kResultShort;
    dropLeading.resval.rint = 4; // neither of the rules that the dialog writes its numbers by
    kdedSetVar(L"DIMZIN", &dropLeading);
    const TextSize usual(kUsualTextSize); // at which everything has the size it was drawn with
    modify(L"wall", [this] {
        const QWidget& view = *m_dialog->GetSafeHwnd();
        EXPECT_EQ(view.windowTitle(), "Modify Multiline Style: wall");
        EXPECT_EQ(view.width(), 522);
        EXPECT_THAT(rows(),
                    ElementsAre("0.3 ByBlock 1", "0 Continuous 30", "-0.3 DASHED 0,128,255"));
        EXPECT_EQ(widget<QLineEdit>("lEditDescription").text(), "brick");
        EXPECT_EQ(widget<QLineEdit>("lineEditAngleStart").text(), "45.68");
        EXPECT_EQ(widget<QLineEdit>("lineEditAngleEnd").text(), "90.00");
        EXPECT_EQ(widget<QLineEdit>("lineEditOffset").text(), "0.000");
        EXPECT_EQ(widget<QComboBox>("cbBoxFillColor").currentText(), "255,128,0");
        for (const char* name : {"pBtnDelete", "lineEditOffset", "cbBoxLinetype", "cbBoxColor"}) {
            EXPECT_FALSE(widget<QWidget>(name).isEnabled()) << name;
        }
        QStringList headings;
        for (int column = 0; column < table().columnCount(); ++column) {
            headings << table().horizontalHeaderItem(column)->text();
            EXPECT_NEAR(table().columnWidth(column), table().viewport()->width() / 3.0, 2.0);
        }
        EXPECT_EQ(headings, QStringList({"Offset", "Linetype", "Color"}));
        EXPECT_EQ(table().rowHeight(0), 20);
        click("pBtnOK");
    });
    resbuf after;
    kdedGetVar(L"DIMZIN", &after);
    EXPECT_EQ(after.resval.rint, 4);
    const KdDbMlineStyle& wall = *style(L"Wall");
    EXPECT_THAT(elements(L"Wall"),
                ElementsAre("0.3 1 ByBlock", "0 30 Continuous", "-0.3 150 Continuous"));
    EXPECT_EQ(wall.fillColor().colorNameForDisplay(), L"30");
    EXPECT_DOUBLE_EQ(wall.startAngle(), 45.68 * kDegree);
    EXPECT_STREQ(wall.description(), L"brick");
    EXPECT_NE(setting(L"MlstyNewModDlgPosLeft"), -10000);
}

TEST_F(ModifyDialog, everyWayOutButOkTakesEverythingBack) {
    const auto before = style(L"Wall")->content();
    const auto press = [this](Qt::Key key) {
        QTest::keyClick(&widget<QLineEdit>("lEditDescription"), key);
    };
    const std::function<void()> waysOut[] = {
        [this] { click("pBtnCancel"); },
        [this] { m_dialog->GetSafeHwnd()->close(); },
        [press] { press(Qt::Key_Escape); },
        [press] { press(Qt::Key_Return); },
    };
    for (const auto& leave : waysOut) {
        const auto act = [this, &leave] {
            EXPECT_NE(style(L"Fence"), nullptr);
            EXPECT_EQ(m_dialog->GetSafeHwnd()->windowTitle(), "New Multiline Style: Fence");
            click("pBtnAdd");
            type("lEditDescription", "wood");
            leave();
        };
        const bool isLast = &leave == std::end(waysOut) - 1;
        EXPECT_EQ(modify(L"Wall", act, L"Fence"), isLast ? 1 : 2);
        EXPECT_EQ(setting(L"MlstyNewModDlgPosLeft") == -10000, !isLast);
        EXPECT_EQ(styleId(L"Fence").isNull(), !isLast);
        EXPECT_TRUE(style(L"Wall")->content()->equals(*before));
    }
    EXPECT_STREQ(style(L"Fence")->name(), L"Fence");
    EXPECT_STREQ(style(L"Fence")->description(), L"wood");
    EXPECT_EQ(elements(L"Fence").size(), 4U);
    modify(L"Wall", [this] {
        click("chkBoxLineStart");
        clickRow(0);
        click("pBtnDelete");
        type("lEditDescription", "other");
        click("pBtnCancel");
    });
    EXPECT_TRUE(style(L"Wall")->content()->equals(*before));
}

TEST_F(ModifyDialog, doesntStartWithoutItsStyle) {
    for (const wchar_t* newName : {static_cast<const wchar_t*>(nullptr), L"Fence"}) {
        prepare(L"nobody", newName);
        EXPECT_EQ(m_dialog->DoModal(), -1);
        prepare(L"Wall", newName);
        m_dialog->m_dictionaryId = KdDbObjectId();
        EXPECT_EQ(m_dialog->DoModal(), -1);
        EXPECT_TRUE(styleId(L"Fence").isNull());
    }
}

TEST_F(ModifyDialog, offsetsAreTakenAsTyped) {
    const struct {
        QString typed;
        const char* row;
        int beeps; // when the field is left
    } cases[] = {
        {"-7.5", "-7.5", 0}, {"-.", "-.", 0},  {"1e5", "1", 1},
        {"1.5.2", "1.5", 1}, {"+2", "0.3", 1}, {"", "0.3", 1},
    };
    for (const auto& each : cases) {
        modify(L"Wall", [this, &each] {
            clickRow(0);
            type("lineEditOffset", each.typed);
            EXPECT_EQ(table().item(0, 0)->text().toStdString(), each.row);
            EXPECT_EQ(m_beeps, 0);
            leaveField();
            EXPECT_EQ(m_beeps, each.beeps) << each.typed.toStdString();
            click("pBtnCancel");
        });
    }
    modify(L"Wall", [this] {
        clickRow(2);
        type("lineEditOffset", "0.125");
        EXPECT_EQ(rows()[2], "0.125 DASHED 0,128,255"); // in its place while it is typed
        leaveField();
        EXPECT_EQ(rows()[1], "0.125 DASHED 0,128,255");
        EXPECT_EQ(selectedRow(), 1);
        type("lineEditOffset", "0.125x");
        click("pBtnOK"); // a bad text is complained of and holds nothing up
        EXPECT_GT(m_beeps, 0);
    });
    EXPECT_EQ(elements(L"Wall")[1], "0.125 150 Continuous");
}

TEST_F(ModifyDialog, elementsComeAndGo) {
    modify(L"Wall", [this] {
        click("pBtnAdd");
        EXPECT_THAT(rows(), ElementsAre("0.3 ByBlock 1", "0 Continuous 30", "0 ByLayer ByLayer",
                                        "-0.3 DASHED 0,128,255"));
        EXPECT_EQ(selectedRow(), 2);
        EXPECT_EQ(widget<QLineEdit>("lineEditOffset").text(), "0");
        EXPECT_EQ(widget<QComboBox>("cbBoxLinetype").currentText(), "ByLayer");
        EXPECT_EQ(widget<QComboBox>("cbBoxColor").currentText(), "ByLayer");
        QTest::keyClick(&table(), Qt::Key_Up);
        QTest::keyClick(&table(), Qt::Key_Up);
        EXPECT_EQ(widget<QLineEdit>("lineEditOffset").text(), "0.3");
        for (int left = 3; left > 0; --left) {
            clickRow(0);
            click("pBtnDelete");
            EXPECT_EQ(table().rowCount(), left);
            EXPECT_EQ(selectedRow(), -1);
            for (const char* name : {"pBtnDelete", "lineEditOffset", "cbBoxLinetype"}) {
                EXPECT_FALSE(widget<QWidget>(name).isEnabled()) << name;
            }
        }
        clickRow(0); // the last one stays
        EXPECT_FALSE(widget<QWidget>("pBtnDelete").isEnabled());
        EXPECT_TRUE(widget<QWidget>("lineEditOffset").isEnabled());
        QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, QPoint(5, 100));
        EXPECT_FALSE(widget<QWidget>("lineEditOffset").isEnabled());
        EXPECT_EQ(widget<QLineEdit>("lineEditOffset").text(), "0.000");
        click("pBtnOK");
    });
    EXPECT_THAT(elements(L"Wall"), ElementsAre("-0.3 150 Continuous"));
}

TEST_F(ModifyDialog, colorsAndLinetypesAreChosen) {
    modify(L"Wall", [this] {
        clickRow(0);
        choose("cbBoxColor", "3");
        choose("cbBoxLinetype", "Continuous");
        clickRow(2);
        EXPECT_EQ(widget<QComboBox>("cbBoxLinetype").currentIndex(), -1); // DASHED isn't offered
        choose("cbBoxLinetype", "ByLayer");
        // A colour that isn't in the list is put there, and selected at the next click.
        EXPECT_EQ(widget<QComboBox>("cbBoxColor").currentText(), "3");
        clickRow(2);
        EXPECT_EQ(widget<QComboBox>("cbBoxColor").currentText(), "0,128,255");
        choose("cbBoxColor", "ByBlock");
        choose("cbBoxFillColor", "2");
        EXPECT_THAT(rows(),
                    ElementsAre("0.3 Continuous 3", "0 Continuous 30", "-0.3 ByLayer ByBlock"));
        click("pBtnOK");
    });
    EXPECT_THAT(elements(L"Wall"),
                ElementsAre("0.3 3 Continuous", "0 30 Continuous", "-0.3 ByBlock ByLayer"));
    EXPECT_EQ(style(L"Wall")->fillColor().colorIndex(), 2);
}

TEST_F(ModifyDialog, eachBoxSetsAndShowsItsOwnFlag) {
    const std::pair<const char*, int> boxes[] = {
        {"chkBoxOpen", mledit::kStyleFilled},
        {"chkBoxDisplayJoints", mledit::kStyleShowMiters},
        {"chkBoxLineStart", mledit::kStyleStartSquareCap},
        {"chkBoxLineEnd", mledit::kStyleEndSquareCap},
        {"chkBoxOuterArcStart", mledit::kStyleStartRoundCap},
        {"chkBoxOuterArcEnd", mledit::kStyleEndRoundCap},
        {"chkBoxInnerStart", mledit::kStyleStartInnerArcs},
        {"chkBoxInnerEnd", mledit::kStyleEndInnerArcs},
    };
    SetFlag(&open(L"Wall"), 0);
    const char* before = nullptr;
    for (const auto& [name, flag] : boxes) {
        modify(L"Wall", [&, box = name] {
            EXPECT_EQ(widget<QWidget>("cbBoxFillColor").isEnabled(),
                      widget<QCheckBox>("chkBoxOpen").isChecked());
            if (before != nullptr) {
                EXPECT_TRUE(widget<QCheckBox>(before).isChecked());
                click(before);
            }
            click(box);
            click("pBtnOK");
        });
        EXPECT_EQ(style(L"Wall")->values().flags, flag) << name;
        before = name;
    }
}

TEST_F(ModifyDialog, anAngleOutOfRangeHoldsOkUp) {
    const struct {
        const char* typed;
        int beeps;      // when the field is left
        int result;     // 2 where OK stays without effect
        double degrees; // afterwards
    } cases[] = {
        {"10", 0, 1, 10},   {"170", 0, 1, 170},   {"9.99", 1, 2, 100}, {"170.01", 1, 2, 100},
        {"-45", 1, 2, 100}, {"45abc", 1, 1, 100}, // 45 for the check, no angle for the style
    };
    for (const auto& each : cases) {
        open(L"Wall").setEndAngle(100.0 * kDegree);
        const int result = modify(L"Wall", [this, &each] {
            type("lineEditAngleEnd", each.typed);
            leaveField();
            EXPECT_EQ(m_beeps, each.beeps) << each.typed;
            click("pBtnOK");
            click("pBtnCancel");
        });
        EXPECT_EQ(result, each.result) << each.typed;
        EXPECT_DOUBLE_EQ(style(L"Wall")->endAngle() / kDegree, each.degrees) << each.typed;
    }
}

TEST_F(ModifyDialog, numbersOfColorsHaveNames) {
    prepare(L"Wall", nullptr);
    for (const auto& [number, word] :
         {std::pair{0, L"BYBLOCK"}, {256, L"BYLAYER"}, {1, L"Red"}, {7, L"White"}, {8, L"8"}}) {
        CStdStr<wchar_t> text;
        int back = 99;
        m_dialog->ColorToString(number, text);
        m_dialog->StringToColor(text, back);
        EXPECT_STREQ(text, word);
        EXPECT_EQ(back, number);
    }
}

TEST(RealText, isDigitsWithOnePointAndASign) {
    double value = 9.0;
    EXPECT_TRUE(gx_strIsValidReal(L" 1 2.5\t", true, true, &value));
    EXPECT_EQ(value, 12.5);
    EXPECT_FALSE(gx_strIsValidReal(L"-1", false, false, &value));
    EXPECT_EQ(value, 0.0);
    EXPECT_FALSE(gx_strIsValidReal(L"\u0663", true, false, &value));
    EXPECT_FALSE(gx_strIsValidReal(nullptr, true, false, nullptr));
    EXPECT_TRUE(gx_strIsValidReal((std::wstring(511, L'1') + L"x").c_str(), true, false, nullptr));
}

} // namespace
