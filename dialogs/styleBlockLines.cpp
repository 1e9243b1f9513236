#include "styleBlockLines.h"

#include "CStdStr.h"
#include "KdDbLinetypeTable.h"
#include "KdDbMlineStyle.h"
#include "KdString.h"
#include "ZeroRule.h"
#include "bookKey.h"
#include "kddbObjects.h"
#include "numberText.h"
#include "styleRecord.h"

#include <algorithm>
#include <array>

namespace {

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

std::wstring angleText(double radians) {
    constexpr int kDecimalDegrees = 0;
    constexpr int kPlaces = 14;
    constexpr std::size_t kLongest = 512;
    std::array<wchar_t, kLongest> text{};
    kddbAngToS(radians, kDecimalDegrees, kPlaces, text.data());
    return text.data();
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

} // namespace

std::wstring oneLine(std::wstring text) {
    std::ranges::replace(text, L'\n', L' ');
    return text;
}

std::vector<std::string> styleBlockLines(const KdDbMlineStyle& style) {
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
    block.value("51", angleText(style.startAngle()));
    block.value("52", angleText(style.endAngle()));
    block.number("71", L"%d", style.numElements());
    for (int i = 0; i < style.numElements(); ++i) {
        addElement(block, style, i, fillKey);
    }
    block.tag("0");
    return std::move(block.lines);
}
