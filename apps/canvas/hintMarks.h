#pragma once

#include "CanvasHints.h"
#include "PlanView.h"

#include <QPoint>
#include <QSize>

#include <cstdint>

class QPainter;

namespace orvex {

// Painters have the view's pixels as coordinates.

// What was picked and what a click would do; what would go is red, on the way to what would be
// there.
void paintTool(QPainter& painter, const PlanView& view, const CanvasHints& hints);

enum class WordsKind : std::uint8_t { note, refusal };
// At the cursor, in sight.
void paintWords(QPainter& painter, const QPoint& cursor, const QSize& view, const QString& words,
                WordsKind kind);

// The pick box of a pick that did nothing.
void paintPickFlash(QPainter& painter, const QPoint& cursor, int pickBox);

} // namespace orvex
