#pragma once

#include "BlockList.h"
#include "DatabaseCore.h"
#include "EntityTraits.h"
#include "KdDbDatabase.h"
#include "KdDbEntity.h"
#include "KdDbLayerTable.h"
#include "KdDbMline.h"
#include "KdDbMlineStyle.h"
#include "MlineContent.h"
#include "MlineStyleContent.h"
#include "ObjectSource.h"
#include "ObjectTable.h"
#include "WellKnownObjects.h"

#include <map>
#include <memory>
#include <string>

namespace orvex::testing {

// Gives entities without a model their shapes, as a drawing file does.
class ShapeShelf final : public ObjectSource {
public:
    std::unique_ptr<KdDbObject> load(const KdDbStub& stub) override {
        auto entity = std::make_unique<KdDbEntity>();
        entity->setTraits(m_shelf.at(&stub).traits);
        return entity;
    }
    [[nodiscard]] EntityShape shapeOf(const KdDbStub& stub) const override {
        return m_shelf.at(&stub).shape;
    }
    void put(const KdDbStub& stub, EntityShape shape, EntityTraits traits) {
        m_shelf[&stub] = {std::move(shape), std::move(traits)};
    }

private:
    struct Item {
        EntityShape shape;
        EntityTraits traits;
    };
    std::map<const KdDbStub*, Item> m_shelf;
};

// A block as it is, with its base point at `position`.
inline InsertShape insertAt(const KdGePoint3d& position, std::wstring block) {
    InsertShape insert;
    insert.block = std::move(block);
    insert.position = position;
    insert.xAxis = {1.0, 0.0, 0.0};
    insert.yAxis = {0.0, 1.0, 0.0};
    insert.zAxis = {0.0, 0.0, 1.0};
    return insert;
}

// A drawing in memory.
class TestDrawing {
public:
    TestDrawing() : core(database.core()), m_shelf(std::make_shared<ShapeShelf>()) {
        core.objects().setSource(m_shelf);
    }

    KdDbStub& addMline(MlineContent content, const wchar_t* layer = L"0") {
        auto mline = std::make_unique<KdDbMline>();
        content.traits = nullptr;
        mline->setContent(std::make_shared<MlineContent>(std::move(content)));
        mline->setLayer(layer);
        KdDbStub& stub = core.adopt(std::move(mline), ObjectKind::mline, nullptr);
        core.blocks().appendEntity(core.blocks().modelSpace(), stub);
        return stub;
    }

    KdDbStub& addShape(EntityShape shape, EntityTraits traits = {},
                       BlockEntities* block = nullptr) {
        const std::uint64_t handle = core.objects().takeHandle();
        const auto record = static_cast<std::uint32_t>(handle);
        KdDbStub& stub = core.objects().addStub(ObjectKind::entity, handle, record, nullptr);
        m_shelf->put(stub, std::move(shape), std::move(traits));
        core.blocks().appendEntity(block != nullptr ? *block : core.blocks().modelSpace(), stub);
        return stub;
    }
    KdDbStub& addLine(double x1, double y1, double x2, double y2, EntityTraits traits = {}) {
        return addShape(LineShape{{x1, y1, 0}, {x2, y2, 0}}, std::move(traits));
    }

    KdDbLayerTableRecord& addLayer(const wchar_t* name, std::uint16_t colorIndex) {
        auto record = std::make_unique<KdDbLayerTableRecord>();
        record->setName(name);
        KdCmColor color;
        color.setColorIndex(colorIndex);
        record->setColor(color);
        KdDbObjectId id;
        auto* table = static_cast<KdDbLayerTable*>(core.load(*core.wellKnown().layerTable));
        table->add(id, record.get());
        return *record.release();
    }

    KdDbStub& addStyle(MlineStyleContent content) {
        auto style = std::make_unique<KdDbMlineStyle>();
        style->setContent(std::make_shared<MlineStyleContent>(std::move(content)));
        return core.adopt(std::move(style), ObjectKind::mlineStyle, nullptr);
    }

    static KdDbMline& mline(KdDbStub& stub) { return static_cast<KdDbMline&>(*stub.object); }

    KdDbDatabase database;
    DatabaseCore& core;

private:
    std::shared_ptr<ShapeShelf> m_shelf;
};

} // namespace orvex::testing
