#include "ChainPart.h"

#include "breakLists.h"
#include "chainMiter.h"
#include "geometry.h"

#include <utility>

namespace orvex {

namespace {

double sineAt(const ChainVertex& vertex, const KdGeVector3d& axis, const KdGeVector3d& normal) {
    return dot(leftOf(axis, normal), vertex.miter);
}

void scaleFirst(VoVector<double>& list, double factor) {
    VoVector<double> fresh;
    if (!list.isEmpty()) {
        fresh.append(factor == 1.0 ? list[0] : list[0] * factor);
        fresh.append(0.0);
    }
    list = fresh;
}

// A list that a cut ended needs no distance to tell so.
std::vector<double> withOpenEnd(std::vector<double> list, double length) {
    if (list.size() > 2 && list.size() % 2 == 1 && list.back() >= length) {
        list.pop_back();
    }
    return list;
}

} // namespace

ChainPart::ChainPart(MlineContent pattern) : m_result(std::move(pattern)) {
    m_result.closed = false;
    m_result.vertices.clear();
    m_result.lists = ParameterLists();
}

void ChainPart::add(const ChainVertex& vertex, const MlineContent& from, unsigned listsOf,
                    double factor, const Origin& origin) {
    VoVector<KdMLSegment> record = from.lists.nested(listsOf);
    for (unsigned e = 0; e < record.size(); ++e) {
        scaleFirst(record[static_cast<int>(e)].m_lineParams, factor);
        scaleFirst(record[static_cast<int>(e)].m_areaParams, factor);
    }
    m_result.vertices.push_back(vertex);
    m_result.lists.appendVertex();
    m_result.lists.setNested(m_result.lists.vertexCount() - 1, record);
    m_origins.push_back(origin);
}

void ChainPart::addVertex(const MlineContent& from, unsigned vertex, unsigned segment) {
    add(from.vertices[vertex], from, vertex, 1.0, {&from, segment, false});
}

void ChainPart::addPlace(const MlineContent& from, unsigned segment, const KdGePoint3d& place) {
    const ChainVertex& before = from.vertices[segment];
    const double sine = sineAt(before, before.axis, from.normal);
    add({place, before.axis, leftOf(before.axis, from.normal)}, from, segment, sine,
        {&from, segment, true});
}

void ChainPart::addJoint(const MlineContent& incoming, const MlineContent& outgoing) {
    const ChainVertex& end = incoming.vertices.back();
    const ChainVertex& start = outgoing.vertices.front();
    const Miter miter = jointMiter(end.axis, start.axis, incoming.normal);
    add({end.position, start.axis, miter.direction}, outgoing, 0,
        sineAt(start, start.axis, outgoing.normal) / miter.sine, {&outgoing, 0, true});
}

void ChainPart::relist(MlineContent& result, unsigned segment) const {
    const Origin& origin = m_origins[segment];
    const MlineChain before(*origin.mline);
    const MlineContent positioned = result;
    const MlineChain after(positioned);
    const bool isNewStart = origin.isNew;
    const bool isNewEnd = m_origins[segment + 1].isNew;
    const auto anew = [&](std::span<const double> list, double position, const MlineTrack& was,
                          const MlineTrack& is) {
        std::vector<double> fresh(list.begin(), list.end());
        const bool isSame = was.start == is.start && was.end == is.end;
        if (!isSame || isNewStart || isNewEnd) {
            fresh = remeasured(list, {was, is, !isNewStart, !isNewEnd});
            fresh = isNewEnd ? withOpenEnd(std::move(fresh), is.length) : fresh;
        }
        if (!fresh.empty()) {
            fresh[0] = position;
        }
        return toParameters(fresh);
    };
    VoVector<KdMLSegment> record = positioned.lists.nested(segment);
    for (unsigned e = 0; e < record.size(); ++e) {
        KdMLSegment& element = record[static_cast<int>(e)];
        if (!element.m_lineParams.isEmpty()) {
            element.m_lineParams = anew(before.line(origin.segment, e), element.m_lineParams[0],
                                        before.track(origin.segment, e), after.track(segment, e));
        }
        if (!element.m_areaParams.isEmpty()) {
            element.m_areaParams =
                anew(before.area(origin.segment, e), element.m_areaParams[0],
                     before.areaTrack(origin.segment, e), after.areaTrack(segment, e));
        }
    }
    result.lists.setNested(segment, record);
}

MlineContent ChainPart::finished() const {
    MlineContent result = m_result;
    result.vertices.back().axis = result.vertices[result.vertices.size() - 2].axis;
    for (unsigned s = 0; s + 1 < result.vertices.size(); ++s) {
        relist(result, s);
    }
    return result;
}

} // namespace orvex
