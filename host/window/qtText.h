#pragma once

#include "CStdStr.h"

#include <QString>

namespace orvex {

// Null reads as empty.
inline QString toQt(const wchar_t* text) {
    return text != nullptr ? QString::fromWCharArray(text) : QString();
}

inline CStdStr<wchar_t> fromQt(const QString& text) {
    return CStdStr<wchar_t>(text.toStdWString());
}

} // namespace orvex
