// The twelve tools: a row of the table each, and the members that run it.

#include "EditTool.h"

#include "CMlineEdit.h"
#include "cornerJoint.h"
#include "crossTools.h"
#include "cutTools.h"
#include "editCycle.h"
#include "teeTools.h"
#include "textNumbers.h"
#include "vertexTools.h"
#include "weldTool.h"

#include <array>

using namespace mledit;

namespace {

using FirstPick = EditTool::FirstPick;
using SecondPick = EditTool::SecondPick;
using Closes = EditTool::Closes;

constexpr EditTool::Prompts kCrossingPrompts{.firstWithUndo = texts::kFirstMultilineOrUndo,
                                             .first = texts::kFirstMultiline,
                                             .second = texts::kSecondMultiline};
constexpr EditTool::Prompts kVertexPrompts{.firstWithUndo = texts::kMultilineOrUndo,
                                           .first = texts::kMultiline};
constexpr EditTool::Prompts kBreakPrompts{.firstWithUndo = texts::kFirstPointOrUndo,
                                          .first = texts::kFirstPoint,
                                          .second = texts::kSecondPoint};

constexpr std::array<EditTool, kToolCount> kTable{{
    // Closed cross, open cross, merged cross: crossTools.cpp
    {.prompts = kCrossingPrompts,
     .initialise = &CMlineEdit::mlineEditInitialize,
     .step = &stepClosedCross},
    {.prompts = kCrossingPrompts,
     .undoCopies = 2,
     .initialise = &CMlineEdit::mlineEditInitialize,
     .step = &stepOpenCross},
    {.prompts = kCrossingPrompts,
     .undoCopies = 2,
     .initialise = &CMlineEdit::mlineEditInitialize,
     .step = &stepMergedCross},
    // Closed tee, open tee, merged tee: teeTools.cpp
    {.prompts = kCrossingPrompts,
     .refusesClosedFirst = true,
     .initialise = &CMlineEdit::mlineEditInitialize,
     .step = &stepClosedTee},
    {.prompts = kCrossingPrompts,
     .refusesClosedFirst = true,
     .undoCopies = 2,
     .hidesFirst = true,
     .initialise = &CMlineEdit::mlineEditInitialize,
     .step = &stepOpenTee},
    {.prompts = kCrossingPrompts,
     .refusesClosedFirst = true,
     .undoCopies = 2,
     .initialise = &CMlineEdit::mlineEditInitialize,
     .step = &stepMergedTee},
    // Corner joint: cornerJoint.cpp
    {.prompts = kCrossingPrompts,
     .refusesClosedFirst = true,
     .refusesClosedSecond = true,
     .undoCopies = 2,
     .hidesFirst = true,
     .hidesSecond = true,
     .initialise = &CMlineEdit::mlineEditInitialize,
     .step = &stepCornerJoint},
    // Add vertex, delete vertex: vertexTools.cpp
    {.prompts = kVertexPrompts,
     .secondPick = SecondPick::none,
     .hidesFirst = true,
     .closesAtExit = Closes::first,
     .initialise = &CMlineEdit::mlineEditInitialize,
     .step = &stepAddVertex},
    {.prompts = kVertexPrompts,
     .secondPick = SecondPick::none,
     .hidesFirst = true,
     .closesAtExit = Closes::first,
     .initialise = &CMlineEdit::mlineEditInitialize,
     .step = &stepDeleteVertex},
    // Cut single, cut all: cutTools.cpp
    {.prompts = kBreakPrompts,
     .secondPick = SecondPick::sameEntity,
     .hidesFirst = true,
     .initialise = &CMlineEdit::mlineEditInitialize,
     .step = &stepCutSingle},
    {.prompts = kBreakPrompts,
     .secondPick = SecondPick::sameEntity,
     .hidesFirst = true,
     .initialise = &CMlineEdit::mlineEditInitialize,
     .step = &stepCutAll},
    // Weld all: weldTool.cpp
    {.prompts = kBreakPrompts,
     .firstPick = FirstPick::anyEntity,
     .secondPick = SecondPick::sameEntity,
     .hidesFirst = true,
     .closesAtExit = Closes::neither,
     .initialise = &CMlineEdit::mlineEditInitializeForWeldAll,
     .step = &stepWeldAll},
}};

} // namespace

const EditTool& mledit::editTool(Tool tool) {
    return kTable.at(static_cast<std::size_t>(tool) - 1);
}

int CMlineEdit::cmd_mledit_ClosedCross(HINSTANCE resources) {
    return runTool(*this, editTool(Tool::closedCross), resources);
}

int CMlineEdit::cmd_mledit_OpenCross(HINSTANCE resources) {
    return runTool(*this, editTool(Tool::openCross), resources);
}

int CMlineEdit::cmd_mledit_MergedCross(HINSTANCE resources) {
    return runTool(*this, editTool(Tool::mergedCross), resources);
}

int CMlineEdit::cmd_mledit_ClosedTree(HINSTANCE resources) {
    return runTool(*this, editTool(Tool::closedTee), resources);
}

int CMlineEdit::cmd_mledit_OpenTree(HINSTANCE resources) {
    return runTool(*this, editTool(Tool::openTee), resources);
}

int CMlineEdit::cmd_mledit_MergedTree(HINSTANCE resources) {
    return runTool(*this, editTool(Tool::mergedTee), resources);
}

int CMlineEdit::cmd_mledit_CornerJoint(HINSTANCE resources) {
    return runTool(*this, editTool(Tool::cornerJoint), resources);
}

int CMlineEdit::cmd_mledit_AddVertex(HINSTANCE resources) {
    return runTool(*this, editTool(Tool::addVertex), resources);
}

int CMlineEdit::cmd_mledit_DeleteVertex(HINSTANCE resources) {
    return runTool(*this, editTool(Tool::deleteVertex), resources);
}

int CMlineEdit::cmd_mledit_CutSingle(HINSTANCE resources) {
    return runTool(*this, editTool(Tool::cutSingle), resources);
}

int CMlineEdit::cmd_mledit_CutAll(HINSTANCE resources) {
    return runTool(*this, editTool(Tool::cutAll), resources);
}

int CMlineEdit::cmd_mledit_WeldAll(HINSTANCE resources) {
    return runTool(*this, editTool(Tool::weldAll), resources);
}
