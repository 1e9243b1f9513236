#include "listJson.h"

#include "DrawingList.h"
#include "textCodec.h"

#include <nlohmann/json.hpp>

#include <cstdio>
#include <span>

namespace orvex {

namespace {

using Json = nlohmann::ordered_json;

template <class Triple>
Json tripleJson(const Triple& triple) {
    return Json::array({triple.x, triple.y, triple.z});
}

Json listJson(std::span<const double> values) {
    return Json(std::vector<double>(values.begin(), values.end()));
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
        json["book"] = narrow(key.c_str());
    }
    return json;
}

Json vertexJson(const MlineContent& content, unsigned vertex) {
    const ChainVertex& place = content.vertices[vertex];
    Json elements = Json::array();
    for (unsigned i = 0; i < content.lists.elementCount(vertex); ++i) {
        elements.push_back({{"line", listJson(content.lists.line(vertex, i))},
                            {"area", listJson(content.lists.area(vertex, i))}});
    }
    return {{"position", tripleJson(place.position)},
            {"axis", tripleJson(place.axis)},
            {"miter", tripleJson(place.miter)},
            {"elements", std::move(elements)}};
}

Json mlineJson(const ListedMline& mline) {
    const MlineContent& content = *mline.content;
    Json json = {{"handle", mline.handle}, {"block", mline.block},
                 {"layer", mline.layer},   {"style", mline.style},
                 {"scale", content.scale}, {"justification", content.justification},
                 {"flags", mline.flags},   {"normal", tripleJson(content.normal)}};
    Json vertices = Json::array();
    for (unsigned i = 0; i < content.vertices.size(); ++i) {
        vertices.push_back(vertexJson(content, i));
    }
    json["vertices"] = std::move(vertices);
    return json;
}

Json styleJson(const ListedStyle& style) {
    Json elements = Json::array();
    for (const ListedElement& element : style.elements) {
        elements.push_back({{"offset", element.offset},
                            {"color", colorJson(element.color)},
                            {"linetype", element.linetype}});
    }
    return {{"handle", style.handle},           {"name", style.name},
            {"description", style.description}, {"flags", style.flags},
            {"startAngle", style.startAngle},   {"endAngle", style.endAngle},
            {"fill", colorJson(style.fill)},    {"elements", std::move(elements)}};
}

// Prints the entries of an array one by one: a large drawing's list is never held as a whole.
class ArrayPrinter {
public:
    void print(const Json& entry) {
        std::fputs(m_first ? "\n" : ",\n", stdout);
        m_first = false;
        const std::string text = entry.dump();
        std::fwrite(text.data(), 1, text.size(), stdout);
    }

private:
    bool m_first = true;
};

} // namespace

void printListAsJson(KdDbDatabase& database) {
    std::fputs("{\"multilines\":[", stdout);
    ArrayPrinter mlines;
    forEachMline(database, [&](const ListedMline& mline) { mlines.print(mlineJson(mline)); });
    std::fputs("\n],\"styles\":[", stdout);
    ArrayPrinter styles;
    for (const ListedStyle& style : listStyles(database)) {
        styles.print(styleJson(style));
    }
    std::fputs("\n]}\n", stdout);
}

} // namespace orvex
