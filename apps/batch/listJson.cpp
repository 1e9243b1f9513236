#include "listJson.h"

#include "DrawingList.h"
#include "fileNameJson.h"
#include "printableText.h"
#include "textCodec.h"

#include <nlohmann/json.hpp>

#include <cstdio>
#include <span>

namespace orvex {

namespace {

using Json = nlohmann::ordered_json;

template <class Triple>
Json tripleJson(const Triple& triple) {
    Json json = Json::array();
    json.push_back(triple.x);
    json.push_back(triple.y);
    json.push_back(triple.z);
    return json;
}

Json listJson(std::span<const double> values) {
    Json json = Json::array();
    for (const double value : values) {
        json.push_back(value);
    }
    return json;
}

Json colorJson(const KdCmColor& color) {
    Json json;
    json["index"] = color.colorIndex();
    if (color.colorMethod() == KdCmColor::byColor) {
        char text[8];
        std::snprintf(text, sizeof text, "#%06X", color.color() & 0xFFFFFFU);
        json["rgb"] = text;
    }
    if (color.hasColorName()) {
        std::wstring key(static_cast<std::size_t>(color.dictionaryKeyLength()) + 1, L'\0');
        color.getDictionaryKey(key.data());
        json["book"] = printableText(narrow(key.c_str()));
    }
    return json;
}

// Entries are moved in one by one: a list in braces would copy each of them.
Json vertexJson(const MlineContent& content, unsigned vertex) {
    const ChainVertex& place = content.vertices[vertex];
    Json json;
    json["position"] = tripleJson(place.position);
    json["axis"] = tripleJson(place.axis);
    json["miter"] = tripleJson(place.miter);
    Json elements = Json::array();
    for (unsigned i = 0; i < content.lists.elementCount(vertex); ++i) {
        Json element;
        element["line"] = listJson(content.lists.line(vertex, i));
        element["area"] = listJson(content.lists.area(vertex, i));
        elements.push_back(std::move(element));
    }
    json["elements"] = std::move(elements);
    return json;
}

Json mlineJson(const ListedMline& mline) {
    const MlineContent& content = *mline.content;
    Json json;
    json["handle"] = mline.handle;
    json["block"] = mline.block;
    json["layer"] = mline.layer;
    json["style"] = mline.style;
    json["scale"] = content.scale;
    json["justification"] = content.justification;
    json["flags"] = mline.flags;
    json["normal"] = tripleJson(content.normal);
    Json vertices = Json::array();
    for (unsigned i = 0; i < content.vertices.size(); ++i) {
        vertices.push_back(vertexJson(content, i));
    }
    json["vertices"] = std::move(vertices);
    return json;
}

Json styleJson(const ListedStyle& style) {
    Json json;
    json["handle"] = style.handle;
    json["name"] = style.name;
    json["description"] = style.description;
    json["flags"] = style.flags;
    json["startAngle"] = style.startAngle;
    json["endAngle"] = style.endAngle;
    json["fill"] = colorJson(style.fill);
    Json elements = Json::array();
    for (const ListedElement& each : style.elements) {
        Json element;
        element["offset"] = each.offset;
        element["color"] = colorJson(each.color);
        element["linetype"] = each.linetype;
        elements.push_back(std::move(element));
    }
    json["elements"] = std::move(elements);
    return json;
}

// Prints the entries of an array one by one: a large drawing's list is never held as a whole.
class ArrayPrinter {
public:
    explicit ArrayPrinter(const char* separator) : m_separator(separator) {}

    void print(const Json& entry) {
        std::fputs(m_count == 0 ? "" : ",", stdout);
        std::fputs(m_separator, stdout);
        ++m_count;
        const std::string text = entry.dump();
        std::fwrite(text.data(), 1, text.size(), stdout);
    }
    [[nodiscard]] std::size_t count() const { return m_count; }

private:
    const char* m_separator;
    std::size_t m_count = 0;
};

} // namespace

ListCounts printListAsJson(KdDbDatabase& database, const DrawingTask& task) {
    // An object a line where there are several, else an entry a line.
    const char* const separator = task.isOneOfMany ? "" : "\n";
    std::printf("{%s\"multilines\":[", drawingMember(task).c_str());
    ArrayPrinter mlines(separator);
    forEachMline(database, [&](const ListedMline& mline) { mlines.print(mlineJson(mline)); });
    std::printf("%s],\"styles\":[", separator);
    ArrayPrinter styles(separator);
    for (const ListedStyle& style : listStyles(database)) {
        styles.print(styleJson(style));
    }
    std::printf("%s]}\n", separator);
    return {mlines.count(), styles.count()};
}

} // namespace orvex
