#pragma once

#include <QDialog>

// The base of modal dialogs. With a null parent it still stays above the window that was active
// when it opened.
class QBaseDialog : public QDialog {
    Q_OBJECT

public:
    explicit QBaseDialog(QWidget* parent = nullptr);

    // Called on Enter, when there is an enabled default button and no other button has the focus,
    // which Enter would press. Here: clicks that button, so a
    // dialog is never accepted past a disabled one.
    virtual void OnOK();
    // Called by Escape, the window's close control and reject(). Here: ends the loop at once, with
    // the result Rejected.
    virtual void OnCancel();

    void reject() override;

    // Before it is shown: where the screen has too little room, what is in it scrolls.
    void setVisible(bool visible) override;

signals:
    void shown(); // each time, once it is placed

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void enter();
    void place(QWidget& below, bool isPlaced);
};
