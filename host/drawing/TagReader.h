#pragma once

#include <bit>
#include <cstddef>
#include <cstring>
#include <string_view>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace orvex {

// One pair of lines: a group code and its value. Views point into the file's bytes.
struct Tag {
    int code = 0;
    std::string_view value; // without the line end
    std::size_t begin = 0;  // where the code line starts
    std::size_t end = 0;    // after the value's line end
};

// Cuts bytes into tags. Lines end at LF; a CR before it belongs to the line end.
class TagReader {
public:
    enum class Result { tag, end, badCode, noValue };

    // Reads [from, to) of `bytes`, which have to outlive the reader and its tags.
    TagReader(std::string_view bytes, std::size_t from, std::size_t to)
        : m_bytes(bytes.data()), m_position(from), m_end(to) {}
    explicit TagReader(std::string_view bytes) : TagReader(bytes, 0, bytes.size()) {}

    // On badCode and noValue the position stays at the code line.
    Result next(Tag& tag) {
        if (m_position >= m_end) {
            return Result::end;
        }
        const char* const from = m_bytes + m_position;
        const char* const to = m_bytes + m_end;
        const char* const value = readCode(from, to, tag.code);
        if (value == nullptr) {
            return Result::badCode;
        }
        if (value == to) {
            return Result::noValue;
        }
        const char* const lineFeed = findLineFeed(value, to);
        const char* valueEnd = lineFeed != nullptr ? lineFeed : to;
        const char* const next = lineFeed != nullptr ? lineFeed + 1 : to;
        if (valueEnd != value && valueEnd[-1] == '\r') {
            --valueEnd;
            ++m_carriageReturns;
        }
        tag.value = {value, static_cast<std::size_t>(valueEnd - value)};
        tag.begin = m_position;
        tag.end = static_cast<std::size_t>(next - m_bytes);
        m_position = tag.end;
        ++m_tags;
        return Result::tag;
    }

    [[nodiscard]] std::size_t position() const { return m_position; }
    // Tags so far; two lines each.
    [[nodiscard]] std::size_t tagCount() const { return m_tags; }
    // Lines so far that ended in CR LF.
    [[nodiscard]] std::size_t carriageReturns() const { return m_carriageReturns; }

private:
    // Null when there is none.
    static const char* findLineFeed(const char* at, const char* end) {
#ifdef __SSE2__
        // Most lines are shorter than a call of memchr is long.
        constexpr std::ptrdiff_t kAtOnce = 16;
        if (end - at >= kAtOnce) {
            const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
            const int found = _mm_movemask_epi8(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('\n')));
            if (found != 0) {
                return at + std::countr_zero(static_cast<unsigned>(found));
            }
            at += kAtOnce;
        }
#endif
        return static_cast<const char*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at)));
    }

    static constexpr std::ptrdiff_t kUsualLine = 4;

    // The usual form: three characters, blanks before digits, and a line feed. False for any other.
    static bool readUsualCode(const char* at, const char* end, int& code) {
        if (end - at < kUsualLine || at[3] != '\n') {
            return false;
        }
        const auto digit = [at](int place) { return static_cast<unsigned>(at[place] - '0'); };
        const bool hasTens = at[1] != ' ';
        const bool hasHundreds = at[0] != ' ';
        const unsigned tens = hasTens ? digit(1) : 0;
        const unsigned hundreds = hasHundreds ? digit(0) : 0;
        if (digit(2) > 9 || tens > 9 || hundreds > 9 || (hasHundreds && !hasTens)) {
            return false;
        }
        code = static_cast<int>(hundreds * 100 + tens * 10 + digit(2));
        return true;
    }

    // Returns where the next line starts; null when the line holds no integer.
    const char* readCode(const char* at, const char* end, int& code) {
        return readUsualCode(at, end, code) ? at + kUsualLine : readAnyCode(at, end, code);
    }

    const char* readAnyCode(const char* at, const char* end, int& code) {
        constexpr int kCeiling = 100000000; // codes beyond mean nothing to anybody
        while (at != end && (*at == ' ' || *at == '\t')) {
            ++at;
        }
        bool negative = false;
        if (at != end && (*at == '-' || *at == '+')) {
            negative = *at++ == '-';
        }
        const char* const digits = at;
        int number = 0;
        for (; at != end && *at >= '0' && *at <= '9'; ++at) {
            if (number < kCeiling) {
                number = number * 10 + (*at - '0');
            }
        }
        if (at == digits) {
            return nullptr;
        }
        code = negative ? -number : number;
        while (at != end && (*at == ' ' || *at == '\t')) {
            ++at;
        }
        if (at != end && *at == '\r') {
            ++at;
            ++m_carriageReturns;
        }
        if (at == end) {
            return at;
        }
        return *at == '\n' ? at + 1 : nullptr;
    }

    const char* m_bytes;
    std::size_t m_position;
    std::size_t m_end;
    std::size_t m_tags = 0;
    std::size_t m_carriageReturns = 0;
};

} // namespace orvex
