// The outlines of hatches.

#include "EntityShapes.h"
#include "NumberText.h"
#include "geometry.h"

#include <algorithm>
#include <cmath>

namespace orvex {

namespace {

constexpr int kPolylinePath = 2; // flag of a path
enum EdgeKind : int { kLineEdge = 1, kArcEdge, kEllipseEdge, kSplineEdge };

// A hatch's boundary says what comes next by its order, so it is read from front to back.
class HatchReader {
public:
    HatchReader(std::span<const Tag> tags, const EntityPlane& plane, double elevation)
        : m_tags(tags), m_plane(plane), m_elevation(elevation) {}

    OutlinesShape run();

private:
    // The next tag, if it has the code.
    bool takeReal(int code, double& value);
    bool takeInteger(int code, int& value);
    bool takePoint(int code, KdGePoint3d& point); // `code` and `code` + 10
    bool skipTo(int code);
    void readPolyline();
    void readEdges();
    bool readEdge(int kind);
    bool readLine();
    bool readArc();
    bool readEllipse();
    bool readSpline();
    void addConic(const KdGePoint3d& center, const KdGePoint3d& major, double ratio);
    void addPath(const std::vector<KdGePoint3d>& points);

    std::span<const Tag> m_tags;
    std::size_t m_at = 0;
    const EntityPlane& m_plane;
    double m_elevation;
    OutlinesShape m_shape;
};

bool HatchReader::takeReal(int code, double& value) {
    const bool isThere = m_at < m_tags.size() && m_tags[m_at].code == code;
    const auto number = isThere ? parseReal(m_tags[m_at].value) : std::nullopt;
    value = number.value_or(value);
    m_at += number ? 1 : 0;
    return number.has_value();
}

bool HatchReader::takeInteger(int code, int& value) {
    const bool isThere = m_at < m_tags.size() && m_tags[m_at].code == code;
    const auto number = isThere ? parseInteger(m_tags[m_at].value) : std::nullopt;
    value = number.value_or(value);
    m_at += number ? 1 : 0;
    return number.has_value();
}

bool HatchReader::takePoint(int code, KdGePoint3d& point) {
    return takeReal(code, point.x) && takeReal(code + 10, point.y);
}

bool HatchReader::skipTo(int code) {
    while (m_at < m_tags.size() && m_tags[m_at].code != code) {
        ++m_at;
    }
    return m_at < m_tags.size();
}

OutlinesShape HatchReader::run() {
    int flags = 0;
    while (skipTo(92) && takeInteger(92, flags)) {
        if ((flags & kPolylinePath) != 0) {
            readPolyline();
        } else {
            readEdges();
        }
    }
    return std::move(m_shape);
}

void HatchReader::readPolyline() {
    int hasBulge = 0;
    int closed = 1;
    int count = 0;
    takeInteger(72, hasBulge);
    takeInteger(73, closed);
    if (!takeInteger(93, count)) {
        return;
    }
    PolylineShape path;
    path.closed = closed != 0;
    path.normal = m_plane.normal;
    KdGePoint3d point{0.0, 0.0, m_elevation};
    for (int i = 0; i < count && takePoint(10, point); ++i) {
        path.vertices.push_back({m_plane.toWorld(point), 0.0});
        takeReal(42, path.vertices.back().bulge);
    }
    m_shape.paths.push_back(std::move(path));
}

void HatchReader::readEdges() {
    int count = 0;
    int kind = 0;
    if (!takeInteger(93, count)) {
        return;
    }
    for (int i = 0; i < count && takeInteger(72, kind) && readEdge(kind); ++i) {
    }
}

bool HatchReader::readEdge(int kind) {
    switch (kind) {
    case kLineEdge:
        return readLine();
    case kArcEdge:
        return readArc();
    case kEllipseEdge:
        return readEllipse();
    case kSplineEdge:
        return readSpline();
    default:
        return false;
    }
}

void HatchReader::addPath(const std::vector<KdGePoint3d>& points) {
    PolylineShape path;
    path.normal = m_plane.normal;
    for (const KdGePoint3d& point : points) {
        path.vertices.push_back({m_plane.toWorld({point.x, point.y, m_elevation}), 0.0});
    }
    m_shape.paths.push_back(std::move(path));
}

bool HatchReader::readLine() {
    KdGePoint3d start;
    KdGePoint3d end;
    if (!takePoint(10, start) || !takePoint(11, end)) {
        return false;
    }
    addPath({start, end});
    return true;
}

// Reads the angles and the direction that end an arc; clockwise ones count their angles so, too.
void HatchReader::addConic(const KdGePoint3d& center, const KdGePoint3d& major, double ratio) {
    constexpr double kFullTurn = 6.283185307179586;
    double start = 0.0;
    double end = 360.0;
    int counterClockwise = 1;
    takeReal(50, start);
    takeReal(51, end);
    takeInteger(73, counterClockwise);
    if (counterClockwise == 0) {
        std::swap(start, end);
        start = -start;
        end = -end;
    }
    ConicShape conic;
    conic.center = m_plane.toWorld({center.x, center.y, m_elevation});
    conic.major = m_plane.xAxis * major.x + m_plane.yAxis * major.y;
    conic.minor = cross(m_plane.normal, conic.major) * ratio;
    conic.start = fileRadians(start);
    conic.end = fileRadians(end);
    if (conic.end <= conic.start) {
        conic.end += kFullTurn;
    }
    m_shape.arcs.push_back(conic);
}

bool HatchReader::readArc() {
    KdGePoint3d center;
    double radius = 0.0;
    if (!takePoint(10, center) || !takeReal(40, radius)) {
        return false;
    }
    addConic(center, {radius, 0.0, 0.0}, 1.0);
    return true;
}

bool HatchReader::readEllipse() {
    KdGePoint3d center;
    KdGePoint3d major;
    double ratio = 1.0;
    if (!takePoint(10, center) || !takePoint(11, major) || !takeReal(40, ratio)) {
        return false;
    }
    addConic(center, major, ratio);
    return true;
}

// The point of a spline at `t` in the knot span [knots[span], knots[span + 1]), by de Boor.
KdGePoint3d splinePoint(const std::vector<double>& knots, const std::vector<KdGePoint3d>& controls,
                        std::size_t degree, std::size_t span, double t) {
    std::vector<KdGePoint3d> d(controls.begin() + static_cast<std::ptrdiff_t>(span - degree),
                               controls.begin() + static_cast<std::ptrdiff_t>(span + 1));
    for (std::size_t r = 1; r <= degree; ++r) {
        for (std::size_t j = degree; j >= r; --j) {
            const double low = knots[span - degree + j];
            const double width = knots[span + 1 + j - r] - low;
            const double part = width == 0.0 ? 0.0 : (t - low) / width;
            d[j].x = (1.0 - part) * d[j - 1].x + part * d[j].x;
            d[j].y = (1.0 - part) * d[j - 1].y + part * d[j].y;
        }
    }
    return d[degree];
}

std::vector<KdGePoint3d> splinePoints(const std::vector<double>& knots,
                                      const std::vector<KdGePoint3d>& controls,
                                      std::size_t degree) {
    constexpr int kSteps = 8; // per span
    constexpr std::size_t kHighestDegree = 25;
    if (degree < 1 || degree > kHighestDegree || controls.size() <= degree ||
        knots.size() != controls.size() + degree + 1 || !std::ranges::is_sorted(knots)) {
        return controls;
    }
    std::vector<KdGePoint3d> points;
    for (std::size_t span = degree; span < controls.size(); ++span) {
        const double width = knots[span + 1] - knots[span];
        for (int step = 0; width > 0.0 && step <= kSteps; ++step) {
            points.push_back(
                splinePoint(knots, controls, degree, span, knots[span] + width * step / kSteps));
        }
    }
    return points;
}

bool HatchReader::readSpline() {
    int degree = 0;
    int flag = 0;
    int knotCount = 0;
    int controlCount = 0;
    if (!takeInteger(94, degree)) {
        return false;
    }
    takeInteger(73, flag);
    takeInteger(74, flag);
    if (!takeInteger(95, knotCount) || !takeInteger(96, controlCount)) {
        return false;
    }
    std::vector<double> knots;
    std::vector<KdGePoint3d> controls;
    double value = 0.0;
    KdGePoint3d point;
    for (int i = 0; i < knotCount && takeReal(40, value); ++i) {
        knots.push_back(value);
    }
    for (int i = 0; i < controlCount && takePoint(10, point); ++i) {
        controls.push_back(point);
        takeReal(42, value); // its weight; the outline does without
    }
    int fitCount = 0;
    takeInteger(97, fitCount);
    for (int i = 0; i < fitCount && takePoint(11, point); ++i) {
    }
    addPath(splinePoints(knots, controls, static_cast<std::size_t>(std::max(degree, 0))));
    takePoint(12, point); // directions at the ends
    takePoint(13, point);
    return true;
}

} // namespace

EntityShape hatchShape(const ShapeTags& tags) {
    const EntityPlane plane = EntityPlane::of(tags);
    return HatchReader(tags.all(), plane, tags.real(30)).run();
}

} // namespace orvex
