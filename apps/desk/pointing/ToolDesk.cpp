#include "ToolDesk.h"

#include "Canvas.h"
#include "CommandRunner.h"
#include "DeskPrompts.h"
#include "KdDbStub.h"
#include "Session.h"
#include "StatusLine.h"
#include "buttonListener.h"
#include "clickedPoint.h"
#include "editTools.h"
#include "handleText.h"
#include "hoverText.h"
#include "pickScale.h"
#include "qtWide.h"
#include "refusalText.h"
#include "userFrame.h"

#include <QMainWindow>

#include <array>
#include <chrono>

namespace orvex {

namespace {

using namespace std::chrono_literals;

constexpr auto kWordsTime = 2s;
constexpr auto kFlashTime = 300ms;

constexpr const char* kPaletteCommand = "MLEDIT";
// The module's palette, and the tools of its buttons in the order of their numbers.
constexpr unsigned kPalette = 5758;
constexpr int kFirstButton = 5759;
constexpr std::array kButtonTools{"CC", "OC", "MC", "CT", "OT", "MT",
                                  "CJ", "DV", "AV", "CS", "CA", "WA"};

QString capitalised(QString text) {
    text[0] = text[0].toUpper();
    return text;
}

} // namespace

ToolDesk::ToolDesk(QMainWindow& window, Canvas& canvas, CommandRunner& runner, DeskPrompts& prompts,
                   StatusLine& status)
    : QObject(&window), m_canvas(canvas), m_runner(runner), m_prompts(prompts), m_status(status),
      m_ghost(this, canvas, prompts, m_overlaps) {
    m_words.setSingleShot(true);
    m_flash.setSingleShot(true);
    connect(&m_words, &QTimer::timeout, this, &ToolDesk::showHints);
    connect(&m_flash, &QTimer::timeout, this, &ToolDesk::showHints);
    connect(&m_ghost, &GhostDesk::changed, this, &ToolDesk::showHints);
    connect(&prompts, &DeskPrompts::asked, this, &ToolDesk::showQuestion);
    connect(&prompts, &DeskPrompts::answered, this, &ToolDesk::showHints);
    connect(&runner, &CommandRunner::commandStarted, this,
            [this](const QString& name) { m_isPalette = announces(name); });
    connect(&runner, &CommandRunner::commandEnded, this, &ToolDesk::commandEnded);
    connect(&canvas, &Canvas::hovered, this, [this](KdDbStub* entity) {
        m_status.showHovered(entity != nullptr ? hoverText(*entity) : QString());
    });
    connect(&canvas, &Canvas::cursorLeft, this, [this] { m_status.showHovered({}); });
    canvas.setPickFinder([this](PlanPoint place) {
        const OverlapPicks::Choice choice = m_overlaps.at(*m_session, place);
        const bool isTold = choice.count > 1 && m_prompts.request() != nullptr;
        const QString words =
            isTold ? tr("%1 of %2").arg(choice.index + 1).arg(choice.count) : QString();
        return PickTarget{choice.entity, words};
    });
    setButtonListener([this](unsigned dialog, int button) { chosen(dialog, button); });
}

ToolDesk::~ToolDesk() {
    setButtonListener(nullptr);
}

void ToolDesk::setSession(Session& session) {
    m_session = &session;
    m_overlaps.forget();
    m_ghost.setSession(session);
    session.toolWatch().setListener([this](const RefusedPick& pick) { refused(pick); });
    m_status.showHovered({});
}

QString ToolDesk::runningTool() const {
    const ToolKind* const kind = m_session != nullptr ? m_session->toolWatch().tool() : nullptr;
    const EditTool* const tool = kind != nullptr ? findEditTool(toQt(kind->keyword)) : nullptr;
    return tool != nullptr ? toolName(*tool) : QString();
}

QString ToolDesk::promptPrefix() const {
    const QString name = runningTool();
    return name.isEmpty() ? name : name + QLatin1String(": ");
}

bool ToolDesk::announces(const QString& command) {
    return command.compare(QLatin1String(kPaletteCommand), Qt::CaseInsensitive) == 0;
}

// As it would have been typed.
void ToolDesk::chosen(unsigned dialog, int button) {
    const auto index = static_cast<std::size_t>(button - kFirstButton);
    if (dialog != kPalette || !m_isPalette || button < kFirstButton ||
        index >= kButtonTools.size()) {
        return;
    }
    m_isPalette = false;
    const QString keyword = QLatin1String(kButtonTools[index]);
    m_session->toolWatch().chooseTool(toWide(keyword));
    m_runner.repeatAs(QStringLiteral("-MLEDIT"), {keyword});
    m_session->record().begin(L"-MLEDIT", true);
    m_session->record().line(toWide(keyword));
    m_prompts.print(toWide(tr("Command: %1").arg(QLatin1String("-MLEDIT"))));
    m_prompts.print(toWide(tr("Editing tool: %1").arg(keyword)));
}

void ToolDesk::showQuestion() {
    m_status.showTool(runningTool());
    showHints();
}

void ToolDesk::commandEnded() {
    if (m_isPalette) {
        m_prompts.print(toWide(tr("No editing tool was chosen.")));
        m_isPalette = false;
    }
    m_status.showTool({});
    showHints();
}

void ToolDesk::refused(const RefusedPick& refused) {
    m_refusal = toQt(refusalText(refused.reason, refused.entity));
    m_words.start(kWordsTime);
    m_flash.start(kFlashTime);
    if (!refused.isTold) {
        const QString remedy = toQt(refusalRemedy(refused.reason));
        // Not by the prompts, whose complaints end what is played.
        emit complained(capitalised(m_refusal) +
                        (remedy.isEmpty() ? remedy : QLatin1String("; ") + remedy) +
                        QLatin1Char('.'));
    }
    showHints();
}

void ToolDesk::showHints() {
    CanvasHints hints;
    const ToolWatch* const watch = m_session != nullptr ? &m_session->toolWatch() : nullptr;
    if (watch != nullptr && m_prompts.request() != nullptr && watch->first() &&
        watch->stage() == ToolWatch::Stage::second) {
        const ToolPick& first = *watch->first();
        if (!m_ghost.changes(first.mline)) {
            hints.lit.push_back(m_session->scene().appearance(*first.mline));
        }
        if (watch->tool()->picks == ToolKind::Picks::twoOnOne) {
            const KdGePoint3d place = userToWorld(first.point);
            hints.firstPoint = PlanPoint{place.x, place.y};
        }
    }
    hints.before = m_ghost.before();
    hints.after = m_ghost.after();
    hints.changesTarget = m_ghost.changesTarget();
    hints.words = m_words.isActive() ? m_refusal : m_ghost.words();
    hints.flashes = m_flash.isActive();
    m_canvas.setHints(std::move(hints));
}

KdDbStub* ToolDesk::take(PlanPoint place) {
    return m_overlaps.take(*m_session, place).entity;
}

bool ToolDesk::answerPick(PlanPoint place) {
    const PromptRequest* const request = m_prompts.request();
    if (request == nullptr || request->kind != PromptKind::entity) {
        return false;
    }
    const OverlapPicks::Choice choice = m_overlaps.take(*m_session, place);
    const KdGePoint3d point = clickedPoint(place.x, place.y, m_session->view().unitsPerPixel());
    KdDbStub* const named = choice.count > 1 ? choice.entity : nullptr;
    for (const QString& line : measureAsSeen(*m_session, *request, point, named)) {
        m_prompts.print(toWide(line));
    }
    if (named == nullptr) {
        m_prompts.answerPoint(point);
        return true;
    }
    m_prompts.answerLines({toQt(pointText(point)) + QLatin1String(" #") +
                           QString::fromStdString(handleText(choice.entity->handle))});
    return true;
}

} // namespace orvex
