#pragma once

// Numbers as the fields of the style dialogs take them: digits with one point at most, and a minus
// in front where it is allowed. Neither exponent nor plus sign nor blank, and "-", "." and "-."
// will do, for they read as 0. Only the first 511 characters count. `trim` takes white space out
// before; `value`, unless null, gets the number, 0 for a bad text; a null text leaves it.
bool gx_strIsValidReal(const wchar_t* text, bool allowNegative, bool trim, double* value);

// Whether the caps of a multiline can have this angle: 10 to 170 degrees, by the number that the
// text begins with.
bool isCapAngle(const wchar_t* text);
