#include "fieldNumbers.h"

#include "promptStatus.h"
#include "systemVariables.h"
#include "unitText.h"
#include "wideNumbers.h"

#include <algorithm>
#include <array>
#include <cwchar>
#include <cwctype>

namespace {

constexpr std::size_t kLongest = 511;
constexpr double kSharpestAngle = 10.0;
constexpr double kFlattestAngle = 170.0;
constexpr int kDecimalDegrees = 0;
constexpr const wchar_t* kZeroVariable = L"DIMZIN";

bool isReal(const std::wstring& text, bool allowNegative) {
    int points = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const wchar_t character = text[i];
        if (character == L'.') {
            if (++points > 1) {
                return false;
            }
        } else if (character == L'-') {
            if (!allowNegative || i > 0) {
                return false;
            }
        } else if (character < L'0' || character > L'9') {
            return false;
        }
    }
    return !text.empty();
}

} // namespace

bool gx_strIsValidReal(const wchar_t* text, bool allowNegative, bool trim, double* value) {
    if (text == nullptr) {
        return false;
    }
    if (value != nullptr) {
        *value = 0.0;
    }
    const std::size_t length = std::find(text, text + kLongest, L'\0') - text;
    std::wstring copy(text, length);
    if (trim) {
        std::erase_if(copy, [](wchar_t character) { return std::iswspace(character) != 0; });
    }
    if (!isReal(copy, allowNegative)) {
        return false;
    }
    if (value != nullptr) {
        *value = _wtof(copy.c_str());
    }
    return true;
}

namespace mledit {

bool isCapAngle(const wchar_t* text) {
    const double degrees = _wtof(text);
    return degrees >= kSharpestAngle && degrees <= kFlattestAngle;
}

std::wstring degreesText(double radians, int decimals) {
    std::array<wchar_t, kLongest + 1> text{};
    kddbAngToS(radians, kDecimalDegrees, decimals, text.data());
    return text.data();
}

double radiansOf(const wchar_t* degrees, double before) {
    double radians = before;
    kddbAngToF(degrees, kDecimalDegrees, &radians);
    return radians;
}

ZeroRule::ZeroRule(short rule) : m_wasRead(kdedGetVar(kZeroVariable, &m_before) == kPromptNormal) {
    resbuf value;
    value.restype = kResultShort;
    value.resval.rint = rule;
    kdedSetVar(kZeroVariable, &value);
}

ZeroRule::~ZeroRule() {
    if (m_wasRead) {
        kdedSetVar(kZeroVariable, &m_before);
    }
}

} // namespace mledit
