#pragma once

#include "Appearance.h"
#include "Failure.h"
#include "paperSheet.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct KdDbStub;

namespace orvex {

class Scene;

// In pixels, 96 to an inch of paper.
struct PictureSize {
    int width = 1600;
    int height = 1200;
};

// Paper on which the drawing is true to scale. It lies or stands as what is drawn does.
struct PictureSheet {
    PaperFormat format;
    double unitsPerMillimetre = 1.0; // drawing units to a millimetre of paper
};

// What is drawn on. On dark ground colours are as in the drawing; on light ground, and where there
// is none, what is white is drawn black.
enum class PictureGround : std::uint8_t { light, dark, transparent };

struct PictureOptions {
    PictureSize size;
    std::optional<PictureSheet> sheet; // in place of the size
    std::optional<PlanBox> window;     // in place of a tenth more than the extents
    PictureGround ground = PictureGround::light;
    bool lineweights = false;           // lines as thick as the drawing says
    std::vector<KdDbStub*> highlighted; // in a colour of their own, on top
    bool numbers = false;               // handles beside the multilines
};

struct MadePicture {
    std::string bytes;
    bool isCut = false; // what was to be seen is larger than the sheet
};

enum class PictureKind : std::uint8_t { svg, png, pdf };

// "svg", "png" or "pdf" in any case.
std::optional<PictureKind> pictureKind(std::string_view word);
// By the ending of a file's name.
std::optional<PictureKind> pictureKindOf(const std::string& path);

// Whether there can be a picture of that kind and size. The cause of a failure is wrongCall.
std::optional<Failure> checkPicture(PictureKind kind, const PictureSize& size);

// Whether a picture of that name and size can be made at all: the ending has to be .svg, .png or
// .pdf, and there are limits to the size. The cause of a failure is wrongCall.
std::optional<Failure> checkPicture(const std::string& path, const PictureSize& size);

// Draws all that is visible of a drawing. For .png, which can't be a sheet, and .pdf the program
// needs a QGuiApplication.
Result<MadePicture> makePicture(Scene& scene, PictureKind kind, const PictureOptions& options);

// The same on white, a tenth larger than the extents. The file is written whole or not at all.
std::optional<Failure> writePicture(Scene& scene, const std::string& path, const PictureSize& size);

} // namespace orvex
