#include "typedPoint.h"

#include "blanks.h"
#include "geometry.h"
#include "hostText.h"
#include "typedAnswer.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace orvex {

namespace {

// The unit vector at an angle in degrees; users expect 90 to be square, and half of 30 to be 0.5.
KdGeVector3d directionOf(double degrees) {
    int quarters = 0;
    const double rest = std::remquo(degrees, 90.0, &quarters);
    const double sine = std::abs(rest) == 30.0 ? rest / 60.0 : std::sin(toRadians(rest));
    const double cosine = std::cos(toRadians(rest));
    switch (quarters & 3) {
    case 0:
        return {cosine, sine, 0.0};
    case 1:
        return {-sine, cosine, 0.0};
    case 2:
        return {-cosine, -sine, 0.0};
    default:
        return {sine, -cosine, 0.0};
    }
}

bool isFinite(const KdGePoint3d& point) {
    return std::isfinite(point.x) && std::isfinite(point.y) && std::isfinite(point.z);
}

// Reads a text from its front to its back and stops at what is wrong.
class PointReader {
public:
    PointReader(std::wstring_view text, const KdGePoint3d& last) : m_text(text), m_last(last) {}

    PointReading read() {
        if (m_text.find_first_of(L",<@") == std::wstring_view::npos) {
            return {};
        }
        std::optional<TypedPoint> result;
        if (const auto point = readPlace(); point && !isFinite(*point)) {
            fail(0, wideHostText("the point is too far away"));
        } else if (point) {
            result = TypedPoint{*point, {}};
        }
        if (result && m_at < m_text.size()) { // at the sign of a handle
            result->handle = parseHandlePick(m_text.substr(m_at));
            if (!result->handle) {
                fail(m_at, wideHostText("a hexadecimal handle has to follow '#'"));
            }
        }
        return m_broken ? PointReading(*m_broken) : PointReading(*result);
    }

private:
    std::optional<KdGePoint3d> readPlace() {
        skipBlanks();
        const bool isRelative = m_at < m_text.size() && m_text[m_at] == L'@';
        if (!isRelative) {
            return readNumbers(false);
        }
        ++m_at;
        skipBlanks();
        if (m_at == m_text.size() || m_text[m_at] == L'#') {
            return m_last;
        }
        return readNumbers(true);
    }

    std::optional<KdGePoint3d> readNumbers(bool isRelative) {
        const std::size_t start = m_at;
        const auto first = readNumber();
        if (!first) {
            return std::nullopt;
        }
        const wchar_t sign = m_at < m_text.size() ? m_text[m_at] : L'\0';
        if (sign != L',' && sign != L'<') {
            return fail(m_at, isRelative ? wideHostText("a comma or '<' has to follow")
                                         : wideHostText("a comma has to follow"));
        }
        if (sign == L'<' && !isRelative) {
            return fail(start, wideHostText("a length with an angle begins with '@'"));
        }
        ++m_at;
        const auto second = readNumber();
        if (!second) {
            return std::nullopt;
        }
        const bool hasThird = m_at < m_text.size() && m_text[m_at] != L'#';
        if (sign == L'<') {
            return hasThird ? fail(m_at, wideHostText("nothing can follow the angle"))
                            : std::optional(m_last + directionOf(*second) * *first);
        }
        const std::optional<double> third = hasThird ? readThird() : 0.0;
        if (!third) {
            return std::nullopt;
        }
        return isRelative ? m_last + KdGeVector3d{*first, *second, *third}
                          : KdGePoint3d{*first, *second, *third};
    }

    std::optional<double> readThird() {
        if (m_text[m_at] == L'<') {
            return fail(m_at, wideHostText("an angle follows a length alone"));
        }
        ++m_at;
        const auto z = readNumber();
        if (z && m_at < m_text.size() && m_text[m_at] != L'#') {
            return fail(m_at, wideHostText("nothing can follow the third number"));
        }
        return z;
    }

    // Up to the next sign.
    std::optional<double> readNumber() {
        skipBlanks();
        const std::size_t start = m_at;
        m_at = std::min(m_text.find_first_of(L",<@#", start), m_text.size());
        const std::wstring_view digits = trimBlanks(m_text.substr(start, m_at - start));
        if (digits.empty()) {
            fail(start, wideHostText("a number is missing"));
            return std::nullopt;
        }
        const std::optional<double> number = parseReal(digits);
        if (!number) {
            fail(start, wideHostText("'%1' is no number", {std::wstring(digits)}));
        } else if (m_at < m_text.size() && m_text[m_at] == L'@') {
            fail(m_at, wideHostText("'@' belongs at the beginning"));
            return std::nullopt;
        }
        return number;
    }

    void skipBlanks() {
        while (m_at < m_text.size() && (m_text[m_at] == L' ' || m_text[m_at] == L'\t')) {
            ++m_at;
        }
    }

    std::nullopt_t fail(std::size_t place, std::wstring reason) {
        m_broken = BrokenPoint{place, std::move(reason)};
        return std::nullopt;
    }

    std::wstring_view m_text;
    KdGePoint3d m_last;
    std::size_t m_at = 0;
    std::optional<BrokenPoint> m_broken;
};

} // namespace

PointReading readPoint(std::wstring_view text, const KdGePoint3d& last) {
    return PointReader(text, last).read();
}

} // namespace orvex
