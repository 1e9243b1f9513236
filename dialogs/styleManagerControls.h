#pragma once

// Numbers of the style manager's controls.
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
inline constexpr int kManagerClose = 1;
