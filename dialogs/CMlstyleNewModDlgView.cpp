#include "CMlstyleNewModDlgView.h"

#include "CMlstyleNewModDlg.h"
#include "controlNumbers.h"
#include "dialogWindow.h"
#include "kddbObjects.h"
#include "roomForText.h"
#include "ui_CMlstyleNewModDlg.h"

#include <QHeaderView>

using namespace mledit;

namespace VOUI {

namespace {

// Pictures of choices, pixels.
constexpr int kSwatchWidth = 20;
constexpr int kSampleWidth = 28;

} // namespace

CMlstyleNewModDlg::CMlstyleNewModDlg(QWidget* parent, CWnd* logic)
    : QBaseDialog(parent), m_layout(std::make_unique<Ui_CMlstyleNewModDlg>()) {
    m_layout->setupUi(this);
    const QString byLayer = QString::fromWCharArray(kddbGetReservedString(0, true));
    makeRoomForChoice(*m_layout->cbBoxFillColor, byLayer, kSwatchWidth);
    makeRoomForChoice(*m_layout->cbBoxColor, byLayer, kSwatchWidth);
    makeRoomForChoice(*m_layout->cbBoxLinetype, byLayer, kSampleWidth);
    makeRoomForText(*this);
    connectWidgets();
    if (auto* const dialog = dynamic_cast<::CMlstyleNewModDlg*>(logic)) {
        dialog->SetHandle(this);
        dialog->SetAutoDelete(true, true);
        registerWidgets(*dialog);
    }
}

CMlstyleNewModDlg::~CMlstyleNewModDlg() = default;

void CMlstyleNewModDlg::prepareShown() {
    // The scroll bar of a long table comes last. The last column takes what is left of the width,
    // but never less than its own.
    QHeaderView& headings = *m_layout->listWidget->horizontalHeader();
    headings.setStretchLastSection(true);
    headings.resizeSection(headings.count() - 1, headings.minimumSectionSize());
    // Wider samples of line types would leave no room for a name.
    m_layout->cbBoxLinetype->setIconSize(QSize(kSampleWidth, 12));
    m_layout->lEditDescription->home(false); // a long one is read from its beginning
}

void CMlstyleNewModDlg::connectWidgets() {
    using View = CMlstyleNewModDlg;
    const Ui_CMlstyleNewModDlg& ui = *m_layout;
    connect(this, &QBaseDialog::shown, this, &View::prepareShown);
    connect(ui.chkBoxOpen, &QCheckBox::clicked, this, &View::OnOpenCloseFill);
    connect(ui.listWidget, &QTableWidget::itemClicked, this, &View::OnClickList);
    connect(ui.pBtnAdd, &QPushButton::clicked, this, &View::OnAddElement);
    connect(ui.pBtnDelete, &QPushButton::clicked, this, &View::OnDelElement);
    connect(ui.lineEditOffset, &QLineEdit::editingFinished, this, &View::OnOffsetKillfocus);
    connect(ui.lineEditOffset, &QLineEdit::textEdited, this, &View::OnEnterOffset);
    connect(ui.lineEditAngleStart, &QLineEdit::editingFinished, this, &View::OnAngKillfocus);
    connect(ui.lineEditAngleEnd, &QLineEdit::editingFinished, this, &View::OnAngKillfocus);
    connect(ui.cbBoxColor, &MRUComboBox::selChanged, this, &View::OnselchgElecol);
    connect(ui.cbBoxFillColor, &MRUComboBox::selChanged, this, &View::OnselchgFillcol);
    connect(ui.cbBoxLinetype, &MRUComboBox::selChanged, this, &View::OnLtypeSelChange);
    connect(ui.pBtnOK, &QPushButton::clicked, this, &View::OnOK);
    connect(ui.pBtnCancel, &QPushButton::clicked, this, &View::OnCancel);
}

void CMlstyleNewModDlg::registerWidgets(::CMlstyleNewModDlg& logic) {
    const Ui_CMlstyleNewModDlg& ui = *m_layout;
    struct Item {
        int number;
        QWidget* widget;
    };
    const Item items[] = {
        {kAcceptButton, ui.pBtnOK},
        {kCancelButton, ui.pBtnCancel},
        {kDescriptionField, ui.lEditDescription},
        {kStartLineBox, ui.chkBoxLineStart},
        {kEndLineBox, ui.chkBoxLineEnd},
        {kStartOuterArcBox, ui.chkBoxOuterArcStart},
        {kStartInnerArcsBox, ui.chkBoxInnerStart},
        {kEndOuterArcBox, ui.chkBoxOuterArcEnd},
        {kEndInnerArcsBox, ui.chkBoxInnerEnd},
        {kStartAngleField, ui.lineEditAngleStart},
        {kEndAngleField, ui.lineEditAngleEnd},
        {kElementList, ui.listWidget},
        {kJointsBox, ui.chkBoxDisplayJoints},
        {kFillColorCombo, ui.cbBoxFillColor},
        {kElementColorCombo, ui.cbBoxColor},
        {kOffsetField, ui.lineEditOffset},
        {kAddButton, ui.pBtnAdd},
        {kDeleteButton, ui.pBtnDelete},
        {kFillBox, ui.chkBoxOpen},
        {kLinetypeCombo, ui.cbBoxLinetype},
    };
    for (const Item& item : items) {
        logic.SetDlgItem(item.number, item.widget);
    }
}

void CMlstyleNewModDlg::notify(void (::CMlstyleNewModDlg::*handler)()) {
    if (auto* const logic = logicOf<::CMlstyleNewModDlg>(this)) {
        (logic->*handler)();
    }
}

void CMlstyleNewModDlg::OnOK() {
    notify(&::CMlstyleNewModDlg::OnOK);
}

void CMlstyleNewModDlg::OnCancel() {
    notify(&::CMlstyleNewModDlg::OnCancel);
}

void CMlstyleNewModDlg::OnClickList() {
    if (auto* const logic = logicOf<::CMlstyleNewModDlg>(this)) {
        tagNMHDR header;
        long result = 0;
        logic->OnClickList(&header, &result);
    }
}

void CMlstyleNewModDlg::OnOpenCloseFill() {
    notify(&::CMlstyleNewModDlg::OnOpenCloseFill);
}

void CMlstyleNewModDlg::OnAddElement() {
    notify(&::CMlstyleNewModDlg::OnAddElement);
}

void CMlstyleNewModDlg::OnDelElement() {
    notify(&::CMlstyleNewModDlg::OnDelElement);
}

void CMlstyleNewModDlg::OnOffsetKillfocus() {
    notify(&::CMlstyleNewModDlg::OnOffsetKillfocus);
}

void CMlstyleNewModDlg::OnEnterOffset() {
    notify(&::CMlstyleNewModDlg::OnEnterOffset);
}

void CMlstyleNewModDlg::OnAngKillfocus() {
    notify(&::CMlstyleNewModDlg::OnAngKillfocus);
}

void CMlstyleNewModDlg::OnselchgElecol() {
    notify(&::CMlstyleNewModDlg::OnselchgElecol);
}

void CMlstyleNewModDlg::OnselchgFillcol() {
    notify(&::CMlstyleNewModDlg::OnselchgFillcol);
}

void CMlstyleNewModDlg::OnLtypeSelChange() {
    notify(&::CMlstyleNewModDlg::OnLtypeSelChange);
}

} // namespace VOUI
