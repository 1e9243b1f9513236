#pragma once

#include "CBitmapButton.h"
#include "CDialog.h"
#include "Tool.h"

#include <array>

// The tool palette of MLEDIT. A click on a tool keeps its number and ends the dialog; the tool runs
// when the palette has gone.
class CMLEditDialog : public CDialog {
public:
    explicit CMLEditDialog(CWnd* parent);

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
    void OnClose(); // ends the dialog like a tool does

    void OnPaint(); // the view paints itself

    void DoDataExchange(CDataExchange* exchange) override;
    int OnInitDialog() override;

private:
    void choose(mledit::Tool tool);

    std::array<CBitmapButton, mledit::kToolCount> m_tools;
    CButton m_close;

public:
    int m_toolNumber = 0; // 1 to 12, 13 for Close, 0 for no button
};
