#include "DrawingText.h"

#include "NumberText.h"
#include "blanks.h"
#include "handleText.h"
#include "textCodec.h"

#include <QTextCodec>
#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

namespace orvex {

namespace {

constexpr std::string_view kFirstUtf8Version = "AC1021";
constexpr std::size_t kEscapeLength = 7; // \U+XXXX

QTextCodec* codecFor(std::string_view codePage) {
    struct Names {
        std::string_view page;
        const char* codec;
    };
    static constexpr std::array kNames{
        Names{"ANSI_874", "windows-874"},
        Names{"ANSI_932", "windows-31j"},
        Names{"ANSI_936", "GBK"},
        Names{"ANSI_949", "windows-949"},
        Names{"ANSI_950", "Big5"},
        Names{"ANSI_1361", "johab"},
        Names{"GB2312", "GBK"},
        Names{"UTF-8", "UTF-8"},
        Names{"UTF8", "UTF-8"},
        Names{"MACINTOSH", "macintosh"},
        Names{"BIG5", "Big5"},
        Names{"KSC5601", "windows-949"},
        Names{"DOS932", "windows-31j"},
    };
    std::string page(trimBlanks(codePage));
    std::ranges::transform(page, page.begin(), [](char c) {
        return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    });
    // Qt compares a name with those of all its codecs.
    thread_local std::string lastPage;
    thread_local QTextCodec* codec = nullptr;
    if (page == std::exchange(lastPage, page)) {
        return codec;
    }
    codec = nullptr;
    if (const auto* const found = std::ranges::find(kNames, page, &Names::page);
        found != kNames.end()) {
        codec = QTextCodec::codecForName(found->codec);
    } else if (page.starts_with("ANSI_")) {
        codec = QTextCodec::codecForName("windows-" + QByteArray::fromStdString(page.substr(5)));
    } else if (page.starts_with("DOS")) {
        codec = QTextCodec::codecForName("IBM" + QByteArray::fromStdString(page.substr(3)));
    } else if (page.starts_with("ISO8859-")) {
        codec = QTextCodec::codecForName("ISO-8859-" + QByteArray::fromStdString(page.substr(8)));
    }
    return codec;
}

bool isPlain(char c) {
    return static_cast<unsigned char>(c) >= 0x20 && (c & 0x80) == 0;
}

int hexDigit(wchar_t c) {
    if (c >= L'0' && c <= L'9') {
        return c - L'0';
    }
    if (c >= L'A' && c <= L'F') {
        return c - L'A' + 10;
    }
    return c >= L'a' && c <= L'f' ? c - L'a' + 10 : -1;
}

// The number of the escape that `text` begins with; -1 when there is none.
long escapeAt(std::wstring_view text) {
    if (text.size() < kEscapeLength || text[0] != L'\\' || (text[1] != L'U' && text[1] != L'u') ||
        text[2] != L'+') {
        return -1;
    }
    long value = 0;
    for (const wchar_t c : text.substr(3, 4)) {
        const int digit = hexDigit(c);
        if (digit < 0) {
            return -1;
        }
        value = value * 16 + digit;
    }
    return value;
}

constexpr bool isHighSurrogate(long value) {
    return value >= 0xD800 && value < 0xDC00;
}
constexpr bool isLowSurrogate(long value) {
    return value >= 0xDC00 && value < 0xE000;
}

std::wstring replaceEscapes(std::wstring_view text) {
    std::wstring result;
    result.reserve(text.size());
    while (!text.empty()) {
        const long value = escapeAt(text);
        if (value < 0) {
            result += text.front();
            text.remove_prefix(1);
            continue;
        }
        text.remove_prefix(kEscapeLength);
        if (const long low = escapeAt(text); isHighSurrogate(value) && isLowSurrogate(low)) {
            result += static_cast<wchar_t>(0x10000 + ((value - 0xD800) << 10) + (low - 0xDC00));
            text.remove_prefix(kEscapeLength);
        } else {
            result += static_cast<wchar_t>(value);
        }
    }
    return result;
}

std::string escape(wchar_t character) {
    auto code = static_cast<char32_t>(character);
    std::string result;
    if (code > 0xFFFF) {
        code -= 0x10000;
        result = escape(static_cast<wchar_t>(0xD800 + (code >> 10U)));
        code = 0xDC00 + (code & 0x3FFU);
    }
    const std::string digits = handleText(code);
    return result + "\\U+" + std::string(4 - std::min<std::size_t>(4, digits.size()), '0') + digits;
}

} // namespace

DrawingText::DrawingText(std::string_view version, std::string_view codePage)
    : m_isUtf8(trimBlanks(version) >= kFirstUtf8Version),
      m_codec(m_isUtf8 ? nullptr : codecFor(codePage)) {
    if (!m_isUtf8 && m_codec == nullptr) {
        m_codec = codecFor("ANSI_1252");
    }
}

std::wstring DrawingText::decode(std::string_view bytes) const {
    const bool plain = std::ranges::all_of(bytes, isPlain);
    std::wstring text = plain ? std::wstring(bytes.begin(), bytes.end()) : decodeBytes(bytes);
    return text.find(L'\\') == std::string::npos ? text : replaceEscapes(text);
}

std::wstring DrawingText::decodeBytes(std::string_view bytes) const {
    if (m_isUtf8 || m_codec == nullptr) {
        return widen(bytes);
    }
    return m_codec->toUnicode(bytes.data(), static_cast<int>(bytes.size())).toStdWString();
}

std::string DrawingText::encode(std::wstring_view text) const {
    std::string result;
    result.reserve(text.size());
    for (; !text.empty(); text.remove_prefix(1)) {
        const wchar_t character = text.front();
        const bool looksEscaped = character == L'\\' && escapeAt(text) >= 0;
        const std::string bytes = looksEscaped ? std::string() : encodeCharacter(character);
        result += bytes.empty() ? escape(character) : bytes;
    }
    return result;
}

std::string DrawingText::encodeCharacter(wchar_t character) const {
    const auto code = static_cast<char32_t>(character);
    if (code >= 0x20 && code < 0x7F) {
        return std::string(1, static_cast<char>(code));
    }
    if (code < 0x20 || code == 0x7F || (code >= 0xD800 && code < 0xE000) || code > 0x10FFFF) {
        return {};
    }
    if (m_isUtf8 || m_codec == nullptr) {
        return narrow({&character, 1});
    }
    const QString text = QString::fromUcs4(&code, 1);
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    const QByteArray bytes = m_codec->fromUnicode(text.constData(), text.size(), &state);
    // Some codecs give a near match without saying so.
    if (state.invalidChars > 0 || m_codec->toUnicode(bytes) != text) {
        return {};
    }
    return bytes.toStdString();
}

} // namespace orvex
