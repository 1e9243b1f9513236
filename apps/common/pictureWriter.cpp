#include "pictureWriter.h"

#include "AtomicFile.h"
#include "KdDbStub.h"
#include "LineQueue.h"
#include "PlanView.h"
#include "Scene.h"
#include "SvgPicture.h"
#include "handleText.h"
#include "hostText.h"
#include "mlineNumbers.h"
#include "paintAppearance.h"
#include "textCodec.h"
#include "workThreads.h"

#include <algorithm>
#include <cstdint>
#include <functional>

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

constexpr std::uint32_t kDarkGround = 0x1E2127;
constexpr std::uint32_t kHighlightRgb = 0xFF7A00;
constexpr std::uint32_t kNumberRgb = 0x2F81D6;
constexpr double kHighlightWidth = 3.0; // line widths
constexpr double kNumberHeight = 10.0;  // line widths
constexpr double kMillimetresPerInch = 25.4;

// What a picture shows, and how.
struct Draft {
    Scene& scene;
    PlanView view;
    PaintSettings settings;
    const PictureOptions& options;

    [[nodiscard]] bool isSheet() const { return options.sheet.has_value(); }
    // What is drawn over all else: highlighted entities, numbers.
    void
    visitMarks(const std::function<void(const Appearance&, const PaintSettings&)>& visit) const;
    void visitEntities(const std::function<void(KdDbStub&, const Appearance&)>& visit) const;
    void visitFilled(const std::function<void(KdDbStub&, const Appearance&)>& visit) const;
};

Failure unwritable(std::string text) {
    return {FailureCause::unwritableOutput, {}, 0, std::move(text)};
}

// The pixels of a sheet are tenths of a millimetre.
double pixelsPerMillimetre(const PictureOptions& options) {
    return options.sheet ? kTenthsPerMillimetre : kPixelsPerInch / kMillimetresPerInch;
}

PaintSettings settingsFor(const PlanView& view, const PictureOptions& options) {
    constexpr double kSheetLine = 0.25; // millimetres
    PaintSettings settings;
    settings.lineWidth = options.sheet
                             ? kSheetLine * kTenthsPerMillimetre
                             : std::max(1.0, std::min(view.width(), view.height()) / kLinesToSide);
    settings.onPaper = options.ground != PictureGround::dark;
    settings.pixelsPerMillimetre = options.lineweights ? pixelsPerMillimetre(options) : 0.0;
    return settings;
}

void Draft::visitEntities(const std::function<void(KdDbStub&, const Appearance&)>& visit) const {
    if (!options.window) {
        scene.visitAll(visit);
        return;
    }
    const PlanPoint low = view.toPlan({0.0, static_cast<double>(view.height())});
    const PlanPoint high = view.toPlan({static_cast<double>(view.width()), 0.0});
    scene.visit({low, high}, visit);
}

void Draft::visitFilled(const std::function<void(KdDbStub&, const Appearance&)>& visit) const {
    // What a window shows was made for it once, and is kept.
    options.window ? visitEntities(visit) : scene.visitFilled(visit);
}

void Draft::visitMarks(
    const std::function<void(const Appearance&, const PaintSettings&)>& visit) const {
    PaintSettings bold = settings;
    bold.lineWidth *= kHighlightWidth;
    bold.pixelsPerMillimetre = 0.0;
    for (KdDbStub* const entity : options.highlighted) {
        Appearance marked = scene.appearance(*entity);
        marked.fills.clear();
        for (Stroke& stroke : marked.strokes) {
            stroke.rgb = kHighlightRgb;
        }
        for (Label& label : marked.labels) {
            label.rgb = kHighlightRgb;
        }
        visit(marked, bold);
    }
    if (!options.numbers) {
        return;
    }
    MlineNumbers numbers(kNumberHeight * settings.lineWidth * view.unitsPerPixel());
    Appearance labels;
    visitEntities([&](KdDbStub& entity, const Appearance& appearance) {
        if (entity.kind != ObjectKind::mline) {
            return;
        }
        if (auto label = numbers.place(appearance, widen(handleText(entity.handle)), kNumberRgb)) {
            labels.labels.push_back(std::move(*label));
        }
    });
    visit(labels, settings);
}

// Fonts need one.
bool haveGuiApplication() {
    return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr;
}

// All fills first, so that none hides a line. Most drawings have few, so they are looked for among
// those that may have some.
void paintDraft(QPainter& painter, const Draft& draft, LineQueue* lines = nullptr) {
    painter.setRenderHint(QPainter::Antialiasing);
    draft.visitFilled([&](KdDbStub&, const Appearance& appearance) {
        paintAppearance(painter, appearance, draft.view, draft.settings, PaintParts::fills);
    });
    draft.visitEntities([&](KdDbStub&, const Appearance& appearance) {
        paintAppearance(painter, appearance, draft.view, draft.settings, PaintParts::linesAndLabels,
                        lines);
    });
    draft.visitMarks([&](const Appearance& appearance, const PaintSettings& settings) {
        paintAppearance(painter, appearance, draft.view, settings, PaintParts::linesAndLabels,
                        lines);
    });
}

Result<QByteArray> svgPicture(const Draft& draft) {
    SvgPicture svg(draft.view, draft.settings);
    draft.visitEntities([&](KdDbStub&, const Appearance& appearance) { svg.add(appearance); });
    draft.visitMarks([&](const Appearance& appearance, const PaintSettings& settings) {
        svg.addMark(appearance, settings);
    });
    SvgPage page;
    if (draft.isSheet()) {
        page.pixelsPerMillimetre = kTenthsPerMillimetre;
    }
    switch (draft.options.ground) {
    case PictureGround::dark:
        page.ground = kDarkGround;
        break;
    case PictureGround::transparent:
        page.ground.reset();
        break;
    default:
        break;
    }
    return QByteArray::fromStdString(svg.text(page));
}

Result<QByteArray> pngPicture(const Draft& draft) {
    const PlanView& view = draft.view;
    const bool isTransparent = draft.options.ground == PictureGround::transparent;
    QImage image(view.width(), view.height(),
                 isTransparent ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    if (image.isNull() || !haveGuiApplication()) {
        return unwritable(hostText("there is no memory or no application for the picture"));
    }
    const bool isDark = draft.options.ground == PictureGround::dark;
    image.fill(isTransparent ? QColor(Qt::transparent)
                             : QColor::fromRgb(isDark ? kDarkGround : 0xFFFFFFU));
    LineQueue lines(image, workThreads());
    QPainter painter(&image);
    paintDraft(painter, draft, &lines);
    lines.settle();
    painter.end();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "PNG")) {
        return unwritable(hostText("the picture can't be packed"));
    }
    return buffer.data();
}

Result<QByteArray> pdfPicture(const Draft& draft) {
    if (!haveGuiApplication()) {
        return unwritable(hostText("there is no application for the picture"));
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setCreator(QStringLiteral("orvex"));
    const QSizeF pixels(draft.view.width(), draft.view.height());
    if (draft.isSheet()) {
        writer.setPageSize(QPageSize(pixels / kTenthsPerMillimetre, QPageSize::Millimeter,
                                     QString(), QPageSize::ExactMatch));
    } else {
        writer.setPageSize(QPageSize(pixels * kPointsPerPixel, QPageSize::Point, QString(),
                                     QPageSize::ExactMatch));
    }
    writer.setPageMargins(QMarginsF(0, 0, 0, 0));
    writer.setResolution(draft.isSheet()
                             ? static_cast<int>(kMillimetresPerInch * kTenthsPerMillimetre)
                             : kPixelsPerInch);
    QPainter painter;
    if (!painter.begin(&writer)) {
        return unwritable(hostText("the page can't be begun"));
    }
    if (draft.options.ground == PictureGround::dark) {
        painter.fillRect(QRectF({0, 0}, pixels), QColor::fromRgb(kDarkGround));
    }
    paintDraft(painter, draft);
    painter.end();
    return buffer.data();
}

Result<QByteArray> pictureBytes(const Draft& draft, PictureKind kind) {
    switch (kind) {
    case PictureKind::svg:
        return svgPicture(draft);
    case PictureKind::png:
        return pngPicture(draft);
    case PictureKind::pdf:
        break;
    }
    return pdfPicture(draft);
}

Failure wrongCall(const std::string& path, std::string text) {
    return {FailureCause::wrongCall, path, 0, std::move(text)};
}

PlanView viewFor(Scene& scene, const PictureOptions& options, bool& isCut) {
    const PlanBox shown = options.window ? *options.window : scene.extents();
    const double width = shown.isEmpty() ? 0.0 : shown.high.x - shown.low.x;
    const double height = shown.isEmpty() ? 0.0 : shown.high.y - shown.low.y;
    const PlanPoint middle = shown.isEmpty()
                                 ? PlanPoint{}
                                 : PlanPoint{shown.low.x + width / 2, shown.low.y + height / 2};
    if (options.sheet) {
        constexpr double kHair = 1.0 + 1e-9;
        const PaperFormat& format = options.sheet->format;
        const bool lies = width >= height;
        PlanView view(lies ? format.longSide : format.shortSide,
                      lies ? format.shortSide : format.longSide);
        const double unitsPerPixel = options.sheet->unitsPerMillimetre / kTenthsPerMillimetre;
        view.setView(middle, view.height() * unitsPerPixel);
        isCut = width > view.width() * unitsPerPixel * kHair ||
                height > view.height() * unitsPerPixel * kHair;
        return view;
    }
    PlanView view(options.size.width, options.size.height);
    if (options.window) {
        view.setView(middle, std::max(height, width * view.height() / view.width()));
    } else {
        view.zoomTo(shown);
    }
    return view;
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
        return wrongCall(path, hostText("the name of a picture has to end in .svg, .png or .pdf"));
    }
    auto failure = checkPicture(*kind, size);
    if (failure) {
        failure->file = path;
    }
    return failure;
}

Result<MadePicture> makePicture(Scene& scene, PictureKind kind, const PictureOptions& options) {
    if (auto failure = options.sheet ? std::nullopt : checkPicture(kind, options.size)) {
        return std::move(*failure);
    }
    MadePicture made;
    const PlanView view = viewFor(scene, options, made.isCut);
    const auto picture = pictureBytes({scene, view, settingsFor(view, options), options}, kind);
    if (!picture) {
        return picture.failure();
    }
    made.bytes = picture->toStdString();
    return made;
}

std::optional<Failure> writePicture(Scene& scene, const std::string& path,
                                    const PictureSize& size) {
    if (auto failure = checkPicture(path, size)) {
        return failure;
    }
    PictureOptions options;
    options.size = size;
    const auto picture = makePicture(scene, *pictureKindOf(path), options);
    if (!picture) {
        Failure failure = picture.failure();
        failure.file = path;
        return failure;
    }
    return saveFile(path, picture->bytes);
}

} // namespace orvex
