#pragma once

#include <string>

// A text with a narrow form (UTF-8) that lives as long as the object.
class KdString {
public:
    KdString() = default;
    explicit KdString(const wchar_t* text);

    [[nodiscard]] const wchar_t* wide() const { return m_wide.c_str(); }
    [[nodiscard]] const char* kszPtr() const { return m_narrow.c_str(); }

private:
    std::wstring m_wide;
    std::string m_narrow;
};
