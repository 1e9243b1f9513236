#pragma once

// Numbers of the texts in texts.txt. Translations have the same numbers.
namespace mledit::texts {

// The style dialogs.
inline constexpr unsigned kOffsetHeading = 1;
inline constexpr unsigned kColorHeading = 2;
inline constexpr unsigned kLinetypeHeading = 3;
inline constexpr unsigned kNewStyleCaption = 4;
inline constexpr unsigned kModifyStyleCaption = 5;
inline constexpr unsigned kRed = 6; // from here on the named colours in the order of their indices
inline constexpr unsigned kYellow = 7;
inline constexpr unsigned kGreen = 8;
inline constexpr unsigned kCyan = 9;
inline constexpr unsigned kBlue = 10;
inline constexpr unsigned kMagenta = 11;
inline constexpr unsigned kWhite = 12;
inline constexpr unsigned kDeleteQuestion = 13;
inline constexpr unsigned kSaveTitle = 15;
inline constexpr unsigned kStyleInUse = 16;
inline constexpr unsigned kTableFull = 25;

// The choice of a tool.
inline constexpr unsigned kToolKeywords = 4000;
inline constexpr unsigned kToolPrompt = 4001;
inline constexpr unsigned kUndoKeyword = 4002;

// Crosses, tees and the corner joint.
inline constexpr unsigned kFirstMultilineOrUndo = 4003;
inline constexpr unsigned kFirstMultiline = 4004;
inline constexpr unsigned kSecondMultiline = 4005;
inline constexpr unsigned kClosedRefused = 4006;
inline constexpr unsigned kNoCrossing = 4007;

// Vertices.
inline constexpr unsigned kMultilineOrUndo = 4008;
inline constexpr unsigned kMultiline = 4009;

// Cuts and welds.
inline constexpr unsigned kFirstPointOrUndo = 4010;
inline constexpr unsigned kFirstPoint = 4011;
inline constexpr unsigned kSecondPoint = 4012;

// Names of the commands as they are typed.
inline constexpr unsigned kStyleCommand = 4013;
inline constexpr unsigned kPaletteCommand = 4014;
inline constexpr unsigned kKeywordCommand = 4015;

} // namespace mledit::texts
