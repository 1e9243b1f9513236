#include "pictureWriter.h"

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
#include <QSaveFile>

namespace orvex {

namespace {

constexpr int kGreatestSide = 16'384;             // pixels; what a page of paper may have, too
constexpr std::int64_t kMostPixels = 100'000'000; // of a .png: 400 MB while it is drawn
constexpr double kLinesToSide = 1000.0;           // line widths to the shorter side
constexpr int kPixelsPerInch = 96;
constexpr double kPointsPerPixel = 72.0 / kPixelsPerInch;

struct Picture {
    QByteArray bytes;
    std::string error; // empty when there are bytes
};

PaintSettings settingsFor(const PlanView& view) {
    PaintSettings settings;
    settings.lineWidth = std::max(1.0, std::min(view.width(), view.height()) / kLinesToSide);
    settings.onPaper = true;
    return settings;
}

// Fonts need an application of this kind.
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

Picture svgPicture(Scene& scene, const PlanView& view) {
    SvgPicture svg(view, settingsFor(view));
    scene.visitAll([&](KdDbStub&, const Appearance& appearance) { svg.add(appearance); });
    return {QByteArray::fromStdString(svg.text()), {}};
}

Picture pngPicture(Scene& scene, const PlanView& view) {
    if (std::int64_t{view.width()} * view.height() > kMostPixels) {
        return {{}, "a picture of that many pixels is too large; 100 million is the most"};
    }
    QImage image(view.width(), view.height(), QImage::Format_RGB32);
    if (image.isNull() || !haveGuiApplication()) {
        return {{}, "there is no memory or no application for the picture"};
    }
    image.fill(Qt::white);
    QPainter painter(&image);
    paintScene(painter, scene, view);
    painter.end();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "PNG")) {
        return {{}, "the picture can't be packed"};
    }
    return {buffer.data(), {}};
}

Picture pdfPicture(Scene& scene, const PlanView& view) {
    if (!haveGuiApplication()) {
        return {{}, "there is no application for the picture"};
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
        return {{}, "the page can't be begun"};
    }
    paintScene(painter, scene, view);
    painter.end();
    return {buffer.data(), {}};
}

std::optional<std::string> writeFile(const QString& path, const QByteArray& bytes) {
    QSaveFile file(path);
    const bool written =
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    if (!written) {
        return file.errorString().toStdString();
    }
    return std::nullopt;
}

} // namespace

std::optional<std::string> writePicture(Scene& scene, const std::string& path, int width,
                                        int height) {
    using Maker = Picture (*)(Scene&, const PlanView&);
    const QString name = QString::fromStdString(path);
    const QString ending = QFileInfo(name).suffix().toLower();
    const Maker make = ending == QLatin1String("svg")   ? svgPicture
                       : ending == QLatin1String("png") ? pngPicture
                       : ending == QLatin1String("pdf") ? pdfPicture
                                                        : nullptr;
    if (make == nullptr) {
        return "a picture's name has to end in .svg, .png or .pdf";
    }
    if (width < 1 || height < 1 || width > kGreatestSide || height > kGreatestSide) {
        return "a picture's sides have to be from 1 to " + std::to_string(kGreatestSide) +
               " pixels";
    }
    PlanView view(width, height);
    view.zoomTo(scene.extents());
    const Picture picture = make(scene, view);
    if (!picture.error.empty()) {
        return picture.error;
    }
    return writeFile(name, picture.bytes);
}

} // namespace orvex
