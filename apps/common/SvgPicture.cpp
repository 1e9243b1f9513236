#include "SvgPicture.h"

#include "dashCycle.h"
#include "geometry.h"
#include "labelBox.h"
#include "textCodec.h"

#include <array>
#include <charconv>
#include <cmath>

namespace orvex {

namespace {

constexpr std::size_t kLongestPath = 2000; // characters, so that lines stay readable
constexpr double kLeastPeriod = 3.0;       // pixels; finer dashes look grey

// Two decimals at most, a point, no exponent.
std::string decimal(double value) {
    std::array<char, 64> digits{};
    const double rounded = std::round(value * 100.0) / 100.0 + 0.0;
    // What lies beyond is off any page.
    const double kept = std::abs(rounded) < 1e15 ? rounded : 0.0;
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), kept, std::chars_format::fixed);
    return {digits.data(), end.ptr};
}

std::string decimals(const PlanPoint& point) {
    return decimal(point.x) + ' ' + decimal(point.y);
}

std::string color(std::uint32_t rgb) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string text = "#";
    for (int shift = 20; shift >= 0; shift -= 4) {
        text += kDigits[(rgb >> static_cast<unsigned>(shift)) & 0xFU];
    }
    return text;
}

// As text of an element: markup escaped, control characters, which XML doesn't have, as blanks.
std::string escaped(const std::wstring& text) {
    std::wstring plain = text;
    for (wchar_t& letter : plain) {
        if (letter < L' ' || letter == 0xFFFE || letter == 0xFFFF) {
            letter = L' ';
        }
    }
    std::string result;
    for (const char letter : narrow(plain)) {
        switch (letter) {
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        case '&':
            result += "&amp;";
            break;
        default:
            result += letter;
        }
    }
    return result;
}

} // namespace

void SvgPicture::add(const Appearance& appearance) {
    for (const Fill& fill : appearance.fills) {
        addFill(fill);
    }
    for (const Stroke& stroke : appearance.strokes) {
        addStroke(stroke, appearance);
    }
    for (const Label& label : appearance.labels) {
        addLabel(label);
    }
}

void SvgPicture::addFill(const Fill& fill) {
    m_fills += "<path fill=\"" + color(paintedRgb(fill.rgb, m_settings)) + "\" d=\"";
    char move = 'M';
    for (const PlanPoint& point : fill.outline) {
        m_fills += move + decimals(m_view.toPixels(point));
        move = 'L';
    }
    m_fills += "Z\"/>\n";
}

void SvgPicture::addStroke(const Stroke& stroke, const Appearance& appearance) {
    if (stroke.points.empty()) {
        return;
    }
    const std::string attributes = strokeAttributes(stroke, appearance);
    if (attributes != m_pathAttributes || m_path.size() > kLongestPath) {
        endPath();
        m_pathAttributes = attributes;
    }
    // Dashes begin anew with each line.
    const std::string start = decimals(m_view.toPixels(stroke.points.front()));
    if (start != m_pathEnd || stroke.dashes != 0) {
        m_path += 'M' + start;
        m_pathEnd = start;
    }
    bool moved = false;
    for (std::size_t i = 1; i < stroke.points.size(); ++i) {
        const std::string place = decimals(m_view.toPixels(stroke.points[i]));
        if (place != m_pathEnd) {
            m_path += 'L' + place;
            m_pathEnd = place;
            moved = true;
        }
    }
    if (!moved) { // round ends make a dot of it
        m_path += 'L' + start;
    }
}

std::string SvgPicture::strokeAttributes(const Stroke& stroke, const Appearance& appearance) const {
    std::string attributes = "stroke=\"" + color(paintedRgb(stroke.rgb, m_settings)) + '"';
    const double width = paintedWidth(stroke, m_settings);
    if (width != m_settings.lineWidth) {
        attributes += " stroke-width=\"" + decimal(width) + '"';
    }
    if (stroke.dashes == 0 || stroke.dashes > appearance.dashPatterns.size()) {
        return attributes;
    }
    const DashCycle cycle = dashCycle(appearance.dashPatterns[stroke.dashes - 1],
                                      1.0 / m_view.unitsPerPixel(), width, kLeastPeriod);
    if (cycle.lengths.empty()) {
        return attributes;
    }
    attributes += " stroke-linecap=\"butt\" stroke-dasharray=\"";
    for (std::size_t i = 0; i < cycle.lengths.size(); ++i) {
        attributes += (i > 0 ? " " : "") + decimal(cycle.lengths[i]);
    }
    attributes += '"';
    if (cycle.offset > 0.0) {
        attributes += " stroke-dashoffset=\"" + decimal(cycle.offset) + '"';
    }
    return attributes;
}

void SvgPicture::endPath() {
    if (!m_path.empty()) {
        m_lines += "<path " + m_pathAttributes + " d=\"" + m_path + "\"/>\n";
    }
    m_path.clear();
    m_pathEnd.clear();
}

void SvgPicture::addLabel(const Label& label) {
    const double rise = baseLineRise(label);
    const PlanPoint place = m_view.toPixels({label.anchor.x - rise * std::sin(label.angle),
                                             label.anchor.y + rise * std::cos(label.angle)});
    const double size = label.height / kCapitalOfFontSize / m_view.unitsPerPixel();
    m_labels += "<text x=\"" + decimal(place.x) + "\" y=\"" + decimal(place.y) + "\" font-size=\"" +
                decimal(size) + "\" fill=\"" + color(paintedRgb(label.rgb, m_settings)) + '"';
    if (label.horizontal != 0) {
        m_labels += label.horizontal == 1 ? " text-anchor=\"middle\"" : " text-anchor=\"end\"";
    }
    const double degrees = toDegrees(-label.angle);
    if (decimal(degrees) != "0") {
        m_labels += " transform=\"rotate(" + decimal(degrees) + ' ' + decimals(place) + ")\"";
    }
    m_labels += '>' + escaped(label.text) + "</text>\n";
}

void SvgPicture::addMark(const Appearance& appearance, const PaintSettings& settings) {
    SvgPicture marks(m_view, settings);
    marks.add(appearance);
    marks.endPath();
    if (!marks.m_lines.empty()) {
        m_marks += lineGroup(marks.m_lines, settings.lineWidth);
    }
    m_labels += marks.m_labels;
}

std::string SvgPicture::lineGroup(const std::string& lines, double width) {
    return "<g fill=\"none\" stroke-width=\"" + decimal(width) +
           "\" stroke-linecap=\"round\" stroke-linejoin=\"round\">\n" + lines + "</g>\n";
}

std::string SvgPicture::text(const SvgPage& page) {
    endPath();
    const auto length = [&](int pixels) {
        return page.pixelsPerMillimetre > 0.0 ? decimal(pixels / page.pixelsPerMillimetre) + "mm"
                                              : std::to_string(pixels);
    };
    const std::string ground = page.ground ? "<rect width=\"100%\" height=\"100%\" fill=\"" +
                                                 color(*page.ground) + "\"/>\n"
                                           : std::string();
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + length(m_view.width()) +
           "\" height=\"" + length(m_view.height()) + "\" viewBox=\"0 0 " +
           std::to_string(m_view.width()) + ' ' + std::to_string(m_view.height()) + "\">\n" +
           ground + "<g>\n" + m_fills + "</g>\n" + lineGroup(m_lines, m_settings.lineWidth) +
           m_marks + "<g font-family=\"DejaVu Sans, sans-serif\">\n" + m_labels + "</g>\n</svg>\n";
}

} // namespace orvex
