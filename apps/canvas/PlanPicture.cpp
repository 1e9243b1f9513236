#include "PlanPicture.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace orvex {

namespace {

constexpr int kMostStaleRects = 8; // of a tile; more are one
constexpr std::size_t kFewestTiles = 64;
constexpr std::size_t kTilesToVisibleOnes = 4;

const QRect kWholeTile(0, 0, PixelGrid::kTileSide, PixelGrid::kTileSide);

} // namespace

void PlanPicture::setScene(Scene* scene) {
    *this = {};
    m_scene = scene;
}

void PlanPicture::setView(const PlanView& view, double devicePixelRatio) {
    const PixelGrid grid(view, devicePixelRatio);
    const QSize size = (QSizeF(view.width(), view.height()) * devicePixelRatio).toSize();
    if (m_hasView && !grid.hasScaleOf(m_grid)) {
        m_former = composed();
        m_formerGrid = m_grid;
        m_tiles.clear();
        m_painting.reset();
    }
    m_grid = grid;
    m_size = size;
    m_hasView = true;
    m_visible = grid.visibleTiles();
    const bool isSeen = m_painting && std::find(m_visible.begin(), m_visible.end(),
                                                m_painting->tile()) != m_visible.end();
    if (!isSeen) {
        m_painting.reset();
    }
    dropFarTiles();
}

void PlanPicture::takeDifference(const Scene::Difference& difference) {
    if (difference.isEmpty()) {
        return;
    }
    m_painting.reset();
    for (Tile& tile : m_tiles) {
        if (difference.everything) {
            tile.stale = kWholeTile;
            continue;
        }
        for (const PlanBox& area : difference.areas) {
            tile.stale += m_grid.pixelsOf(tile.key, area);
            if (tile.stale.rectCount() > kMostStaleRects) {
                tile.stale = tile.stale.boundingRect();
            }
        }
    }
}

const PlanPicture::Tile* PlanPicture::find(const TileKey& key) const {
    const auto found = std::find_if(m_tiles.begin(), m_tiles.end(),
                                    [&](const Tile& tile) { return tile.key == key; });
    return found != m_tiles.end() ? &*found : nullptr;
}

PlanPicture::Tile* PlanPicture::find(const TileKey& key) {
    return const_cast<Tile*>(std::as_const(*this).find(key));
}

void PlanPicture::setGround(std::uint32_t ground) {
    m_ground = ground;
    m_tiles.clear();
    m_painting.reset();
    m_former = QImage();
}

bool PlanPicture::isComplete() const {
    return m_scene == nullptr || !m_hasView ||
           std::all_of(m_visible.begin(), m_visible.end(), [this](const TileKey& key) {
               const Tile* tile = find(key);
               return tile != nullptr && tile->stale.isEmpty();
           });
}

QRegion PlanPicture::paintSome(Deadline deadline) {
    QRegion changed;
    while (m_painting || startPainting()) {
        if (!m_painting->advance(deadline)) {
            break;
        }
        const QPoint origin = m_grid.tileOrigin(m_painting->tile());
        changed += m_painting->pixels().translated(origin);
        finishPainting();
        if (isOver(deadline)) {
            break;
        }
    }
    return changed;
}

// What changed under the user's eyes comes first, then what isn't there yet.
bool PlanPicture::startPainting() {
    if (m_scene == nullptr || !m_hasView) {
        return false;
    }
    for (const TileKey& key : m_visible) {
        if (const Tile* tile = find(key); tile != nullptr && !tile->stale.isEmpty()) {
            m_painting.emplace(*m_scene, m_grid, key, tile->image, *tile->stale.begin(), m_ground);
            return true;
        }
    }
    for (const TileKey& key : m_visible) {
        if (find(key) == nullptr) {
            m_painting.emplace(*m_scene, m_grid, key, QImage(), kWholeTile, m_ground);
            return true;
        }
    }
    return false;
}

void PlanPicture::finishPainting() {
    const TileKey key = m_painting->tile();
    if (Tile* tile = find(key)) {
        tile->image = m_painting->image();
        tile->stale -= m_painting->pixels();
    } else {
        m_tiles.push_back({key, m_painting->image(), {}});
    }
    m_painting.reset();
}

void PlanPicture::dropFarTiles() {
    const std::size_t most = std::max(kFewestTiles, kTilesToVisibleOnes * m_visible.size());
    if (m_tiles.size() <= most) {
        return;
    }
    const auto distance = [this](const Tile& tile) {
        const QPoint direction =
            m_grid.tileOrigin(tile.key) - QPoint(m_size.width(), m_size.height()) / 2;
        return std::max(std::abs(direction.x()), std::abs(direction.y()));
    };
    // Down to half, so that not every step of a pan has to look again.
    const auto nearest = m_tiles.begin() + static_cast<std::ptrdiff_t>(most / 2);
    std::nth_element(m_tiles.begin(), nearest, m_tiles.end(),
                     [&](const Tile& a, const Tile& b) { return distance(a) < distance(b); });
    m_tiles.erase(nearest, m_tiles.end());
}

QImage PlanPicture::composed() const {
    QImage image(m_size, QImage::Format_RGB32);
    QPainter painter(&image);
    draw(painter, image.rect());
    return image;
}

void PlanPicture::draw(QPainter& painter, const QRect& exposed) const {
    painter.fillRect(exposed, QColor::fromRgb(m_ground));
    const bool hasGap = std::any_of(m_visible.begin(), m_visible.end(), [&](const TileKey& key) {
        return exposed.intersects(kWholeTile.translated(m_grid.tileOrigin(key))) &&
               find(key) == nullptr;
    });
    if (hasGap && !m_former.isNull()) {
        const double scale = m_formerGrid.unitsPerPixel() / m_grid.unitsPerPixel();
        const PlanPoint corner = m_formerGrid.viewCorner();
        const PlanPoint place = m_grid.toViewPixels(corner);
        painter.drawImage(
            QRectF(place.x, place.y, m_former.width() * scale, m_former.height() * scale), m_former,
            m_former.rect());
    }
    for (const TileKey& key : m_visible) {
        const QPoint origin = m_grid.tileOrigin(key);
        if (!exposed.intersects(kWholeTile.translated(origin))) {
            continue;
        }
        if (const Tile* tile = find(key)) {
            painter.drawImage(origin, tile->image);
        }
    }
}

} // namespace orvex
