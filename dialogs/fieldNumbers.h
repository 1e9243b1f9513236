#pragma once

#include "resbuf.h"

#include <string>

// A number as the fields of the style dialogs take it: digits with one point at most, and a minus
// in front where it is allowed. No exponent, no plus sign, no blank; "-", "." and "-." are valid
// and read as 0. Only the first 511 characters count. `trim` takes white space out
// before; `value`, unless null, gets the number, 0 for a bad text; a null text leaves it.
bool gx_strIsValidReal(const wchar_t* text, bool allowNegative, bool trim, double* value);

namespace mledit {

// Whether the caps of a multiline can have this angle: 10 to 170 degrees, by the number that the
// text begins with.
bool isCapAngle(const wchar_t* text);

// An angle in degrees with that many decimals.
std::wstring degreesText(double radians, int decimals);

// The angle that a text says in degrees, in radians; `before` where it says none.
double radiansOf(const wchar_t* degrees, double before);

// Sets DIMZIN, which says what zeros numbers are written with, for as long as it lives: 0 keeps
// all, 8 drops those at the end.
class ZeroRule {
public:
    explicit ZeroRule(short rule);
    ~ZeroRule();
    ZeroRule(const ZeroRule&) = delete;
    ZeroRule& operator=(const ZeroRule&) = delete;

private:
    resbuf m_before;
    bool m_wasRead;
};

} // namespace mledit
