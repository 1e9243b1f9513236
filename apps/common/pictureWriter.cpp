#include "pictureWriter.h"

#include "AtomicFile.h"
#include "PlanView.h"
#include "Scene.h"
#include "SvgPicture.h"
#include "paintAppearance.h"

#include <algorithm>
#include <cstdint>

#include <QBuffer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QMarginsF>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

namespace orvex {

namespace {

constexpr int kGreatestSide = 16'384;             // pixels; what a page of paper may have, too
constexpr std::int64_t kMostPixels = 100'000'000; // of a .png: 400 MB while it is drawn
constexpr double kLinesToSide = 1000.0;           // line widths to the shorter side
constexpr int kPixelsPerInch = 96;
constexpr double kPointsPerPixel = 72.0 / kPixelsPerInch;

Failure unwritable(std::string text) {
    return {FailureCause::unwritableOutput, {}, 0, std::move(text)};
}

PaintSettings settingsFor(const PlanView& view) {
    PaintSettings settings;
    settings.lineWidth = std::max(1.0, std::min(view.width(), view.height()) / kLinesToSide);
    settings.onPaper = true;
    return settings;
}

// Fonts need one.
bool haveGuiApplication() {
    return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr;
}

// All fills first, so that none hides a line.
void paintScene(QPainter& painter, Scene& scene, const PlanView& view) {
    const PaintSettings settings = settingsFor(view);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const PaintParts parts : {PaintParts::fills, PaintParts::linesAndLabels}) {
        scene.visitAll([&](KdDbStub&, const Appearance& appearance) {
            paintAppearance(painter, appearance, view, settings, parts);
        });
    }
}

Result<QByteArray> svgPicture(Scene& scene, const PlanView& view) {
    SvgPicture svg(view, settingsFor(view));
    scene.visitAll([&](KdDbStub&, const Appearance& appearance) { svg.add(appearance); });
    return QByteArray::fromStdString(svg.text());
}

Result<QByteArray> pngPicture(Scene& scene, const PlanView& view) {
    QImage image(view.width(), view.height(), QImage::Format_RGB32);
    if (image.isNull() || !haveGuiApplication()) {
        return unwritable("there is no memory or no application for the picture");
    }
    image.fill(Qt::white);
    QPainter painter(&image);
    paintScene(painter, scene, view);
    painter.end();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "PNG")) {
        return unwritable("the picture can't be packed");
    }
    return buffer.data();
}

Result<QByteArray> pdfPicture(Scene& scene, const PlanView& view) {
    if (!haveGuiApplication()) {
        return unwritable("there is no application for the picture");
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setCreator(QStringLiteral("orvex"));
    const QSizeF size(view.width() * kPointsPerPixel, view.height() * kPointsPerPixel);
    writer.setPageSize(QPageSize(size, QPageSize::Point, QString(), QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF(0, 0, 0, 0));
    writer.setResolution(kPixelsPerInch);
    QPainter painter;
    if (!painter.begin(&writer)) {
        return unwritable("the page can't be begun");
    }
    paintScene(painter, scene, view);
    painter.end();
    return buffer.data();
}

Result<QByteArray> pictureBytes(Scene& scene, const PlanView& view, PictureKind kind) {
    switch (kind) {
    case PictureKind::svg:
        return svgPicture(scene, view);
    case PictureKind::png:
        return pngPicture(scene, view);
    case PictureKind::pdf:
        break;
    }
    return pdfPicture(scene, view);
}

Failure wrongCall(const std::string& path, std::string text) {
    return {FailureCause::wrongCall, path, 0, std::move(text)};
}

} // namespace

std::optional<PictureKind> pictureKind(std::string_view word) {
    const QString lower = QString::fromUtf8(word.data(), static_cast<int>(word.size())).toLower();
    return lower == QLatin1String("svg")   ? std::optional(PictureKind::svg)
           : lower == QLatin1String("png") ? std::optional(PictureKind::png)
           : lower == QLatin1String("pdf") ? std::optional(PictureKind::pdf)
                                           : std::nullopt;
}

std::optional<PictureKind> pictureKindOf(const std::string& path) {
    return pictureKind(QFileInfo(QString::fromStdString(path)).suffix().toStdString());
}

std::optional<Failure> checkPicture(PictureKind kind, const PictureSize& size) {
    const auto [width, height] = size;
    if (width < 1 || height < 1 || width > kGreatestSide || height > kGreatestSide) {
        return wrongCall({}, "each side of a picture has to be from 1 to " +
                                 std::to_string(kGreatestSide) + " pixels");
    }
    if (kind == PictureKind::png && std::int64_t{width} * height > kMostPixels) {
        return wrongCall({}, "a .png picture can't have more than 100 million pixels");
    }
    return std::nullopt;
}

std::optional<Failure> checkPicture(const std::string& path, const PictureSize& size) {
    const auto kind = pictureKindOf(path);
    if (!kind) {
        return wrongCall(path, "the name of a picture has to end in .svg, .png or .pdf");
    }
    auto failure = checkPicture(*kind, size);
    if (failure) {
        failure->file = path;
    }
    return failure;
}

Result<std::string> makePicture(Scene& scene, PictureKind kind, const PictureSize& size) {
    if (auto failure = checkPicture(kind, size)) {
        return std::move(*failure);
    }
    PlanView view(size.width, size.height);
    view.zoomTo(scene.extents());
    const auto picture = pictureBytes(scene, view, kind);
    if (!picture) {
        return picture.failure();
    }
    return picture->toStdString();
}

std::optional<Failure> writePicture(Scene& scene, const std::string& path,
                                    const PictureSize& size) {
    if (auto failure = checkPicture(path, size)) {
        return failure;
    }
    const auto picture = makePicture(scene, *pictureKindOf(path), size);
    if (!picture) {
        Failure failure = picture.failure();
        failure.file = path;
        return failure;
    }
    return saveFile(path, *picture);
}

} // namespace orvex
