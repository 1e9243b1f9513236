#include "CDialog.h"

#include "KeyRouter.h"
#include "WindowState.h"

#include <QDialog>
#include <QPushButton>

using orvex::WindowState;

namespace {

constexpr int kAccepted = 1;
constexpr int kCancelled = 2;
constexpr int kRefused = -1;

// From DoModal's beginning to its end; afterwards the view is nobody's.
class Run {
public:
    explicit Run(const std::shared_ptr<WindowState>& state) : m_state(state) {
        state->running = true;
        state->ended = false;
        state->result = kCancelled;
        state->tied = true;
    }
    ~Run() {
        m_state->running = false;
        m_state->tied = false;
    }
    Run(const Run&) = delete;
    Run& operator=(const Run&) = delete;

private:
    std::shared_ptr<WindowState> m_state;
};

} // namespace

CDialog::CDialog(unsigned resource, CWnd* parent) : m_resource(resource) {
    if (parent != nullptr) {
        WindowState::of(*this)->parent = WindowState::of(*parent);
    }
}

CDialog::~CDialog() = default;

int CDialog::OnInitDialog() {
    UpdateData(false);
    return 1;
}

void CDialog::OnOK() {
    endLoop(kAccepted);
}

void CDialog::OnCancel() {
    endLoop(kCancelled);
}

int CDialog::DoModal() {
    const auto state = WindowState::of(*this);
    auto* const view = qobject_cast<QDialog*>(GetSafeHwnd());
    if (view == nullptr || state->running) {
        return kRefused;
    }
    const Run run(state);
    // The default button is one and the same all the time; QBaseDialog says what Enter presses.
    for (auto* const button : view->findChildren<QPushButton*>()) {
        button->setAutoDefault(false);
    }
    orvex::activateLayouts(*view);
    if (OnInitDialog() == 0) {
        return kRefused;
    }
    if (!state->ended && state->window != nullptr) {
        const orvex::KeyRouter router(state);
        view->exec();
    }
    return state->result;
}

void CDialog::endLoop(int result) {
    const auto state = WindowState::of(*this);
    if (!state->running || state->ended) {
        return;
    }
    state->ended = true;
    state->result = result;
    // Before the view is hidden: a field that loses the focus by it reaches nobody.
    state->tied = false;
    if (auto* const view = qobject_cast<QDialog*>(GetSafeHwnd())) {
        // Not the view's own: that may be what called us.
        view->QDialog::done(result == kAccepted ? QDialog::Accepted : QDialog::Rejected);
    }
}
