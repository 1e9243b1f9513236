#pragma once

#include "DeskSettings.h"
#include "applicationProfile.h"

namespace orvex::testing {

// What a window before this one in the same process left in the profile.
inline void forgetDeskSettings() {
    for (const wchar_t* const key : {L"RecentFiles", DeskSettings::kSnap, DeskSettings::kSnapModes,
                                     DeskSettings::kSnapAperture, DeskSettings::kAngleStep,
                                     DeskSettings::kDirection, DeskSettings::kUndoMemory}) {
        ApplicationProfile::instance().setText(L"Desk", key, L"");
    }
}

} // namespace orvex::testing
