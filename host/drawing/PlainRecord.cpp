#include "PlainRecord.h"

#include "geometry.h"

#include <array>
#include <cmath>

namespace orvex {

namespace {

// A place of the world in the plane of a flat entity.
KdGePoint3d inPlane(const KdGePoint3d& point, const PlaneAxes& axes, const KdGeVector3d& normal) {
    const KdGeVector3d place{point.x, point.y, point.z};
    return {dot(place, axes.x), dot(place, axes.y), dot(place, normal)};
}

// From 0 to less than 360, as readers want arcs.
double arcDegrees(double radians) {
    const double degrees = std::fmod(toDegrees(radians), 360.0);
    return degrees < 0.0 ? degrees + 360.0 : degrees;
}

void addNormal(TagText& target, const KdGeVector3d& normal) {
    if (normal.x != 0.0 || normal.y != 0.0 || normal.z != 1.0) {
        target.addPoint(210, normal);
    }
}

void addClass(TagText& target, const RecordContext& context, std::string_view name) {
    if (!context.isOld) {
        target.add(100, name);
    }
}

class PlainWriter {
public:
    PlainWriter(TagText& target, const RecordContext& context, const PlainContent& content,
                const EntityPlace& place)
        : m_target(target), m_context(context), m_content(content), m_place(place) {}

    void operator()(const LineShape& line) const {
        begin("LINE");
        addClass(m_target, m_context, "AcDbLine");
        m_target.addPoint(10, line.start);
        m_target.addPoint(11, line.end);
    }
    void operator()(const ConicShape& arc) const {
        const KdGeVector3d& normal = m_content.normal;
        const PlaneAxes axes = arbitraryAxes(normal);
        const double turn = std::atan2(dot(arc.major, axes.y), dot(arc.major, axes.x));
        begin("ARC");
        addClass(m_target, m_context, "AcDbCircle");
        m_target.addPoint(10, inPlane(arc.center, axes, normal));
        m_target.addReal(40, arc.major.length());
        addNormal(m_target, normal);
        addClass(m_target, m_context, "AcDbArc");
        m_target.addReal(50, arcDegrees(turn + arc.start));
        m_target.addReal(51, arcDegrees(turn + arc.end));
    }
    void operator()(const SolidShape& solid) const {
        constexpr std::array<std::size_t, 4> kFileOrder{0, 1, 3, 2};
        const PlaneAxes axes = arbitraryAxes(m_content.normal);
        begin("SOLID");
        addClass(m_target, m_context, "AcDbTrace");
        for (std::size_t i = 0; i < kFileOrder.size(); ++i) {
            // Of three corners the last one counts twice.
            const std::size_t corner = std::min(kFileOrder[i], solid.corners.size() - 1);
            m_target.addPoint(10 + static_cast<int>(i),
                              inPlane(solid.corners[corner], axes, m_content.normal));
        }
        addNormal(m_target, m_content.normal);
    }
    template <class Other>
    void operator()(const Other& /*shape*/) const {} // never made

private:
    void begin(std::string_view kind) const {
        writeCommonPart(m_target, m_context, kind, m_content.traits.get(), m_place);
    }

    TagText& m_target;
    const RecordContext& m_context;
    const PlainContent& m_content;
    const EntityPlace& m_place;
};

} // namespace

void writePlain(TagText& target, const RecordContext& context, const PlainContent& content,
                const EntityPlace& place) {
    std::visit(PlainWriter(target, context, content, place), content.shape);
}

} // namespace orvex
