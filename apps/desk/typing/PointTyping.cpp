#include "PointTyping.h"

#include "Canvas.h"
#include "CommandLine.h"
#include "DeskPrompts.h"
#include "PromptSession.h"
#include "hostText.h"
#include "qtWide.h"
#include "roundNumber.h"
#include "userFrame.h"

#include <cmath>

namespace orvex {

namespace {

KdGePoint3d baseOf(const PromptRequest& request) { // world
    return request.base.value_or(PromptSession::current().lastPoint);
}

KdGePoint3d beside(const KdGePoint3d& user, double x, double y) {
    return {withoutNoise(user.x + x, user.x), withoutNoise(user.y + y, user.y), user.z};
}

PointReading typedAt(const KdGePoint3d& user) {
    const bool isFinite = std::isfinite(user.x) && std::isfinite(user.y) && std::isfinite(user.z);
    return isFinite ? PointReading(TypedPoint{user, {}})
                    : PointReading(BrokenPoint{0, wideHostText("the point is too far away")});
}

} // namespace

PointTyping::PointTyping(Canvas& canvas, CommandLine& commandLine, DeskPrompts& prompts)
    : QObject(&canvas), m_canvas(canvas), m_commandLine(commandLine), m_prompts(prompts) {
    prompts.setLengthReader([this](const PromptRequest& request, double length) {
        return alongMouse(request, length);
    });
    connect(&prompts, &DeskPrompts::asked, this, &PointTyping::showWhatEnterDoes);
    connect(&prompts, &DeskPrompts::answered, this, &PointTyping::showWhatEnterDoes);
    connect(&prompts, &DeskPrompts::broken, &commandLine, &CommandLine::putBack);
    connect(&commandLine, &CommandLine::edited, this, &PointTyping::showWhatEnterDoes);
    connect(&commandLine, &CommandLine::steered, this, &PointTyping::answerAlongAxis);
    connect(&canvas, &Canvas::cursorMoved, this, &PointTyping::showWhatEnterDoes);
}

// A mouse that still is where the base was clicked points nowhere.
void PointTyping::lookAtMouse(const PromptRequest& request) {
    const auto place = m_canvas.pointAtCursor();
    if (!place) {
        return;
    }
    const KdGePoint3d from = baseOf(request);
    const double x = place->at.x - from.x;
    const double y = place->at.y - from.y;
    const double length = std::hypot(x, y);
    m_direction.reset();
    if (length > m_canvas.unitsPerPixel() && std::isfinite(length)) {
        m_direction = Direction{x / length, y / length};
    }
}

PointReading PointTyping::alongMouse(const PromptRequest& request, double length) const {
    if (length == 0.0) {
        return BrokenPoint{0, wideHostText("a length of 0 leads nowhere")};
    }
    if (!m_direction) {
        return BrokenPoint{
            0, wideHostText("a length needs a direction: move the mouse over the drawing")};
    }
    const KdGePoint3d base = baseOf(request);
    return typedAt(worldToUser(beside(base, m_direction->x * length, m_direction->y * length)));
}

void PointTyping::showWhatEnterDoes() {
    std::optional<PlanPoint> shown;
    const PromptRequest* const request = m_prompts.request();
    if (request != nullptr && request->kind == PromptKind::point) {
        lookAtMouse(*request);
        const TextReading reading = m_prompts.read(*request, m_commandLine.typed());
        const auto* const answer = std::get_if<PromptAnswer>(&reading);
        if (answer != nullptr && answer->kind == PromptAnswer::Kind::point) {
            const KdGePoint3d world = userToWorld(answer->point);
            shown = PlanPoint{world.x, world.y};
        }
    }
    m_canvas.showPointAt(shown);
}

void PointTyping::answerAlongAxis(double length, int x, int y) {
    const PromptRequest* const request = m_prompts.request();
    if (request == nullptr) {
        return;
    }
    const PointReading reading =
        length == 0.0 ? alongMouse(*request, length)
                      : typedAt(beside(worldToUser(baseOf(*request)), x * length, y * length));
    if (const auto* const typed = std::get_if<TypedPoint>(&reading)) {
        m_prompts.answerPoint(typed->point);
    } else {
        m_prompts.print(std::get<BrokenPoint>(reading).reason);
    }
}

} // namespace orvex
