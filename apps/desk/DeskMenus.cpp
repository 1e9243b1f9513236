#include "DeskMenus.h"

#include "deskIcons.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include <map>

namespace orvex {

namespace {

QString shown(const char* text) {
    return QCoreApplication::translate("deskActions", text);
}

// The menus of the bar; the one of the tools stands inside another.
std::map<DeskMenu, QMenu*> makeMenus(QMenuBar& bar) {
    constexpr std::pair<DeskMenu, const char*> kTitles[] = {
        {DeskMenu::file, QT_TRANSLATE_NOOP("deskActions", "&File")},
        {DeskMenu::edit, QT_TRANSLATE_NOOP("deskActions", "&Edit")},
        {DeskMenu::view, QT_TRANSLATE_NOOP("deskActions", "&View")},
        {DeskMenu::draw, QT_TRANSLATE_NOOP("deskActions", "&Draw")},
        {DeskMenu::modify, QT_TRANSLATE_NOOP("deskActions", "&Modify")},
        {DeskMenu::help, QT_TRANSLATE_NOOP("deskActions", "&Help")},
    };
    std::map<DeskMenu, QMenu*> menus;
    for (const auto& [menu, title] : kTitles) {
        menus[menu] = bar.addMenu(shown(title));
    }
    return menus;
}

QAction* makeAction(QMainWindow& window, const DeskActionRow& row) {
    auto* const action = new QAction(shown(row.text), &window);
    action->setObjectName(QLatin1String(row.name));
    action->setStatusTip(shown(row.hint));
    action->setIcon(deskIcon(action->objectName(), window.palette()));
    QList<QKeySequence> keys;
    if (*row.shortcut != '\0') {
        keys << QKeySequence(QLatin1String(row.shortcut));
    }
    if (action->objectName() == QLatin1String("zoomIn")) {
        keys << QKeySequence(QStringLiteral("Ctrl+=")); // the same key without Shift
    }
    action->setShortcuts(keys);
    const QString key = action->shortcut().toString(QKeySequence::NativeText);
    action->setToolTip(shown(row.hint) + (key.isEmpty() ? QString() : " (" + key + ')'));
    return action;
}

} // namespace

DeskMenus::DeskMenus(QMainWindow& window, const Starter& start) {
    std::map<DeskMenu, QMenu*> menus = makeMenus(*window.menuBar());
    view = menus[DeskMenu::view];
    tools = window.addToolBar(shown(QT_TRANSLATE_NOOP("deskActions", "Tools")));
    tools->setObjectName(QStringLiteral("toolBar"));
    tools->setIconSize({24, 24});
    const DeskActionRow* last = nullptr;
    for (const DeskActionRow& row : deskActions()) {
        QMenu& menu = *menus[row.menu];
        if (row.text == nullptr) {
            menu.addSeparator();
            continue;
        }
        QAction* const action = makeAction(window, row);
        menu.addAction(action);
        if (row.name == std::string_view("recent")) {
            recent = new QMenu(&window);
            action->setMenu(recent);
        } else if (row.name == std::string_view("tools")) {
            menus[DeskMenu::tools] = new QMenu(&window);
            action->setMenu(menus[DeskMenu::tools]);
        } else {
            QObject::connect(action, &QAction::triggered, &window, [&row, start] { start(row); });
        }
        if (row.isInToolBar) {
            if (last != nullptr && last->menu != row.menu) {
                tools->addSeparator();
            }
            last = &row;
            tools->addAction(action);
        }
    }
}

} // namespace orvex
