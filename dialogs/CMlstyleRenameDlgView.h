#pragma once

#include "QBaseDialog.h"

#include <memory>

class CWnd;
class Ui_CMlstyleRenameDlg;

namespace VOUI {

// The widgets of the rename dialog.
class CMlstyleRenameDlg : public QBaseDialog {
    Q_OBJECT

public:
    // `logic` is to be a ::CMlstyleRenameDlg, which then deletes the view.
    CMlstyleRenameDlg(QWidget* parent, CWnd* logic);
    ~CMlstyleRenameDlg() override;

public slots:
    void OnOK() override; // the logic's

private slots:
    void OnCancle(); // doesn't ask the logic
    void OnEnterName();

private:
    std::unique_ptr<Ui_CMlstyleRenameDlg> m_layout;
};

} // namespace VOUI
