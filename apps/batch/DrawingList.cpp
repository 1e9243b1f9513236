#include "DrawingList.h"

#include "BlockList.h"
#include "DatabaseCore.h"
#include "DictionaryContent.h"
#include "EntityReader.h"
#include "KdDbDatabase.h"
#include "KdDbDictionary.h"
#include "KdDbLinetypeTable.h"
#include "KdDbMlineStyle.h"
#include "MlineStyleContent.h"
#include "ObjectTable.h"
#include "Opened.h"
#include "WellKnownObjects.h"
#include "geometry.h"
#include "handleText.h"
#include "printableText.h"
#include "textCodec.h"

#include <array>
#include <charconv>

namespace orvex {

namespace {

// What is listed stays on its line.
std::string listedText(std::wstring_view text) {
    return printableText(narrow(text));
}

std::string styleName(const MlineContent& content) {
    const Opened<KdDbMlineStyle> style(content.style, kForRead);
    return listedText(style ? style->name() : content.styleName);
}

std::string linetypeName(const StyleElement& element) {
    const Opened<KdDbLinetypeTableRecord> record(element.linetype, kForRead);
    return listedText(record ? record->name() : element.linetypeName);
}

// The shortest number of degrees that stands for these radians: what a file says, not what is left
// of it after two conversions. A saved style rounds to certain numbers of decimals instead; beyond
// ten decimals the two differ, and each stays as scripts and files know it.
double degrees(double radians) {
    constexpr int kAllDigits = 17;
    const double raw = radians / kDegree;
    std::array<char, 32> text{};
    for (int digits = 1; digits < kAllDigits; ++digits) {
        char* const end =
            std::to_chars(text.begin(), text.end(), raw, std::chars_format::general, digits).ptr;
        double shorter = raw;
        std::from_chars(text.begin(), end, shorter);
        if (fileRadians(shorter) == radians) {
            return shorter;
        }
    }
    return raw;
}

ListedStyle listStyle(const KdDbStub& stub, const MlineStyleContent& content) {
    ListedStyle listed;
    listed.handle = handleText(stub.handle);
    listed.name = listedText(content.name);
    listed.description = listedText(content.description);
    listed.flags = content.flags;
    listed.startAngle = degrees(content.startAngle);
    listed.endAngle = degrees(content.endAngle);
    listed.fill = content.fillColor;
    for (const StyleElement& element : content.elements) {
        listed.elements.push_back({element.offset, element.color, linetypeName(element)});
    }
    return listed;
}

} // namespace

void forEachMline(KdDbDatabase& database, const std::function<void(const ListedMline&)>& visitor) {
    DatabaseCore& core = database.core();
    for (KdDbStub& stub : core.objects().stubs()) {
        if (stub.kind != ObjectKind::mline || stub.erased) {
            continue;
        }
        // Read for this moment only: a list doesn't need all of the drawing in memory.
        const auto reading = readEntity(stub);
        if (!reading) {
            continue;
        }
        const MlineContent& content =
            *std::get<std::shared_ptr<const MlineContent>>(reading->geometry);
        const BlockEntities* const block = core.blocks().blockOf(stub);
        ListedMline listed;
        listed.handle = handleText(stub.handle);
        listed.block = block != nullptr ? listedText(block->name) : std::string();
        listed.layer = listedText(reading->traits().layer);
        listed.style = styleName(content);
        listed.flags = content.flags();
        listed.content = &content;
        visitor(listed);
    }
}

std::vector<ListedStyle> listStyles(KdDbDatabase& database) {
    std::vector<ListedStyle> styles;
    const KdDbObjectId id(database.core().wellKnown().styleDictionary);
    const Opened<KdDbDictionary> dictionary(id, kForRead);
    if (!dictionary) {
        return styles;
    }
    for (const DictionaryEntry& entry : dictionary->entries().entries) {
        if (const Opened<KdDbMlineStyle> style(entry.id, kForRead); style) {
            styles.push_back(listStyle(*entry.id.stub(), style->values()));
        }
    }
    return styles;
}

std::string colorText(const KdCmColor& color) {
    return listedText(color.colorNameForDisplay());
}

} // namespace orvex
