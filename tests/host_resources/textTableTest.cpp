#include "textTable.h"

#include <gmock/gmock.h>

namespace {

using orvex::parseTextTable;
using orvex::TextTable;

TEST(TextTable, keepsTheTextBehindTheBlankAndReadsEscapes) {
    const TextTable expected{{1, L"one"}, {2, L"  two "}, {3, L"a\nb\tc\\d"}, {40, L""}};
    EXPECT_EQ(parseTextTable("# comment\n\n1 one\r\n2   two \n3 a\\nb\\tc\\\\d\n40\nno number\n"),
              expected);
}

TEST(TextTable, takesTheLastOfEqualNumbersAndPassesOverWhatIsNoEntry) {
    const TextTable expected{{1, L"b"}};
    EXPECT_EQ(parseTextTable("1 a\n1 b\n1x c\n-2 d\n99999999999 e"), expected);
}

} // namespace
