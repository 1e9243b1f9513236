#include "HeaderRecord.h"

#include "DatabaseCore.h"
#include "NumberText.h"
#include "RecordEdit.h"
#include "blanks.h"
#include "handleText.h"

#include <algorithm>
#include <array>

namespace orvex {

namespace {

constexpr int kNameCode = 9;

struct Row {
    std::string_view name; // without the "$"
    int code;
};

// What a variable's value is follows from its code; 10 stands for a point.
constexpr std::array kRows{
    Row{"ACADVER", 1},  Row{"CECOLOR", 62},     Row{"CELTSCALE", 40}, Row{"CELTYPE", 6},
    Row{"CLAYER", 8},   Row{"CMLJUST", 70},     Row{"CMLSCALE", 40},  Row{"CMLSTYLE", 2},
    Row{"EXTMAX", 10},  Row{"EXTMIN", 10},      Row{"HANDSEED", 5},   Row{"INSUNITS", 70},
    Row{"LTSCALE", 40}, Row{"MEASUREMENT", 70}, Row{"UCSORG", 10},    Row{"UCSXDIR", 10},
    Row{"UCSYDIR", 10},
};

const Row* findRow(std::string_view name) {
    const auto* const found = std::ranges::find(kRows, name, &Row::name);
    return found != kRows.end() ? found : nullptr;
}

// "$CMLSTYLE" without the "$"; empty for what is no name.
std::string_view variableName(const Tag& tag) {
    std::string_view name = trimBlanks(tag.value);
    if (tag.code != kNameCode || !name.starts_with('$')) {
        return {};
    }
    name.remove_prefix(1);
    return name;
}

std::optional<HeaderValue> scalar(const Row& row, std::string_view value, const DrawingText& text) {
    switch (row.code) {
    case 40:
        return parseReal(value);
    case 62:
    case 70:
        return parseInteger(value);
    case 5:
        if (const auto handle = parseHandle(value)) {
            return HeaderValue(HeaderHandle{*handle});
        }
        return std::nullopt;
    default:
        return HeaderValue(text.decode(trimBlanks(value)));
    }
}

// The value whose name is at tags[name].
std::optional<HeaderValue> readValue(const Row& row, const TagList& tags, std::size_t name,
                                     const DrawingText& text) {
    KdGePoint3d point;
    bool found = false;
    for (std::size_t i = name + 1; i < tags.size() && tags[i].code != kNameCode; ++i) {
        const Tag tag = tags[i];
        if (row.code != 10) {
            if (tag.code == row.code) {
                return scalar(row, tag.value, text);
            }
            continue;
        }
        double* const part = tag.code == 10   ? &point.x
                             : tag.code == 20 ? &point.y
                             : tag.code == 30 ? &point.z
                                              : nullptr;
        if (part != nullptr) {
            const auto coordinate = parseReal(tag.value);
            if (!coordinate) {
                return std::nullopt;
            }
            *part = *coordinate;
            found = true;
        }
    }
    return found ? std::optional<HeaderValue>(point) : std::nullopt;
}

Fields valueFields(const Row& row, const HeaderValue& value, const DrawingText& text) {
    if (const auto* const point = std::get_if<KdGePoint3d>(&value)) {
        return {{10, realText(point->x)}, {20, realText(point->y)}, {30, realText(point->z)}};
    }
    if (const auto* const real = std::get_if<double>(&value)) {
        return {{row.code, realText(*real)}};
    }
    if (const auto* const integer = std::get_if<int>(&value)) {
        return {{row.code, std::to_string(*integer)}};
    }
    if (const auto* const handle = std::get_if<HeaderHandle>(&value)) {
        return {{row.code, handleText(handle->value)}};
    }
    return {{row.code, text.encode(std::get<std::wstring>(value))}};
}

void addVariable(TagText& target, const DrawingText& text, std::string_view name,
                 const HeaderValue& value) {
    if (const Row* const row = findRow(name)) {
        target.add(kNameCode, "$" + std::string(name));
        addFields(target, valueFields(*row, value, text));
    }
}

} // namespace

HeaderBasics readBasics(std::string_view bytes, const RecordSpan& span) {
    HeaderBasics basics;
    TagReader reader(bytes, span.begin, span.end);
    Tag tag;
    std::string_view name;
    while (reader.next(tag) == TagReader::Result::tag) {
        if (tag.code == kNameCode) {
            name = variableName(tag);
        } else if (tag.code == 1 && name == "ACADVER") {
            basics.version = trimBlanks(tag.value);
        } else if (tag.code == 3 && name == "DWGCODEPAGE") {
            basics.codePage = trimBlanks(tag.value);
        }
    }
    return basics;
}

void readVariables(const RecordContext& context, const RecordSpan& span) {
    const RecordEdit record(context.bytes, span.begin, span.end);
    const TagList& tags = record.tags();
    for (std::size_t i = 0; i < tags.size(); ++i) {
        const Row* const row = findRow(variableName(tags[i]));
        if (row != nullptr && row->code != 1) { // the version is the document's matter
            if (auto value = readValue(*row, tags, i, context.text)) {
                context.core.loadVariable(row->name, std::move(*value));
            }
        }
    }
}

VariableChanges changedVariables(const HeaderVariables& before, const HeaderVariables& now) {
    VariableChanges changes;
    for (const Row& row : kRows) {
        const HeaderValue* const old = before.find(row.name);
        const HeaderValue* const value = now.find(row.name);
        if (value != nullptr && (old == nullptr || !sameBits(*old, *value))) {
            changes.emplace_back(row.name, *value);
        }
    }
    return changes;
}

std::string editVariables(const RecordContext& context, const RecordSpan& span,
                          const VariableChanges& changes) {
    RecordEdit edit(context.bytes, span.begin, span.end);
    const TagList& tags = edit.tags();
    for (const auto& [name, value] : changes) {
        const Row* const row = findRow(name);
        std::size_t at = 0;
        while (at < tags.size() && variableName(tags[at]) != name) {
            ++at;
        }
        if (at == tags.size()) {
            TagText fresh(edit.format());
            addVariable(fresh, context.text, name, value);
            edit.insertAfter(tags.size() - 1, fresh.text());
            continue;
        }
        std::size_t end = at + 1;
        while (end < tags.size() && tags[end].code != kNameCode) {
            ++end;
        }
        const auto old = readValue(*row, tags, at, context.text);
        const Fields after = valueFields(*row, value, context.text);
        Fields before = old ? valueFields(*row, *old, context.text) : after;
        if (!old || before.size() != after.size()) {
            before = after;
            for (Field& field : before) {
                field.text.reset(); // nothing of the old value is worth keeping
            }
        }
        edit.apply(before, after, at + 1, end);
    }
    return edit.text();
}

void writeVariables(TagText& target, const DrawingText& text, const VariableChanges& changes) {
    for (const auto& [name, value] : changes) {
        addVariable(target, text, name, value);
    }
}

} // namespace orvex
