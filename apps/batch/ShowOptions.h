#pragma once

#include "pictureWriter.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace CLI {
class App;
} // namespace CLI

namespace orvex {

class DatabaseCore;
class Scene;

// What the verb show can be told, and what it comes to in a drawing.
class ShowOptions {
public:
    void add(CLI::App& options);
    // Before anything is opened.
    [[nodiscard]] std::optional<Failure> check(PictureKind kind) const;
    // Gives the scene its limits and layers. Layers and handles that the drawing doesn't have are
    // a failure with the cause wrongCall.
    [[nodiscard]] Result<PictureOptions> apply(Scene& scene, const DatabaseCore& core) const;

private:
    PictureOptions m_picture;
    std::vector<std::string> m_layers;
    std::vector<std::string> m_highlighted; // handles
    std::optional<PaperFormat> m_paper;
    double m_scale = 1.0;         // lengths in the drawing to lengths on paper
    std::optional<double> m_unit; // millimetres; else as the drawing says
    std::optional<std::int64_t> m_limit;
};

} // namespace orvex
