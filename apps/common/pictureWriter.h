#pragma once

#include "Failure.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orvex {

class Scene;

// In pixels, 96 to an inch of paper.
struct PictureSize {
    int width = 1600;
    int height = 1200;
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

// The bytes of a picture as writePicture makes it.
Result<std::string> makePicture(Scene& scene, PictureKind kind, const PictureSize& size);

// Draws all that is visible of a drawing on white, a tenth larger than its extents. The file is
// written whole or not at all. For .png and .pdf the program needs a QGuiApplication.
std::optional<Failure> writePicture(Scene& scene, const std::string& path, const PictureSize& size);

} // namespace orvex
