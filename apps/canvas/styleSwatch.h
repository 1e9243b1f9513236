#pragma once

#include <QPixmap>
#include <QSize>

class KdDbMlineStyle;

namespace orvex {

// A short run of a multiline in a style: offsets, colours, line types, fill, caps and miters, as
// large as it fits. `size` is in device-independent pixels. Line types show their pattern whatever
// its length in the drawing; by layer and by block are white. The style may belong to no drawing.
QPixmap styleSwatch(const KdDbMlineStyle& style, const QSize& size, double devicePixelRatio = 1.0);

} // namespace orvex
