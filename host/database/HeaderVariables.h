#pragma once

#include "KdGePoint3d.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <variant>

namespace orvex {

// A value of the drawing's header: integer, real, point, text, or a handle.
struct HeaderHandle {
    std::uint64_t value = 0;
    friend bool operator==(const HeaderHandle&, const HeaderHandle&) = default;
};
using HeaderValue = std::variant<int, double, KdGePoint3d, std::wstring, HeaderHandle>;

// Equal as they would be written: -0.0 differs from 0.0.
[[nodiscard]] bool sameBits(const HeaderValue& a, const HeaderValue& b);

// The header variables that the system understands, by name without the "$" ("CMLSTYLE"). Absent
// ones have the default that the system gives them.
class HeaderVariables {
public:
    HeaderVariables();

    [[nodiscard]] bool has(std::string_view name) const { return m_values.contains(name); }
    [[nodiscard]] const HeaderValue* find(std::string_view name) const; // null when unknown
    void set(std::string_view name, HeaderValue value);
    void remove(std::string_view name);

    [[nodiscard]] int integer(std::string_view name) const; // 0 for another type
    // A file's header may hold anything: `otherwise` for what isn't from `low` to `high`.
    [[nodiscard]] int integerWithin(std::string_view name, int low, int high, int otherwise) const;
    [[nodiscard]] double real(std::string_view name) const;
    [[nodiscard]] KdGePoint3d point(std::string_view name) const;
    [[nodiscard]] const std::wstring& text(std::string_view name) const;

    [[nodiscard]] const std::map<std::string, HeaderValue, std::less<>>& all() const {
        return m_values;
    }
    friend bool operator==(const HeaderVariables&, const HeaderVariables&) = default;

private:
    std::map<std::string, HeaderValue, std::less<>> m_values;
};

} // namespace orvex
