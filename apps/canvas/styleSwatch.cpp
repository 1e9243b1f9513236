#include "styleSwatch.h"

#include "DatabaseCore.h"
#include "KdDbDatabase.h"
#include "KdDbLinetypeTable.h"
#include "KdDbMline.h"
#include "KdDbMlineStyle.h"
#include "KdDbStub.h"
#include "LinePainter.h"
#include "MlineContent.h"
#include "drawStrokes.h"
#include "mlinePainter.h"
#include "newChain.h"
#include "newMline.h"
#include "paintAppearance.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace orvex {

namespace {

constexpr double kHeightOfElements = 0.62; // of the swatch's height, from the first to the last
constexpr double kPatternsOfRun = 2.5;     // repetitions of a line type
constexpr double kGreatestLean = 1.0;      // of a slanted end, of the swatch's height

const std::vector<double>* dashesOf(const StyleElement& element) {
    KdDbStub* const stub = element.linetype.stub();
    if (stub == nullptr || stub->erased || stub->database == nullptr) {
        return nullptr;
    }
    const KdDbObject* object = stub->database->load(*stub);
    if (object == nullptr || !object->isKindOf(KdDbLinetypeTableRecord::desc())) {
        return nullptr;
    }
    const auto& dashes = static_cast<const KdDbLinetypeTableRecord*>(object)->dashes();
    return dashes.empty() ? nullptr : &dashes;
}

// Line types as long as the swatch shows them best.
MlinePens pensOf(const MlineStyleContent& style, double run) {
    MlinePens pens;
    for (const StyleElement& element : style.elements) {
        Pen pen{element.color.rgb(), dashesOf(element), 1.0};
        if (pen.dashes != nullptr) {
            double period = 0.0;
            for (const double dash : *pen.dashes) {
                period += std::abs(dash);
            }
            pen.dashScale = period > 0.0 ? run / kPatternsOfRun / period : 1.0;
        }
        pens.elements.push_back(pen);
    }
    pens.fillRgb = style.fillColor.rgb();
    return pens;
}

// How far an end reaches over the chain: by a round cap, or by its slant.
double reachOfEnd(bool isRound, double angle, double height) {
    const double lean = std::abs(std::cos(angle) / std::max(std::abs(std::sin(angle)), 1e-6));
    return (isRound ? height / 2 : 0.0) + std::min(lean * height / 2, kGreatestLean * height);
}

// The style's multiline within so many pixels, y upwards.
Appearance swatchAppearance(const KdDbMlineStyle& style, double width, double height) {
    Appearance appearance;
    MlineSettings settings = settingsOf(style);
    if (settings.offsets.empty()) {
        return appearance;
    }
    const auto [least, greatest] =
        std::minmax_element(settings.offsets.begin(), settings.offsets.end());
    const double extent = *greatest - *least;
    const double run = kHeightOfElements * height;
    settings.scale = extent > 0.0 && std::isfinite(extent) ? run / extent : 1.0;
    const double middle = height / 2 - (*least + extent / 2) * settings.scale;
    const double edge = height * 0.12;
    const double left = edge + reachOfEnd(style.startRoundCap(), settings.startAngle, run);
    const double right = width - edge - reachOfEnd(style.endRoundCap(), settings.endAngle, run);
    const std::vector<KdGePoint3d> points{
        {left, middle, 0.0}, {(left + right) / 2, middle, 0.0}, {right, middle, 0.0}};
    if (!(right > left)) {
        return appearance;
    }
    KdDbMline mline;
    fillChain(mline, makeNewChain(points, false, {0.0, 0.0, 1.0}, settings));
    AppearanceSink whole(appearance);
    PlacedSink sink(whole);
    const auto content = std::static_pointer_cast<const MlineContent>(mline.content());
    paintMline(*content, &style.values(), pensOf(style.values(), right - left), sink);
    return appearance;
}

} // namespace

QPixmap styleSwatch(const KdDbMlineStyle& style, const QSize& size, double devicePixelRatio) {
    const QSize pixels = (QSizeF(size) * devicePixelRatio).toSize();
    QImage image(pixels, QImage::Format_RGB32);
    if (image.isNull()) {
        return {};
    }
    image.fill(QColor::fromRgb(kDarkGround));
    const Appearance appearance = swatchAppearance(style, pixels.width(), pixels.height());
    PlanView view(pixels.width(), pixels.height());
    view.setView({pixels.width() / 2.0, pixels.height() / 2.0}, pixels.height());
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    paintAppearance(painter, appearance, view, {}, PaintParts::fills);
    painter.end();
    const int lineWidth = std::max(1, static_cast<int>(std::lround(devicePixelRatio)));
    LinePainter lines(image, image.rect(), lineWidth);
    drawStrokes(lines, appearance, 1.0, lineWidth,
                [&](PlanPoint point) { return view.toPixels(point); });
    QPixmap pixmap = QPixmap::fromImage(image);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}

} // namespace orvex
