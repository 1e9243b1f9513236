#pragma once

#include "QBaseDialog.h"

#include <memory>

class CMLEditDialog;
class CWnd;
class Ui_MleditDialog;

namespace VOUI {

// The widgets of the tool palette; each slot calls the logic's function of its name.
class CMLEditDialog : public QBaseDialog {
    Q_OBJECT

public:
    // `logic` is to be a ::CMLEditDialog, which then deletes the view; with any other the view
    // stays untied.
    CMLEditDialog(QWidget* parent, CWnd* logic);
    ~CMLEditDialog() override;

private slots:
    void OnClosedCross();
    void OnOpenCross();
    void OnMergedCross();
    void OnClosedTee();
    void OnOpenTee();
    void OnMergedTee();
    void OnCornerJoint();
    void OnAddVertex();
    void OnDeleteVertex();
    void OnCutSingle();
    void OnCutAll();
    void OnWeldAll();
    void OnClose();

private:
    void widenColumns();
    void connectButtons();
    void registerButtons(::CMLEditDialog& logic);
    void notify(void (::CMLEditDialog::*handler)());

    std::unique_ptr<Ui_MleditDialog> m_layout;
};

} // namespace VOUI
