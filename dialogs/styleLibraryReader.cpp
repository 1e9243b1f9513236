#include "styleLibraryReader.h"

#include "KdDbMlineStyle.h"
#include "KdDocument.h"
#include "libraryParser.h"
#include "styleAccessors.h"
#include "textCodec.h"
#include "unitText.h"
#include "wholeFile.h"

namespace mledit {

namespace {

using Text = CStdStr<wchar_t>;

// Sets the values in a style through the functions of its record.
class StyleWriter {
public:
    explicit StyleWriter(KdDbMlineStyle& style) : m_style(style) {}

    void operator()(const LibraryValue::Description& value) {
        m_style.setDescription(value.text.c_str());
    }
    void operator()(const LibraryValue::Flags& value) { SetFlag(&m_style, value.flags); }
    void operator()(const LibraryValue::FillIndex& value) {
        changeFill([&value](KdCmColor& color) { color.setColorIndex(value.index); });
    }
    void operator()(const LibraryValue::FillColor& value) {
        changeFill([&value](KdCmColor& color) { color.setColor(value.value); });
    }
    void operator()(const LibraryValue::FillKey& value) {
        changeFill(
            [&value](KdCmColor& color) { color.setNamesFromDictionaryKey(value.key.c_str()); });
    }
    void operator()(const LibraryValue::Angle& value);
    void operator()(const LibraryValue::ElementCount& value) {
        SetNumElements(&m_style, value.count);
    }
    void operator()(const LibraryValue::Elements& value);

private:
    template <class Change>
    void changeFill(Change&& change) {
        KdCmColor color = m_style.fillColor();
        change(color);
        m_style.setFillColor(color);
    }

    KdDbMlineStyle& m_style;
};

// A text that is no angle leaves the angle as it was.
void StyleWriter::operator()(const LibraryValue::Angle& value) {
    constexpr int kDecimalDegrees = 0;
    double radians = value.atEnd ? m_style.endAngle() : m_style.startAngle();
    kddbAngToF(value.degrees.c_str(), kDecimalDegrees, &radians);
    if (value.atEnd) {
        m_style.setEndAngle(radians);
    } else {
        m_style.setStartAngle(radians);
    }
}

void StyleWriter::operator()(const LibraryValue::Elements& value) {
    std::vector<std::wstring> texts; // the record's functions take texts that may be written to
    texts.reserve(2 * value.elements.size());
    std::vector<wchar_t*> linetypes;
    std::vector<wchar_t*> colorNames;
    std::vector<double> offsets;
    std::vector<int> colors;
    std::vector<unsigned> trueColors;
    for (const LibraryElement& element : value.elements) {
        linetypes.push_back(texts.emplace_back(element.linetype.text()).data());
        colorNames.push_back(texts.emplace_back(element.colorName.text()).data());
        offsets.push_back(element.offset);
        colors.push_back(element.color);
        trueColors.push_back(element.trueColor);
    }
    const int count = static_cast<int>(value.elements.size());
    KdDocument* const document = curDoc();
    SetElemLtype(&m_style, linetypes.data(), count,
                 document != nullptr ? document->database() : nullptr);
    SetElemOffset(&m_style, offsets.data(), count);
    SetElemColor(&m_style, colors.data(), count);
    SetElemRgb(&m_style, trueColors.data(), count);
    SetElemName(&m_style, colorNames.data(), count);
}

// What stands before the first line feed or carriage return.
std::wstring cutAtReturn(std::wstring line) {
    line.resize(std::min(line.find(L'\r'), line.size()));
    return line;
}

} // namespace

std::optional<std::string> readLibrary(const wchar_t* path) {
    constexpr std::uint64_t kLargest = 64U << 20U;
    return path != nullptr ? orvex::readWholeFile(orvex::narrow(path), kLargest) : std::nullopt;
}

std::optional<std::vector<Text>> listLibraryStyles(const wchar_t* path) {
    const std::optional<std::string> bytes = readLibrary(path);
    if (!bytes) {
        return std::nullopt;
    }
    std::vector<Text> names;
    LibraryLines lines(*bytes);
    while (auto line = lines.next()) {
        if (cutAtReturn(std::move(*line)) != L"2") {
            continue;
        }
        if (auto name = lines.next()) {
            names.push_back(Text(cutAtReturn(std::move(*name))).Trim());
        }
    }
    return names;
}

bool applyLibraryStyle(const wchar_t* path, const wchar_t* name, KdDbMlineStyle& style) {
    const std::optional<std::string> bytes = readLibrary(path);
    if (!bytes || name == nullptr) {
        return false;
    }
    StyleWriter writer(style);
    return parseStyleBlock(*bytes, name,
                           [&writer](const LibraryStep& step) { std::visit(writer, step); });
}

} // namespace mledit
