#pragma once

#include "CDialog.h"
#include "dialogRun.h"

#include <functional>

namespace orvex::testing {

// A logic whose steps a test fills in. Its view is a plain QDialog.
class Logic : public CDialog {
public:
    explicit Logic(CWnd* parent = nullptr) : CDialog(1, parent), m_view(new QDialog) {
        m_view->resize(300, 200);
        SetHandle(m_view);
        SetAutoDelete(true, true);
    }

    [[nodiscard]] QDialog& view() { return *m_view; }

    // Makes a widget in the view under that number.
    template <class Widget>
    Widget& add(int number) {
        auto* const widget = new Widget(m_view);
        SetDlgItem(number, widget);
        return *widget;
    }

    void DoDataExchange(CDataExchange* exchange) override {
        if (onExchange) {
            onExchange(exchange);
        }
    }
    int OnInitDialog() override {
        CDialog::OnInitDialog();
        return onInit ? onInit() : 1;
    }
    bool PreTranslateMessage(tagMSG* message) override { return onKey && onKey(*message); }
    bool OnCommand(unsigned long wParam, long /*lParam*/) override {
        commands.push_back(wParam);
        if (onCommand) {
            onCommand();
        }
        return false;
    }

    // Runs the dialog, with `act` as soon as its window is active.
    template <class Act>
    int runWith(Act act) {
        whenActive(*m_view, std::move(act));
        return DoModal();
    }

    std::function<int()> onInit;
    std::function<void(CDataExchange*)> onExchange;
    std::function<bool(tagMSG&)> onKey;
    std::function<void()> onCommand;
    std::vector<unsigned long> commands;

private:
    QDialog* m_view;
};

inline std::wstring textOf(const CWnd& window) {
    CStdStr<wchar_t> text;
    window.GetWindowTextW(text);
    return text.text();
}

} // namespace orvex::testing
