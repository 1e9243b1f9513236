#pragma once

#include "Deadline.h"
#include "PixelGrid.h"
#include "Scene.h"
#include "TilePainting.h"
#include "readableColor.h"

#include <QImage>
#include <QRegion>

#include <optional>
#include <vector>

class QPainter;

namespace orvex {

// The picture of a plan view, made of tiles that are painted in steps and kept while the scale
// stays. Where a tile isn't there yet, the picture of the scale before is seen, moved and scaled.
// Rectangles are device pixels of the view.
class PlanPicture {
public:
    // Null: nothing but the ground. Not owned.
    void setScene(Scene* scene);
    // 0xRRGGBB; everything is painted anew.
    void setGround(std::uint32_t ground);
    [[nodiscard]] std::uint32_t ground() const { return m_ground; }
    // What is seen from now on.
    void setView(const PlanView& view, double devicePixelRatio);
    // Makes tiles stale where the scene looks different; what they show stays until it is replaced.
    void takeDifference(const Scene::Difference& difference);

    // Paints until the deadline; returns what of the view is different now.
    QRegion paintSome(Deadline deadline);
    // The scene has to be up to date for this, as for paintSome.
    [[nodiscard]] bool isComplete() const;

    void draw(QPainter& painter, const QRect& exposed) const;

private:
    struct Tile {
        TileKey key;
        QImage image;
        QRegion stale;
    };
    [[nodiscard]] const Tile* find(const TileKey& key) const;
    Tile* find(const TileKey& key);
    bool startPainting();
    void finishPainting();
    void dropFarTiles();
    [[nodiscard]] QImage composed() const;

    Scene* m_scene = nullptr;
    std::uint32_t m_ground = kDarkGround;
    PixelGrid m_grid;
    QSize m_size;
    bool m_hasView = false;
    std::vector<TileKey> m_visible; // in the order of painting
    std::vector<Tile> m_tiles;
    std::optional<TilePainting> m_painting;
    // What the view showed before its scale changed, and the grid it lies on.
    QImage m_former;
    PixelGrid m_formerGrid;
};

} // namespace orvex
