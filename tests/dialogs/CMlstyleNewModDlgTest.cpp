#include "CMlstyleNewModDlg.h"

#include "DrawingChoices.h"
#include "KdDbLinetypeTable.h"
#include "MRUComboBox.h"
#include "ObjectContent.h"
#include "StyleWorld.h"
#include "dialogRun.h"
#include "messageBeep.h"
#include "resourceLibrary.h"
#include "styleRecord.h"
#include "systemVariables.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>

#include <gmock/gmock.h>

#include <cmath>
#include <functional>

using orvex::testing::child;
using orvex::testing::runDialog;
using orvex::testing::StyleWorld;
using testing::ElementsAre;

namespace {

constexpr double kDegree = 3.141592653589793 / 180.0;

// A drawing with one line type of its own.
class Choices : public orvex::DrawingChoices {
public:
    Choices() : m_before(orvex::setDrawingChoices(this)) {}
    ~Choices() override { orvex::setDrawingChoices(m_before); }
    Choices(const Choices&) = delete;
    Choices& operator=(const Choices&) = delete;

    [[nodiscard]] std::vector<orvex::LineTypeChoice> lineTypes() const override {
        return {{L"Continuous", {}}, {L"DASHED", {0.5, -0.25}}};
    }

private:
    orvex::DrawingChoices* m_before;
};

KdCmColor indexed(std::uint16_t index) {
    KdCmColor colour;
    colour.setColorIndex(index);
    return colour;
}

KdCmColor trueColour(std::uint32_t rgb) {
    KdCmColor colour;
    colour.setColor(0xC2000000U | rgb);
    return colour;
}

class ModifyDialog : public StyleWorld {
protected:
    ModifyDialog() : m_beeperBefore(orvex::setBeeper([this] { ++m_beeps; })) {
        AfxSetResourceHandle(m_library);
        addStyle(L"Wall", L"brick");
        KdDbMlineStyle& wall = open(L"Wall");
        wall.setFilled(true);
        wall.setFillColor(trueColour(0xFF8000));
        wall.setStartAngle(45.678 * kDegree);
        while (wall.numElements() > 0) {
            wall.removeElementAt(0);
        }
        add(wall, -0.25, trueColour(0x0080FF), L"DASHED");
        add(wall, 0.25, indexed(1), L"ByBlock");
        add(wall, 0.0, indexed(30), L"Continuous");
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

    static void add(KdDbMlineStyle& style, double offset, const KdCmColor& colour,
                    const std::wstring& lineType) {
        int index = style.numElements();
        style.addElement(index, offset, colour, KdDbObjectId(), true);
        std::vector<std::wstring> names(static_cast<std::size_t>(index) + 1, lineType);
        std::vector<wchar_t*> pointers(names.size(), nullptr);
        pointers.back() = names.back().data();
        SetElemLtype(&style, pointers.data(), 1, curDoc()->database());
    }

    // "offset colour line type" of each element.
    [[nodiscard]] std::vector<std::string> elements(const wchar_t* name) const {
        std::vector<std::string> all;
        const KdDbMlineStyle& found = *style(name);
        for (int i = 0; i < found.numElements(); ++i) {
            double offset = 0.0;
            KdCmColor colour;
            KdDbObjectId id;
            found.getElementAt(i, offset, colour, id);
            KdDbLinetypeTableRecord* record = nullptr;
            kddbOpenObject(record, id, kForRead);
            all.push_back(QString("%1 %2 %3")
                              .arg(offset)
                              .arg(QString::fromStdWString(colour.colorNameForDisplay()))
                              .arg(QString::fromStdWString(record->name()))
                              .toStdString());
        }
        return all;
    }

    // Runs `act` in the dialog over a style.
    int modify(const wchar_t* name, std::function<void()> act) {
        prepare();
        m_dialog->m_mode = CMlstyleNewModDlg::modeModify;
        m_dialog->m_styleName = name;
        return runDialog(*m_dialog, std::move(act));
    }
    // Over a new style that starts as a copy.
    int make(const wchar_t* newName, const wchar_t* source, std::function<void()> act) {
        prepare();
        m_dialog->m_mode = CMlstyleNewModDlg::modeNew;
        m_dialog->m_styleName = source;
        m_dialog->m_newName = newName;
        return runDialog(*m_dialog, std::move(act));
    }
    void prepare() {
        m_beeps = 0;
        m_dialog = std::make_unique<CMlstyleNewModDlg>(nullptr);
        m_dialog->m_dictionaryId = dictionaryId();
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
    static int zeroRule() {
        resbuf value;
        kdedGetVar(L"DIMZIN", &value);
        return value.resval.rint;
    }

    Choices m_choices;
    int m_beeps = 0;
    std::unique_ptr<CMlstyleNewModDlg> m_dialog;

private:
    HINSTANCE m_library = loadResourceDll(L"OmxMLStyleRes.dll");
    HINSTANCE m_handleBefore = AfxGetResourceHandle();
    std::function<void()> m_beeperBefore;
};

TEST_F(ModifyDialog, showsAStyleWithItsOffsetsRounded) {
    const int zeros = zeroRule();
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
        click("pBtnCancel");
    });
    EXPECT_EQ(zeroRule(), zeros);
}

} // namespace
