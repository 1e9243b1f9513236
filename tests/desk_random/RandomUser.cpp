#include "RandomUser.h"

#include "Canvas.h"
#include "DeskPrompts.h"
#include "KdDbStub.h"
#include "MainWindow.h"
#include "commandNames.h"
#include "handleText.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDockWidget>
#include <QFileDialog>
#include <QLineEdit>
#include <QStatusBar>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <QWheelEvent>

#include <algorithm>
#include <map>

namespace orvex::testing {

namespace {

// Leave the drawing, or ask for files.
const QStringList kLeftAlone{"new",    "open",       "exit",   "saveAs",    "recover",
                             "export", "playScript", "recent", "undoMemory"};

template <class Item, class Test>
void eraseIf(QList<Item>& list, const Test& test) {
    list.erase(std::remove_if(list.begin(), list.end(), test), list.end());
}

QString placeText(const QPoint& at) {
    return QString("%1,%2").arg(at.x()).arg(at.y());
}

QString nameOf(const QObject& object) {
    return object.objectName().isEmpty() ? object.metaObject()->className() : object.objectName();
}

// What stands in it for the user, by the mouse or by keys.
QList<QWidget*> usable(const QWidget& parent) {
    QList<QWidget*> widgets = parent.findChildren<QWidget*>();
    eraseIf(widgets, [](const QWidget* widget) {
        const bool isPanelButton = qobject_cast<const QAbstractButton*>(widget) != nullptr;
        return !widget->isVisible() || !widget->isEnabled() ||
               (widget->focusPolicy() == Qt::NoFocus && !isPanelButton);
    });
    return widgets;
}

QString press(QWidget& widget, const QString& keys) {
    const int key = QKeySequence(keys)[0];
    const int held = key & static_cast<int>(Qt::KeyboardModifierMask);
    QTest::keyClick(&widget, static_cast<Qt::Key>(key - held), Qt::KeyboardModifiers(held));
    return keys + " in " + nameOf(widget);
}

void sendMove(QWidget& widget, const QPoint& at, Qt::MouseButtons buttons,
              Qt::KeyboardModifiers modifiers) {
    QMouseEvent move(QEvent::MouseMove, at, widget.mapToGlobal(at), Qt::NoButton, buttons,
                     modifiers);
    QCoreApplication::sendEvent(&widget, &move);
}

} // namespace

RandomUser::RandomUser(MainWindow& window, std::uint64_t seed, bool changesStyles)
    : m_window(window), m_canvas(*window.findChild<Canvas*>()), m_chance(seed),
      m_changesStyles(changesStyles) {}

QString RandomUser::act() {
    if (QWidget* const popup = QApplication::activePopupWidget()) {
        return inPopup(*popup);
    }
    if (QWidget* const dialog = QApplication::activeModalWidget()) {
        return inDialog(*dialog);
    }
    // Commands are mostly seen through to their end, or nothing would ever be done.
    if (request() != nullptr && !m_chance.oneIn(3)) {
        return m_chance.oneIn(2) ? click() : typeAnswer();
    }
    using Act = QString (RandomUser::*)();
    static const std::map<int, Act> kUpTo{
        // out of 100 events
        {24, &RandomUser::click},       {30, &RandomUser::moveMouse},
        {36, &RandomUser::drag},        {44, &RandomUser::turnWheel},
        {58, &RandomUser::pressKey},    {64, &RandomUser::triggerAction},
        {76, &RandomUser::typeCommand}, {94, &RandomUser::typeAnswer},
        {99, &RandomUser::workPanel},   {100, &RandomUser::pasteLines},
    };
    return (this->*kUpTo.upper_bound(m_chance.below(100))->second)();
}

void RandomUser::escape() {
    QWidget* const popup = QApplication::activePopupWidget();
    QWidget* const dialog = QApplication::activeModalWidget();
    QWidget& target = popup != nullptr ? *popup : dialog != nullptr ? *dialog : m_canvas;
    press(target, "Esc");
}

// ---- menus, lists that fold out, dialogs --------------------------------------------------------

QString RandomUser::inPopup(QWidget& popup) {
    return press(popup, word("Down|Down|Up|Return|Esc"));
}

QString RandomUser::inDialog(QWidget& dialog) {
    const QString name = "dialog " + dialog.windowTitle() + ": ";
    QList<QWidget*> widgets = usable(dialog);
    if (qobject_cast<QFileDialog*>(&dialog) != nullptr || m_chance.oneIn(6)) {
        return name + press(dialog, "Esc");
    }
    return name + (widgets.isEmpty() ? press(dialog, "Return") : onWidget(*m_chance.of(widgets)));
}

QString RandomUser::onWidget(QWidget& widget) {
    const QString name = nameOf(widget);
    if (qobject_cast<QLineEdit*>(&widget) != nullptr ||
        qobject_cast<QAbstractSpinBox*>(&widget) != nullptr) {
        QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
        const QString text = word("0|1|-2.5|90|1e9|STANDARD|wall|x y|");
        QTest::keyClicks(&widget, text);
        QTest::keyClick(&widget, m_chance.oneIn(2) ? Qt::Key_Return : Qt::Key_Tab);
        return name + " takes '" + text + "'";
    }
    const QPoint at(m_chance.below(widget.width()), m_chance.below(widget.height()));
    const auto* const list = qobject_cast<QAbstractItemView*>(&widget);
    QWidget& target = list != nullptr ? *list->viewport() : widget;
    if (list != nullptr && m_chance.oneIn(4)) {
        QTest::mouseDClick(&target, Qt::LeftButton, {}, at);
        return name + " double click at " + placeText(at);
    }
    QTest::mouseClick(&target, Qt::LeftButton, {}, at);
    return name + " click at " + placeText(at);
}

QString RandomUser::workPanel() {
    QList<QWidget*> all = usable(*m_window.statusBar());
    for (const QToolBar* const bar : m_window.findChildren<QToolBar*>()) {
        all += usable(*bar);
    }
    for (const QDockWidget* const dock : m_window.findChildren<QDockWidget*>()) {
        all += usable(*dock);
    }
    eraseIf(all, [this](const QWidget* widget) {
        const auto* const button = qobject_cast<const QToolButton*>(widget);
        const QAction* const action = button != nullptr ? button->defaultAction() : nullptr;
        return (action != nullptr && kLeftAlone.contains(action->objectName())) ||
               (button != nullptr && button->menu() != nullptr && m_chance.oneIn(2)) ||
               widget->objectName() == "styleButton";
    });
    return all.isEmpty() ? QString("no panel") : onWidget(*m_chance.of(all));
}

// ---- mouse ------------------------------------------------------------------------------------

// A pixel of the canvas, mostly one where something lies.
QPoint RandomUser::place() {
    Session& session = *m_window.session();
    const QPoint any(m_chance.below(m_canvas.width()), m_chance.below(m_canvas.height()));
    std::vector<KdDbStub*> entities = session.scene().allSeen();
    if (entities.empty() || m_chance.oneIn(4)) {
        return any;
    }
    const Appearance& look = session.scene().appearance(*m_chance.of(entities));
    if (look.strokes.empty() || look.strokes.front().points.empty()) {
        return any;
    }
    const auto& points = m_chance.of(look.strokes).points;
    if (points.empty()) {
        return any;
    }
    const auto i = static_cast<std::size_t>(m_chance.below(static_cast<int>(points.size())));
    const PlanPoint& from = points[i];
    const PlanPoint& to = points[(i + 1) % points.size()];
    const double part = m_chance.oneIn(2) ? 0.0 : m_chance.between(0.0, 1.0);
    const PlanPoint pixel =
        session.view().toPixels({from.x + (to.x - from.x) * part, from.y + (to.y - from.y) * part});
    const bool isInside = pixel.x >= 0.0 && pixel.y >= 0.0 && pixel.x < m_canvas.width() &&
                          pixel.y < m_canvas.height();
    return isInside ? QPoint(static_cast<int>(pixel.x) + m_chance.below(5) - 2,
                             static_cast<int>(pixel.y) + m_chance.below(5) - 2)
                    : any;
}

Qt::KeyboardModifiers RandomUser::modifiers() {
    return m_chance.oneIn(6)   ? Qt::ShiftModifier
           : m_chance.oneIn(8) ? Qt::ControlModifier
                               : Qt::NoModifier;
}

QString RandomUser::click() {
    const QPoint at = place();
    const auto held = modifiers();
    const auto button = m_chance.oneIn(10) ? Qt::RightButton : Qt::LeftButton;
    sendMove(m_canvas, at, Qt::NoButton, held);
    if (m_chance.oneIn(20)) {
        QTest::mouseDClick(&m_canvas, m_chance.oneIn(2) ? Qt::MiddleButton : button, held, at);
        return "double click at " + placeText(at);
    }
    QTest::mouseClick(&m_canvas, button, held, at);
    return QString("click %1 at %2 with %3").arg(button).arg(placeText(at)).arg(held);
}

QString RandomUser::moveMouse() {
    const QPoint at = place();
    sendMove(m_canvas, at, Qt::NoButton, modifiers());
    return "move to " + placeText(at);
}

QString RandomUser::drag() {
    const QPoint from = place();
    const QPoint to =
        m_chance.oneIn(4) ? from + QPoint(m_chance.below(9) - 4, m_chance.below(9) - 4) : place();
    const auto button = m_chance.oneIn(4) ? Qt::MiddleButton : Qt::LeftButton;
    const auto held = modifiers();
    QTest::mousePress(&m_canvas, button, held, from);
    sendMove(m_canvas, (from + to) / 2, button, held);
    sendMove(m_canvas, to, button, held);
    if (!m_chance.oneIn(30)) { // else the button is let go elsewhere
        QTest::mouseRelease(&m_canvas, button, held, to);
    }
    return QString("drag %1 from %2 to %3").arg(button).arg(placeText(from), placeText(to));
}

QString RandomUser::turnWheel() {
    const QPoint at = place();
    const int turn = 120 * (m_chance.below(7) - 3);
    QWheelEvent wheel(at, m_canvas.mapToGlobal(at), {}, {0, turn}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&m_canvas, &wheel);
    return QString("wheel %1 at %2").arg(turn).arg(placeText(at));
}

// ---- keys and lines -----------------------------------------------------------------------------

QString RandomUser::pressKey() {
    QWidget* const focus = QApplication::focusWidget();
    return press(m_chance.oneIn(3) || focus == nullptr ? m_canvas : *focus,
                 word("Return|Return|Space|Esc|Esc|Tab|F3|F6|F8|F10|Left|Shift+Right|Ctrl+Up|"
                      "Down|Del|Backspace|Ctrl+Z|Ctrl+Z|Ctrl+Z|Ctrl+Y|Ctrl+Y|Ctrl+A|Ctrl+0|"
                      "Ctrl+W|Ctrl+Backspace|Ctrl++|Ctrl+-|Ctrl+1|Ctrl+S|@|7|,"));
}

QString RandomUser::triggerAction() {
    QList<QAction*> actions = m_window.findChildren<QAction*>();
    eraseIf(actions, [this](const QAction* action) {
        return !action->isEnabled() || action->objectName().isEmpty() ||
               kLeftAlone.contains(action->objectName()) || action->menu() != nullptr ||
               (!m_changesStyles && action->objectName().startsWith("mlstyle"));
    });
    QAction& action = *m_chance.of(actions);
    action.trigger();
    return "action " + action.objectName();
}

QString RandomUser::typeCommand() {
    if (request() != nullptr && !m_chance.oneIn(12)) {
        return typeAnswer();
    }
    if (m_window.session()->scene().extents().isEmpty()) {
        return enter("MLINE");
    }
    if (m_chance.oneIn(2)) {
        return enter(word("-MLEDIT|-MLEDIT|-MLEDIT|MLINE|MLINE|MLINE|MLEDIT|U|MLCHANGE"));
    }
    QStringList names = commandNames();
    if (!m_changesStyles) {
        names.removeAll("MLSTYLE");
        names.removeAll("MLSTYLEINUSE");
    }
    return enter(m_chance.of(names));
}

QString RandomUser::typeAnswer() {
    return request() == nullptr && !m_chance.oneIn(4) ? typeCommand() : enter(answer());
}

QString RandomUser::enter(const QString& line) {
    auto& input = *m_window.findChild<QLineEdit*>("commandInput");
    input.setText(line);
    QTest::keyClick(&input, Qt::Key_Return);
    return "line '" + line + "'";
}

QString RandomUser::word(const char* words) {
    QStringList all = QString::fromLatin1(words).split('|');
    return m_chance.of(all);
}

const PromptRequest* RandomUser::request() const {
    const auto* const prompts = dynamic_cast<const DeskPrompts*>(m_window.session()->source());
    return prompts != nullptr ? prompts->request() : nullptr;
}

// Mostly one that fits the question.
QString RandomUser::answer() {
    const PromptRequest* const asked = request();
    if (asked == nullptr) {
        return word("||REDO|U|'U|NONSENSE|;");
    }
    const int others = asked->kind == PromptKind::keyword ? 6 : 3;
    if (!asked->keywords.empty() &&
        (m_chance.oneIn(others) == (asked->kind != PromptKind::keyword))) {
        return QString::fromStdWString(m_chance.of(asked->keywords));
    }
    if (m_chance.oneIn(12)) {
        return word("'ZOOM|'U|'REDO|U|@|1,2,3,4|#FFFF|END|NON|INT|<45|x|*CANCEL*");
    }
    switch (asked->kind) {
    case PromptKind::selection:
        return m_chance.oneIn(3) ? QString() : m_chance.oneIn(2) ? '#' + handle() : point();
    case PromptKind::entity:
        return m_chance.oneIn(8)   ? QString()
               : m_chance.oneIn(3) ? point() + " #" + handle()
                                   : point();
    case PromptKind::point:
        return m_chance.oneIn(6) ? QString() : point();
    case PromptKind::real:
        return m_chance.oneIn(6) ? QString() : number();
    default:
        break;
    }
    if (!asked->completions.empty() && !m_chance.oneIn(3)) {
        return QString::fromStdWString(m_chance.of(asked->completions));
    }
    return word("|0|1|STANDARD|CMLSCALE|PICKBOX|VIEWSIZE|CMLJUST|5|20|?|ALL|nowhere");
}

QString RandomUser::point() {
    const PlanPoint at = m_window.session()->view().toPlan(
        {m_chance.between(0.0, m_canvas.width()), m_chance.between(0.0, m_canvas.height())});
    const QPoint near = place();
    const PlanPoint on = m_window.session()->view().toPlan({double(near.x()), double(near.y())});
    switch (m_chance.below(6)) {
    case 0:
        return QString("%1,%2").arg(at.x, 0, 'f', 1).arg(at.y, 0, 'f', 1);
    case 1:
        return QString("@%1,%2").arg(m_chance.below(4000) - 2000).arg(m_chance.below(400));
    case 2:
        return QString("@%1<%2").arg(m_chance.below(3000)).arg(m_chance.below(24) * 15);
    case 3:
        return m_chance.oneIn(3) ? number() : QString("@0,%1").arg(m_chance.below(900));
    default:
        return QString("%1,%2").arg(on.x, 0, 'f', 3).arg(on.y, 0, 'f', 3);
    }
}

QString RandomUser::number() {
    return word("0|1|2|10|45|90|240|0.5|-1|-30|1e-3|1000000|7.25");
}

QString RandomUser::handle() {
    std::vector<KdDbStub*> entities = m_window.session()->scene().allSeen();
    return entities.empty() ? QString("1F")
                            : QString::fromStdString(handleText(m_chance.of(entities)->handle));
}

QString RandomUser::pasteLines() {
    QStringList lines{word("-MLEDIT|MLINE|MOVE|ERASE|SETVAR")};
    for (int i = m_chance.below(5); i >= 0; --i) {
        lines << (m_chance.oneIn(3) ? word("OT|CC|ALL|PICKBOX|;a comment|5") : point());
    }
    QApplication::clipboard()->setText(lines.join('\n'));
    auto& input = *m_window.findChild<QLineEdit*>("commandInput");
    QTest::keyClick(&input, Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(&input, Qt::Key_Return);
    return "pasted '" + lines.join("' '") + "'";
}

} // namespace orvex::testing
