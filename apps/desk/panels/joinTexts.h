#pragma once

#include "CanvasOverlay.h"
#include "JoinReport.h"

#include <QString>

#include <vector>

namespace orvex {

// How many places of a plan are joined, or would be, and how many are left, in words.
QString joinSummary(const JoinReport& report);

// A place that is left, with its reason.
struct LeftPlace {
    PlanPoint at;
    double size = 0.0; // drawing units that are worth looking at around it
    QString text;
};
std::vector<LeftPlace> leftPlaces(const JoinReport& report);

// Marks where joints are planned, and where places are left. What is done needs none.
std::vector<CanvasMark> joinMarks(const JoinReport& report);

} // namespace orvex
