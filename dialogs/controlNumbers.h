#pragma once

// The modify dialog's controls under their numbers.
enum ModifyControl : int {
    kDescriptionField = 1037,
    kStartLineBox = 1038,
    kEndLineBox = 1039,
    kStartOuterArcBox = 1040,
    kStartInnerArcsBox = 1041,
    kEndOuterArcBox = 1042,
    kEndInnerArcsBox = 1043,
    kStartAngleField = 1044,
    kEndAngleField = 1045,
    kElementList = 1046,
    kJointsBox = 1047,
    kFillColorCombo = 1048,
    kElementColorCombo = 1049,
    kOffsetField = 1050,
    kAddButton = 1051,
    kDeleteButton = 1052,
    kFillBox = 1054,
    kLinetypeCombo = 1055,
};

// The offset field where no row is selected.
inline constexpr const wchar_t* kNoOffset = L"0.000";
