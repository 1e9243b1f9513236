#include "deskLanguage.h"

#include "DeskSettings.h"
#include "userLanguage.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <algorithm>
#include <array>
#include <clocale>

namespace orvex {

namespace {

constexpr std::array kLanguages{DeskLanguage{"en", "English"}, DeskLanguage{"de", "Deutsch"}};

bool isThere(const QString& code) {
    return std::ranges::any_of(kLanguages, [&code](const DeskLanguage& language) {
        return code == QLatin1String(language.code);
    });
}

} // namespace

std::span<const DeskLanguage> deskLanguages() {
    return kLanguages;
}

QString languageFor(const QString& setting, const QStringList& usersLanguages) {
    if (isThere(setting)) {
        return setting;
    }
    for (const QString& each : usersLanguages) {
        QString code = each.section('-', 0, 0).section('_', 0, 0);
        if (isThere(code)) {
            return code;
        }
    }
    return QLatin1String(kLanguages.front().code);
}

void startLanguage(const DeskSettings& settings) {
    QLocale::setDefault(QLocale::c());
    const QString code =
        languageFor(settings.text(DeskSettings::kLanguage), QLocale::system().uiLanguages());
    if (code == QLatin1String(kLanguages.front().code)) {
        std::setlocale(LC_MESSAGES, "C"); // what the system tells of failures
        return;
    }
    setUserLanguage(code.toStdString());
    // The buttons of Qt's own dialogs; English ones where the system has no translation of them.
    auto* const qts = new QTranslator(QCoreApplication::instance());
    if (qts->load(QStringLiteral("qtbase_") + code,
                  QLibraryInfo::location(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(qts);
    }
}

} // namespace orvex
