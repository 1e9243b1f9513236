#include "HeaderVariables.h"

#include "sameBits.h"

namespace orvex {

bool sameBits(const HeaderValue& a, const HeaderValue& b) {
    if (const auto* const real = std::get_if<double>(&a)) {
        const auto* const other = std::get_if<double>(&b);
        return other != nullptr && sameBits(*real, *other);
    }
    if (const auto* const point = std::get_if<KdGePoint3d>(&a)) {
        const auto* const other = std::get_if<KdGePoint3d>(&b);
        return other != nullptr && sameBits(*point, *other);
    }
    return a == b;
}

HeaderVariables::HeaderVariables()
    : m_values{
          {"CECOLOR", 256},
          {"CELTSCALE", 1.0},
          {"CELTYPE", std::wstring(L"ByLayer")},
          {"CLAYER", std::wstring(L"0")},
          {"CMLJUST", 0},
          {"CMLSCALE", 1.0},
          {"CMLSTYLE", std::wstring(L"STANDARD")},
          // Extents of nothing: the low corner above the high one.
          {"EXTMIN", KdGePoint3d{1e20, 1e20, 1e20}},
          {"EXTMAX", KdGePoint3d{-1e20, -1e20, -1e20}},
          {"HANDSEED", HeaderHandle{1}},
          {"INSUNITS", 0},
          {"LTSCALE", 1.0},
          {"MEASUREMENT", 0},
          {"UCSORG", KdGePoint3d{}},
          {"UCSXDIR", KdGePoint3d{1.0, 0.0, 0.0}},
          {"UCSYDIR", KdGePoint3d{0.0, 1.0, 0.0}},
      } {}

const HeaderValue* HeaderVariables::find(std::string_view name) const {
    const auto found = m_values.find(name);
    return found != m_values.end() ? &found->second : nullptr;
}

void HeaderVariables::set(std::string_view name, HeaderValue value) {
    m_values.insert_or_assign(std::string(name), std::move(value));
}

void HeaderVariables::remove(std::string_view name) {
    if (const auto found = m_values.find(name); found != m_values.end()) {
        m_values.erase(found);
    }
}

namespace {

template <class T>
const T& valueOr(const HeaderValue* value, const T& otherwise) {
    const T* const typed = value != nullptr ? std::get_if<T>(value) : nullptr;
    return typed != nullptr ? *typed : otherwise;
}

} // namespace

int HeaderVariables::integer(std::string_view name) const {
    return valueOr(find(name), 0);
}

int HeaderVariables::integerWithin(std::string_view name, int low, int high, int otherwise) const {
    const int value = integer(name);
    return value >= low && value <= high ? value : otherwise;
}

double HeaderVariables::real(std::string_view name) const {
    return valueOr(find(name), 0.0);
}

KdGePoint3d HeaderVariables::point(std::string_view name) const {
    return valueOr(find(name), KdGePoint3d());
}

const std::wstring& HeaderVariables::text(std::string_view name) const {
    static const std::wstring none;
    return valueOr(find(name), none);
}

} // namespace orvex
