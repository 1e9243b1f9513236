#pragma once

#include <QObject>

class QMenu;

namespace orvex {

class DeskSettings;

// The language of the window, as the user last chose: the system's, or one of those there are. A
// choice takes effect at the next start, and says so.
class LanguageDesk final : public QObject {
    Q_OBJECT

public:
    // Adds its menu to the one given. Both outlive it.
    LanguageDesk(QMenu& menu, DeskSettings& settings);

signals:
    void printed(const QString& line);

private:
    void choose(const QString& code);

    DeskSettings& m_settings;
};

} // namespace orvex
