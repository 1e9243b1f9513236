#pragma once

#include "Appearance.h"
#include "typedPoint.h"

#include <QObject>

#include <optional>

namespace orvex {

class Canvas;
class CommandLine;
class DeskPrompts;
struct PromptRequest;

// What is being typed at a question for a point: the canvas shows with every key where Enter will
// put it, and a bare length goes along the direction of the mouse from the question's base, else
// from LASTPOINT. Where the mouse is no longer over the canvas, its last direction there holds.
class PointTyping final : public QObject {
    Q_OBJECT

public:
    // All of them outlive this.
    PointTyping(Canvas& canvas, CommandLine& commandLine, DeskPrompts& prompts);

private:
    struct Direction { // of length 1, in the plan
        double x = 0.0;
        double y = 0.0;
    };

    void showWhatEnterDoes();
    void lookAtMouse(const PromptRequest& request);
    [[nodiscard]] PointReading alongMouse(const PromptRequest& request, double length) const;
    // A length with an arrow key: along an axis of the user's coordinate system.
    void answerAlongAxis(double length, int x, int y);

    Canvas& m_canvas;
    CommandLine& m_commandLine;
    DeskPrompts& m_prompts;
    std::optional<Direction> m_direction;
};

} // namespace orvex
