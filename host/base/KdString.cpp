#include "KdString.h"

#include "textCodec.h"

KdString::KdString(const wchar_t* text)
    : m_wide(text != nullptr ? text : L""), m_narrow(orvex::narrow(m_wide)) {}
