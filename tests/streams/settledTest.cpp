// What random operations on streams give, leave behind and report: settled.

#include "Chance.h"
#include "StreamTest.h"
#include "streamOperations.h"

namespace {

using namespace orvex::testing;

class SettledStreams : public StreamTest {};

TEST_F(SettledStreams, giveWhatTheyGave) {
    Chance chance(8);
    Digest digest;
    for (int round = 0; round < 30000; ++round) {
        std::vector<std::uint8_t> input(static_cast<std::size_t>(chance.below(100)));
        for (std::uint8_t& byte : input) {
            byte = static_cast<std::uint8_t>(chance.oneIn(3) ? chance.below(5) : chance.word());
        }
        if (input.size() > 1) {
            input[1] = static_cast<std::uint8_t>(chance.below(16));
        }
        playOperations(input, digest);
        digest.add(reports());
    }
    EXPECT_EQ(digest.text(), "E18D5D042B6447C9");
}

} // namespace
