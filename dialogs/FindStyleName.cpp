#include "FindStyleName.h"

#include "CStdStr.h"
#include "styleLibraryReader.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <cwchar>
#include <string_view>

using namespace mledit;

namespace {

constexpr std::size_t kLongest = 2048; // characters of a line
using Line = std::array<wchar_t, kLongest + 1>;

// Takes the bytes of one line off the front as they are; false at the end.
bool takeLine(std::string_view& bytes, Line& line) {
    if (bytes.empty()) {
        return false;
    }
    line.fill(L'\0');
    const std::size_t count = std::min({bytes.find('\n'), bytes.size() - 1, kLongest - 1}) + 1;
    std::memcpy(line.data(), bytes.data(), count);
    bytes.remove_prefix(count);
    if (wchar_t* const lineFeed = std::wcschr(line.data(), L'\n')) {
        *lineFeed = L'\0';
    }
    return true;
}

} // namespace

bool FindStyleName(wchar_t* path, wchar_t* name) {
    const auto file = readLibrary(path);
    if (!file || name == nullptr) {
        return false;
    }
    std::string_view bytes = *file;
    Line line{};
    while (takeLine(bytes, line)) {
        if (std::wcscmp(line.data(), L"2") == 0) {
            return takeLine(bytes, line) && line[0] != L'\0' && StrCmpI(line.data() + 1, name) == 0;
        }
    }
    return false;
}
