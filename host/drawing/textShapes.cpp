// Texts and inserts with their attributes.

#include "EntityShapes.h"
#include "NumberText.h"
#include "blanks.h"
#include "geometry.h"

#include <algorithm>

namespace orvex {

namespace {

// The character whose number, of three digits, the text begins with; 0 when none can be seen.
wchar_t numberedCharacter(std::wstring_view text) {
    constexpr std::size_t kDigits = 3;
    const std::wstring_view digits = text.substr(0, kDigits);
    if (digits.size() < kDigits || digits.find_first_not_of(L"0123456789") != std::string::npos) {
        return 0;
    }
    const int number = (digits[0] - L'0') * 100 + (digits[1] - L'0') * 10 + (digits[2] - L'0');
    return number >= L' ' && number <= 255 ? static_cast<wchar_t>(number) : L'\0';
}

// %%d, %%p and %%c stand for signs, %%u and %%o switch lines on and off, %%nnn is a character.
std::wstring replaceSigns(std::wstring_view text) {
    std::wstring result;
    while (!text.empty()) {
        if (!text.starts_with(L"%%") || text.size() < 3) {
            result += text.front();
            text.remove_prefix(1);
            continue;
        }
        if (const wchar_t character = numberedCharacter(text.substr(2)); character != 0) {
            result += character;
            text.remove_prefix(5);
            continue;
        }
        const wchar_t sign = text[2];
        text.remove_prefix(3);
        switch (sign) {
        case L'd':
        case L'D':
            result += L'\u00B0';
            break;
        case L'p':
        case L'P':
            result += L'\u00B1';
            break;
        case L'c':
        case L'C':
            result += L'\u2205';
            break;
        case L'u':
        case L'U':
        case L'o':
        case L'O':
        case L'k':
        case L'K':
            break;
        case L'%':
            result += L'%';
            break;
        default:
            result += L"%%";
            result += sign;
            break;
        }
    }
    return result;
}

// A paragraph text taken apart: its formats are dropped, its line breaks kept.
class MtextLines {
public:
    std::vector<std::wstring> run(std::wstring_view text) {
        m_lines.emplace_back();
        for (m_rest = text; !m_rest.empty();) {
            step();
        }
        return std::move(m_lines);
    }

private:
    wchar_t take() {
        const wchar_t first = m_rest.front();
        m_rest.remove_prefix(1);
        return first;
    }
    void step() {
        const wchar_t character = take();
        if (character == L'\\' && !m_rest.empty()) {
            format(take());
        } else if (character == L'^' && !m_rest.empty()) {
            const wchar_t control = take();
            m_lines.back() += control == L' ' ? L"^" : L" ";
        } else if (character != L'{' && character != L'}') {
            m_lines.back() += character;
        }
    }
    void format(wchar_t code) {
        switch (code) {
        case L'P':
        case L'N':
        case L'X':
            m_lines.emplace_back();
            break;
        case L'~':
            m_lines.back() += L' ';
            break;
        case L'\\':
        case L'{':
        case L'}':
            m_lines.back() += code;
            break;
        case L'S':
            stack();
            break;
        case L'L':
        case L'l':
        case L'O':
        case L'o':
        case L'K':
        case L'k':
            break; // lines above, below and through, on and off
        default:
            parameters();
            break;
        }
    }
    // Up to the semicolon.
    std::wstring_view parameters() {
        const std::size_t end = m_rest.find(L';');
        if (end == std::string::npos) {
            return {};
        }
        const std::wstring_view text = m_rest.substr(0, end);
        m_rest.remove_prefix(end + 1);
        return text;
    }
    void stack() {
        std::wstring fraction(parameters());
        std::ranges::replace(fraction, L'^', L'/');
        std::ranges::replace(fraction, L'#', L'/');
        m_lines.back() += fraction;
    }

    std::wstring_view m_rest;
    std::vector<std::wstring> m_lines;
};

enum TextAlignment : int { kAligned = 3, kMiddle = 4, kFit = 5 };

} // namespace

TextShape textShape(const ShapeTags& tags, const DrawingText& text) {
    const EntityPlane plane = EntityPlane::of(tags);
    const int horizontal = tags.integer(72);
    // An attribute has the number of its field's length in 73 and its alignment in 74.
    const int vertical = tags.integer(trimBlanks(tags.text(0)) == "ATTRIB" ? 74 : 73);
    const bool spans = horizontal == kAligned || horizontal == kFit;
    const bool anchored = (horizontal != 0 || vertical != 0) && !spans && tags.has(11);

    TextShape shape;
    shape.position = plane.toWorld(tags.point(anchored ? 11 : 10));
    shape.direction = plane.direction(fileRadians(tags.real(50)));
    if (spans && tags.has(11)) {
        const KdGeVector3d along = plane.toWorld(tags.point(11)) - shape.position;
        if (!along.isZeroLength()) {
            shape.direction = along;
            shape.direction.normalize();
        }
    }
    shape.up = cross(plane.normal, shape.direction);
    shape.height = tags.real(40);
    if (anchored) {
        shape.horizontal = horizontal == kMiddle ? 1 : std::clamp(horizontal, 0, 2);
        shape.vertical = horizontal == kMiddle ? 2 : std::clamp(vertical, 0, 3);
    }
    shape.lines.push_back(replaceSigns(text.decode(tags.text(1))));
    return shape;
}

EntityShape mtextShape(const ShapeTags& tags, const DrawingText& text) {
    const EntityPlane plane = EntityPlane::of(tags);
    TextShape shape;
    shape.position = tags.point(10);
    shape.direction = plane.direction(fileRadians(tags.real(50)));
    if (tags.has(11)) {
        KdGeVector3d along = tags.point(11) - KdGePoint3d();
        if (!along.isZeroLength()) {
            shape.direction = along.normalize();
        }
    }
    shape.up = cross(plane.normal, shape.direction);
    shape.height = tags.real(40);
    // Nine places, three by three from the top left one.
    const int attachment = std::clamp(tags.integer(71, 1), 1, 9) - 1;
    shape.horizontal = attachment % 3;
    shape.vertical = 3 - attachment / 3;
    std::string whole;
    for (const Tag& tag : tags.all()) {
        if (tag.code == 3 || tag.code == 1) {
            whole += tag.value;
        }
    }
    shape.lines = MtextLines().run(replaceSigns(text.decode(whole)));
    return shape;
}

EntityShape insertShape(const std::vector<ShapeTags>& records, const DrawingText& text) {
    constexpr int kMostCells = 100000; // more is a damaged count, not a drawing
    const ShapeTags& tags = records.front();
    const EntityPlane plane = EntityPlane::of(tags);
    const double angle = fileRadians(tags.real(50));
    const KdGeVector3d along = plane.direction(angle);
    const KdGeVector3d across = cross(plane.normal, along);

    InsertShape shape;
    shape.block = text.decode(trimBlanks(tags.text(2)));
    shape.position = plane.toWorld(tags.point(10));
    shape.xAxis = along * tags.real(41, 1.0);
    shape.yAxis = across * tags.real(42, 1.0);
    shape.zAxis = plane.normal * tags.real(43, 1.0);
    shape.columns = std::clamp(tags.integer(70, 1), 1, kMostCells);
    shape.rows = std::clamp(tags.integer(71, 1), 1, kMostCells / shape.columns);
    shape.columnStep = along * tags.real(44);
    shape.rowStep = across * tags.real(45);
    constexpr int kInvisible = 1;
    for (const ShapeTags& record : records) {
        if (trimBlanks(record.text(0)) == "ATTRIB" && (record.integer(70) & kInvisible) == 0) {
            shape.attributes.push_back(textShape(record, text));
        }
    }
    return shape;
}

} // namespace orvex
