#pragma once

#include "QBaseDialog.h"

#include <memory>

class CMlineStyleDialog;
class CWnd;
class Ui_CMlineStyleDialog;

namespace VOUI {

// The widgets of the style manager; its slots call the logic's functions of their names.
class CMlineStyleDialog : public QBaseDialog {
    Q_OBJECT

public:
    // `logic` is to be a ::CMlineStyleDialog, which then deletes the view.
    CMlineStyleDialog(QWidget* parent, CWnd* logic);
    ~CMlineStyleDialog() override;

public slots:
    void OnOK() override;

private slots:
    void OnListDbClick();
    void OnListSelChange();
    void OnSetCurStyle();
    void OnAddStyle();
    void OnModifyStyle();
    void OnRenameStyle();
    void OnDeleteStyle();
    void OnLoadStyle();
    void OnSaveStyle();
    void on_pBtnClose_clicked(); // cancels: everything is done already

private:
    void connectWidgets();
    void registerWidgets(::CMlineStyleDialog& logic);
    void notify(void (::CMlineStyleDialog::*handler)());

    std::unique_ptr<Ui_CMlineStyleDialog> m_layout;
};

} // namespace VOUI
