#include "mlineLook.h"

#include "mlinePieces.h"

namespace orvex {

namespace {

void drawStretches(const MlineChain& chain, MlineParts& parts) {
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
                    parts.stretch(begin, end, element);
                }
            });
        }
    }
}

} // namespace

void drawMline(const MlineContent& mline, const MlineStyleContent* style, MlineParts& parts) {
    const MlineChain chain(mline);
    const int flags = style != nullptr ? style->flags : 0;
    if (flags == 0 || chain.segmentCount() == 0 || chain.elementCount() < 2) {
        drawStretches(chain, parts);
        return;
    }
    const auto across = chain.elementsAcross();
    if ((flags & kStyleFilled) != 0) {
        drawFill(chain, across, parts);
    }
    drawStretches(chain, parts);
    if (!chain.isClosed()) {
        drawCaps(mline, chain, flags, across, parts);
    }
    if ((flags & kStyleMiters) != 0) {
        drawJoints(chain, across, parts);
    }
}

} // namespace orvex
