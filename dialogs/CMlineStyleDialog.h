#pragma once

#include "CDialog.h"
#include "CDlgItemResizer.h"
#include "CListBox.h"
#include "CStatic.h"
#include "KdDbObjectId.h"

#include <cstdint>
#include <memory>

class KdDbMlineStyle;

// The style manager: lists the styles of the open drawing and makes, changes, renames, deletes,
// loads and saves them. Each of its functions acts on the drawing at once, so there is nothing to
// accept; the list is kept in step by hand.
//
// What may be done with a style is checked by enabling its buttons alone: the functions that they
// call rely on that.
class CMlineStyleDialog : public CDialog {
public:
    explicit CMlineStyleDialog(CWnd* parent);

    // Hands the selected style, open for reading, to PaintPreview.
    void DrawCurStylePreview();
    // Called with each style that is to be seen. The preview stays blank.
    void PaintPreview(KdDbMlineStyle* style);

    void AddStylesToList();
    // Makes a style the current one. Where the drawing refuses it nothing changes.
    void SetCurStyle(CStdStr<wchar_t> name);
    // Whether a line of a library is this text, ignoring case; no part of it will do.
    [[nodiscard]] static bool IsContainStr(const CStdStr<wchar_t>& line, const wchar_t* text);

    void DoDataExchange(CDataExchange* exchange) override;
    int OnInitDialog() override; // refuses without an open drawing
    void OnOK() override;

    // What the view's signals come to.
    void OnListSelChange(); // also after every change that is made here
    void OnListDbClick();
    void OnSetCurStyle();
    void OnAddStyle();
    void OnModifyStyle();
    void OnRenameStyle();
    void OnDeleteStyle();
    void OnLoadStyle();
    void OnSaveStyle();

    // Without a route from the view: layouts move the items and the view paints itself.
    void OnSize(unsigned type, int width, int height);
    void OnSizing(unsigned edge, tagRECT* rectangle);
    void OnPaint();

private:
    [[nodiscard]] CStdStr<wchar_t> selectedName() const; // empty where nothing is selected
    void readCurrentStyle();
    void registerItems();
    void showDescription(const CStdStr<wchar_t>& name);
    void appendAndSelect(const CStdStr<wchar_t>& name);

    CStatic m_preview;
    CListBox m_list;
    CDlgItemResizer m_resizer;
    CStdStr<wchar_t> m_currentStyle; // as the label shows it, which CMLSTYLE need not hold
    long m_dictionaryName[2] = {0, 0};
    KdDbObjectId m_dictionaryId; // null where the drawing has no dictionary of styles
    // The interface fixes the two. Nothing sets them; what the first points to goes with the
    // dialog.
    std::unique_ptr<CDialog> m_owned;
    [[maybe_unused]] std::uint64_t m_ownedWord = 0;
};
