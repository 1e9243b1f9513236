#pragma once

#include "BoundedCrashRecorder.h"
#include "VoBitStream.h"
#include "VoFlatMemBuf.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <string>
#include <vector>

namespace orvex::testing {

using Bytes = std::vector<int>;
using Reports = std::vector<std::wstring>;

constexpr std::uint64_t kFar = ~std::uint64_t{0};
constexpr const wchar_t* kBufferReport = L"Out of stream buffer!";
constexpr const wchar_t* kBitsReport = L"Out of stream streamBuf!";

// Listens to the reports for the time of a test, which must ask for those it expects.
class StreamTest : public ::testing::Test {
protected:
    StreamTest() : m_before(setCrashRecorder(&m_recorder)) {}
    ~StreamTest() override { setCrashRecorder(m_before); }
    void TearDown() override { EXPECT_EQ(reports(), Reports{}); }

    // The reports since the last call.
    Reports reports() {
        Reports messages = m_recorder.messages();
        m_recorder.clear();
        return messages;
    }

private:
    BoundedCrashRecorder m_recorder;
    CrashRecorder* m_before;
};

inline Bytes bytesOf(const VoStreamBuf& buffer) {
    return {buffer.buffer(), buffer.buffer() + buffer.length()};
}

inline void fill(VoFlatMemBuf& buffer, const std::vector<unsigned char>& bytes) {
    buffer.open(bytes.data(), static_cast<unsigned>(bytes.size()), 0);
}

// "ab|cde": the bytes, with the position. Zeros are dots; the end may lie before the position.
inline void setState(VoFlatMemBuf& buffer, std::string state) {
    const std::size_t position = state.find('|');
    state.erase(position, 1);
    buffer.open(state.data(), static_cast<unsigned>(state.size()), 0);
    buffer.moveTo(position);
}
inline std::string stateOf(const VoFlatMemBuf& buffer) {
    std::string state;
    for (const int byte : bytesOf(buffer)) {
        state += byte == 0 ? '.' : static_cast<char>(byte);
    }
    state.resize(std::max<std::size_t>(state.size(), buffer.tell()), ' ');
    return state.insert(buffer.tell(), 1, '|');
}

// The lowest bits of a number, the highest of them first.
inline std::string bits(std::uint64_t value, unsigned count) {
    std::string text;
    for (unsigned i = count; i-- > 0;) {
        text += (value >> i & 1U) != 0 ? '1' : '0';
    }
    return text;
}

// The bits of a stream from a position to its end, as "0" and "1".
inline std::string bitsFrom(VoBitStream& stream, std::uint64_t position) {
    std::string bits;
    stream.seek(position, VoIO::fromStart);
    while (!stream.isEOS()) {
        std::uint8_t bit = 0;
        stream.readBit(bit);
        bits += bit != 0 ? '1' : '0';
    }
    return bits;
}

} // namespace orvex::testing
