#include "styleLibraryWriter.h"

#include "CStdStr.h"
#include "KdDbLinetypeTable.h"
#include "KdDbMlineStyle.h"
#include "KdString.h"
#include "byteOrderMark.h"
#include "colorTexts.h"
#include "fieldNumbers.h"
#include "kddbObjects.h"
#include "styleAccessors.h"
#include "styleLibraryReader.h"
#include "textCodec.h"
#include "wholeFile.h"

#include <algorithm>
#include <filesystem>

#include <unistd.h>

namespace fs = std::filesystem;

namespace mledit {

namespace {

// A text as the value of a line. A line feed would begin a line of its own and so forge a tag; it
// becomes a blank.
std::wstring oneLine(std::wstring text) {
    std::ranges::replace(text, L'\n', L' ');
    return text;
}

constexpr unsigned kIndexBits = 0xFFFF;
using Text = CStdStr<wchar_t>;

class BlockLines {
public:
    std::vector<std::string> lines;

    void tag(const char* text) { lines.emplace_back(text); }
    void value(const char* tagText, const std::wstring& text) {
        tag(tagText);
        lines.emplace_back(KdString((L' ' + oneLine(text)).c_str()).kszPtr());
    }
    template <class Number>
    void number(const char* tagText, const wchar_t* pattern, Number number) {
        Text text;
        text.Format(pattern, number);
        value(tagText, text.text());
    }
};

int firstFlag(const KdDbMlineStyle& style) {
    const struct {
        bool set;
        int value;
    } flags[] = {
        {style.filled(), kStyleFilled},
        {style.showMiters(), kStyleShowMiters},
        {style.startSquareCap(), kStyleStartSquareCap},
        {style.startInnerArcs(), kStyleStartInnerArcs},
        {style.startRoundCap(), kStyleStartRoundCap},
        {style.endSquareCap(), kStyleEndSquareCap},
        {style.endInnerArcs(), kStyleEndInnerArcs},
        {style.endRoundCap(), kStyleEndRoundCap},
    };
    const auto* const first =
        std::ranges::find_if(flags, [](const auto& flag) { return flag.set; });
    return first != std::end(flags) ? first->value : 0;
}

// A key that no reader would take whole isn't written.
constexpr std::size_t kLongestKey = 2048;

void addColorKey(BlockLines& block, const std::wstring& key) {
    if (!key.empty() && key.size() <= kLongestKey) {
        block.value("430", key);
    }
}

// `fillKey` is the fill's name in its colour book, which stands for an element's, too.
void addElement(BlockLines& block, const KdDbMlineStyle& style, int index,
                const std::wstring& fillKey) {
    double offset = 0.0;
    KdCmColor color;
    KdDbObjectId linetypeId;
    style.getElementAt(index, offset, color, linetypeId);
    block.number("49", L"%.14f", offset);
    block.number("62", L"%d", static_cast<int>(color.colorIndex() & kIndexBits));
    if (color.colorMethod() == KdCmColor::byColor) {
        block.number("420", L"%d", static_cast<int>(color.color()));
    }
    if (color.hasColorName() && *color.colorName() != L'\0') {
        addColorKey(block, fillKey);
    }
    KdDbLinetypeTableRecord* linetype = nullptr;
    kddbOpenObject(linetype, linetypeId, kForRead);
    if (linetype != nullptr) {
        block.value("6", linetype->name());
        linetype->close();
    }
}

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
// was compared isn't compared again as the beginning of another block.
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

} // namespace

std::vector<std::string> styleBlockLines(const KdDbMlineStyle& style) {
    constexpr int kDecimals = 14;
    const ZeroRule allZeros(0);
    const KdCmColor& fill = style.fillColor();
    const std::wstring fillKey = bookKey(fill);
    BlockLines block;
    block.tag("MLSTYLE");
    block.value("2", style.name());
    block.number("70", L"%d", firstFlag(style));
    block.value("3", style.description());
    block.number("62", L"%d", static_cast<int>(fill.colorIndex() & kIndexBits));
    block.number("420", L"%u", static_cast<unsigned>(fill.color()));
    addColorKey(block, fillKey);
    block.value("51", degreesText(style.startAngle(), kDecimals));
    block.value("52", degreesText(style.endAngle(), kDecimals));
    block.number("71", L"%d", style.numElements());
    for (int i = 0; i < style.numElements(); ++i) {
        addElement(block, style, i, fillKey);
    }
    block.tag("0");
    return std::move(block.lines);
}

std::string withStyleBlock(std::string_view library, std::wstring_view name,
                           const std::vector<std::string>& block) {
    const std::string_view text = orvex::withoutByteOrderMark(library);
    const Lines lines = linesOf(text);
    const Range old = findBlock(lines, oneLine(std::wstring(name)));
    std::string result(library.substr(0, library.size() - text.size())); // the mark stays
    append(result, lines, 0, old.begin);
    append(result, block, 0, block.size());
    append(result, lines, old.end, lines.size());
    return result;
}

bool saveLibraryStyle(const wchar_t* path, const wchar_t* name, const KdDbMlineStyle* style) {
    constexpr std::size_t kLongestPath = 1024;
    const std::string file = path != nullptr ? orvex::narrow(path) : std::string();
    std::error_code error;
    if (file.empty() || file.size() > kLongestPath || name == nullptr ||
        (fs::exists(file, error) && !fs::is_regular_file(file, error))) {
        return false;
    }
    if (style == nullptr) {
        return orvex::saveWholeFile(file, {});
    }
    const std::optional<std::string> old = readLibrary(path);
    if (!old && access(file.c_str(), R_OK) == 0) {
        return false; // what can be opened is never lost for not being read whole
    }
    return orvex::saveWholeFile(file,
                                withStyleBlock(old.value_or(""), name, styleBlockLines(*style)));
}

} // namespace mledit
