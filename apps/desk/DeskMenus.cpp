#include "DeskMenus.h"

#include "strokeIcon.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include <map>

namespace orvex {

namespace {

constexpr const char* kToolBarTitle = QT_TRANSLATE_NOOP("orvex", "Tools");

QString shown(const char* text) {
    return QCoreApplication::translate("orvex", text);
}

std::map<DeskMenu, QMenu*> makeMenus(QMenuBar& bar) {
    constexpr std::pair<DeskMenu, const char*> kTitles[] = {
        {DeskMenu::file, QT_TRANSLATE_NOOP("orvex", "&File")},
        {DeskMenu::edit, QT_TRANSLATE_NOOP("orvex", "&Edit")},
        {DeskMenu::view, QT_TRANSLATE_NOOP("orvex", "&View")},
        {DeskMenu::draw, QT_TRANSLATE_NOOP("orvex", "&Draw")},
        {DeskMenu::modify, QT_TRANSLATE_NOOP("orvex", "&Modify")},
        {DeskMenu::help, QT_TRANSLATE_NOOP("orvex", "&Help")},
    };
    std::map<DeskMenu, QMenu*> menus;
    for (const auto& [menu, title] : kTitles) {
        menus[menu] = bar.addMenu(shown(title));
    }
    return menus;
}

QAction* addAction(QMainWindow& window, QMenu& menu, const QString& name, const QString& text,
                   const QString& help) {
    auto* const action = new QAction(text, &window);
    action->setObjectName(name);
    action->setStatusTip(help);
    action->setToolTip(help);
    menu.addAction(action);
    return action;
}

void onTriggered(QMainWindow& window, QAction& action, const DeskMenus::Starter& start,
                 const DeskAct& act) {
    QObject::connect(&action, &QAction::triggered, &window, [act, start] { start(act); });
}

QAction* makeAction(QMainWindow& window, QMenu& menu, const DeskAction& row) {
    QAction* const action =
        addAction(window, menu, QLatin1String(row.name), shown(row.text), shown(row.help));
    if (*row.picture != '\0') {
        action->setIcon(strokeIcon(row.picture, window.palette()));
    }
    action->setShortcuts(QKeySequence::listFromString(QLatin1String(row.shortcuts)));
    const QString key = action->shortcut().toString(QKeySequence::NativeText);
    if (!key.isEmpty()) {
        action->setToolTip(shown(row.help) + " (" + key + ')');
    }
    return action;
}

} // namespace

DeskMenus::DeskMenus(QMainWindow& window, const Starter& start)
    : recent(new QMenu(&window)), styles(new QMenu(&window)), layers(new QMenu(&window)),
      tools(window.addToolBar(shown(kToolBarTitle))), editTools(window, start) {
    std::map<DeskMenu, QMenu*> menus = makeMenus(*window.menuBar());
    view = menus[DeskMenu::view];
    tools->setObjectName(QStringLiteral("toolBar"));
    tools->setIconSize({24, 24});
    const DeskAction* last = nullptr; // in the tool bar
    for (const DeskAction& row : deskActions()) {
        QMenu& menu = *menus[row.menu];
        if (row.startsGroup) {
            menu.addSeparator();
        }
        QAction* const action = makeAction(window, menu, row);
        if (const auto* const submenu = std::get_if<Submenu>(&row.act)) {
            action->setMenu(*submenu == Submenu::recent   ? recent
                            : *submenu == Submenu::styles ? styles
                            : *submenu == Submenu::layers ? layers
                                                          : editTools.menu);
        } else {
            onTriggered(window, *action, start, row.act);
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
