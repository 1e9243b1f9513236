#include "hoverText.h"

#include "EntityReader.h"
#include "KdDbMlineStyle.h"
#include "MlineStyleContent.h"
#include "Opened.h"
#include "handleText.h"
#include "mlineEdits.h"
#include "qtWide.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace orvex {

namespace {

// Over all elements at the start, square to the chain, drawing units. The lists measure along the
// miter, which lies slanting at closed chains and where a style's ends do.
double widthOf(const MlineContent& mline) {
    if (mline.vertices.empty()) {
        return 0.0;
    }
    double low = 0.0;
    double high = 0.0;
    for (unsigned element = 0; element < mline.elementCount(); ++element) {
        const auto list = mline.lists.line(0, element);
        const double offset = list.empty() ? 0.0 : list.front();
        low = element == 0 ? offset : std::min(low, offset);
        high = element == 0 ? offset : std::max(high, offset);
    }
    const KdGeVector3d& axis = mline.vertices.front().axis;
    const KdGeVector3d& miter = mline.vertices.front().miter;
    return (high - low) * std::hypot(axis.y * miter.z - axis.z * miter.y,
                                     axis.z * miter.x - axis.x * miter.z,
                                     axis.x * miter.y - axis.y * miter.x);
}

QString styleOf(const MlineContent& mline) {
    const Opened<KdDbMlineStyle> style(mline.style, kForRead);
    return toQt(style ? style->values().name : mline.styleName);
}

} // namespace

QString hoverText(KdDbStub& entity) {
    const auto reading = readEntity(entity);
    const QString layer = toQt(reading ? reading->traits().layer : std::wstring());
    const QString handle = QString::fromStdString(handleText(entity.handle));
    const auto mline = contentOf(entity);
    return mline != nullptr
               ? QCoreApplication::translate("hoverText", "%1, layer %2, %3 wide, #%4")
                     .arg(styleOf(*mline), layer, QString::number(widthOf(*mline), 'g', 6), handle)
               : QCoreApplication::translate("hoverText", "Layer %1, #%2").arg(layer, handle);
}

} // namespace orvex
