#pragma once

#include "CDialog.h"
#include "CEdit.h"
#include "CKdUiLineTypeComboBox.h"
#include "CKdUiTrueColorComboBox.h"
#include "CSortListCtrl.h"
#include "KdDbObjectId.h"
#include "elementRows.h"

#include <list>
#include <memory>

class KdDbMlineStyle;

// Edits one multiline style: description, caps with their angles, fill, joints and elements. In
// mode New it makes the style itself, as a copy of another, when it starts, and takes it out again
// when it is cancelled; otherwise the drawing changes on OK alone.
//
// The caller sets m_dictionaryId, m_styleName, m_mode and in mode New m_newName before DoModal,
// which gives -1 where there is no such style or it can't be made.
class CMlstyleNewModDlg : public CDialog {
public:
    enum Mode : int { modeNew = 0, modeModify = 1 };

    explicit CMlstyleNewModDlg(CWnd* parent);
    ~CMlstyleNewModDlg() override;

    void DoDataExchange(CDataExchange* exchange) override;
    // A click on a check box that the preview shows.
    bool OnCommand(unsigned long wParam, long lParam) override;
    int OnInitDialog() override;
    // Stays open while an angle is out of range; a bad offset doesn't hold it up.
    void OnOK() override;
    void OnCancel() override;

    void SetcurentStyle(CStdStr<wchar_t> name);
    void InitialDialog();
    int OnCreate(tagCREATESTRUCTW* created); // the caption; always 0
    void SetElementData(KdDbMlineStyle* style);
    void SetAnger(KdDbMlineStyle* style); // the two angles
    void ModifyStyle();
    void GetFlag70();
    [[nodiscard]] bool ValidateAng(CStdStr<wchar_t> text);
    void SetControlState(bool on);
    void ColorToString(int color, CStdStr<wchar_t>& text);
    void StringToColor(CStdStr<wchar_t> text, int& color);
    void DDV_RealOffset(CDataExchange* exchange, CEdit& field);
    void DDV_RealAng(CDataExchange* exchange, CEdit& field);
    void OnDestroy(); // nothing is connected to it

    // What the view's signals come to.
    void OnOpenCloseFill();
    void OnClickList(tagNMHDR* header = nullptr, long* result = nullptr); // both ignored
    void OnAddElement();
    void OnDelElement();
    void OnOffsetKillfocus();
    void OnEnterOffset();
    void OnAngKillfocus();
    void OnselchgElecol();
    void OnselchgFillcol();
    void OnLtypeSelChange();

private:
    void fillElementList(const KdDbMlineStyle& style);
    bool makeNewStyle();
    bool copyToScratch();
    void removeNewStyle();
    [[nodiscard]] KdCmColor chosenFillColor(const KdCmColor& before) const;
    void showInPreview();
    void showElementsInPreview();
    [[nodiscard]] int selectedRow() const; // the first one; -1 for none
    [[nodiscard]] KdCmColor* colorOf(int row) const;
    void setColorOf(int row, const KdCmColor& color);
    void forgetColorOf(int row);
    [[nodiscard]] std::vector<mledit::ElementRow> rows() const;

    KdDbObjectId m_styleId;                         // what OK writes to
    std::unique_ptr<KdDbMlineStyle> m_scratchStyle; // in no database, for the preview

public:
    KdDbObjectId m_dictionaryId;

private:
    CKdUiTrueColorComboBox m_fillColor;
    CKdUiTrueColorComboBox m_elementColor;
    CSortListCtrl m_elements; // each row's value is its KdCmColor
    CKdUiLineTypeComboBox m_linetype;

public:
    CStdStr<wchar_t> m_newName;
    CStdStr<wchar_t> m_styleName; // the style itself, or the one to copy

private:
    CStdStr<wchar_t> m_description;
    CStdStr<wchar_t> m_captionPrefix;
    CEdit m_offsetEdit;
    CEdit m_startAngleEdit;
    CEdit m_endAngleEdit;
    int m_flagWord = 0;
    double m_startAngle = 0.0; // radians, as read
    CStdStr<wchar_t> m_startAngleText;
    double m_endAngle = 0.0;
    CStdStr<wchar_t> m_endAngleText;

public:
    int m_mode = modeNew;

private:
    std::list<KdCmColor> m_rowColors; // of the rows; they point at them
};
