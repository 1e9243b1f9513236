#pragma once

#include "QBaseDialog.h"

#include <memory>

class CWnd;
class Ui_CMlstyleNewDlg;

namespace VOUI {

// The widgets of the new style dialog.
class CMlstyleNewDlg : public QBaseDialog {
    Q_OBJECT

public:
    // `logic` is to be a ::CMlstyleNewDlg, which then deletes the view.
    CMlstyleNewDlg(QWidget* parent, CWnd* logic);
    ~CMlstyleNewDlg() override;

private slots:
    void OnEnterName();
    void on_pBtnCancel_clicked();   // doesn't ask the logic
    void on_pBtnContinue_clicked(); // the logic's OnOK

private:
    void widenCaptions();
    std::unique_ptr<Ui_CMlstyleNewDlg> m_layout;
};

} // namespace VOUI
