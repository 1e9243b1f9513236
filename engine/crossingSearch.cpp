#include "crossingSearch.h"

#include "CMlineEdit.h"
#include "comparisons.h"
#include "lineMath.h"
#include "vectorMath.h"

#include <algorithm>
#include <cmath>

namespace mledit {

namespace {

// A crossing counts as on a segment up to a product of 1e-7 of its distances from the ends, so at
// most sqrt(1e-7) beyond one of them.
constexpr double kOnSegmentReach = 3.2e-4;
// Of lines that meet at an angle whose sine is above this the crossing is computed to within
// kStray of the greatest coordinate.
constexpr double kWellConditionedSine = 1e-3;
constexpr double kStray = 1e-7;
// A steeper line, as y over x, magnifies an error of x too much when y is taken from it.
constexpr double kSteep = 1e3;
// Below this, the line primitive calls two lines parallel whatever else it finds.
constexpr double kParallel = 1e-11;
// Shorter segments may count as points, and then as parallel to anything.
constexpr double kShort = 1e-4;
constexpr double kShortRelative = 1e-9;
// Beyond this size products of coordinates may overflow.
constexpr double kSafeCoordinate = 1e100;

// Signed distance of a point from a line, times the line's length.
double side(const double* start, const double* direction, const double* point) {
    const double offset[2] = {point[0] - start[0], point[1] - start[1]};
    return planCross(direction, offset);
}

bool bothBeyond(double a, double b, double limit) {
    return (a > limit && b > limit) || (a < -limit && b < -limit);
}

double greatestCoordinate(std::span<const ChainPoint> chain) {
    double greatest = 0.0;
    for (const ChainPoint& point : chain) {
        for (const double value : point.xyz) {
            // Written so that a NaN wins.
            greatest = !(std::abs(value) <= greatest) ? std::abs(value) : greatest;
        }
    }
    return greatest;
}

} // namespace

CrossingSearch::CrossingSearch(const ChainPair& chains, CrossRule rule)
    : m_chains(chains), m_rule(rule) {
    const auto lineOf = [](const ChainPoint& a, const ChainPoint& b) {
        Line line{};
        for (int k = 0; k < 2; ++k) {
            line.start[k] = a.xyz[k];
            line.direction[k] = b.xyz[k] - a.xyz[k];
            line.low[k] = std::min(a.xyz[k], b.xyz[k]);
            line.high[k] = std::max(a.xyz[k], b.xyz[k]);
        }
        line.length = std::hypot(line.direction[0], line.direction[1]);
        return line;
    };
    for (int i = 0; i < chains.firstSegments(); ++i) {
        const auto at = static_cast<std::size_t>(i);
        m_firstLines.push_back(lineOf(chains.first[at], chains.first[at + 1]));
    }
    for (int j = 0; j < chains.secondSegments(); ++j) {
        m_secondLines.push_back(lineOf(chains.second[static_cast<std::size_t>(j)],
                                       chains.second[chains.endOfSecond(j)]));
    }
    if (m_firstLines.empty() || m_secondLines.empty()) {
        return;
    }

    const double greatest =
        std::max(greatestCoordinate(chains.first), greatestCoordinate(chains.second));
    m_margin = 4.0 * (kOnSegmentReach + kStray * greatest);
    m_short = kShort + kShortRelative * greatest;
    m_height = chains.first[0].xyz[2];
    const auto atHeight = [this](const ChainPoint& point) { return point.xyz[2] == m_height; };
    m_canSkip = greatest < kSafeCoordinate && std::ranges::all_of(chains.first, atHeight) &&
                std::ranges::all_of(chains.second, atHeight);
}

// False only for a pair that can't be a candidate.
bool CrossingSearch::mayMeet(int i, int j) const {
    const Line& a = m_firstLines[static_cast<std::size_t>(i)];
    const Line& b = m_secondLines[static_cast<std::size_t>(j)];
    if (std::min(a.length, b.length) <= m_short) {
        return true;
    }
    const double turn = planCross(a.direction, b.direction);
    if (std::abs(turn) <= kWellConditionedSine * a.length * b.length) {
        if (std::abs(turn) > kParallel) {
            return true;
        }
        // No crossing of its own: the point of an earlier pair has to lie inside both segments.
        for (int k = 0; k < 2; ++k) {
            if (a.low[k] > b.high[k] + m_margin || b.low[k] > a.high[k] + m_margin) {
                return false;
            }
        }
        return true;
    }
    const Line& flatter = std::abs(a.direction[0]) > std::abs(b.direction[0]) ? a : b;
    if (std::abs(flatter.direction[1]) > kSteep * std::abs(flatter.direction[0])) {
        return true;
    }
    // The far ends lie further by the turn itself.
    const double fromFirst = side(a.start, a.direction, b.start);
    if (!bothBeyond(fromFirst, fromFirst + turn, m_margin * a.length)) {
        return true;
    }
    if (m_rule == CrossRule::tee) {
        return false;
    }
    const double fromSecond = side(b.start, b.direction, a.start);
    return !bothBeyond(fromSecond, fromSecond - turn, m_margin * b.length);
}

int CrossingSearch::solve(int i, int j, double* point) const {
    const auto first = static_cast<std::size_t>(i);
    const auto second = static_cast<std::size_t>(j);
    return gx_linexline(m_chains.first[first].xyz, m_chains.first[first + 1].xyz,
                        m_chains.second[second].xyz, m_chains.second[m_chains.endOfSecond(j)].xyz,
                        point);
}

// Makes m_point what it is after all pairs up to and with `position`, of which those after
// m_pointPosition were skipped.
void CrossingSearch::bringPointUpTo(long position) {
    const int columns = m_chains.secondSegments();
    for (long at = position; at > m_pointPosition; --at) {
        const int i = static_cast<int>(at / columns);
        const int j = static_cast<int>(at % columns);
        if (isSkipped(i, j)) {
            continue;
        }
        // Its height on entry is the one that every crossing has.
        double point[3] = {0.0, 0.0, m_height};
        if (solve(i, j, point) != -1) {
            copyPoint(point, m_point);
            break;
        }
    }
    m_pointPosition = position;
}

bool CrossingSearch::step() {
    if (++m_j >= m_chains.secondSegments()) {
        m_j = 0;
        ++m_i;
    }
    return m_i < m_chains.firstSegments() && m_chains.secondSegments() > 0;
}

bool CrossingSearch::isCandidate(int i, int j, int result) const {
    const auto first = static_cast<std::size_t>(i);
    const auto second = static_cast<std::size_t>(j);
    const auto code = CMlineEdit::PositionConnection;
    const int a = code(m_chains.first[first].xyz, m_point);
    const int b = code(m_point, m_chains.first[first + 1].xyz);
    const int c = code(m_chains.second[second].xyz, m_point);
    const int d = code(m_point, m_chains.second[m_chains.endOfSecond(j)].xyz);
    if (a == b && c == d) {
        return true;
    }
    if (m_rule == CrossRule::cross) {
        return result > 0;
    }
    return result == 2 || (result == 3 && (a == 0 || b == 0));
}

bool CrossingSearch::next(SegmentPair& pair, bool& crossesOnBoth) {
    while (step()) {
        if (isSkipped(m_i, m_j)) {
            continue;
        }
        const bool knowsPoint = !m_canSkip || m_firstSolved < 0;
        if (!knowsPoint && !mayMeet(m_i, m_j)) {
            continue;
        }
        const long position = static_cast<long>(m_i) * m_chains.secondSegments() + m_j;
        if (!knowsPoint) {
            bringPointUpTo(position - 1);
        }
        const int result = solve(m_i, m_j, m_point);
        m_pointPosition = position;
        if (result != -1 && m_firstSolved < 0) {
            m_firstSolved = position;
        }
        if (isCandidate(m_i, m_j, result)) {
            pair.first = m_i;
            pair.second = m_j;
            copyPoint(m_point, pair.point);
            crossesOnBoth = result == 3;
            return true;
        }
    }
    return false;
}

} // namespace mledit
