#include "EntityDrawer.h"

#include "BlockList.h"
#include "mlinePainter.h"
#include "shapePainter.h"

#include <algorithm>

namespace orvex {

namespace {

// What one insert, with all that is in it, may come to.
constexpr std::size_t kDeepestInsert = 32;
constexpr std::int64_t kFewEntities = 100;

bool isInsert(const EntityReading& entity) {
    const auto* const shape = std::get_if<EntityShape>(&entity.geometry);
    return shape != nullptr && std::holds_alternative<InsertShape>(*shape);
}

} // namespace

bool EntityDrawer::draw(const EntityReading& entity) {
    PlacedSink sink(m_sink);
    return draw(entity, {}, sink);
}

bool EntityDrawer::draw(const EntityReading& entity, const Context& context, PlacedSink& sink) {
    const EntityTraits& traits = entity.traits();
    const bool inherits = context.insertLayer != nullptr && traits.layer == L"0";
    const LayerTraits& layer = inherits ? *context.insertLayer : m_table.layer(traits.layer);
    // An insert on a layer that isn't listed still shows what lies on listed ones.
    if (!traits.visible || !layer.seen || (!layer.listed && !isInsert(entity))) {
        return false;
    }
    Means means{layer, {}, traits.linetypeScale};
    if (m_sink.wantsPens()) {
        means.pen = m_table.pen(traits.color, traits.linetype, traits.linetypeScale, layer,
                                context.byBlock);
        means.pen.weight = SharedTraits::weight(traits.lineweight, layer, context.byBlock);
    }
    if (const auto* mline = std::get_if<std::shared_ptr<const MlineContent>>(&entity.geometry)) {
        if (*mline != nullptr) {
            drawMultiline(**mline, means, sink);
        }
        return true;
    }
    const auto drawOne = [&](const auto& shape) {
        using Shape = std::decay_t<decltype(shape)>;
        if constexpr (std::is_same_v<Shape, InsertShape>) {
            drawInsert(shape, means, sink);
            for (const TextShape& attribute : shape.attributes) {
                if (layer.listed) {
                    paintShape(attribute, means.pen, sink);
                }
            }
        } else if constexpr (!std::is_same_v<Shape, NoShape>) {
            paintShape(shape, means.pen, sink);
        }
    };
    std::visit(drawOne, std::get<EntityShape>(entity.geometry));
    return true;
}

void EntityDrawer::drawMultiline(const MlineContent& mline, const Means& means, PlacedSink& sink) {
    const MlineStyleContent* style = m_table.style(mline.style);
    MlinePens pens;
    if (m_sink.wantsPens()) {
        // By block means by the multiline: it is to its elements what an insert is to a block.
        const auto penOf = [&](const KdCmColor& color, const std::wstring& linetype) {
            Pen pen = m_table.pen(color, linetype, means.linetypeScale, means.layer, means.pen);
            pen.weight = means.pen.weight;
            return pen;
        };
        pens.own = means.pen;
        if (style != nullptr) {
            for (const StyleElement& element : style->elements) {
                pens.elements.push_back(penOf(element.color, m_table.linetypeName(element)));
            }
            pens.fillRgb = penOf(style->fillColor, {}).rgb;
        }
    }
    paintMline(mline, style, pens, sink);
}

void EntityDrawer::drawInsert(const InsertShape& insert, const Means& means,
                              const PlacedSink& sink) {
    const BlockContent& block = m_blocks.block(insert.block);
    const bool inItself = std::find(m_open.begin(), m_open.end(), block.block) != m_open.end();
    if (block.entities.empty() || inItself) {
        return;
    }
    if (m_open.size() >= kDeepestInsert) {
        m_isPartial = true;
        return;
    }
    m_open.push_back(block.block);
    const Context context{&means.layer, means.pen};
    Placement own{insert.position, insert.xAxis, insert.yAxis, insert.zAxis};
    const KdGePoint3d base = block.basePoint;
    const KdGePoint3d corner = own.place({-base.x, -base.y, -base.z});
    for (int row = 0; row < std::max(insert.rows, 1); ++row) {
        for (int column = 0; column < std::max(insert.columns, 1); ++column) {
            if (isExhausted(m_drawnOnce.contains(block.block))) {
                m_isPartial = true;
                m_open.pop_back();
                return;
            }
            own.origin = corner + insert.columnStep * column + insert.rowStep * row;
            PlacedSink inside(m_sink, sink.isPlaced() ? sink.placement().around(own) : own);
            drawBlock(block, context, inside);
        }
    }
    m_open.pop_back();
}

void EntityDrawer::drawBlock(const BlockContent& block, const Context& context, PlacedSink& sink) {
    const bool isRepeated = !m_drawnOnce.insert(block.block).second;
    for (const EntityReading& entity : block.entities) {
        if (isExhausted(isRepeated)) {
            m_isPartial = true;
            return;
        }
        drawRepeatable(entity, context, sink, isRepeated);
    }
}

void EntityDrawer::drawRepeatable(const EntityReading& entity, const Context& context,
                                  PlacedSink& sink, bool isRepeated) {
    const std::size_t before = m_sink.pointCount();
    ++m_entitiesDrawn;
    draw(entity, context, sink);
    if (isRepeated) {
        ++m_entitiesRepeated;
        // Those of inserts are counted inside of them.
        m_pointsRepeated +=
            isInsert(entity) ? 0 : static_cast<std::int64_t>(m_sink.pointCount() - before);
    }
}

std::int64_t EntityDrawer::insertWork() const {
    constexpr std::int64_t kPointsOfEntity = 16;
    const auto points = static_cast<std::int64_t>(m_sink.pointCount());
    return m_entitiesDrawn > 0 ? m_entitiesDrawn * kPointsOfEntity + points : 0;
}

bool EntityDrawer::isExhausted(bool isRepeated) const {
    if (m_limit.onlyBeginning && m_entitiesDrawn >= kFewEntities) {
        return true;
    }
    return isRepeated && (m_entitiesRepeated >= m_limit.repeatedEntities ||
                          m_pointsRepeated >= m_limit.repeatedPoints);
}

} // namespace orvex
