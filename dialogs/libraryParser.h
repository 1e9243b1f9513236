#pragma once

#include "CStdStr.h"
#include "byteOrderMark.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace mledit {

// The lines of a library as the readers see them: wide, without the line feed, and at most 2047
// characters long; the rest of a longer one comes as a further line. A carriage return stays in
// the line. Invalid UTF-8 is replaced, a byte-order mark at the front left out.
class LibraryLines {
public:
    // The bytes have to outlive the lines.
    explicit LibraryLines(std::string_view bytes) : m_bytes(orvex::withoutByteOrderMark(bytes)) {}

    std::optional<std::wstring> next(); // nothing at the end

    // Set by the read that met the end of the file: of a last line without a line feed already by
    // the read that gave it.
    [[nodiscard]] bool metEnd() const { return m_metEnd; }

private:
    void takeLine();

    std::string_view m_bytes;   // after the line at hand
    std::wstring m_line;        // the line at hand
    std::size_t m_given = 0;    // how much of it has been given
    bool m_isComplete = true;   // all of it has been given
    bool m_hasLineFeed = false; // after it
    bool m_metEnd = false;
};

// A style as a library's block has it: the values in the order of their tags, since the parts of
// the fill colour build on each other and a block may say a thing twice.

struct LibraryElement {
    double offset = 0.0; // drawing units at scale 1
    int color = 0;       // index
    // 0xRRGGBB; above that the element has no true colour.
    unsigned trueColor = 0xFFFFFFFFU;
    CStdStr<wchar_t> colorName; // with the blank that stands before every value
    CStdStr<wchar_t> linetype;
};

struct LibraryValue {
    struct Description {
        CStdStr<wchar_t> text;
    };
    struct Flags {
        int flags = 0;
    };
    struct FillIndex {
        std::uint16_t index = 0;
    };
    struct FillColor {
        unsigned value = 0; // packed
    };
    struct FillKey {
        CStdStr<wchar_t> key; // of a colour book
    };
    struct Angle {
        bool atEnd = false;
        CStdStr<wchar_t> degrees;
    };
    struct ElementCount {
        int count = 0; // at most as many as a style's block can hold
    };
    // As many as the count; comes only when all of them were read.
    struct Elements {
        std::vector<LibraryElement> elements;
    };
};

using LibraryStep =
    std::variant<LibraryValue::Description, LibraryValue::Flags, LibraryValue::FillIndex,
                 LibraryValue::FillColor, LibraryValue::FillKey, LibraryValue::Angle,
                 LibraryValue::ElementCount, LibraryValue::Elements>;

// Reads the block of that name, ignoring case, out of a library's bytes and hands over its values
// one after the other. True when the block stops at its "0", or the file with a line that no line
// feed ends; false when there is no such block or it stops short. A count is never trusted:
// elements beyond 256 are read and dropped.
bool parseStyleBlock(std::string_view library, const wchar_t* name,
                     const std::function<void(const LibraryStep&)>& take);

} // namespace mledit
