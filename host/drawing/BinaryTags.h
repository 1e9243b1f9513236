#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace orvex {

// How the binary form holds a value. The group code alone tells it.
enum class ValueKind : std::uint8_t {
    text, // ends with a zero byte
    real, // 8 bytes, little-endian as all that follow
    int16,
    int32,
    int64,
    byte,
    chunk, // a byte with the length, then the bytes
};

constexpr int kHighestCode = 1071; // the format has none beyond
// Of a code from 0 to kHighestCode.
[[nodiscard]] ValueKind valueKind(int code);

// How group codes are written: two bytes, or, in files of old versions, one byte with an escape
// before two.
enum class CodeWidth : std::uint8_t { one, two };

// What every binary drawing begins with.
[[nodiscard]] std::string_view binarySignature();

// A group code and its value. The view points into the file's bytes.
struct BinaryTag {
    int code = 0;
    ValueKind kind = ValueKind::text;
    std::string_view value; // without a text's zero and a chunk's length
    std::size_t begin = 0;  // where the code starts
    std::size_t end = 0;    // after the value
};

// Cuts the bytes of the binary form into tags, as TagReader does with those of the text form.
class BinaryTagReader {
public:
    enum class Result : std::uint8_t { tag, end, badCode, cutOff };

    // Reads [from, to) of `bytes`, which have to outlive the reader and its tags.
    BinaryTagReader(std::string_view bytes, std::size_t from, std::size_t to, CodeWidth width)
        : m_bytes(bytes.substr(0, to)), m_position(from), m_width(width) {}

    // On badCode and cutOff the position stays at the code.
    Result next(BinaryTag& tag);
    [[nodiscard]] std::size_t position() const { return m_position; }

private:
    std::string_view m_bytes;
    std::size_t m_position;
    CodeWidth m_width;
};

// ---- between the forms --------------------------------------------------------------------------

// Adds the value as the text form has it. A number that isn't finite becomes a word that no reader
// takes for a number, a line end inside a text an escape; false for these, since their text is not
// what the file holds.
bool addValueText(std::string& target, const BinaryTag& tag);
// The same with the code, on two lines.
bool addTagLines(std::string& target, const BinaryTag& tag);

// Adds a tag with a value from the text form. Null, or why the binary form can't hold it; then
// nothing was added.
const char* addBinaryTag(std::string& target, CodeWidth width, int code, std::string_view value);

} // namespace orvex
