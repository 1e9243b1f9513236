#include "styleLibraryWriter.h"

#include "CStdStr.h"
#include "libraryFile.h"
#include "styleBlockLines.h"
#include "textCodec.h"

#include <QSaveFile>

#include <algorithm>
#include <fstream>

namespace fs = std::filesystem;

namespace {

using Lines = std::vector<std::string_view>;

// Lines without their ends; a carriage return before a line feed belongs to the end.
Lines linesOf(std::string_view bytes) {
    Lines lines;
    while (!bytes.empty()) {
        const std::size_t end = std::min(bytes.find('\n'), bytes.size());
        std::string_view line = bytes.substr(0, end);
        bytes.remove_prefix(std::min(end + 1, bytes.size()));
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        lines.push_back(line);
    }
    return lines;
}

bool isLine(const Lines& lines, std::size_t index, const std::wstring& text) {
    return index < lines.size() && StrCmpI(orvex::widen(lines[index]).c_str(), text.c_str()) == 0;
}

struct Range {
    std::size_t begin;
    std::size_t end;
};

// The lines of the block with that name; none at the end where there is no such block. A line that
// was looked at isn't looked at as the beginning of another block.
Range findBlock(const Lines& lines, const std::wstring& name) {
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (!isLine(lines, i, L"MLSTYLE")) {
            continue;
        }
        const std::size_t begin = i;
        if (isLine(lines, ++i, L"2") && isLine(lines, ++i, L' ' + name)) {
            std::size_t end = i + 1;
            while (end < lines.size() && lines[end] != "0") {
                ++end;
            }
            return {begin, std::min(end + 1, lines.size())};
        }
    }
    return {lines.size(), lines.size()};
}

template <class Line>
void append(std::string& text, const std::vector<Line>& lines, std::size_t from, std::size_t to) {
    for (std::size_t i = from; i < to; ++i) {
        text += lines[i];
        text += '\n';
    }
}

bool replaceFile(const fs::path& path, const std::string& bytes) {
    QSaveFile file(QString::fromStdString(path.string()));
    // Where the folder admits no second file, the library itself may still be written to.
    file.setDirectWriteFallback(true);
    return file.open(QIODevice::WriteOnly) &&
           file.write(bytes.data(), static_cast<qint64>(bytes.size())) ==
               static_cast<qint64>(bytes.size()) &&
           file.commit();
}

} // namespace

std::string withStyleBlock(std::string_view library, std::wstring_view name,
                           const std::vector<std::string>& block) {
    const Lines lines = linesOf(library);
    const Range old = findBlock(lines, oneLine(std::wstring(name)));
    std::string result;
    append(result, lines, 0, old.begin);
    append(result, block, 0, block.size());
    append(result, lines, old.end, lines.size());
    return result;
}

bool saveLibraryStyle(const wchar_t* path, const wchar_t* name, const KdDbMlineStyle* style) {
    constexpr std::size_t kLongestPath = 1024;
    const fs::path file = libraryPath(path);
    std::error_code error;
    if (file.empty() || file.string().size() > kLongestPath || name == nullptr ||
        (fs::exists(file, error) && !fs::is_regular_file(file, error))) {
        return false;
    }
    if (style == nullptr) {
        return replaceFile(file, {});
    }
    const std::optional<std::string> old = readLibraryFile(file);
    if (!old && std::ifstream(file).is_open()) {
        return false; // what can be opened is never lost for not being read whole
    }
    return replaceFile(file, withStyleBlock(old.value_or(""), name, styleBlockLines(*style)));
}
