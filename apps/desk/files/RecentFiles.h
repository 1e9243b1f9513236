#pragma once

#include "DeskSettings.h"

#include <QMenu>

namespace orvex {

// The drawings opened or saved last, kept between runs, as a menu.
class RecentFiles final : public QObject {
    Q_OBJECT

public:
    static constexpr int kMost = 9;

    // Fills `menu`, which outlives this.
    RecentFiles(QMenu& menu, DeskSettings& settings);

    void add(const QString& path);
    void remove(const QString& path);
    [[nodiscard]] const QStringList& paths() const { return m_paths; } // the latest first

signals:
    void chosen(const QString& path);

private:
    void store();
    void fillMenu();

    QMenu& m_menu;
    DeskSettings& m_settings;
    QStringList m_paths;
};

} // namespace orvex
