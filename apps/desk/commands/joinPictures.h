#pragma once

#include "JoinPlace.h"

namespace orvex {

// Strokes for strokeIcon: how walls of three lines are to look where they cross, or where one ends
// on the other.
const char* crossPicture(JoinKind kind);
const char* teePicture(JoinKind kind);

} // namespace orvex
