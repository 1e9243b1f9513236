#pragma once

#include <string>
#include <string_view>

namespace orvex {

// What a save writes into is called like that, with six letters or digits in the place of the X. It
// is locked as long as it is written.
inline constexpr std::string_view kTemporaryPattern = ".saving-XXXXXX";

// Locks a temporary file that was just made. False where it was taken for a dead process's in
// between, and is gone; where the file system has no locks nobody takes it.
bool lockTemporary(int descriptor);

// Removes what saves left in a folder that were killed: files of that name that are the user's own
// and whose lock is free. All others stay, and nothing is said.
void removeLeftBehind(const std::string& folder);

} // namespace orvex
