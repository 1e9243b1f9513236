#pragma once

#include "QBaseDialog.h"

#include <memory>

class CMlstyleNewModDlg;
class CWnd;
class Ui_CMlstyleNewModDlg;

namespace VOUI {

// The widgets of the modify dialog.
class CMlstyleNewModDlg : public QBaseDialog {
    Q_OBJECT

public:
    // `logic` is to be a ::CMlstyleNewModDlg, which then deletes the view.
    CMlstyleNewModDlg(QWidget* parent, CWnd* logic);
    ~CMlstyleNewModDlg() override;

public slots:
    // Both ask the logic: every way out of the dialog ends in one of them.
    void OnOK() override;
    void OnCancel() override;

private slots:
    void OnOpenCloseFill();
    void OnClickList();
    void OnAddElement();
    void OnDelElement();
    void OnOffsetKillfocus();
    void OnEnterOffset();
    void OnAngKillfocus();
    void OnselchgElecol();
    void OnselchgFillcol();
    void OnLtypeSelChange();

private:
    void connectWidgets();
    void prepareShown();
    void registerWidgets(::CMlstyleNewModDlg& logic);
    void notify(void (::CMlstyleNewModDlg::*handler)());

    std::unique_ptr<Ui_CMlstyleNewModDlg> m_layout;
};

} // namespace VOUI
