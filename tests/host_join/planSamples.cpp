#include "planSamples.h"

#include "KdDbStub.h"
#include "checkJoint.h"

#include <array>
#include <numbers>

namespace orvex::testing {

namespace {

PlanVector unit(PlanVector way) {
    const double length = way.length();
    return length > 0.0 ? way * (1.0 / length) : PlanVector{1.0, 0.0};
}

KdGeVector3d inSpace(PlanVector v) {
    return {v.x, v.y, 0.0};
}

} // namespace

MlineContent drawWall(const WallSketch& sketch) {
    MlineContent content;
    static KdDbStub style; // walls only ask whether there is one
    content.style = KdDbObjectId(&style);
    content.closed = sketch.closed;
    content.normal = {0.0, 0.0, sketch.normal};
    const std::size_t count = sketch.points.size();
    std::vector<double> values;
    for (std::size_t v = 0; v < count; ++v) {
        const PlanVector here = sketch.points[v];
        const bool first = v == 0 && !sketch.closed;
        const bool last = v + 1 == count && !sketch.closed;
        const PlanVector in = unit(here - sketch.points[(v + count - 1) % count]);
        const PlanVector out = last ? in : unit(sketch.points[(v + 1) % count] - here);
        const PlanVector along = first ? out : unit(in + out);
        const PlanVector miter = along.left();
        content.vertices.push_back({{here.x, here.y, sketch.z}, inSpace(out), inSpace(miter)});
        for (const double offset : sketch.offsets) {
            values.push_back(offset / cross(out, miter));
            values.push_back(0.0);
        }
    }
    std::vector<std::uint32_t> counts;
    for (std::size_t i = 0; i < count * sketch.offsets.size(); ++i) {
        counts.insert(counts.end(), {2U, 0U});
    }
    content.lists.assignFlat(static_cast<unsigned>(sketch.offsets.size()), counts, values);
    return content;
}

std::vector<WallSketch> moved(std::vector<WallSketch> walls, PlanVector by) {
    for (WallSketch& wall : walls) {
        for (PlanVector& point : wall.points) {
            point = point + by;
        }
    }
    return walls;
}

std::vector<WallSketch> turned(std::vector<WallSketch> walls, double degrees) {
    const double angle = degrees * std::numbers::pi / 180.0;
    for (WallSketch& wall : walls) {
        for (PlanVector& point : wall.points) {
            point = {point.x * std::cos(angle) - point.y * std::sin(angle),
                     point.x * std::sin(angle) + point.y * std::cos(angle)};
        }
    }
    return walls;
}

std::vector<WallSketch> reversed(std::vector<WallSketch> walls) {
    for (WallSketch& wall : walls) {
        std::reverse(wall.points.begin(), wall.points.end());
        for (double& offset : wall.offsets) {
            offset = -offset;
        }
    }
    return walls;
}

std::vector<JoinWall> wallsOf(const std::vector<MlineContent>& contents) {
    std::vector<JoinWall> walls;
    for (unsigned i = 0; i < contents.size(); ++i) {
        walls.emplace_back(0x100 + i, i, contents[i]);
    }
    return walls;
}

std::vector<JoinWall> wallsOf(const std::vector<WallSketch>& sketches) {
    std::vector<MlineContent> contents;
    contents.reserve(sketches.size());
    for (const WallSketch& sketch : sketches) {
        contents.push_back(drawWall(sketch));
    }
    return wallsOf(contents);
}

std::string countsOf(const JoinPlan& plan) {
    std::array<unsigned, 4> counts{};
    for (const JoinPlace& place : plan.places) {
        if (place.result == PlaceResult::planned) {
            ++counts[static_cast<std::size_t>(place.kind)];
        } else if (place.result == PlaceResult::left) {
            ++counts[3];
        }
    }
    std::string text;
    for (const unsigned count : counts) {
        text += (text.empty() ? "" : "/") + std::to_string(count);
    }
    return text;
}

void setStops(MlineContent& content, unsigned segment, unsigned element,
              const std::vector<double>& stops) {
    VoVector<KdMLSegment> record = content.lists.nested(segment);
    auto& list = record.at(static_cast<int>(element)).m_lineParams;
    VoVector<double> fresh(static_cast<unsigned>(stops.size()) + 1);
    fresh.data()[0] = list.data()[0];
    std::copy(stops.begin(), stops.end(), fresh.data() + 1);
    list = fresh;
    content.lists.setNested(segment, record);
}

void playIdeally(const JoinPlan& plan, std::vector<MlineContent>& contents) {
    for (const unsigned index : plan.order) {
        const JoinPlace& place = plan.places[index];
        const std::vector<JoinWall> before = wallsOf(contents);
        const PlanLine first = before[place.first.wall].axis(place.first.segment);
        const PlanLine second = before[place.second.wall].axis(place.second.segment);
        const PlanVector at = first.at(first.crossing(second));
        for (const JoinSide* side : {&place.first, &place.second}) {
            MlineContent& content = contents[side->wall];
            if (side->end != WallEnd::none) {
                const bool atEnd = side->end == WallEnd::end;
                auto& vertex = atEnd ? content.vertices.back() : content.vertices.front();
                vertex.position = {at.x, at.y, vertex.position.z};
                (atEnd ? content.endCapsSuppressed : content.startCapsSuppressed) = true;
            }
        }
        const std::vector<JoinWall> now = wallsOf(contents);
        const auto renewed =
            renewedStops(place, {before[place.first.wall], before[place.second.wall]},
                         {now[place.first.wall], now[place.second.wall]});
        for (const RenewedStops& stops : renewed) {
            setStops(contents[stops.wall], stops.segment, stops.element, stops.stops);
        }
    }
}

} // namespace orvex::testing
