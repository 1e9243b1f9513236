// The twelve tools: a row each of what is particular about it, and the members that run it.

#include "CMlineEdit.h"
#include "textNumbers.h"

#include <array>

namespace {

namespace texts = mledit::texts;

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

constexpr int kTools = 12;

constexpr std::array<EditTool, kTools> kTable{{
    // 1 closed cross, 2 open cross, 3 merged cross: crossTools.cpp
    {.prompts = kCrossingPrompts,
     .initialise = &CMlineEdit::mlineEditInitialize,
     .step = &CMlineEdit::stepClosedCross},
    {.prompts = kCrossingPrompts,
     .undoCopies = 2,
     .initialise = &CMlineEdit::mlineEditInitialize,
     .step = &CMlineEdit::stepOpenCross},
    {.prompts = kCrossingPrompts,
     .undoCopies = 2,
     .initialise = &CMlineEdit::mlineEditInitialize,
     .step = &CMlineEdit::stepMergedCross},
    // 4 closed tee, 5 open tee, 6 merged tee: teeTools.cpp
    {.prompts = kCrossingPrompts,
     .refusesClosedFirst = true,
     .initialise = &CMlineEdit::mlineEditInitialize,
     .step = &CMlineEdit::stepClosedTree},
    {.prompts = kCrossingPrompts,
     .refusesClosedFirst = true,
     .undoCopies = 2,
     .hidesFirst = true,
     .initialise = &CMlineEdit::mlineEditInitialize,
     .step = &CMlineEdit::stepOpenTree},
    {.prompts = kCrossingPrompts,
     .refusesClosedFirst = true,
     .undoCopies = 2,
     .initialise = &CMlineEdit::mlineEditInitialize,
     .step = &CMlineEdit::stepMergedTree},
    // 7 corner joint: cornerJoint.cpp
    {.prompts = kCrossingPrompts,
     .refusesClosedFirst = true,
     .refusesClosedSecond = true,
     .undoCopies = 2,
     .hidesFirst = true,
     .hidesSecond = true,
     .initialise = &CMlineEdit::mlineEditInitialize,
     .step = &CMlineEdit::stepCornerJoint},
    // 8 add vertex, 9 delete vertex: vertexTools.cpp
    {.prompts = kVertexPrompts,
     .secondPick = SecondPick::none,
     .hidesFirst = true,
     .closesAtExit = Closes::first,
     .initialise = &CMlineEdit::mlineEditInitialize,
     .step = &CMlineEdit::stepAddVertex},
    {.prompts = kVertexPrompts,
     .secondPick = SecondPick::none,
     .hidesFirst = true,
     .closesAtExit = Closes::first,
     .initialise = &CMlineEdit::mlineEditInitialize,
     .step = &CMlineEdit::stepDeleteVertex},
    // 10 cut single, 11 cut all: cutTools.cpp
    {.prompts = kBreakPrompts,
     .secondPick = SecondPick::sameEntity,
     .hidesFirst = true,
     .initialise = &CMlineEdit::mlineEditInitialize,
     .step = &CMlineEdit::stepCutSingle},
    {.prompts = kBreakPrompts,
     .secondPick = SecondPick::sameEntity,
     .hidesFirst = true,
     .initialise = &CMlineEdit::mlineEditInitialize,
     .step = &CMlineEdit::stepCutAll},
    // 12 weld all: weldTool.cpp
    {.prompts = kBreakPrompts,
     .firstPick = FirstPick::anyEntity,
     .secondPick = SecondPick::sameEntity,
     .hidesFirst = true,
     .closesAtExit = Closes::neither,
     .initialise = &CMlineEdit::mlineEditInitializeForWeldAll,
     .step = &CMlineEdit::stepWeldAll},
}};

} // namespace

const EditTool& editTool(int number) {
    return kTable.at(static_cast<std::size_t>(number - 1));
}

int CMlineEdit::cmd_mledit_ClosedCross(HINSTANCE resources) {
    return runTool(editTool(1), resources);
}

int CMlineEdit::cmd_mledit_OpenCross(HINSTANCE resources) {
    return runTool(editTool(2), resources);
}

int CMlineEdit::cmd_mledit_MergedCross(HINSTANCE resources) {
    return runTool(editTool(3), resources);
}

int CMlineEdit::cmd_mledit_ClosedTree(HINSTANCE resources) {
    return runTool(editTool(4), resources);
}

int CMlineEdit::cmd_mledit_OpenTree(HINSTANCE resources) {
    return runTool(editTool(5), resources);
}

int CMlineEdit::cmd_mledit_MergedTree(HINSTANCE resources) {
    return runTool(editTool(6), resources);
}

int CMlineEdit::cmd_mledit_CornerJoint(HINSTANCE resources) {
    return runTool(editTool(7), resources);
}

int CMlineEdit::cmd_mledit_AddVertex(HINSTANCE resources) {
    return runTool(editTool(8), resources);
}

int CMlineEdit::cmd_mledit_DeleteVertex(HINSTANCE resources) {
    return runTool(editTool(9), resources);
}

int CMlineEdit::cmd_mledit_CutSingle(HINSTANCE resources) {
    return runTool(editTool(10), resources);
}

int CMlineEdit::cmd_mledit_CutAll(HINSTANCE resources) {
    return runTool(editTool(11), resources);
}

int CMlineEdit::cmd_mledit_WeldAll(HINSTANCE resources) {
    return runTool(editTool(12), resources);
}
