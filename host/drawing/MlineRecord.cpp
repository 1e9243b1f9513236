#include "MlineRecord.h"

#include "DatabaseCore.h"
#include "KdDbMlineStyle.h"
#include "MlineParser.h"
#include "MlineVertexEdit.h"
#include "NumberText.h"
#include "ObjectTable.h"
#include "RecordEdit.h"
#include "TraitsRecord.h"
#include "WellKnownObjects.h"
#include "blanks.h"
#include "handleText.h"

namespace orvex {

namespace {

constexpr std::size_t kElementCountField = 6; // in the order of mlineFields
constexpr int kKnownFlags = kMlineHasVertices | kMlineClosed | kMlineNoStartCaps | kMlineNoEndCaps;

// By handle; by name in drawings whose multilines have none.
KdDbStub* findStyle(const RecordContext& context, const MlineParser& parser,
                    const std::wstring& name) {
    if (parser.style == 0) {
        return context.core.wellKnown().findStyle(name);
    }
    return findStyle(context.core, parser.style);
}

// A style that is in memory alone gets its handle once a multiline refers to it.
void ensureHandle(const RecordContext& context, KdDbObjectId style) {
    if (!style.isNull() && style.stub()->kind == ObjectKind::mlineStyle) {
        context.core.objects().ensureHandle(*style.stub());
    }
}

std::wstring styleName(const RecordContext& context, const MlineContent& content) {
    KdDbStub* const stub = content.style.stub();
    if (stub == nullptr) {
        return content.styleName;
    }
    const auto* const style = dynamic_cast<const KdDbMlineStyle*>(context.core.load(*stub));
    return style != nullptr ? style->name() : content.styleName;
}

Field realField(int code, double value) {
    return {code, realText(value)};
}

void addPointFields(Fields& fields, int code, double x, double y, double z) {
    fields.push_back(realField(code, x));
    fields.push_back(realField(code + 10, y));
    fields.push_back(realField(code + 20, z));
}

// The fields of the multiline as a whole, in the order of a record. Flags that aren't known come
// from `otherFlags`.
Fields mlineFields(const RecordContext& context, const MlineContent& content, int otherFlags) {
    Fields fields;
    fields.push_back({2, context.text.encode(styleName(context, content))});
    KdDbStub* const style = content.style.stub();
    fields.push_back(
        {340, style != nullptr ? std::optional(handleText(style->handle)) : std::nullopt});
    fields.push_back(realField(40, content.scale));
    fields.push_back({70, std::to_string(content.justification)});
    fields.push_back({71, std::to_string(content.flags() | (otherFlags & ~kKnownFlags))});
    fields.push_back({72, std::to_string(content.vertices.size())});
    fields.push_back({73, std::to_string(content.elementCount())});
    const KdGePoint3d start =
        content.vertices.empty() ? KdGePoint3d() : content.vertices.front().position;
    addPointFields(fields, 10, start.x, start.y, start.z);
    addPointFields(fields, 210, content.normal.x, content.normal.y, content.normal.z);
    return fields;
}

// A copy of exact size. What is large is taken over instead: the parser keeps its memory.
template <class T>
std::vector<T> take(std::vector<T>& values) {
    constexpr std::size_t kLarge = std::size_t{1} << 20U; // bytes
    if (values.size() * sizeof(T) < kLarge) {
        return {values.begin(), values.end()};
    }
    std::vector<T> taken = std::move(values);
    values = {};
    if (taken.capacity() - taken.size() > taken.size() / 8) {
        taken.shrink_to_fit();
    }
    return taken;
}

std::shared_ptr<MlineContent> contentOf(const RecordContext& context, MlineParser& parser) {
    auto content = std::make_shared<MlineContent>();
    content->styleName = context.text.decode(trimBlanks(parser.styleName));
    content->style = KdDbObjectId(findStyle(context, parser, content->styleName));
    content->scale = parser.scale;
    content->justification = parser.justification;
    content->closed = (parser.flags & kMlineClosed) != 0;
    content->startCapsSuppressed = (parser.flags & kMlineNoStartCaps) != 0;
    content->endCapsSuppressed = (parser.flags & kMlineNoEndCaps) != 0;
    content->normal = parser.normal;
    content->vertices = take(parser.vertices);
    if (parser.elementCount > 0) {
        content->lists.assignFlat(static_cast<unsigned>(parser.elementCount), take(parser.counts),
                                  take(parser.values));
    } else {
        for (std::size_t i = 0; i < content->vertices.size(); ++i) {
            content->lists.appendVertex();
        }
    }
    return content;
}

// What the parser has read; null where it contradicts itself.
std::shared_ptr<MlineContent> finished(const RecordContext& context, const RecordSpan& span,
                                       MlineParser& parser) {
    if (parser.finish()) {
        return nullptr;
    }
    auto content = contentOf(context, parser);
    content->traits = shareTraits(readTraits(context.bytes, span.begin, span.end, context.text));
    return content;
}

// Some fields keep what the file says: without vertices nothing says the elements and the start,
// and neither name nor handle of a style is judged as long as it is the same style.
void keepFileFields(Fields& before, Fields& after, const MlineContent& old,
                    const MlineContent& content) {
    for (std::size_t i = 0; i < after.size(); ++i) {
        const int code = after[i].code;
        const bool ofVertices = code == 73 || code == 10 || code == 20 || code == 30;
        const bool ofStyle = code == 2 || code == 340;
        if ((ofVertices && content.vertices.empty()) || (ofStyle && content.style == old.style)) {
            after[i] = before[i];
        }
    }
}

} // namespace

KdDbStub* findStyle(DatabaseCore& core, std::uint64_t handle) {
    KdDbStub* const found = core.objects().findHandle(handle);
    return found != nullptr && found->kind == ObjectKind::mlineStyle ? found : nullptr;
}

std::shared_ptr<MlineContent> readMline(const RecordContext& context, const RecordSpan& span,
                                        MlineParser& parser) {
    parser.begin(span.end - span.begin);
    TagReader reader(context.bytes, span.begin, span.end);
    Tag tag;
    reader.next(tag); // the code 0
    while (reader.next(tag) == TagReader::Result::tag) {
        parser.feed(tag);
    }
    return finished(context, span, parser);
}

std::optional<std::string> editMline(const RecordContext& context, const RecordSpan& span,
                                     const MlineContent& content) {
    MlineParser parser;
    RecordEdit edit(context.bytes, span.begin, span.end);
    const MlineLayout layout(edit.tags(), parser);
    const std::shared_ptr<MlineContent> old = finished(context, span, parser);
    if (old == nullptr || old->equals(content)) {
        return std::nullopt;
    }
    if (content.style != old->style) {
        ensureHandle(context, content.style);
    }
    const std::size_t commonEnd = commonPartEnd(edit.tags());
    const EntityTraits& traits = content.traits != nullptr ? *content.traits : *old->traits;
    edit.apply(traitsFields(*old->traits, context.text), traitsFields(traits, context.text), 1,
               commonEnd);

    const std::size_t fieldsEnd = layout.verticesBegin();
    Fields before = mlineFields(context, *old, parser.flags);
    Fields after = mlineFields(context, content, parser.flags);
    before[kElementCountField].text = std::to_string(parser.elementCount);
    keepFileFields(before, after, *old, content);
    edit.apply(before, after, commonEnd < fieldsEnd ? commonEnd + 1 : 1, fieldsEnd);
    editVertices(edit, layout, *old, content);
    return edit.text();
}

void writeMline(TagText& target, const RecordContext& context, const MlineContent& content,
                const EntityPlace& place) {
    ensureHandle(context, content.style);
    writeCommonPart(target, context, "MLINE", content.traits.get(), place);
    target.add(100, "AcDbMline");
    addFields(target, mlineFields(context, content, 0));
    writeVertices(target, content);
}

} // namespace orvex
