#include "SnapDesk.h"

#include "Canvas.h"
#include "DeskPrompts.h"
#include "DeskSettings.h"
#include "Session.h"
#include "blanks.h"
#include "qtWide.h"
#include "snapWords.h"

#include <QAction>
#include <QActionGroup>
#include <QCoreApplication>
#include <QEvent>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QStatusBar>
#include <QToolButton>

#include <algorithm>

namespace orvex {

namespace {

constexpr int kLeastAperture = 4; // pixels
constexpr int kMostAperture = 40;
constexpr double kSteps[] = {5.0, 10.0, 15.0, 22.5, 30.0, 45.0, 60.0};

constexpr const wchar_t* kOff = L"OFF";

// In the order of PointDirection.
constexpr const char* kDirections[] = {"ANY", "ORTHO", "POLAR"};

} // namespace

SnapDesk::SnapDesk(QMainWindow& window, Canvas& canvas, DeskPrompts& prompts,
                   DeskSettings& settings)
    : QObject(&window), m_canvas(canvas), m_prompts(prompts), m_settings(settings) {
    m_guide.isSnapOn = settings.text(DeskSettings::kSnap) != toQt(kOff);
    if (const QString words = settings.text(DeskSettings::kSnapModes); !words.isEmpty()) {
        m_guide.modes = snapModesOf(toWide(words)).value_or(SnapModes::all());
    }
    if (const int aperture = settings.text(DeskSettings::kSnapAperture).toInt(); aperture > 0) {
        m_guide.aperture = std::clamp(aperture, kLeastAperture, kMostAperture);
    }
    if (const double step = settings.text(DeskSettings::kAngleStep).toDouble();
        std::count(std::begin(kSteps), std::end(kSteps), step) > 0) {
        m_guide.step = step;
    }
    const auto* const direction = std::find(std::begin(kDirections), std::end(kDirections),
                                            settings.text(DeskSettings::kDirection));
    if (direction != std::end(kDirections)) {
        m_guide.direction = static_cast<PointDirection>(direction - std::begin(kDirections));
    }
    m_word = new QLabel(&window);
    m_word->setObjectName(QStringLiteral("snapWord"));
    window.statusBar()->addPermanentWidget(m_word);
    makeSnapButton(window);
    makeDirectionButtons(window);
    connect(&m_prompts, &DeskPrompts::answered, this, [this] { dropWord(); });
    qApp->installEventFilter(this);
    show();
}

void SnapDesk::setSession(Session& session) {
    m_session = &session;
    m_guide.letGo();
    session.snapMemory().changed = [this] {
        m_guide.isSnapOn = m_session->snapMemory().isOn;
        m_guide.modes = m_session->snapMemory().modes;
        changed();
    };
    show();
}

Guide SnapDesk::guide(const PointContext& context) {
    m_guide.letGo();
    return [this, context = PointContext{context.base, m_session->snapMemory().inHand}](
               PlanPoint cursor, Qt::KeyboardModifiers modifiers) {
        return m_guide.point(*m_session, context, cursor, modifiers);
    };
}

bool SnapDesk::takeWord(const QString& typed) {
    const PromptRequest* const request = m_prompts.request();
    const std::wstring wide = toWide(typed);
    const std::wstring word(trimBlanks(wide));
    if (request == nullptr || request->kind != PromptKind::point ||
        matchKeyword(request->keywords, word)) {
        return false;
    }
    const std::optional<SnapModes> modes = snapWord(word);
    if (!modes) {
        return false;
    }
    m_guide.word = modes;
    m_word->setText(modes->isEmpty() ? tr("No snap") : typed.trimmed().left(3).toUpper());
    show();
    return true;
}

bool SnapDesk::dropWord() {
    if (!m_guide.word) {
        return false;
    }
    m_guide.word.reset();
    m_word->clear();
    show();
    return true;
}

QAction* SnapDesk::addAction(QMainWindow& window, const char* name, const QString& text,
                             const QString& help, const QKeySequence& key, const QString& caption,
                             QMenu* menu) {
    auto* const action = new QAction(text, &window);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key);
    action->setStatusTip(help);
    action->setToolTip(help + QStringLiteral(" (") + key.toString(QKeySequence::NativeText) + ')');
    action->setCheckable(!caption.isEmpty());
    m_actions.append(action);
    if (!caption.isEmpty()) {
        auto* const button = new QToolButton(&window);
        button->setObjectName(QLatin1String(name) + QStringLiteral("Button"));
        action->setIconText(caption);
        button->setDefaultAction(action);
        button->setFocusPolicy(Qt::NoFocus);
        button->setAutoRaise(true);
        if (menu != nullptr) {
            button->setMenu(menu);
            button->setPopupMode(QToolButton::MenuButtonPopup);
        }
        window.statusBar()->addPermanentWidget(button);
    }
    return action;
}

void SnapDesk::makeSnapButton(QMainWindow& window) {
    auto* const menu = new QMenu(&window);
    for (int i = 0; i < kSnapModeCount; ++i) {
        const auto mode = static_cast<SnapMode>(i);
        QAction* const action = menu->addAction(
            QCoreApplication::translate("orvex", snapName(mode)) + '\t' + toQt(snapWordOf(mode)));
        action->setObjectName(QStringLiteral("snap") + toQt(snapWordOf(mode)));
        action->setCheckable(true);
        m_modes.append(action);
        connect(action, &QAction::triggered, this, [this, mode](bool on) {
            m_guide.modes.set(mode, on);
            m_guide.isSnapOn = true;
            changed();
        });
    }
    menu->addSeparator();
    menu->addAction(tr("&All"), this, [this] {
        m_guide.modes = SnapModes::all();
        m_guide.isSnapOn = true;
        changed();
    });
    menu->addAction(tr("A&perture..."), this, [this, &window] { askAperture(window); });
    m_snap = addAction(window, "snap", tr("&Snap"), tr("Draw points to targets near the cursor"),
                       Qt::Key_F3, tr("SNAP"), menu);
    menu->setTitle(tr("Snap &Modes"));
    m_actions.append(menu->menuAction());
    connect(m_snap, &QAction::triggered, this, [this](bool on) {
        m_guide.isSnapOn = on;
        changed();
    });
}

void SnapDesk::makeDirectionButtons(QMainWindow& window) {
    m_square = addAction(window, "ortho", tr("&Ortho"),
                         tr("Keep lines horizontal or vertical from their base"), Qt::Key_F8,
                         tr("ORTHO"), nullptr);
    auto* const menu = new QMenu(&window);
    auto* const group = new QActionGroup(menu);
    for (const double step : kSteps) {
        QAction* const action = menu->addAction(QString::number(step) + QChar(176));
        action->setObjectName(QStringLiteral("step%1").arg(step));
        action->setCheckable(true);
        action->setChecked(step == m_guide.step);
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, step] {
            m_guide.step = step;
            setDirection(PointDirection::steps);
        });
    }
    m_steps = addAction(window, "polar", tr("Angle Ste&ps"),
                        tr("Draw lines to angles in steps as they come near"), Qt::Key_F10,
                        tr("POLAR"), menu);
    menu->setTitle(tr("Steps of &Angles"));
    m_actions.append(menu->menuAction());
    connect(m_square, &QAction::triggered, this,
            [this](bool on) { setDirection(on ? PointDirection::square : PointDirection::any); });
    connect(m_steps, &QAction::triggered, this,
            [this](bool on) { setDirection(on ? PointDirection::steps : PointDirection::any); });
}

void SnapDesk::setDirection(PointDirection direction) {
    m_guide.direction = direction;
    changed();
}

void SnapDesk::askAperture(QMainWindow& window) {
    bool isGiven = false;
    const int aperture = QInputDialog::getInt(
        &window, tr("Aperture"), tr("Pixels from the cursor to a target, at most:"),
        static_cast<int>(m_guide.aperture), kLeastAperture, kMostAperture, 1, &isGiven);
    if (isGiven) {
        m_guide.aperture = aperture;
        changed();
    }
}

void SnapDesk::changed() {
    m_settings.setText(DeskSettings::kSnap, m_guide.isSnapOn ? QStringLiteral("ON") : toQt(kOff));
    m_settings.setText(DeskSettings::kSnapModes, toQt(snapWordsOf(m_guide.modes)));
    m_settings.setText(DeskSettings::kSnapAperture, QString::number(m_guide.aperture));
    m_settings.setText(DeskSettings::kAngleStep, QString::number(m_guide.step));
    m_settings.setText(DeskSettings::kDirection,
                       QLatin1String(kDirections[static_cast<int>(m_guide.direction)]));
    show();
}

void SnapDesk::show() {
    m_snap->setChecked(m_guide.isSnapOn);
    for (int i = 0; i < kSnapModeCount; ++i) {
        m_modes[i]->setChecked(m_guide.modes.has(static_cast<SnapMode>(i)));
    }
    m_square->setChecked(m_guide.direction == PointDirection::square);
    m_steps->setChecked(m_guide.direction == PointDirection::steps);
    m_word->setVisible(!m_word->text().isEmpty());
    if (m_session != nullptr) {
        m_session->snapMemory().isOn = m_guide.isSnapOn;
        m_session->snapMemory().modes = m_guide.modes;
    }
    m_guide.letGo();
    m_canvas.guideChanged();
}

// Ctrl suspends the snap wherever the focus is.
bool SnapDesk::eventFilter(QObject* watched, QEvent* event) {
    const bool isPress = event->type() == QEvent::KeyPress;
    if (isPress || event->type() == QEvent::KeyRelease) {
        const auto& key = *static_cast<const QKeyEvent*>(event);
        if (key.key() == Qt::Key_Control) {
            m_canvas.setModifiers(isPress ? key.modifiers() | Qt::ControlModifier
                                          : key.modifiers() &
                                                ~Qt::KeyboardModifiers(Qt::ControlModifier));
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace orvex
