#pragma once

#include "QBaseDialog.h"

#include <memory>

class CMlStyleLoadDlg;
class CWnd;
class Ui_CMlStyleLoadDlg;

namespace VOUI {

// The widgets of the load dialog; its slots call the logic's functions of their names.
class CMlStyleLoadDlg : public QBaseDialog {
    Q_OBJECT

public:
    // `logic` is to be a ::CMlStyleLoadDlg, which then deletes the view.
    CMlStyleLoadDlg(QWidget* parent, CWnd* logic);
    ~CMlStyleLoadDlg() override;

public slots:
    void OnOK() override;
    void OnCancel() override; // doesn't ask the logic

private slots:
    void OnLoadFileStyle();
    void OnDbClick();
    void OnSelectChanged();

private:
    void notify(void (::CMlStyleLoadDlg::*handler)());

    std::unique_ptr<Ui_CMlStyleLoadDlg> m_layout;
};

} // namespace VOUI
