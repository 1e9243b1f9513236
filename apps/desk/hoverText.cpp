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

namespace orvex {

namespace {

// Over all elements at the start, drawing units.
double widthOf(const MlineContent& mline) {
    double low = 0.0;
    double high = 0.0;
    for (unsigned element = 0; element < mline.elementCount(); ++element) {
        const auto list = mline.lists.line(0, element);
        const double offset = list.empty() ? 0.0 : list.front();
        low = element == 0 ? offset : std::min(low, offset);
        high = element == 0 ? offset : std::max(high, offset);
    }
    return high - low;
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
