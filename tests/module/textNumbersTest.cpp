#include "TestPaths.h"

#include <gmock/gmock.h>

#include <fstream>
#include <regex>

namespace {

// The numbers that the pattern's group finds in a file, in its order.
std::vector<int> numbersIn(const char* file, const char* pattern) {
    std::ifstream stream(orvex::testing::sourceDir() / "resources" / file);
    const std::regex expression(pattern);
    std::vector<int> numbers;
    std::string line;
    while (std::getline(stream, line)) {
        if (std::smatch found; std::regex_search(line, found, expression)) {
            numbers.push_back(std::stoi(found[1]));
        }
    }
    return numbers;
}

TEST(TextNumbers, nameEachTextOnce) {
    const std::vector<int> named = numbersIn("textNumbers.h", R"(unsigned k\w+ = (\d+);)");
    EXPECT_FALSE(named.empty());
    EXPECT_THAT(numbersIn("texts.txt", R"(^(\d+) )"), testing::UnorderedElementsAreArray(named));
}

} // namespace
