#pragma once

// Numbers of the engine's texts in the module's resource library.
namespace editTexts {

inline constexpr unsigned kUndoKeyword = 4002;
inline constexpr unsigned kClosedRefused = 4006;
inline constexpr unsigned kNoCrossing = 4007;

} // namespace editTexts
