#pragma once

#include <QSignalBlocker>

class QObject;

namespace orvex {

// As long as it lives, what happens is the program's act and not the user's: the widget sends no
// signals, and changes of a selection count as nobody's click. Scopes nest.
class SilentScope {
public:
    explicit SilentScope(QObject* widget);
    ~SilentScope();
    SilentScope(const SilentScope&) = delete;
    SilentScope& operator=(const SilentScope&) = delete;

    [[nodiscard]] static bool isActive();

private:
    QSignalBlocker m_blocker;
};

} // namespace orvex
