#pragma once

#include "CDialog.h"
#include "CListBox.h"
#include "KdDbObjectId.h"

// Lists the styles of a library file and brings the chosen one into the drawing; a style of its
// name is overwritten unless a multiline uses it. The caller sets m_dictionaryId and reads
// m_chosenName after DoModal.
//
// The file shown and a refusal are sent to controls that the view doesn't have, so neither is seen.
class CMlStyleLoadDlg : public CDialog {
public:
    explicit CMlStyleLoadDlg(CWnd* parent);

    // Lists a library and makes it the one shown. One that can't be opened changes nothing.
    void SetListStyleName(wchar_t* path);
    // Makes or finds the style of the chosen name in the dictionary, then ModifyStyle with its
    // result.
    bool AddStyleToDrw();
    // Gives the style m_styleId what the library shown has under the chosen name. The style stays
    // open for writing when its block isn't found or stops short: false. Nobody asks.
    bool ModifyStyle();

    void OnLoadFileStyle();
    void OnSelectChanged();
    void OnDbClick();

    void DoDataExchange(CDataExchange* exchange) override;
    int OnInitDialog() override;
    void OnOK() override;
    bool PreTranslateMessage(tagMSG* message) override; // Enter and the blank cancel

    KdDbObjectId m_styleId; // the style that was made or found

private:
    CListBox m_list;

public:
    CStdStr<wchar_t> m_chosenName;
    CStdStr<wchar_t> m_file; // the library shown
    KdDbObjectId m_dictionaryId;
};
