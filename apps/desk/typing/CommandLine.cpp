#include "CommandLine.h"

#include "ShortenedLabel.h"
#include "readableColor.h"

#include "keyText.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextCursor>
#include <QTextDocument>
#include <QVBoxLayout>

namespace orvex {

namespace {

constexpr int kMostLines = 5000;
constexpr int kMargin = 4;      // pixels
constexpr int kLeastInput = 16; // characters, however long the question
const QColor kDarkRed(0xB0, 0x20, 0x18);
const QColor kLightRed(0xFF, 0x90, 0x80);

bool isModifier(int key) {
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt ||
           key == Qt::Key_AltGr || key == Qt::Key_Meta || key == Qt::Key_CapsLock;
}

bool scrolls(const QEvent& press) {
    const int key = static_cast<const QKeyEvent&>(press).key();
    return key == Qt::Key_PageUp || key == Qt::Key_PageDown;
}

QPlainTextEdit* makeHistory(QWidget* parent) {
    auto* const history = new QPlainTextEdit(parent);
    history->setObjectName(QStringLiteral("commandHistory"));
    history->setReadOnly(true);
    history->setFrameShape(QFrame::NoFrame);
    history->setMaximumBlockCount(kMostLines);
    // As high as the rest leaves it.
    history->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    history->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return history;
}

} // namespace

CommandLine::CommandLine(QWidget* parent)
    : QWidget(parent), m_history(makeHistory(this)), m_keywords(new KeywordBar(this)),
      m_prompt(new ShortenedLabel(this)), m_input(new CommandInput(this)),
      m_lineCount(new QLabel(this)) {
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    // A line and what an edit keeps free around its text; less shows none.
    m_history->setMinimumHeight(m_history->fontMetrics().lineSpacing() + 2 * kMargin + 4);
    m_input->setMinimumWidth(m_input->fontMetrics().averageCharWidth() * kLeastInput);
    m_input->setObjectName(QStringLiteral("commandInput"));
    m_prompt->setObjectName(QStringLiteral("commandPrompt"));

    auto* const field = new QWidget(this);
    field->setBackgroundRole(QPalette::Base);
    field->setAutoFillBackground(true);
    auto* const fieldRow = new QHBoxLayout(field);
    fieldRow->setContentsMargins(kMargin, 2, kMargin, 2);
    fieldRow->addWidget(m_prompt);
    fieldRow->addWidget(m_input, 1);
    m_lineCount->setObjectName(QStringLiteral("lineCount"));
    m_lineCount->setContentsMargins(3 * kMargin, 0, 0, 0);
    m_lineCount->hide();
    fieldRow->addWidget(m_lineCount);

    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(2);
    rows->addWidget(m_history, 1);
    rows->addWidget(m_keywords);
    rows->addWidget(field);

    setFocusProxy(m_input);
    m_input->installEventFilter(this);
    m_history->installEventFilter(this);
    m_history->viewport()->installEventFilter(this);
    connect(m_keywords, &KeywordBar::chosen, this, &CommandLine::entered);
    connect(m_input, &CommandInput::entered, this, &CommandLine::entered);
    connect(m_input, &CommandInput::linesEntered, this, &CommandLine::linesEntered);
    connect(m_input, &CommandInput::textChanged, this, &CommandLine::showLineCount);
    connect(m_input, &CommandInput::cancelled, this, &CommandLine::cancelled);
    connect(m_input, &CommandInput::textChanged, this, &CommandLine::edited);
    connect(m_input, &CommandInput::steered, this, &CommandLine::steered);
}

void CommandLine::setQuestion(const Question& question) {
    m_question = question.text;
    showPrompt();
    m_input->setBlankKey(question.blank);
    m_input->setTakesLengths(question.takesLengths);
    m_input->setTakesPoints(question.takesPoints);
    m_input->setCompletions(question.completions);
    m_keywords->setKeywords(question.keywords);
}

void CommandLine::setNotice(const QString& notice) {
    m_notice = notice;
    showPrompt();
}

void CommandLine::showPrompt() {
    m_prompt->setText(m_notice.isEmpty() ? m_question
                                         : m_notice + QLatin1String("  ") + m_question);
}

void CommandLine::showLineCount() {
    const int count = m_input->lineCount();
    m_lineCount->setText(tr("%1 lines, Enter plays them").arg(count));
    m_lineCount->setVisible(count > 1);
}

void CommandLine::print(const QString& line) {
    // What is asked steps back, what was answered stands out.
    const int answer = line.lastIndexOf(QLatin1String(": ")) + 2;
    if (answer > 1) {
        append(line.left(answer), mixed(0.45), true);
        append(line.mid(answer), palette().color(QPalette::Text), false);
    } else {
        append(line, palette().color(QPalette::Text), true);
    }
    showLatest();
}

void CommandLine::complain(const QString& line) {
    append(line, isDark(palette().color(QPalette::Base).rgb() & 0xFFFFFFU) ? kLightRed : kDarkRed,
           true);
    showLatest();
}

// Of the text's colour, so much of the way to the ground's.
QColor CommandLine::mixed(double part) const {
    const QColor text = palette().color(QPalette::Text);
    const QColor ground = palette().color(QPalette::Base);
    return QColor::fromRgbF(text.redF() + (ground.redF() - text.redF()) * part,
                            text.greenF() + (ground.greenF() - text.greenF()) * part,
                            text.blueF() + (ground.blueF() - text.blueF()) * part);
}

void CommandLine::append(const QString& text, const QColor& color, bool startsLine) {
    QTextCursor cursor(m_history->document());
    cursor.movePosition(QTextCursor::End);
    if (startsLine && !m_history->document()->isEmpty()) {
        cursor.insertBlock();
    }
    QTextCharFormat format;
    format.setForeground(color);
    cursor.insertText(text, format);
}

void CommandLine::showLatest() {
    m_history->verticalScrollBar()->setValue(m_history->verticalScrollBar()->maximum());
}

QString CommandLine::history() const {
    return m_history->toPlainText();
}

void CommandLine::putBack(const QString& text, int place) {
    m_input->setText(text);
    if (place == 0) {
        m_input->selectAll(); // what is typed next replaces it
    } else {
        m_input->setCursorPosition(place);
    }
}

void CommandLine::takeKey(const QKeyEvent& event) {
    if (isModifier(event.key())) {
        return;
    }
    m_input->setFocus();
    QKeyEvent copy(event.type(), event.key(), event.modifiers(), event.text(), event.isAutoRepeat(),
                   static_cast<ushort>(event.count()));
    QCoreApplication::sendEvent(m_input, &copy);
}

bool CommandLine::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_input && event->type() == QEvent::KeyPress && scrolls(*event)) {
        QCoreApplication::sendEvent(m_history, event);
        return true;
    }
    if (watched == m_history && event->type() == QEvent::KeyPress) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        const bool isPlain = (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == 0;
        if ((isPlain || typesText(key)) && !scrolls(key)) {
            takeKey(key);
            return true;
        }
    }
    if (watched == m_history->viewport() && event->type() == QEvent::Resize) {
        // The row of keywords comes and goes below it.
        QMetaObject::invokeMethod(this, &CommandLine::showLatest, Qt::QueuedConnection);
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace orvex
