#include "TraitsRecord.h"

#include "CStdStr.h"
#include "NumberText.h"
#include "blanks.h"

#include <algorithm>
#include <cstdint>

namespace orvex {

namespace {

constexpr std::uint32_t kTrueColor = static_cast<std::uint32_t>(KdCmColor::byColor) << 24U;

// 100 AcDbEntity opens the common part; the next one ends it. Old drawings have neither, and what
// stands there doesn't use the codes of the common part otherwise.
bool endsCommonPart(const Tag& tag) {
    return tag.code >= 1000 || (tag.code == 100 && trimBlanks(tag.value) != "AcDbEntity");
}

// Negative for what is switched off. The least integer has no counterpart of its own sign.
std::uint16_t colorIndex(int number) {
    const auto bits = static_cast<std::uint32_t>(number);
    return static_cast<std::uint16_t>(number < 0 ? 0U - bits : bits);
}

void readTrait(const Tag& tag, const DrawingText& text, EntityTraits& traits) {
    switch (tag.code) {
    case 8:
        traits.layer = text.decode(trimBlanks(tag.value));
        break;
    case 6:
        traits.linetype = text.decode(trimBlanks(tag.value));
        break;
    case 48:
        traits.linetypeScale = parseReal(tag.value).value_or(traits.linetypeScale);
        break;
    case 370:
        traits.lineweight = parseInteger(tag.value).value_or(traits.lineweight);
        break;
    case 60:
        traits.visible = parseInteger(tag.value) != 1;
        break;
    case 67:
        traits.inPaperSpace = parseInteger(tag.value) == 1;
        break;
    default:
        readColor(tag, text, traits.color);
        break;
    }
}

} // namespace

EntityTraits readTraits(std::string_view bytes, std::size_t begin, std::size_t end,
                        const DrawingText& text) {
    EntityTraits traits;
    TagReader reader(bytes, begin, end);
    Tag tag;
    bool inGroup = false;
    reader.next(tag); // the code 0
    while (reader.next(tag) == TagReader::Result::tag && !endsCommonPart(tag)) {
        if (tag.code == 102) {
            inGroup = tag.value.starts_with('{');
        } else if (!inGroup) {
            readTrait(tag, text, traits);
        }
    }
    return traits;
}

std::size_t commonPartEnd(const TagList& tags) {
    std::size_t i = 1;
    while (i < tags.size() && !endsCommonPart(tags[i])) {
        i = skipGroup(tags, i);
    }
    return std::min(i, tags.size());
}

Fields traitsFields(const EntityTraits& traits, const DrawingText& text) {
    Fields fields;
    const auto real = [](double value) { return std::optional(realText(value)); };
    fields.push_back({67, traits.inPaperSpace ? std::optional<std::string>("1") : std::nullopt});
    fields.push_back({8, text.encode(traits.layer)});
    const bool byLayer = StrCmpI(traits.linetype.c_str(), L"ByLayer") == 0;
    fields.push_back({6, byLayer ? std::nullopt : std::optional(text.encode(traits.linetype))});
    addColorFields(fields, traits.color, text, false);
    fields.push_back({48, traits.linetypeScale == 1.0 ? std::nullopt : real(traits.linetypeScale)});
    fields.push_back({370, traits.lineweight == kLineweightByLayer
                               ? std::nullopt
                               : std::optional(std::to_string(traits.lineweight))});
    fields.push_back({60, traits.visible ? std::nullopt : std::optional<std::string>("1")});
    return fields;
}

void writeCommonPart(TagText& target, const RecordContext& context, std::string_view kind,
                     const EntityTraits* traits, const EntityPlace& place) {
    EntityTraits here = traits != nullptr ? *traits : EntityTraits();
    here.inPaperSpace = place.inPaperSpace;
    target.add(0, kind);
    target.addHandle(5, place.handle);
    if (place.owner != 0) {
        target.addHandle(330, place.owner);
    }
    // Multilines name their classes in drawings of any age.
    if (!context.isOld || kind == "MLINE") {
        target.add(100, "AcDbEntity");
    }
    addFields(target, traitsFields(here, context.text));
}

bool readColor(const Tag& tag, const DrawingText& text, KdCmColor& color) {
    switch (tag.code) {
    case 62: {
        const auto number = parseInteger(tag.value);
        if (!number) {
            return false;
        }
        if (color.colorMethod() == KdCmColor::byColor) {
            // The true colour came first; it stays, with the index as well.
            const std::uint32_t shown = color.color();
            color.setColorIndex(colorIndex(*number));
            color.setColor(shown);
        } else {
            color.setColorIndex(colorIndex(*number));
        }
        return true;
    }
    case 420: {
        const auto number = parseInteger(tag.value);
        if (!number) {
            return false;
        }
        color.setColor(kTrueColor | (static_cast<std::uint32_t>(*number) & kRgbBits));
        return true;
    }
    case 430:
        color.setNamesFromDictionaryKey(text.decode(trimBlanks(tag.value)).c_str());
        return true;
    default:
        return false;
    }
}

void addColorFields(Fields& fields, const KdCmColor& color, const DrawingText& text, bool always) {
    const bool byLayer = color.colorMethod() == KdCmColor::byLayer;
    fields.push_back({62, byLayer && !always ? std::nullopt
                                             : std::optional(std::to_string(color.colorIndex()))});
    const bool isTrue = color.colorMethod() == KdCmColor::byColor;
    fields.push_back({420, isTrue ? std::optional(std::to_string(color.rgb())) : std::nullopt});
    if (color.hasColorName()) {
        std::wstring key(static_cast<std::size_t>(color.dictionaryKeyLength()) + 1, L'\0');
        color.getDictionaryKey(key.data());
        key.pop_back();
        fields.push_back({430, text.encode(key)});
    } else {
        fields.push_back({430, std::nullopt});
    }
}

} // namespace orvex
