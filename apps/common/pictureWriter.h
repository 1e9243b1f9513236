#pragma once

#include <optional>
#include <string>

namespace orvex {

class Scene;

// Draws all that is seen of a drawing on white, a tenth larger than its extents, into a file whose
// ending tells the kind: .svg, .png or .pdf. `width` and `height` in pixels, 96 to an inch of
// paper. The file is written whole or not at all. For .png and .pdf the program needs a
// QGuiApplication. Returns why it can't be written, in UTF-8, or nothing.
std::optional<std::string> writePicture(Scene& scene, const std::string& path, int width,
                                        int height);

} // namespace orvex
