#include "JoinPanel.h"

#include "KeypadPoint.h"
#include "joinPictures.h"
#include "strokeIcon.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QToolButton>
#include <QToolTip>

namespace orvex {

namespace {

constexpr QSize kPictureSize(32, 32); // pixels

struct KindWords {
    JoinKind kind;
    const char* keyword; // of the command
    const char* text;
};
constexpr std::array kKinds{
    KindWords{JoinKind::closed, "Closed", QT_TRANSLATE_NOOP("orvex::JoinPanel", "closed")},
    KindWords{JoinKind::open, "Open", QT_TRANSLATE_NOOP("orvex::JoinPanel", "open")},
    KindWords{JoinKind::merged, "Merged", QT_TRANSLATE_NOOP("orvex::JoinPanel", "merged")},
    KindWords{JoinKind::none, "None", QT_TRANSLATE_NOOP("orvex::JoinPanel", "leave apart")},
};

} // namespace

JoinPanel::JoinPanel(QWidget* parent) : QWidget(parent), m_choices(new QWidget(this)) {
    auto* const grid = new QGridLayout(this);
    auto* const choices = new QGridLayout(m_choices);
    choices->setContentsMargins(0, 0, 0, 0);
    choices->addWidget(new QLabel(tr("Crosses"), m_choices), 0, 0);
    m_cross = addKinds(*choices, 0, "Cross");
    choices->addWidget(new QLabel(tr("Tees"), m_choices), 1, 0);
    m_tee = addKinds(*choices, 1, "Tee");
    addCorners(*choices, 2);
    addTolerance(*choices, 3);
    grid->addWidget(m_choices, 0, 0, 1, 2);
    addResults(*grid, 1);
    for (auto* const button : findChildren<QAbstractButton*>()) {
        button->installEventFilter(this);
    }
    showOptions(JoinOptions());
    showIdle();
}

JoinPanel::KindButtons JoinPanel::addKinds(QGridLayout& grid, int row, const char* keyword) {
    KindButtons buttons{};
    auto* const group = new QButtonGroup(this);
    for (const KindWords& words : kKinds) {
        auto* const button = new QToolButton(m_choices);
        const bool isCross = row == 0;
        button->setObjectName(QLatin1String("join") + QLatin1String(keyword) +
                              QLatin1String(words.keyword));
        button->setIcon(
            strokeIcon(isCross ? crossPicture(words.kind) : teePicture(words.kind), palette()));
        button->setIconSize(kPictureSize);
        button->setText(tr(words.text));
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        button->setAutoRaise(true);
        button->setCheckable(true);
        button->setFocusPolicy(Qt::TabFocus);
        group->addButton(button);
        const auto index = static_cast<std::size_t>(words.kind);
        grid.addWidget(button, row, static_cast<int>(index) + 1);
        buttons[index] = button;
        connect(button, &QToolButton::clicked, this, [this, keyword, words] {
            emit answered({QLatin1String(keyword), QLatin1String(words.keyword)});
        });
    }
    return buttons;
}

void JoinPanel::addCorners(QGridLayout& grid, int row) {
    m_corners = new QCheckBox(tr("Join corners"), m_choices);
    m_corners->setObjectName(QStringLiteral("joinCorners"));
    m_corners->setFocusPolicy(Qt::TabFocus);
    grid.addWidget(m_corners, row, 1, 1, 4);
    connect(m_corners, &QCheckBox::clicked, this, [this](bool isOn) {
        emit answered(
            {QStringLiteral("COrners"), isOn ? QStringLiteral("Yes") : QStringLiteral("No")});
    });
}

void JoinPanel::addTolerance(QGridLayout& grid, int row) {
    grid.addWidget(new QLabel(tr("Tolerance"), m_choices), row, 0);
    m_tolerance = new QLineEdit(m_choices);
    m_tolerance->setObjectName(QStringLiteral("joinTolerance"));
    markNumberField(*m_tolerance);
    m_tolerance->setPlaceholderText(tr("automatic: half the narrower wall"));
    m_tolerance->setToolTip(tr("How far an end may lie short of a wall or over it, drawing units"));
    grid.addWidget(m_tolerance, row, 1, 1, 4);
    connect(m_tolerance, &QLineEdit::editingFinished, this, &JoinPanel::giveTolerance);
}

void JoinPanel::addResults(QGridLayout& grid, int row) {
    m_summary = new QLabel(this);
    m_summary->setObjectName(QStringLiteral("joinSummary"));
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setWordWrap(true);
    m_list = new QListWidget(this);
    m_list->setObjectName(QStringLiteral("joinLeft"));
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setWordWrap(true);
    m_go = new QPushButton(this);
    m_go->setObjectName(QStringLiteral("joinGo"));
    m_go->setFocusPolicy(Qt::TabFocus);
    m_cancel = new QPushButton(tr("Cancel"), this);
    m_cancel->setObjectName(QStringLiteral("joinCancel"));
    m_cancel->setFocusPolicy(Qt::TabFocus);
    grid.addWidget(m_summary, row, 0, 1, 2);
    grid.addWidget(m_list, row + 1, 0, 1, 2);
    grid.addWidget(m_go, row + 2, 0);
    grid.addWidget(m_cancel, row + 2, 1);
    grid.setRowStretch(row + 1, 1);
    grid.setColumnStretch(0, 1);
    connect(m_list, &QListWidget::itemClicked, this,
            [this](QListWidgetItem* item) { emit placeChosen(m_list->row(item)); });
    connect(m_list, &QListWidget::itemActivated, this,
            [this](QListWidgetItem* item) { emit placeChosen(m_list->row(item)); });
    connect(m_go, &QPushButton::clicked, this, &JoinPanel::press);
    connect(m_cancel, &QPushButton::clicked, this, &JoinPanel::cancelled);
}

void JoinPanel::press() {
    if (m_stage == Stage::idle) {
        emit started();
    } else {
        emit answered(m_goAnswer);
    }
}

void JoinPanel::setStage(Stage stage, const QString& text, bool hasChoices) {
    m_stage = stage;
    m_go->setText(text);
    m_choices->setEnabled(hasChoices);
    m_cancel->setEnabled(stage != Stage::idle);
}

void JoinPanel::showIdle() {
    if (m_stage == Stage::selection) {
        m_summary->clear(); // it was cancelled
    }
    setStage(Stage::idle, tr("Join a plan"), false);
}

void JoinPanel::showSelection(const SelectionProgress& progress) {
    clearReport();
    const std::size_t selected = progress.entities.size();
    // After a click that missed, an empty line takes nothing.
    m_goAnswer = selected > 0 || progress.isUntouched
                     ? QStringList{QString()}
                     : QStringList{QStringLiteral("Add"), QStringLiteral("ALL"), QString()};
    m_summary->setText(tr("Select the multilines to join, or take all."));
    setStage(Stage::selection,
             selected > 0 ? tr("Take the %1 selected").arg(selected) : tr("Take all multilines"),
             false);
}

void JoinPanel::showOptions() {
    m_goAnswer = QStringList{QString()};
    setStage(Stage::options, tr("Join"), true);
}

void JoinPanel::showOptions(const JoinOptions& options) {
    m_options = options;
    m_cross[static_cast<std::size_t>(options.cross)]->setChecked(true);
    m_tee[static_cast<std::size_t>(options.tee)]->setChecked(true);
    m_corners->setChecked(options.corners);
    m_tolerance->setText(options.tolerance ? QString::number(*options.tolerance, 'g', 17)
                                           : QString());
}

void JoinPanel::showReport(const JoinReport& report) {
    clearReport();
    showOptions(report.options);
    m_summary->setText(joinSummary(report));
    m_left = leftPlaces(report);
    for (const LeftPlace& place : m_left) {
        m_list->addItem(place.text);
    }
    m_list->setFocusPolicy(m_left.empty() ? Qt::NoFocus : Qt::TabFocus);
}

void JoinPanel::clearReport() {
    m_left.clear();
    m_list->clear();
    m_list->setFocusPolicy(Qt::NoFocus); // there is nothing to do in it
    m_summary->clear();
}

// Also when the field is left: what wasn't changed is no answer.
void JoinPanel::giveTolerance() {
    const QString text = m_tolerance->text().trimmed();
    const QString before =
        m_options.tolerance ? QString::number(*m_options.tolerance, 'g', 17) : QString();
    if (m_stage != Stage::options || text == before) {
        return;
    }
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    if (!text.isEmpty() && (!isNumber || !(value >= 0.0))) {
        m_tolerance->setText(before);
        QToolTip::showText(m_tolerance->mapToGlobal(m_tolerance->rect().bottomLeft()),
                           isNumber ? tr("A tolerance is 0 or more.") : numberComplaint(text),
                           m_tolerance);
        return;
    }
    emit answered(
        {QStringLiteral("Tolerance"), text.isEmpty() ? QStringLiteral("Automatic") : text});
}

// Arrows go from button to button as Tab does, but not out of the panel.
bool JoinPanel::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        auto& button = *qobject_cast<QAbstractButton*>(watched);
        const int key = static_cast<const QKeyEvent*>(event)->key();
        const bool goesOn = key == Qt::Key_Down || key == Qt::Key_Right;
        const bool goesBack = key == Qt::Key_Up || key == Qt::Key_Left;
        if (button.group() == nullptr && (goesOn || goesBack)) {
            step(button, goesOn);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void JoinPanel::step(QWidget& from, bool forward) {
    QWidget* next = &from;
    do {
        next = forward ? next->nextInFocusChain() : next->previousInFocusChain();
        const bool takesTab = (next->focusPolicy() & Qt::TabFocus) != 0;
        if (takesTab && next->isVisible() && next->isEnabled()) {
            break;
        }
    } while (next != &from);
    if (isAncestorOf(next)) {
        next->setFocus(Qt::TabFocusReason);
    }
}

// Enter in a field ends the field, not the command, and presses a button.
void JoinPanel::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    auto* const button = qobject_cast<QAbstractButton*>(focusWidget());
    if (isEnter && button != nullptr && button->hasFocus()) {
        button->click();
    }
    event->setAccepted(isEnter);
}

} // namespace orvex
