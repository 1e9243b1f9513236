#include "RecentFiles.h"

#include <QDir>
#include <QFileInfo>

namespace orvex {

namespace {

constexpr const wchar_t* kKey = L"RecentFiles";
constexpr char kSeparator = '\n';

QString menuText(int number, const QString& path) {
    const QFileInfo file(path);
    QString text =
        QObject::tr("%1  (%2)").arg(file.fileName(), QDir::toNativeSeparators(file.path()));
    text.replace('&', QLatin1String("&&"));
    return QStringLiteral("&%1  ").arg(number) + text;
}

} // namespace

RecentFiles::RecentFiles(QMenu& menu, DeskSettings& settings)
    : m_menu(menu), m_settings(settings),
      m_paths(settings.text(kKey).split(kSeparator, Qt::SkipEmptyParts).mid(0, kMost)) {
    fillMenu();
}

void RecentFiles::add(const QString& path) {
    const QString full = QFileInfo(path).absoluteFilePath();
    // The list is kept by lines.
    if (full.contains(kSeparator)) {
        return;
    }
    m_paths.removeAll(full);
    m_paths.prepend(full);
    m_paths = m_paths.mid(0, kMost);
    store();
}

void RecentFiles::remove(const QString& path) {
    m_paths.removeAll(QFileInfo(path).absoluteFilePath());
    store();
}

void RecentFiles::store() {
    m_settings.setText(kKey, m_paths.join(kSeparator));
    fillMenu();
}

void RecentFiles::fillMenu() {
    m_menu.clear();
    for (int i = 0; i < m_paths.size(); ++i) {
        const QString path = m_paths[i];
        connect(m_menu.addAction(menuText(i + 1, path)), &QAction::triggered, this,
                [this, path] { emit chosen(path); });
    }
    m_menu.setEnabled(!m_paths.isEmpty());
}

} // namespace orvex
