#pragma once

#include "Failure.h"

#include <optional>
#include <string>

namespace orvex {

class Scene;

// In pixels, 96 to an inch of paper.
struct PictureSize {
    int width = 1600;
    int height = 1200;
};

// Whether a picture of that name and size can be made at all: the ending has to be .svg, .png or
// .pdf, and there are limits to the size. The cause of a failure is wrongCall.
std::optional<Failure> checkPicture(const std::string& path, const PictureSize& size);

// Draws all that is visible of a drawing on white, a tenth larger than its extents. The file is
// written whole or not at all. For .png and .pdf the program needs a QGuiApplication.
std::optional<Failure> writePicture(Scene& scene, const std::string& path, const PictureSize& size);

} // namespace orvex
