#include "DrawBar.h"

#include "ChoiceBox.h"
#include "CommandRunner.h"
#include "DatabaseCore.h"
#include "DeskPrompts.h"
#include "KdDbDatabase.h"
#include "KeypadPoint.h"
#include "Session.h"
#include "StyleButton.h"
#include "layerChoices.h"
#include "layerIcon.h"
#include "nameQuestions.h"
#include "qtWide.h"
#include "typedAnswer.h"
#include "variableText.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QToolBar>

#include <algorithm>
#include <array>

namespace orvex {

namespace {

constexpr const char* kDrawing = "MLINE";
constexpr int kScaleCharacters = 8;

struct Justification {
    const char* text;
    const char* keyword; // of MLINE
    const char* value;   // of the variable
};
constexpr std::array kJustifications = std::to_array<Justification>({
    {QT_TRANSLATE_NOOP("orvex::DrawBar", "Top"), "T", "0"},
    {QT_TRANSLATE_NOOP("orvex::DrawBar", "Zero"), "Z", "1"},
    {QT_TRANSLATE_NOOP("orvex::DrawBar", "Bottom"), "B", "2"},
});

QString current(const wchar_t* variable) {
    return toQt(variableText(variable).value_or(L""));
}

template <class Widget>
Widget* named(Widget* widget, const char* name, const QString& caption, const QString& help) {
    widget->setObjectName(QLatin1String(name));
    widget->setAccessibleName(caption);
    widget->setToolTip(help);
    widget->setStatusTip(help);
    return widget;
}

ChoiceBox::Choice plain(const QString& text, const QString& value) {
    return {QIcon(), text, value, true, QString()};
}

ChoiceBox::Choice layerEntry(const LayerChoice& layer, const QWidget& widget) {
    return {.icon = layerIcon(layer, widget.palette(), widget.devicePixelRatioF()),
            .text = layer.name,
            .value = layer.name,
            .isEnabled = !layer.isHidden,
            .hint = layer.isHidden   ? DrawBar::tr("Off or frozen: nothing can be drawn on it")
                    : layer.isLocked ? DrawBar::tr("Locked: what is drawn on it can't be edited")
                                     : QString()};
}

} // namespace

DrawBar::DrawBar(QMainWindow& window, CommandRunner& runner, DeskPrompts& prompts)
    : QObject(&window), m_runner(runner), m_prompts(prompts),
      m_bar(window.addToolBar(tr("Drawing"))), m_swatch(new StyleButton(m_bar)),
      m_style(named(new ChoiceBox(m_bar), "styleBox", tr("Style"),
                    tr("The style of what is drawn next"))),
      m_layer(named(new ChoiceBox(m_bar), "layerBox", tr("Layer"),
                    tr("The layer of what is drawn next"))),
      m_scale(named(new QLineEdit(m_bar), "scaleField", tr("Scale"),
                    tr("The scale of what is drawn next: offsets of the style times this"))),
      m_justification(named(new ChoiceBox(m_bar), "justificationBox", tr("Justification"),
                            tr("Which line of what is drawn next goes through the points"))) {
    m_bar->setObjectName(QStringLiteral("drawBar"));
    // Right inside of the bar the swatch would have the size of all other icons.
    auto* const holder = new QWidget(m_bar);
    auto* const row = new QHBoxLayout(holder);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_swatch);
    m_bar->addWidget(holder);
    m_bar->addWidget(m_style);
    m_bar->addWidget(m_layer);
    m_bar->addWidget(new QLabel(tr(" Scale "), m_bar));
    m_scale->setMaximumWidth(m_scale->fontMetrics().averageCharWidth() * (kScaleCharacters + 2));
    markNumberField(*m_scale);
    m_scale->setFocusPolicy(Qt::StrongFocus);
    m_scale->installEventFilter(this);
    m_bar->addWidget(m_scale);
    m_bar->addWidget(m_justification);
    m_layer->setIconSize(kLayerIcon);
    fillBoxes();
    connectBoxes();
    connect(m_swatch, &QToolButton::clicked, this,
            [this] { m_runner.start(QStringLiteral("MLSTYLE")); });
    connect(&m_prompts, &DeskPrompts::asked, this, &DrawBar::showValues);
    connect(&m_prompts, &DeskPrompts::answered, this, &DrawBar::updateEnabled);
    connect(&m_runner, &CommandRunner::commandStarted, this, [this](const QString& name) {
        m_running = name;
        updateEnabled();
    });
    connect(&m_runner, &CommandRunner::commandEnded, this, [this] {
        m_running.clear();
        showValues();
    });
}

void DrawBar::fillBoxes() {
    m_style->setChoices([this] {
        std::vector<ChoiceBox::Choice> choices;
        for (const std::wstring& name : styleNames(m_session->database().core())) {
            choices.push_back(plain(toQt(name), toQt(name)));
        }
        return choices;
    });
    m_layer->setChoices([this] {
        std::vector<ChoiceBox::Choice> choices;
        for (const LayerChoice& layer : layerChoices(m_session->database())) {
            choices.push_back(layerEntry(layer, *m_layer));
        }
        return choices;
    });
    m_justification->setChoices([] {
        std::vector<ChoiceBox::Choice> choices;
        choices.reserve(std::size(kJustifications));
        for (const Justification& each : kJustifications) {
            choices.push_back(plain(tr(each.text), QLatin1String(each.value)));
        }
        return choices;
    });
}

void DrawBar::connectBoxes() {
    for (ChoiceBox* const box : {m_style, m_layer, m_justification}) {
        connect(box, &ChoiceBox::chosen, this, &DrawBar::left);
        connect(box, &ChoiceBox::left, this, &DrawBar::left);
    }
    connect(m_style, &ChoiceBox::chosen, this, [this](const QString& name) {
        choose({"ST", "CMLSTYLE"}, name, name);
    });
    connect(m_layer, &ChoiceBox::chosen, this, [this](const QString& name) {
        choose({"LA", "CLAYER"}, name, name);
    });
    connect(m_justification, &ChoiceBox::chosen, this, [this](const QString& value) {
        const auto* const found = std::ranges::find_if(
            kJustifications, [&](const Justification& each) { return value == each.value; });
        if (found != kJustifications.end()) {
            choose({"J", "CMLJUST"}, QLatin1String(found->keyword), value);
        }
    });
}

void DrawBar::setSession(Session& session) {
    m_session = &session;
    showValues();
}

void DrawBar::showValues() {
    if (m_session == nullptr) {
        return;
    }
    KdDbDatabase& database = m_session->database();
    m_swatch->showStyle(database);
    const QString style = current(L"CMLSTYLE");
    m_style->showCurrent(plain(style, style));
    m_layer->showCurrent(layerEntry(currentLayer(database), *m_layer));
    const QString justification = current(L"CMLJUST");
    for (const Justification& each : kJustifications) {
        if (justification == each.value) {
            m_justification->showCurrent(plain(tr(each.text), justification));
        }
    }
    if (!m_scale->hasFocus()) {
        m_scale->setText(current(L"CMLSCALE"));
        m_scale->setCursorPosition(0);
    }
    updateEnabled();
}

void DrawBar::enterScale() {
    const QString typed = m_scale->text().trimmed();
    const std::optional<double> scale = parseReal(toWide(typed));
    if (!scale || *scale == 0.0) {
        emit complained(scale ? tr("A scale of 0 would put all lines in one place.")
                              : numberComplaint(typed));
        m_scale->selectAll();
        return;
    }
    emit left();
    if (typed != current(L"CMLSCALE")) {
        choose({"S", "CMLSCALE"}, typed, typed);
    }
}

void DrawBar::choose(const Setting& setting, const QString& typed, const QString& value) {
    if (isDrawingAsked()) {
        m_prompts.answerLines({QLatin1String(setting.keyword), typed});
    } else if (m_running.isEmpty()) {
        m_runner.start(QStringLiteral("SETVAR"), {QLatin1String(setting.variable), value},
                       CommandRunner::Repeat::before);
    }
}

// MLINE waits for its start, where it takes settings.
bool DrawBar::isDrawingAsked() const {
    const PromptRequest* const request = m_prompts.request();
    return request != nullptr && request->kind == PromptKind::point && !request->base &&
           m_running.compare(QLatin1String(kDrawing), Qt::CaseInsensitive) == 0;
}

void DrawBar::updateEnabled() {
    const bool isEnabled = m_running.isEmpty() || isDrawingAsked();
    for (QWidget* const each :
         {static_cast<QWidget*>(m_style), static_cast<QWidget*>(m_layer),
          static_cast<QWidget*>(m_scale), static_cast<QWidget*>(m_justification)}) {
        each->setEnabled(isEnabled);
    }
}

// A field that is left without Enter, or by Escape, shows what holds. Neither key goes on to the
// window, which would take it for the command line's.
bool DrawBar::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_scale && event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Escape:
            emit left();
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            enterScale();
            return true;
        default:
            break;
        }
    }
    if (watched == m_scale && event->type() == QEvent::FocusOut) {
        QMetaObject::invokeMethod(this, &DrawBar::showValues, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

} // namespace orvex
