#pragma once

#include "CBitmapButton.h"
#include "CDialog.h"

#include <array>

// The tool palette of MLEDIT. A click on a tool keeps its number and ends the dialog; the tool runs
// when the palette has gone.
class CMLEditDialog : public CDialog {
public:
    explicit CMLEditDialog(CWnd* parent);

    static constexpr int kToolCount = 12;
    static constexpr int kCloseNumber = 13;
    // The controls by tool number less one, then Close. Deleting a vertex came before adding one
    // when the numbers were given.
    static constexpr std::array<int, kCloseNumber> kControls{
        5759, 5760, 5761, 5762, 5763, 5764, 5765, 5767, 5766, 5768, 5769, 5770, 5771};

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

    void OnPaint(); // nobody calls it: the view paints itself

    void DoDataExchange(CDataExchange* exchange) override;
    int OnInitDialog() override;

private:
    void choose(int number);

    std::array<CBitmapButton, kToolCount> m_tools;
    CButton m_close;

public:
    int m_toolNumber = 0; // 1 to 12, 13 for Close, 0 for no button
};
