#include "StyleRecord.h"

#include "CStdStr.h"
#include "DatabaseCore.h"
#include "KdDbLinetypeTable.h"
#include "NumberText.h"
#include "RecordEdit.h"
#include "TraitsRecord.h"
#include "WellKnownObjects.h"
#include "blanks.h"
#include "geometry.h"
#include "sameBits.h"

#include <cmath>

namespace orvex {

namespace {

constexpr int kOffsetCode = 49; // begins an element

// Degrees that read back as these radians; of several the one with the fewest digits, for users
// give round angles.
double fileDegrees(double radians) {
    const double degrees = radians / kDegree;
    for (const double factor : {1.0, 1e2, 1e6, 1e10}) {
        const double rounded = std::round(degrees * factor) / factor;
        if (sameBits(fileRadians(rounded), radians)) {
            return rounded;
        }
    }
    return degrees;
}

struct ElementFields {
    double offset = 0.0;
    KdCmColor color;
    std::string_view linetype = "BYLAYER";
};

// A style's record tag by tag, texts left as they are.
class StyleParser {
public:
    explicit StyleParser(const DrawingText& drawingText) : m_text(drawingText) {}
    void run(std::string_view bytes, const RecordSpan& span);
    [[nodiscard]] const std::optional<Failure>& failure() const { return m_failure; }

    std::optional<std::string_view> name;
    std::string_view description;
    int flags = 0;
    KdCmColor fill;
    double startAngle = 90.0; // degrees
    double endAngle = 90.0;
    std::vector<ElementFields> elements;

private:
    void feed(const Tag& tag);
    void feedElement(const Tag& tag);
    void feedColor(const Tag& tag, KdCmColor& color) {
        if (!readColor(tag, m_text, color)) {
            fail("a colour is no number");
        }
    }
    void real(const Tag& tag, double& value) {
        if (const auto number = parseReal(tag.value)) {
            value = *number;
        } else {
            fail("a value is no finite number");
        }
    }
    void integer(const Tag& tag, int& value) {
        if (const auto number = parseInteger(tag.value)) {
            value = *number;
        } else {
            fail("a value is no number");
        }
    }
    void fail(const char* reason) {
        if (!m_failure) {
            m_failure = Failure{FailureCause::unreadableInput, {}, 0, reason};
        }
    }

    const DrawingText& m_text;
    std::optional<int> m_count;
    std::optional<Failure> m_failure;
};

void StyleParser::run(std::string_view bytes, const RecordSpan& span) {
    TagReader reader(bytes, span.begin, span.end);
    Tag tag;
    bool inGroup = false;
    reader.next(tag); // the code 0
    while (reader.next(tag) == TagReader::Result::tag && tag.code < 1000) {
        if (tag.code == 102) {
            inGroup = tag.value.starts_with('{');
        } else if (!inGroup && (tag.code == kOffsetCode || !elements.empty())) {
            feedElement(tag);
        } else if (!inGroup) {
            feed(tag);
        }
    }
    if (!name) {
        fail("it has no name");
    }
    if (!m_count || *m_count < 0 || static_cast<std::size_t>(*m_count) != elements.size()) {
        fail("the number of its elements is not what it says");
    }
}

void StyleParser::feed(const Tag& tag) {
    switch (tag.code) {
    case 2:
        name = trimBlanks(tag.value);
        break;
    case 3:
        description = tag.value;
        break;
    case 70:
        integer(tag, flags);
        break;
    case 62:
    case 420:
    case 430:
        feedColor(tag, fill);
        break;
    case 51:
        real(tag, startAngle);
        break;
    case 52:
        real(tag, endAngle);
        break;
    case 71:
        integer(tag, m_count.emplace());
        break;
    default:
        break;
    }
}

void StyleParser::feedElement(const Tag& tag) {
    switch (tag.code) {
    case kOffsetCode:
        real(tag, elements.emplace_back().offset);
        break;
    case 62:
    case 420:
    case 430:
        feedColor(tag, elements.back().color);
        break;
    case 6:
        elements.back().linetype = trimBlanks(tag.value);
        break;
    default:
        break;
    }
}

std::string linetypeText(const RecordContext& context, const StyleElement& element) {
    KdDbStub* const stub = element.linetype.stub();
    const auto* const record =
        stub != nullptr ? dynamic_cast<const KdDbLinetypeTableRecord*>(context.core.load(*stub))
                        : nullptr;
    const std::wstring& name = record != nullptr ? record->name() : element.linetypeName;
    // The two that are no line types of their own are written as every program writes them.
    if (name.empty() || StrCmpI(name.c_str(), L"ByLayer") == 0) {
        return "BYLAYER";
    }
    return StrCmpI(name.c_str(), L"ByBlock") == 0 ? "BYBLOCK" : context.text.encode(name);
}

Fields styleFields(const RecordContext& context, const MlineStyleContent& content) {
    Fields fields;
    fields.push_back({2, context.text.encode(content.name)});
    fields.push_back({70, std::to_string(content.flags)});
    fields.push_back({3, context.text.encode(content.description)});
    addColorFields(fields, content.fillColor, context.text, true);
    fields.push_back({51, realText(fileDegrees(content.startAngle))});
    fields.push_back({52, realText(fileDegrees(content.endAngle))});
    fields.push_back({71, std::to_string(content.elements.size())});
    return fields;
}

Fields elementFields(const RecordContext& context, const StyleElement& element) {
    Fields fields;
    fields.push_back({kOffsetCode, realText(element.offset)});
    addColorFields(fields, element.color, context.text, true);
    fields.push_back({6, linetypeText(context, element)});
    return fields;
}

// Tag indices where elements begin, and where the last one ends.
std::vector<std::size_t> elementBounds(const TagList& tags) {
    std::vector<std::size_t> bounds;
    std::size_t i = 1;
    for (; i < tags.size() && tags[i].code < 1000; i = skipGroup(tags, i)) {
        if (tags[i].code == kOffsetCode) {
            bounds.push_back(i);
        }
    }
    bounds.push_back(std::min(i, tags.size()));
    return bounds;
}

// What isn't known stays.
void removeElement(RecordEdit& edit, std::size_t from, std::size_t to) {
    for (std::size_t tag = from; tag < to; ++tag) {
        const int code = edit.tags()[tag].code;
        if (code == kOffsetCode || code == 62 || code == 420 || code == 430 || code == 6) {
            edit.remove(tag);
        }
    }
}

// Elements that are the same at both ends keep their tags; those between are paired by index.
void editElements(const RecordContext& context, RecordEdit& edit, const MlineStyleContent& old,
                  const MlineStyleContent& content) {
    const std::vector<std::size_t> bounds = elementBounds(edit.tags());
    const auto& before = old.elements;
    const auto& now = content.elements;
    const std::size_t shorter = std::min(before.size(), now.size());
    std::size_t tail = 0;
    while (tail < shorter && before[before.size() - 1 - tail] == now[now.size() - 1 - tail]) {
        ++tail;
    }
    const std::size_t paired = shorter - tail;
    for (std::size_t i = 0; i < paired; ++i) {
        edit.apply(elementFields(context, before[i]), elementFields(context, now[i]), bounds[i],
                   bounds[i + 1]);
    }
    for (std::size_t i = paired; i + tail < before.size(); ++i) {
        removeElement(edit, bounds[i], bounds[i + 1]);
    }
    TagText fresh(edit.format());
    for (std::size_t i = paired; i + tail < now.size(); ++i) {
        addFields(fresh, elementFields(context, now[i]));
    }
    if (!fresh.text().empty()) {
        edit.insertAfter(bounds[paired] - 1, fresh.text());
    }
}

} // namespace

std::optional<Failure> checkStyle(std::string_view bytes, const RecordSpan& span) {
    const DrawingText anyText; // only numbers are judged
    StyleParser parser(anyText);
    parser.run(bytes, span);
    return parser.failure();
}

std::shared_ptr<MlineStyleContent> readStyle(const RecordContext& context, const RecordSpan& span) {
    StyleParser parser(context.text);
    parser.run(context.bytes, span);
    if (parser.failure()) {
        return nullptr;
    }
    auto content = std::make_shared<MlineStyleContent>();
    content->name = context.text.decode(*parser.name);
    content->description = context.text.decode(parser.description);
    content->flags = parser.flags;
    content->fillColor = parser.fill;
    content->startAngle = fileRadians(parser.startAngle);
    content->endAngle = fileRadians(parser.endAngle);
    content->elements.reserve(parser.elements.size());
    for (const ElementFields& fields : parser.elements) {
        StyleElement& element = content->elements.emplace_back();
        element.offset = fields.offset;
        element.color = fields.color;
        element.linetypeName = context.text.decode(fields.linetype);
        element.linetype =
            KdDbObjectId(context.core.wellKnown().findLinetype(element.linetypeName));
    }
    return content;
}

std::optional<std::string> editStyle(const RecordContext& context, const RecordSpan& span,
                                     const MlineStyleContent& content) {
    const std::shared_ptr<MlineStyleContent> old = readStyle(context, span);
    if (old == nullptr || old->equals(content)) {
        return std::nullopt;
    }
    RecordEdit edit(context.bytes, span.begin, span.end);
    const std::size_t elementsBegin = elementBounds(edit.tags()).front();
    edit.apply(styleFields(context, *old), styleFields(context, content), 1, elementsBegin);
    editElements(context, edit, *old, content);
    return edit.text();
}

void writeOwned(TagText& target, std::uint64_t handle, std::uint64_t owner) {
    target.addHandle(5, handle);
    if (owner != 0) {
        target.add(102, "{ACAD_REACTORS");
        target.addHandle(330, owner);
        target.add(102, "}");
    }
    target.addHandle(330, owner);
}

void writeStyle(TagText& target, const RecordContext& context, const MlineStyleContent& content,
                std::uint64_t handle, std::uint64_t owner) {
    target.add(0, "MLINESTYLE");
    writeOwned(target, handle, owner);
    target.add(100, "AcDbMlineStyle");
    addFields(target, styleFields(context, content));
    for (const StyleElement& element : content.elements) {
        addFields(target, elementFields(context, element));
    }
}

} // namespace orvex
