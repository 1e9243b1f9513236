#include "TableRecords.h"

#include "NumberText.h"
#include "RecordEdit.h"
#include "TraitsRecord.h"
#include "blanks.h"

#include <cmath>

namespace orvex {

namespace {

enum LayerFlag : int { kFrozen = 1, kLocked = 4 };

void readLayerTag(const Tag& tag, const DrawingText& text, KdDbLayerTableRecord& layer,
                  KdCmColor& color) {
    switch (tag.code) {
    case 2:
        layer.setName(text.decode(trimBlanks(tag.value)).c_str());
        break;
    case 6:
        layer.setLinetype(text.decode(trimBlanks(tag.value)).c_str());
        break;
    case 370:
        layer.setLineweight(parseInteger(tag.value).value_or(layer.lineweight()));
        break;
    case 70:
        if (const auto flags = parseInteger(tag.value)) {
            layer.setIsFrozen((*flags & kFrozen) != 0);
            layer.setIsLocked((*flags & kLocked) != 0);
        }
        break;
    default:
        if (const auto index = tag.code == 62 ? parseInteger(tag.value) : std::nullopt) {
            layer.setIsOff(*index < 0); // the index keeps its amount
        }
        readColor(tag, text, color);
        break;
    }
}

// Calls `take` for each tag that is the record's own.
template <class Take>
void forOwnTags(std::string_view bytes, const RecordSpan& span, Take take) {
    TagReader reader(bytes, span.begin, span.end);
    Tag tag;
    bool inGroup = false;
    while (reader.next(tag) == TagReader::Result::tag && tag.code < 1000) {
        if (tag.code == 102) {
            inGroup = tag.value.starts_with('{');
        } else if (!inGroup) {
            take(tag);
        }
    }
}

void writeEntry(TagText& target, const RecordContext& context, std::string_view kind,
                std::string_view className, std::uint64_t handle, std::uint64_t owner) {
    target.add(0, kind);
    target.addHandle(5, handle);
    if (context.isOld) {
        return;
    }
    if (owner != 0) {
        target.addHandle(330, owner);
    }
    target.add(100, "AcDbSymbolTableRecord");
    target.add(100, className);
}

} // namespace

std::unique_ptr<KdDbLayerTableRecord> readLayer(const RecordContext& context,
                                                const RecordSpan& span) {
    auto layer = std::make_unique<KdDbLayerTableRecord>();
    KdCmColor color;
    color.setColorIndex(7);
    forOwnTags(context.bytes, span,
               [&](const Tag& tag) { readLayerTag(tag, context.text, *layer, color); });
    layer->setColor(color);
    return layer;
}

std::unique_ptr<KdDbLinetypeTableRecord> readLinetype(const RecordContext& context,
                                                      const RecordSpan& span) {
    auto linetype = std::make_unique<KdDbLinetypeTableRecord>();
    std::vector<double> dashes;
    forOwnTags(context.bytes, span, [&](const Tag& tag) {
        if (tag.code == 2) {
            linetype->setName(context.text.decode(trimBlanks(tag.value)).c_str());
        } else if (tag.code == 3) {
            linetype->setComments(context.text.decode(tag.value).c_str());
        } else if (const auto dash = tag.code == 49 ? parseReal(tag.value) : std::nullopt) {
            dashes.push_back(*dash);
        }
    });
    linetype->setDashes(std::move(dashes));
    return linetype;
}

std::string_view readName(std::string_view bytes, const RecordSpan& span) {
    std::string_view name;
    TagReader reader(bytes, span.begin, span.end);
    Tag tag;
    while (reader.next(tag) == TagReader::Result::tag) {
        if (tag.code == 2) {
            name = trimBlanks(tag.value);
            break;
        }
    }
    return name;
}

void writeLayer(TagText& target, const RecordContext& context, const KdDbLayerTableRecord& layer,
                std::uint64_t handle, std::uint64_t owner) {
    writeEntry(target, context, "LAYER", "AcDbLayerTableRecord", handle, owner);
    target.add(2, context.text.encode(layer.name()));
    target.add(70, (layer.isFrozen() ? kFrozen : 0) | (layer.isLocked() ? kLocked : 0));
    Fields color;
    addColorFields(color, layer.color(), context.text, true);
    if (layer.isOff()) {
        color.front().text = "-" + *color.front().text;
    }
    addFields(target, color);
    target.add(6, context.text.encode(layer.linetype()));
    if (layer.lineweight() != kLineweightDefault) {
        target.add(370, layer.lineweight());
    }
}

void writeLinetype(TagText& target, const RecordContext& context,
                   const KdDbLinetypeTableRecord& linetype, std::uint64_t handle,
                   std::uint64_t owner) {
    constexpr int kAlignment = 65; // the one kind there is
    double length = 0.0;
    for (const double dash : linetype.dashes()) {
        length += std::abs(dash);
    }
    writeEntry(target, context, "LTYPE", "AcDbLinetypeTableRecord", handle, owner);
    target.add(2, context.text.encode(linetype.name()));
    target.add(70, 0);
    target.add(3, context.text.encode(linetype.comments()));
    target.add(72, kAlignment);
    target.add(73, static_cast<int>(linetype.dashes().size()));
    target.addReal(40, length);
    for (const double dash : linetype.dashes()) {
        target.addReal(49, dash);
        if (!context.isOld) {
            target.add(74, 0);
        }
    }
}

void writeBlockRecord(TagText& target, const RecordContext& context, std::string_view name,
                      std::uint64_t handle, std::uint64_t owner) {
    writeEntry(target, context, "BLOCK_RECORD", "AcDbBlockTableRecord", handle, owner);
    target.add(2, name);
    target.addHandle(340, 0); // no layout
}

void writeTable(TagText& target, const RecordContext& context, std::string_view kind,
                std::uint64_t handle, int count, std::string_view entries) {
    target.add(0, "TABLE");
    target.add(2, kind);
    target.addHandle(5, handle);
    if (!context.isOld) {
        target.addHandle(330, 0);
        target.add(100, "AcDbSymbolTable");
    }
    target.add(70, count);
    target.addLines(entries);
    target.add(0, "ENDTAB");
}

std::optional<std::string> editTableCount(std::string_view bytes, const RecordSpan& span,
                                          int present, int added) {
    RecordEdit edit(bytes, span.begin, span.end);
    const TagList& tags = edit.tags();
    for (std::size_t i = 1; i < tags.size(); i = skipGroup(tags, i)) {
        if (tags[i].code == 70 && parseInteger(tags[i].value) == present) {
            edit.replace(i, std::to_string(present + added));
            return edit.text();
        }
    }
    return std::nullopt;
}

} // namespace orvex
