#include "LanguageDesk.h"

#include "DeskSettings.h"
#include "deskLanguage.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>

namespace orvex {

LanguageDesk::LanguageDesk(QMenu& menu, DeskSettings& settings)
    : QObject(&menu), m_settings(settings) {
    auto* const choices = menu.addMenu(tr("Lan&guage"));
    choices->setObjectName(QStringLiteral("language"));
    auto* const group = new QActionGroup(this);
    const auto add = [&](const QString& text, const QString& code) {
        QAction* const action = choices->addAction(text);
        action->setObjectName(QStringLiteral("language") + code);
        action->setCheckable(true);
        action->setChecked(settings.text(DeskSettings::kLanguage) == code);
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, code] { choose(code); });
    };
    add(tr("As the &System"), QString());
    for (const DeskLanguage& language : deskLanguages()) {
        add(QString::fromUtf8(language.name), QLatin1String(language.code));
    }
}

void LanguageDesk::choose(const QString& code) {
    m_settings.setText(DeskSettings::kLanguage, code);
    emit printed(tr("The language changes when the program is started again."));
}

} // namespace orvex
