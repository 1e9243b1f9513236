#pragma once

// Numbers of the dialogs' controls; those of the tool buttons are in toolTable.h.
namespace mledit {

// In all dialogs of styles; the manager has no cancelling button.
inline constexpr int kAcceptButton = 1;
inline constexpr int kCancelButton = 2;

// The style manager.
inline constexpr int kManagerList = 1021;
inline constexpr int kManagerCurrentStyle = 1022;
inline constexpr int kManagerDescriptionBox = 1023;
inline constexpr int kManagerDescription = 1024;
inline constexpr int kManagerPreview = 1025;
inline constexpr int kManagerSetCurrent = 1026;
inline constexpr int kManagerNew = 1028;
inline constexpr int kManagerModify = 1029;
inline constexpr int kManagerRename = 1030;
inline constexpr int kManagerDelete = 1031;
inline constexpr int kManagerLoad = 1032;
inline constexpr int kManagerSave = 1033;

// The new style dialog.
inline constexpr int kNewNameField = 1035;
inline constexpr int kNewStyleCombo = 1036;

// The modify dialog.
inline constexpr int kDescriptionField = 1037;
inline constexpr int kStartLineBox = 1038;
inline constexpr int kEndLineBox = 1039;
inline constexpr int kStartOuterArcBox = 1040;
inline constexpr int kStartInnerArcsBox = 1041;
inline constexpr int kEndOuterArcBox = 1042;
inline constexpr int kEndInnerArcsBox = 1043;
inline constexpr int kStartAngleField = 1044;
inline constexpr int kEndAngleField = 1045;
inline constexpr int kElementList = 1046;
inline constexpr int kJointsBox = 1047;
inline constexpr int kFillColorCombo = 1048;
inline constexpr int kElementColorCombo = 1049;
inline constexpr int kOffsetField = 1050;
inline constexpr int kAddButton = 1051;
inline constexpr int kDeleteButton = 1052;
inline constexpr int kFillBox = 1054;
inline constexpr int kLinetypeCombo = 1055;

// The load dialog. Its view has neither a display of the file name nor a line for messages.
inline constexpr int kLoadFileButton = 1056;
inline constexpr int kLoadFileName = 1057;
inline constexpr int kLoadStyleList = 1058;
inline constexpr int kLoadMessage = 1064;

// The rename dialog.
inline constexpr int kRenameOldName = 1059;
inline constexpr int kRenameNameField = 1060;
inline constexpr int kRenameStyleCombo = 1065;

// The tool palette.
inline constexpr int kPaletteClose = 5771;

} // namespace mledit
