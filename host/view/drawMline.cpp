#include "drawMline.h"

#include "arcs.h"
#include "geometry.h"
#include "mlineParts.h"

namespace orvex {

namespace {

void drawElements(const MlineChain& chain, MlineSink& sink) {
    for (unsigned element = 0; element < chain.elementCount(); ++element) {
        for (unsigned segment = 0; segment < chain.segmentCount(); ++segment) {
            const auto list = chain.line(segment, element);
            if (list.size() < 2) {
                continue;
            }
            const MlineTrack track = chain.track(segment, element);
            forEachStretch(list, track.length, [&](const MlineStretch& stretch) {
                const KdGePoint3d begin = track.at(stretch.begin);
                const KdGePoint3d end = stretchEnd(track, stretch);
                if (begin != end) {
                    sink.elementLine(begin, end, element);
                }
            });
        }
    }
}

} // namespace

void MlineSink::halfCircle(const KdGePoint3d& center, const KdGeVector3d& radius,
                           const KdGeVector3d& top, unsigned first, unsigned second) {
    std::vector<KdGePoint3d> arc;
    appendArc(arc, center, radius, top, 0.0, kPi);
    crossing(arc, StrokeRole::cap, first, second);
}

void drawMline(const MlineContent& mline, const MlineStyleContent* style, MlineSink& sink) {
    const MlineChain chain(mline);
    const int flags = style != nullptr ? style->flags : 0;
    if (flags == 0 || chain.segmentCount() == 0 || chain.elementCount() < 2) {
        drawElements(chain, sink);
        return;
    }
    const auto across = chain.elementsAcross();
    if ((flags & kStyleFilled) != 0) {
        drawFill(chain, across, sink);
    }
    drawElements(chain, sink);
    if (!chain.isClosed()) {
        drawCaps(mline, chain, flags, across, sink);
    }
    if ((flags & kStyleMiters) != 0) {
        drawJoints(chain, across, sink);
    }
}

} // namespace orvex
