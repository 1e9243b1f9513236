#include "listJson.h"

#include "DrawingList.h"
#include "fileNameJson.h"
#include "printableText.h"
#include "textCodec.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <span>
#include <string>

namespace orvex {

namespace {

using Json = nlohmann::json;

// Writes JSON as it comes, without a tree of it: a large drawing's list is millions of numbers.
// Strings and numbers look as the library prints them.
class JsonText {
public:
    void open(char bracket) {
        separate();
        m_text += bracket;
        m_isFirst = true;
    }
    void close(char bracket) {
        m_text += bracket;
        m_isFirst = false;
    }
    // A member's name; its value has to follow.
    JsonText& key(const char* name) {
        separate();
        m_text += '"';
        m_text += name;
        m_text += "\":";
        m_isFirst = true;
        return *this;
    }
    void value(double number) {
        separate();
        if (!std::isfinite(number)) {
            m_text += "null";
            return;
        }
        std::array<char, 64> digits; // NOLINT(cppcoreguidelines-pro-type-member-init): written next
        char* const last = digits.data() + digits.size();
        // Most are whole, and those have but one shortest form.
        constexpr double kWhole = 1e15;
        if (std::abs(number) < kWhole && number == std::trunc(number)) {
            m_text += std::signbit(number) ? "-" : "";
            const auto whole = static_cast<std::int64_t>(std::abs(number));
            m_text.append(digits.data(), std::to_chars(digits.data(), last, whole).ptr);
            m_text += ".0";
            return;
        }
        m_text.append(digits.data(), nlohmann::detail::to_chars(digits.data(), last, number));
    }
    void value(int number) {
        separate();
        m_text += std::to_string(number);
    }
    void value(const std::string& text) {
        separate();
        const bool isPlain = std::ranges::all_of(
            text, [](char c) { return c >= ' ' && c <= '~' && c != '"' && c != '\\'; });
        m_text += isPlain ? '"' + text + '"' : Json(text).dump();
    }
    template <class Triple>
    void triple(const char* name, const Triple& triple) {
        key(name).open('[');
        value(triple.x);
        value(triple.y);
        value(triple.z);
        close(']');
    }
    void numbers(const char* name, std::span<const double> values) {
        key(name).open('[');
        for (const double each : values) {
            value(each);
        }
        close(']');
    }
    template <class Value>
    void member(const char* name, const Value& content) {
        key(name).value(content);
    }

    // Prints what was written, and begins anew.
    void print() {
        std::fwrite(m_text.data(), 1, m_text.size(), stdout);
        m_text.clear();
        m_isFirst = true;
    }

private:
    void separate() {
        if (!m_isFirst) {
            m_text += ',';
        }
        m_isFirst = false;
    }

    std::string m_text;
    bool m_isFirst = true; // nothing stands before what comes next in its array or object
};

void writeColor(JsonText& json, const char* name, const KdCmColor& color) {
    json.key(name).open('{');
    json.member("index", static_cast<int>(color.colorIndex()));
    if (color.colorMethod() == KdCmColor::byColor) {
        char text[8];
        std::snprintf(text, sizeof text, "#%06X", color.color() & 0xFFFFFFU);
        json.member("rgb", std::string(text));
    }
    if (color.hasColorName()) {
        std::wstring key(static_cast<std::size_t>(color.dictionaryKeyLength()) + 1, L'\0');
        color.getDictionaryKey(key.data());
        json.member("book", printableText(narrow(key.c_str())));
    }
    json.close('}');
}

void writeVertex(JsonText& json, const MlineContent& content, unsigned vertex) {
    const ChainVertex& place = content.vertices[vertex];
    json.open('{');
    json.triple("position", place.position);
    json.triple("axis", place.axis);
    json.triple("miter", place.miter);
    json.key("elements").open('[');
    for (unsigned i = 0; i < content.lists.elementCount(vertex); ++i) {
        json.open('{');
        json.numbers("line", content.lists.line(vertex, i));
        json.numbers("area", content.lists.area(vertex, i));
        json.close('}');
    }
    json.close(']');
    json.close('}');
}

void writeMline(JsonText& json, const ListedMline& mline) {
    const MlineContent& content = *mline.content;
    json.open('{');
    json.member("handle", mline.handle);
    json.member("block", mline.block);
    json.member("layer", mline.layer);
    json.member("style", mline.style);
    json.member("scale", content.scale);
    json.member("justification", content.justification);
    json.member("flags", mline.flags);
    json.triple("normal", content.normal);
    json.key("vertices").open('[');
    for (unsigned i = 0; i < content.vertices.size(); ++i) {
        writeVertex(json, content, i);
    }
    json.close(']');
    json.close('}');
}

void writeStyle(JsonText& json, const ListedStyle& style) {
    json.open('{');
    json.member("handle", style.handle);
    json.member("name", style.name);
    json.member("description", style.description);
    json.member("flags", style.flags);
    json.member("startAngle", style.startAngle);
    json.member("endAngle", style.endAngle);
    writeColor(json, "fill", style.fill);
    json.key("elements").open('[');
    for (const ListedElement& each : style.elements) {
        json.open('{');
        json.member("offset", each.offset);
        writeColor(json, "color", each.color);
        json.member("linetype", each.linetype);
        json.close('}');
    }
    json.close(']');
    json.close('}');
}

// Begins the next entry of an array.
class EntrySeparator {
public:
    explicit EntrySeparator(const char* lineEnd) : m_lineEnd(lineEnd) {}

    void print() {
        std::fputs(m_count == 0 ? "" : ",", stdout);
        std::fputs(m_lineEnd, stdout);
        ++m_count;
    }
    [[nodiscard]] std::size_t count() const { return m_count; }

private:
    const char* m_lineEnd;
    std::size_t m_count = 0;
};

} // namespace

ListCounts printListAsJson(KdDbDatabase& database, const DrawingTask& task) {
    // An object a line where there are several, else an entry a line.
    const char* const lineEnd = task.isOneOfMany ? "" : "\n";
    JsonText json;
    std::printf("{%s\"multilines\":[", drawingMember(task).c_str());
    EntrySeparator mlines(lineEnd);
    forEachMline(database, [&](const ListedMline& mline) {
        mlines.print();
        writeMline(json, mline);
        json.print();
    });
    std::printf("%s],\"styles\":[", lineEnd);
    EntrySeparator styles(lineEnd);
    for (const ListedStyle& style : listStyles(database)) {
        styles.print();
        writeStyle(json, style);
        json.print();
    }
    std::printf("%s]}\n", lineEnd);
    return {mlines.count(), styles.count()};
}

} // namespace orvex
