#include "EntityShapes.h"

#include "NumberText.h"
#include "geometry.h"

#include <algorithm>
#include <cmath>

namespace orvex {

namespace {

std::vector<Tag> readTags(std::string_view bytes, const RecordSpan& span) {
    std::vector<Tag> tags;
    TagReader reader(bytes, span.begin, span.end);
    Tag tag;
    while (reader.next(tag) == TagReader::Result::tag) {
        tags.push_back(tag);
    }
    return tags;
}

} // namespace

EntityShape readShape(RecordKind kind, std::string_view bytes, const RecordSpan& span,
                      const DrawingText& text) {
    const std::vector<Tag> tags = readTags(bytes, span);
    const std::vector<ShapeTags> records = splitRecords(tags);
    if (records.empty()) {
        return {};
    }
    const ShapeTags& record = records.front();
    switch (kind) {
    case RecordKind::line:
        return lineShape(record);
    case RecordKind::point:
        return pointShape(record);
    case RecordKind::solid:
        return solidShape(record);
    case RecordKind::circle:
        return arcShape(record, true);
    case RecordKind::arc:
        return arcShape(record, false);
    case RecordKind::ellipse:
        return ellipseShape(record);
    case RecordKind::lwPolyline:
        return lwPolylineShape(record);
    case RecordKind::polyline:
        return polylineShape(records);
    case RecordKind::text:
        return textShape(record, text);
    case RecordKind::mtext:
        return mtextShape(record, text);
    case RecordKind::insert:
        return insertShape(records, text);
    case RecordKind::hatch:
        return hatchShape(record);
    default:
        return {};
    }
}

ShapeTags::ShapeTags(std::span<const Tag> tags)
    : m_tags(tags.begin(),
             std::ranges::find_if(tags, [](const Tag& tag) { return tag.code >= 1000; })) {}

const Tag* ShapeTags::find(int code) const {
    const auto found = std::ranges::find(m_tags, code, &Tag::code);
    return found != m_tags.end() ? &*found : nullptr;
}

double ShapeTags::real(int code, double otherwise) const {
    const Tag* const tag = find(code);
    return tag != nullptr ? parseReal(tag->value).value_or(otherwise) : otherwise;
}

int ShapeTags::integer(int code, int otherwise) const {
    const Tag* const tag = find(code);
    return tag != nullptr ? parseInteger(tag->value).value_or(otherwise) : otherwise;
}

std::string_view ShapeTags::text(int code) const {
    const Tag* const tag = find(code);
    return tag != nullptr ? tag->value : std::string_view();
}

KdGePoint3d ShapeTags::point(int code) const {
    return {real(code), real(code + 10), real(code + 20)};
}

EntityPlane EntityPlane::of(const ShapeTags& tags) {
    EntityPlane plane;
    KdGeVector3d normal{tags.real(210), tags.real(220), tags.real(230, 1.0)};
    normal.normalize();
    if (normal.isZeroLength()) {
        return plane;
    }
    plane.normal = normal;
    const PlaneAxes axes = arbitraryAxes(normal);
    plane.xAxis = axes.x;
    plane.yAxis = axes.y;
    plane.yAxis.normalize(); // what is drawn depends on its last bit
    return plane;
}

KdGePoint3d EntityPlane::toWorld(const KdGePoint3d& point) const {
    const KdGeVector3d sum = xAxis * point.x + yAxis * point.y + normal * point.z;
    return {sum.x, sum.y, sum.z};
}

KdGeVector3d EntityPlane::direction(double angle) const {
    return xAxis * std::cos(angle) + yAxis * std::sin(angle);
}

std::vector<ShapeTags> splitRecords(std::span<const Tag> tags) {
    std::vector<ShapeTags> records;
    std::size_t begin = 0;
    for (std::size_t i = 1; i <= tags.size(); ++i) {
        if (i == tags.size() || tags[i].code == 0) {
            records.emplace_back(tags.subspan(begin, i - begin));
            begin = i;
        }
    }
    return records;
}

} // namespace orvex
