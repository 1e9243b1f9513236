// The verb list: every multiline and style, for people.

#include "DrawingList.h"
#include "batchFiles.h"
#include "listJson.h"
#include "verbs.h"

#include "KdDbDatabase.h"

#include <CLI/CLI.hpp>

#include <charconv>
#include <cstdio>

namespace orvex {

namespace {

std::string realText(double value) {
    char digits[32];
    char* const end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    return {digits, end};
}

std::string pointText(const KdGePoint3d& point) {
    return realText(point.x) + ',' + realText(point.y) + ',' + realText(point.z);
}

// The breaks of an element over all segments; "solid" where nothing is cut.
std::string breaksText(const MlineContent& content, unsigned element) {
    std::string text;
    for (unsigned vertex = 0; vertex < content.lists.vertexCount(); ++vertex) {
        const auto line = content.lists.line(vertex, element);
        if (line.size() <= 2) {
            continue;
        }
        text += (text.empty() ? "segment " : "; segment ") + std::to_string(vertex) + " at";
        for (std::size_t i = 2; i < line.size(); ++i) {
            text += ' ' + realText(line[i]);
        }
    }
    return text.empty() ? "unbroken" : text;
}

const char* justificationText(int justification) {
    return justification == 0 ? "top" : justification == 1 ? "zero" : "bottom";
}

void printMline(const ListedMline& mline) {
    const MlineContent& content = *mline.content;
    std::printf("multiline %s  layer %s  style %s  scale %s  %s%s  block %s\n",
                mline.handle.c_str(), mline.layer.c_str(), mline.style.c_str(),
                realText(content.scale).c_str(), justificationText(content.justification),
                content.closed ? "  closed" : "", mline.block.c_str());
    for (std::size_t i = 0; i < content.vertices.size(); ++i) {
        std::printf("  vertex %zu  %s\n", i, pointText(content.vertices[i].position).c_str());
    }
    for (unsigned i = 0; i < content.elementCount(); ++i) {
        std::printf("  element %u  %s\n", i, breaksText(content, i).c_str());
    }
}

void printStyle(const ListedStyle& style) {
    std::printf("style %s  %s  angles %s %s  flags %d%s%s\n", style.handle.c_str(),
                style.name.c_str(), realText(style.startAngle).c_str(),
                realText(style.endAngle).c_str(), style.flags,
                style.description.empty() ? "" : "  ", style.description.c_str());
    for (const ListedElement& element : style.elements) {
        std::printf("  offset %s  %s  %s\n", realText(element.offset).c_str(),
                    colorText(element.color).c_str(), element.linetype.c_str());
    }
}

ListCounts printList(KdDbDatabase& database) {
    ListCounts counts;
    forEachMline(database, [&](const ListedMline& mline) {
        printMline(mline);
        ++counts.mlines;
    });
    for (const ListedStyle& style : listStyles(database)) {
        printStyle(style);
        ++counts.styles;
    }
    return counts;
}

class ListVerb final : public Verb {
public:
    ListVerb() : Verb({"list", "List every multiline and multiline style in a drawing", nullptr}) {}

    void addOptions(CLI::App& options) override {
        options.add_flag("--json", m_asJson, "Print JSON, for programs");
    }

    [[nodiscard]] bool printsJson() const override { return m_asJson; }

    std::optional<Failure> carryOut(const DrawingTask& task, Counts& counts) override {
        const auto drawing = openDrawing(task.drawing);
        if (!drawing) {
            return drawing.failure();
        }
        KdDbDatabase& database = (*drawing)->database();
        const ListCounts found = m_asJson ? printListAsJson(database, task) : printList(database);
        counts = {{"multilines", found.mlines}, {"styles", found.styles}};
        return std::nullopt;
    }

private:
    bool m_asJson = false;
};

} // namespace

std::unique_ptr<Verb> makeListVerb() {
    return std::make_unique<ListVerb>();
}

} // namespace orvex
