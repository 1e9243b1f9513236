#pragma once

#include "CWnd.h"

// The logic of a modal dialog. Its view, a QDialog, is tied to it by SetHandle in the view's
// constructor.
class CDialog : public CWnd {
public:
    // The resource number is an identity and nothing else.
    explicit CDialog(unsigned resource, CWnd* parent = nullptr);
    ~CDialog() override;

    // After the members went to the controls: 0 refuses to start.
    virtual int OnInitDialog();
    // End the loop. They call no virtual function of the view.
    virtual void OnOK();
    virtual void OnCancel();

    // OnInitDialog with the view's layouts computed, then the view's loop. 1 when OnOK of this
    // class ended it, whatever the view says; 2 for any other end; -1 without a view, when
    // OnInitDialog refuses (nothing is shown then) and while it runs already.
    int DoModal();

    [[nodiscard]] unsigned resourceNumber() const { return m_resource; }

private:
    void endLoop(int result);

    unsigned m_resource;
};
