#include "BinaryTags.h"

#include "NumberText.h"
#include "blanks.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

static_assert(std::endian::native == std::endian::little,
              "numbers of the binary form are copied as they are");

namespace orvex {

namespace {

constexpr int kEscape = 255; // before a two-byte code where codes have one byte
constexpr std::size_t kLongestChunk = 255;

// Codes that no version uses are texts, which can be told apart from what follows in any case.
constexpr std::array<ValueKind, kHighestCode + 1> makeKinds() {
    struct Range {
        int last;
        ValueKind kind;
    };
    using enum ValueKind;
    constexpr std::array kRanges{
        Range{9, text},    Range{59, real},   Range{79, int16},   Range{89, text},
        Range{99, int32},  Range{109, text},  Range{149, real},   Range{159, text},
        Range{169, int64}, Range{179, int16}, Range{209, text},   Range{239, real},
        Range{269, text},  Range{289, int16}, Range{299, byte},   Range{309, text},
        Range{319, chunk}, Range{369, text},  Range{389, int16},  Range{399, text},
        Range{409, int16}, Range{419, text},  Range{429, int32},  Range{439, text},
        Range{459, int32}, Range{469, real},  Range{1003, text},  Range{1004, chunk},
        Range{1009, text}, Range{1059, real}, Range{1070, int16}, Range{kHighestCode, int32},
    };
    std::array<ValueKind, kHighestCode + 1> kinds{};
    std::size_t code = 0;
    for (const Range& range : kRanges) {
        while (code <= static_cast<std::size_t>(range.last)) {
            kinds[code++] = range.kind;
        }
    }
    return kinds;
}
constexpr auto kKinds = makeKinds();

template <class Number>
Number numberOf(std::string_view bytes) {
    Number number{};
    std::memcpy(&number, bytes.data(), sizeof number);
    return number;
}

template <class Number>
void addNumber(std::string& target, Number number) {
    std::array<char, sizeof number> bytes{};
    std::memcpy(bytes.data(), &number, sizeof number);
    target.append(bytes.data(), bytes.size());
}

int unsignedByte(char c) {
    return static_cast<unsigned char>(c);
}

// 0 for texts and chunks, whose bytes tell it.
std::size_t fixedSize(ValueKind kind) {
    switch (kind) {
    case ValueKind::byte:
        return 1;
    case ValueKind::int16:
        return 2;
    case ValueKind::int32:
        return 4;
    case ValueKind::real:
    case ValueKind::int64:
        return 8;
    case ValueKind::text:
    case ValueKind::chunk:
        break;
    }
    return 0;
}

std::int64_t integerOf(const BinaryTag& tag) {
    switch (tag.kind) {
    case ValueKind::int16:
        return numberOf<std::int16_t>(tag.value);
    case ValueKind::int32:
        return numberOf<std::int32_t>(tag.value);
    case ValueKind::int64:
        return numberOf<std::int64_t>(tag.value);
    default:
        return unsignedByte(tag.value.front());
    }
}

void addIntegerText(std::string& target, std::int64_t value) {
    std::array<char, 24> buffer{};
    target.append(buffer.data(),
                  std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr);
}

bool addText(std::string& target, std::string_view text) {
    const bool endsInReturn = text.ends_with('\r');
    if (!endsInReturn && text.find('\n') == std::string::npos) {
        target += text;
        return true;
    }
    text.remove_suffix(endsInReturn ? 1 : 0);
    for (const char c : text) {
        if (c == '\n') {
            target += "\\U+000A";
        } else {
            target += c;
        }
    }
    target += endsInReturn ? "\\U+000D" : "";
    return false;
}

void addHex(std::string& target, std::string_view bytes) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    for (const char c : bytes) {
        target += kDigits[static_cast<std::size_t>(unsignedByte(c) >> 4)];
        target += kDigits[static_cast<std::size_t>(unsignedByte(c) & 15)];
    }
}

int hexDigit(char c) {
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    if (c >= 'A' && c <= 'F') {
        return c - 'A' + 10;
    }
    return c >= 'a' && c <= 'f' ? c - 'a' + 10 : -1;
}

const char* addChunk(std::string& target, std::string_view hex) {
    if (hex.size() % 2 != 0) {
        return "an odd number of hexadecimal digits makes no bytes";
    }
    if (hex.size() / 2 > kLongestChunk) {
        return "the binary form holds no more than 255 bytes in one value";
    }
    std::string bytes(1, static_cast<char>(hex.size() / 2));
    for (std::size_t i = 0; i < hex.size(); i += 2) {
        const int high = hexDigit(hex[i]);
        const int low = hexDigit(hex[i + 1]);
        if (high < 0 || low < 0) {
            return "the value has to be hexadecimal digits";
        }
        bytes += static_cast<char>(high * 16 + low);
    }
    target += bytes;
    return nullptr;
}

template <class Number>
const char* addInteger(std::string& target, std::int64_t value) {
    if (value < std::numeric_limits<Number>::min() || value > std::numeric_limits<Number>::max()) {
        return "the number is too large for the binary form";
    }
    addNumber(target, static_cast<Number>(value));
    return nullptr;
}

const char* addIntegerValue(std::string& target, ValueKind kind, std::string_view text) {
    text = trimBlanks(text);
    if (text.size() > 1 && text[0] == '+' && text[1] != '-') {
        text.remove_prefix(1);
    }
    std::int64_t value = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (stop != end || error == std::errc::invalid_argument) {
        return "the value has to be an integer";
    }
    if (error == std::errc::result_out_of_range) {
        return "the number is too large for the binary form";
    }
    switch (kind) {
    case ValueKind::int16:
        return addInteger<std::int16_t>(target, value);
    case ValueKind::int32:
        return addInteger<std::int32_t>(target, value);
    case ValueKind::int64:
        return addInteger<std::int64_t>(target, value);
    default:
        return addInteger<std::uint8_t>(target, value);
    }
}

const char* addValue(std::string& target, ValueKind kind, std::string_view value) {
    switch (kind) {
    case ValueKind::text:
        if (value.find('\0') != std::string::npos) {
            return "a zero byte would end the text in the binary form";
        }
        target += value;
        target += '\0';
        return nullptr;
    case ValueKind::real:
        if (const auto number = parseReal(value)) {
            addNumber(target, *number);
            return nullptr;
        }
        return "the value has to be a finite number";
    case ValueKind::chunk:
        return addChunk(target, trimBlanks(value));
    default:
        return addIntegerValue(target, kind, value);
    }
}

void addCode(std::string& target, CodeWidth width, int code) {
    if (width == CodeWidth::one && code < kEscape) {
        target += static_cast<char>(code);
        return;
    }
    if (width == CodeWidth::one) {
        target += static_cast<char>(kEscape);
    }
    addNumber(target, static_cast<std::int16_t>(code));
}

} // namespace

ValueKind valueKind(int code) {
    return kKinds[static_cast<std::size_t>(code)];
}

std::string_view binarySignature() {
    static constexpr std::array kBytes{
        '\x41', '\x75', '\x74', '\x6F', '\x43', '\x41', '\x44', '\x20', '\x42', '\x69', '\x6E',
        '\x61', '\x72', '\x79', '\x20', '\x44', '\x58', '\x46', '\r',   '\n',   '\x1A', '\0'};
    return {kBytes.data(), kBytes.size()};
}

BinaryTagReader::Result BinaryTagReader::next(BinaryTag& tag) {
    const std::string_view rest = m_bytes.substr(m_position);
    if (rest.empty()) {
        return Result::end;
    }
    const bool isEscaped = m_width == CodeWidth::one && unsignedByte(rest[0]) == kEscape;
    const std::size_t codeAt = isEscaped ? 1 : 0;
    const std::size_t valueAt = codeAt + (isEscaped || m_width == CodeWidth::two ? 2 : 1);
    if (rest.size() < valueAt) {
        return Result::cutOff;
    }
    tag.code =
        valueAt - codeAt == 2 ? numberOf<std::int16_t>(rest.substr(codeAt)) : unsignedByte(rest[0]);
    if (tag.code < 0 || tag.code > kHighestCode) {
        return Result::badCode;
    }
    tag.kind = valueKind(tag.code);
    std::string_view value = rest.substr(valueAt);
    std::size_t size = fixedSize(tag.kind);
    std::size_t after = 0;
    if (tag.kind == ValueKind::text) {
        size = value.find('\0');
        after = 1;
        if (size == std::string::npos) {
            return Result::cutOff;
        }
    } else if (tag.kind == ValueKind::chunk) {
        if (value.empty()) {
            return Result::cutOff;
        }
        size = static_cast<std::size_t>(unsignedByte(value[0]));
        value.remove_prefix(1);
    }
    if (value.size() < size) {
        return Result::cutOff;
    }
    tag.value = value.substr(0, size);
    tag.begin = m_position;
    tag.end = static_cast<std::size_t>(value.data() - m_bytes.data()) + size + after;
    m_position = tag.end;
    return Result::tag;
}

bool addTagLines(std::string& target, const BinaryTag& tag) {
    constexpr int kPadded = 100; // lesser codes get blanks in front
    target += tag.code < kPadded / 10 ? "  " : tag.code < kPadded ? " " : "";
    addIntegerText(target, tag.code);
    target += '\n';
    const bool isSame = addValueText(target, tag);
    target += '\n';
    return isSame;
}

bool addValueText(std::string& target, const BinaryTag& tag) {
    switch (tag.kind) {
    case ValueKind::text:
        return addText(target, tag.value);
    case ValueKind::real: {
        const auto number = numberOf<double>(tag.value);
        if (!std::isfinite(number)) {
            target += std::isnan(number) ? "nan" : number < 0 ? "-inf" : "inf";
            return false;
        }
        addRealText(target, number);
        return true;
    }
    case ValueKind::chunk:
        addHex(target, tag.value);
        return true;
    default:
        addIntegerText(target, integerOf(tag));
        return true;
    }
}

const char* addBinaryTag(std::string& target, CodeWidth width, int code, std::string_view value) {
    if (code < 0 || code > kHighestCode) {
        return "the binary form has no such group code";
    }
    const std::size_t before = target.size();
    addCode(target, width, code);
    const char* const reason = addValue(target, valueKind(code), value);
    if (reason != nullptr) {
        target.resize(before);
    }
    return reason;
}

} // namespace orvex
