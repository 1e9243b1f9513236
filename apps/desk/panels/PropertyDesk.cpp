#include "PropertyDesk.h"

#include "PropertyPanel.h"
#include "SelectDesk.h"
#include "Session.h"
#include "drawingNames.h"
#include "panelScroll.h"

#include <QAction>
#include <QDockWidget>
#include <QMainWindow>

namespace orvex {

PropertyDesk::PropertyDesk(QMainWindow& window, SelectDesk& select)
    : QObject(&window), m_select(select), m_dock(new QDockWidget(tr("Properties"), &window)),
      m_panel(new PropertyPanel(m_dock)) {
    m_dock->setObjectName(QStringLiteral("propertyDock"));
    m_dock->setWidget(panelScroll(m_panel));
    window.addDockWidget(Qt::RightDockWidgetArea, m_dock);
    m_dock->hide();
    toggleAction()->setObjectName(QStringLiteral("properties"));
    toggleAction()->setShortcut(QKeySequence(QStringLiteral("Ctrl+1")));
    connect(&select, &SelectDesk::chosenChanged, this, &PropertyDesk::show);
    connect(m_dock, &QDockWidget::visibilityChanged, this, [this](bool isVisible) {
        if (isVisible) { // it also disappears with the window, after the session
            show();
        }
    });
    connect(toggleAction(), &QAction::triggered, this, [this](bool isOpened) {
        if (isOpened) {
            m_panel->setFocus(Qt::ShortcutFocusReason);
        } else {
            emit left();
        }
    });
    connect(m_panel, &PropertyPanel::left, this, &PropertyDesk::left);
    connect(m_panel, &PropertyPanel::edited, this, [this](const QStringList& answers) {
        m_select.startKeeping(QStringLiteral("MLCHANGE"), answers + QStringList{QString()});
    });
}

void PropertyDesk::setSession(Session& session) {
    m_session = &session;
    show();
}

QAction* PropertyDesk::toggleAction() const {
    return m_dock->toggleViewAction();
}

// A hidden panel costs nothing.
void PropertyDesk::show() {
    if (m_session != nullptr && !m_dock->isHidden()) {
        m_panel->showFacts(factsOf(m_select.chosen()), styleNames(m_session->database()),
                           layerNames(m_session->database()));
    }
}

} // namespace orvex
