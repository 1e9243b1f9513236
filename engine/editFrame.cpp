#include "editFrame.h"

#include "KdDbMlineStyle.h"
#include "coordinateFrames.h"
#include "promptStatus.h"
#include "systemVariables.h"
#include "vectorMath.h"

#include <algorithm>
#include <cmath>

namespace mledit {

namespace {

void convert(const double* point, const resbuf& from, const resbuf& to, bool displacement,
             double* out) {
    double result[3] = {point[0], point[1], point[2]};
    kdedTrans(point, &from, &to, displacement ? 1 : 0, result);
    std::copy_n(result, 3, out);
}

// Zero where the variable is missing.
resbuf pointVariable(const wchar_t* name) {
    resbuf result;
    if (kdedGetVar(name, &result) != kPromptNormal) {
        result = resbuf();
    }
    return result;
}

} // namespace

EditFrame::EditFrame(short type, const double* normal) {
    m_world.restype = kResultShort;
    m_world.resval.rint = 0;
    m_frame.restype = type;
    std::copy_n(normal, 3, m_frame.resval.rpoint);
}

EditFrame EditFrame::ofPlane(const double* normal) {
    return EditFrame(kResultPoint, normal);
}

EditFrame EditFrame::overlaid(const double* normal) {
    return EditFrame(kResultShort, normal);
}

void EditFrame::toFrame(const double* world, double* out) const {
    convert(world, m_world, m_frame, false, out);
}

void EditFrame::directionToFrame(const double* world, double* out) const {
    convert(world, m_world, m_frame, true, out);
}

void EditFrame::direction(double angle, double* world) const {
    const double inFrame[3] = {std::cos(angle), std::sin(angle), 0.0};
    convert(inFrame, m_frame, m_world, true, world);
}

double bisect(double a, double b) {
    double middle = (a + b) / 2.0;
    if (a > b) {
        middle += kPi;
    }
    if (a == b) {
        middle += kHalfPi;
    }
    return middle;
}

Neighbours neighboursOf(int vertex, int numVertices, bool closed) {
    Neighbours around{vertex + 1, vertex + 2, vertex - 1, vertex - 2};
    if (closed) {
        const auto wrap = [numVertices](int index) {
            return ((index % numVertices) + numVertices) % numVertices;
        };
        around = {wrap(around.next), wrap(around.afterNext), wrap(around.previous),
                  wrap(around.beforePrevious)};
    }
    return around;
}

EndAngles endAngles(const KdDbMlineStyle& style, const double* normal) {
    const resbuf xAxis = pointVariable(L"UCSXDIR");
    const resbuf yAxis = pointVariable(L"UCSYDIR");
    double up[3] = {0.0, 0.0, 0.0};
    gx_crossproduct(xAxis.resval.rpoint, yAxis.resval.rpoint, up);
    const double sign = normal[2] * up[2] > 0.0 ? 1.0 : -1.0;
    return {style.startAngle() * sign, style.endAngle() * sign};
}

} // namespace mledit
