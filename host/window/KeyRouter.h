#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <memory>

class QKeyEvent;

namespace orvex {

struct WindowState;

// While it lives, shows a dialog's logic each key press inside the view before Qt acts on it.
// Releases and automatic repeats aren't shown: the key that opened a dialog must not close it.
class KeyRouter : public QObject {
public:
    explicit KeyRouter(std::weak_ptr<WindowState> dialog);
    ~KeyRouter() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // A key that a widget ignores comes again for its parents.
    bool isNew(const QKeyEvent& event, const QWidget& receiver);

    std::weak_ptr<WindowState> m_dialog;
    const QKeyEvent* m_lastEvent = nullptr; // compared, never used
    QPointer<const QWidget> m_lastReceiver;
};

} // namespace orvex
