#include "libraryParser.h"

#include "textCodec.h"
#include "wideNumbers.h"

#include <algorithm>
#include <array>

namespace mledit {

void LibraryLines::takeLine() {
    const std::size_t lineFeed = m_bytes.find('\n');
    m_hasLineFeed = lineFeed != std::string_view::npos;
    m_line = orvex::widen(m_bytes.substr(0, lineFeed));
    m_bytes.remove_prefix(m_hasLineFeed ? lineFeed + 1 : m_bytes.size());
    m_given = 0;
}

std::optional<std::wstring> LibraryLines::next() {
    constexpr std::size_t kLongest = 2047;
    if (m_isComplete) {
        if (m_bytes.empty()) {
            m_metEnd = true;
            return std::nullopt;
        }
        takeLine();
    }
    std::wstring piece = m_line.substr(m_given, kLongest);
    m_given += piece.size();
    // A piece of full length stops before whatever comes next, be it the line feed alone or the
    // end of the file.
    const bool isFull = piece.size() == kLongest;
    m_isComplete = !isFull || (m_given == m_line.size() && !m_hasLineFeed);
    m_metEnd = !isFull && !m_hasLineFeed;
    if (const std::size_t zero = piece.find(L'\0'); zero != std::wstring::npos) {
        piece.resize(zero); // texts end there
    }
    return piece;
}

namespace {

constexpr int kMostElements = 256;
using Text = CStdStr<wchar_t>;

bool isTag(const std::wstring& line, const wchar_t* tag) {
    return StrCmpI(line.c_str(), tag) == 0;
}

// A value stands after one character, whatever it is; a "%" in it is plain text.
Text valueOf(const std::wstring& line) {
    return Text(line.substr(std::min<std::size_t>(line.size(), 1)));
}

// The number after tag 420. Only the first digit has ever counted, and red and blue are exchanged
// on the way; libraries in use look as they do because of it.
unsigned packedColor(const Text& value) {
    const wchar_t first = value.c_str()[0];
    const unsigned number =
        first >= L'0' && first <= L'9' ? static_cast<unsigned>(first - L'0') : 0;
    return (number & 0xFFU) << 16U | (number & 0xFF00U) | (number >> 16U & 0xFFU);
}

class BlockParser {
public:
    BlockParser(std::string_view library, const std::function<void(const LibraryStep&)>& take)
        : m_lines(library), m_take(take) {}

    bool run(const wchar_t* name) { return find(name) ? readBlock() : m_hasRead; }

private:
    // The next line; false when there is none.
    bool read() {
        std::optional<std::wstring> line = m_lines.next();
        m_hasRead = line.has_value();
        if (line) {
            m_line = std::move(*line);
        }
        return m_hasRead;
    }
    bool find(const wchar_t* name);
    bool readBlock();
    bool readTag();
    bool readElements(int count);
    bool readElement(LibraryElement& element);

    LibraryLines m_lines;
    std::wstring m_line; // the line at hand
    bool m_hasRead = false;
    const std::function<void(const LibraryStep&)>& m_take;
};

bool BlockParser::find(const wchar_t* name) {
    while (!m_lines.metEnd() && read()) {
        if (isTag(m_line, L"MLSTYLE")) {
            if (!read()) {
                return false;
            }
            if (isTag(m_line, L"2")) {
                if (!read()) {
                    return false;
                }
                if (StrCmpI(valueOf(m_line).c_str(), name) == 0) {
                    return true;
                }
            }
        }
    }
    return false;
}

// True when the style is to be closed after it.
bool BlockParser::readBlock() {
    while (!m_lines.metEnd()) {
        if (!read()) {
            return false;
        }
        if (isTag(m_line, L"0")) {
            return true;
        }
        if (!readTag()) {
            return false;
        }
    }
    return true;
}

// Takes the value of the tag at hand; a line that is none stands for itself. False when the file
// ends before it.
bool BlockParser::readTag() {
    constexpr std::array<const wchar_t*, 8> kTags{L"3",   L"70", L"62", L"420",
                                                  L"430", L"51", L"52", L"71"};
    const auto* const tag =
        std::ranges::find_if(kTags, [this](const wchar_t* each) { return isTag(m_line, each); });
    if (tag == kTags.end()) {
        return true;
    }
    if (!read()) {
        return false;
    }
    const Text value = valueOf(m_line);
    const int number = _wtoi(value.c_str());
    switch (tag - kTags.begin()) {
    case 0:
        m_take(LibraryValue::Description{value});
        break;
    case 1:
        m_take(LibraryValue::Flags{number});
        break;
    case 2:
        m_take(LibraryValue::FillIndex{static_cast<std::uint16_t>(number)});
        break;
    case 3:
        m_take(LibraryValue::FillColor{packedColor(value)});
        break;
    case 4:
        m_take(LibraryValue::FillKey{value});
        break;
    case 5:
    case 6:
        m_take(LibraryValue::Angle{.atEnd = tag - kTags.begin() == 6, .degrees = value});
        break;
    default:
        m_take(LibraryValue::ElementCount{std::clamp(number, 0, kMostElements)});
        return readElements(number);
    }
    return true;
}

// Whatever the count, one element is read, that of the next block if need be; one that the count
// doesn't cover isn't kept.
bool BlockParser::readElements(int count) {
    std::vector<LibraryElement> elements;
    for (int i = 0; i < std::max(count, 1); ++i) {
        LibraryElement element;
        if (!readElement(element)) {
            return false;
        }
        if (i < std::min(count, kMostElements)) {
            elements.push_back(std::move(element));
        }
    }
    m_take(LibraryValue::Elements{std::move(elements)});
    return true;
}

bool BlockParser::readElement(LibraryElement& element) {
    do {
        if (!read()) {
            return false;
        }
    } while (!isTag(m_line, L"49"));
    if (!read()) {
        return false;
    }
    element.offset = _wtof(valueOf(m_line).c_str());
    // The tag of the colour is taken on trust.
    if (!read() || !read()) {
        return false;
    }
    element.color = _wtoi(valueOf(m_line).c_str());
    if (!read()) {
        return false;
    }
    if (m_line == L"420") {
        if (!read()) {
            return false;
        }
        element.trueColor = packedColor(valueOf(m_line));
        if (!read()) {
            return false;
        }
    }
    if (m_line == L"430") {
        if (!read()) {
            return false;
        }
        element.colorName = Text(m_line);
        if (!read()) {
            return false;
        }
    }
    // The line at hand ought to be tag 6. Where a writer has left it out it is the next element's
    // 49, whose offset then serves as the name of a line type.
    if (!read()) {
        return false;
    }
    element.linetype = valueOf(m_line);
    return true;
}

} // namespace

bool parseStyleBlock(std::string_view library, const wchar_t* name,
                     const std::function<void(const LibraryStep&)>& take) {
    return BlockParser(library, take).run(name);
}

} // namespace mledit
