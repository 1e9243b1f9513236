#include "CommandInput.h"

#include "PastedLines.h"
#include "keyText.h"
#include "qtWide.h"
#include "typedAnswer.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QStringListModel>

namespace orvex {

namespace {

constexpr int kMostCharacters = 1 << 20; // of a script that is pasted

} // namespace

CommandInput::CommandInput(QWidget* parent)
    : QLineEdit(parent), m_completer(new QCompleter(this)), m_words(new QStringListModel(this)) {
    setFrame(false);
    m_completer->setModel(m_words);
    m_completer->setCaseSensitivity(Qt::CaseInsensitive);
    m_completer->setCompletionMode(QCompleter::PopupCompletion);
    setCompleter(m_completer);
    setMaxLength(kMostCharacters);
    connect(this, &QLineEdit::textChanged, this, &CommandInput::takePasted);
}

void CommandInput::setCompletions(const QStringList& words) {
    hideList();
    m_words->setStringList(words);
}

bool CommandInput::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* const key = static_cast<const QKeyEvent*>(event);
        // In an empty field these belong to the window: they undo commands, not letters, erase
        // what is selected, and export pictures rather than go to the end of nothing.
        if (text().isEmpty() &&
            (((key->modifiers() & Qt::ControlModifier) != 0 && !typesText(*key)) ||
             key->key() == Qt::Key_Delete)) {
            event->ignore();
            return true;
        }
    }
    // Before Qt moves the focus by it.
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Tab) {
        complete();
        return true;
    }
    return QLineEdit::event(event);
}

bool CommandInput::isEnter(const QKeyEvent& event) const {
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return true;
    case Qt::Key_Space:
        return lineCount() == 1 && (m_blank == BlankKey::enters ||
                                    (m_blank == BlankKey::entersUnlessXy && !text().contains(',')));
    default:
        return false;
    }
}

void CommandInput::keyPressEvent(QKeyEvent* event) {
    if ((event->modifiers() & Qt::AltModifier) != 0 && !typesText(*event)) {
        return; // it was meant for a menu
    }
    if (isEnter(*event)) {
        enter();
        return;
    }
    if (isKeypadComma(*event) && !m_takesPoints) {
        insert(QStringLiteral("."));
        return;
    }
    if (steer(*event)) {
        return;
    }
    const bool isListOpen = m_completer->popup()->isVisible();
    switch (event->key()) {
    case Qt::Key_Escape:
        hideList();
        clear();
        emit cancelled();
        break;
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (!isListOpen) { // else it moves in there
            setText(event->key() == Qt::Key_Up ? m_history.earlier(text())
                                               : m_history.later(text()));
        }
        break;
    default:
        QLineEdit::keyPressEvent(event);
        break;
    }
    // What nobody wants ends here: the window sends all such keys to this field.
    event->accept();
}

QString CommandInput::chosenOrTyped() const {
    const QAbstractItemView* const list = m_completer->popup();
    if (list->isVisible() && list->currentIndex().isValid()) {
        return list->currentIndex().data().toString();
    }
    return text();
}

// However it came here, by keys, from a menu or by the mouse.
void CommandInput::takePasted() {
    if (text().contains('\n') || text().contains('\r')) {
        const QString line = onOneLine(text());
        selectAll();
        insert(line); // can be taken back, as typing can
    }
}

int CommandInput::lineCount() const {
    return linesIn(text()).size();
}

void CommandInput::enter() {
    if (const QStringList lines = linesIn(text()); lines.size() != 1) {
        hideList();
        clear();
        for (const QString& line : lines) {
            m_history.add(line);
        }
        emit linesEntered(lines);
        return;
    }
    const QString line = chosenOrTyped().trimmed();
    hideList();
    clear();
    m_history.add(line);
    emit entered(line);
}

bool CommandInput::steer(const QKeyEvent& event) {
    const bool isRight = event.key() == Qt::Key_Right;
    const bool isUp = event.key() == Qt::Key_Up;
    const bool isSideways = isRight || event.key() == Qt::Key_Left;
    const bool isArrow = isSideways || isUp || event.key() == Qt::Key_Down;
    const QString line = text().trimmed();
    const std::optional<double> length = parseReal(toWide(line));
    if (!m_takesLengths || !isArrow || !length || (event.modifiers() & Qt::ControlModifier) == 0) {
        return false;
    }
    clear();
    m_history.add(line);
    const int way = isRight || isUp ? 1 : -1;
    emit steered(*length, isSideways ? way : 0, isSideways ? 0 : way);
    return true;
}

void CommandInput::complete() {
    if (text().isEmpty()) {
        return;
    }
    QString word = chosenOrTyped();
    if (word == text()) {
        m_completer->setCompletionPrefix(text());
        word = m_completer->currentCompletion();
    }
    if (!word.isEmpty()) {
        setText(word);
    }
    hideList();
}

void CommandInput::hideList() {
    m_completer->popup()->hide();
}

} // namespace orvex
