#pragma once

#include <string>
#include <vector>

namespace orvex {

// The user's settings, kept between runs by section and key. A missing key or a value of another
// kind reads as the default.
class ApplicationProfile {
public:
    static ApplicationProfile& instance();

    [[nodiscard]] int integer(const std::wstring& section, const std::wstring& key,
                              int fallback) const;
    void setInteger(const std::wstring& section, const std::wstring& key, int value);
    [[nodiscard]] std::wstring text(const std::wstring& section, const std::wstring& key,
                                    const std::wstring& fallback) const;
    void setText(const std::wstring& section, const std::wstring& key, const std::wstring& value);
    // Empty when there is none.
    [[nodiscard]] std::vector<unsigned char> bytes(const std::wstring& section,
                                                   const std::wstring& key) const;
    void setBytes(const std::wstring& section, const std::wstring& key,
                  const std::vector<unsigned char>& value);
};

} // namespace orvex
