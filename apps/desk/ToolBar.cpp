#include "ToolBar.h"

#include "editTools.h"
#include "strokeIcon.h"

#include <QAction>
#include <QMenu>
#include <QToolBar>

namespace orvex {

ToolBar::ToolBar(QMainWindow& window, const std::function<void(const DeskAct&)>& start)
    : bar(new QToolBar(QObject::tr("Multiline tools"), &window)), menu(new QMenu(&window)) {
    bar->setObjectName(QStringLiteral("toolsBar"));
    bar->setIconSize({24, 24});
    // At the side, where it takes no height from the drawing.
    window.addToolBar(Qt::LeftToolBarArea, bar);
    for (const EditTool& tool : editTools()) {
        if (tool.startsGroup) {
            menu->addSeparator();
            bar->addSeparator();
        }
        auto* const action =
            new QAction(strokeIcon(tool.picture, window.palette()), toolMenuText(tool), &window);
        action->setObjectName(QStringLiteral("tool") + QLatin1String(tool.keyword));
        action->setStatusTip(toolHelp(tool));
        action->setToolTip(QObject::tr("%1 (%2): %3")
                               .arg(toolName(tool), QLatin1String(tool.keyword), toolHelp(tool)));
        menu->addAction(action);
        bar->addAction(action);
        QObject::connect(action, &QAction::triggered, &window, [start, keyword = tool.keyword] {
            start(TypedCommand{"-MLEDIT", keyword});
        });
    }
}

} // namespace orvex
