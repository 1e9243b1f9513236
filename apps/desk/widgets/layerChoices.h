#pragma once

#include <QString>

#include <cstdint>
#include <vector>

class KdDbDatabase;

namespace orvex {

// A layer as a user chooses among the drawing's.
struct LayerChoice {
    QString name;
    std::uint32_t rgb = 0;
    bool isLocked = false; // may be drawn on all the same
    bool isHidden = false; // off or frozen: what is drawn there would vanish
};

// Sorted by name.
std::vector<LayerChoice> layerChoices(KdDbDatabase& database);
// The current one; nothing known but its name where the drawing doesn't have it.
LayerChoice currentLayer(KdDbDatabase& database);

} // namespace orvex
