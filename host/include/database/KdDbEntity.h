#pragma once

#include "KdCmColor.h"
#include "KdDbObject.h"

#include <string>

class KdDbDatabase;

namespace orvex {
struct EntityTraits;
}

// Something that can be seen and picked. Kinds that the host has no model for open as this class
// itself: their look comes from the drawing, and nothing of them can be edited.
class KdDbEntity : public KdDbObject {
public:
    KdDbEntity();
    ~KdDbEntity() override;

    static KdRxClass* desc();
    [[nodiscard]] KdRxClass* isA() const override;

    [[nodiscard]] const std::wstring& layer() const;
    Status setLayer(const wchar_t* name);
    [[nodiscard]] const std::wstring& linetype() const; // ByLayer, ByBlock or a record's name
    Status setLinetype(const wchar_t* name);
    [[nodiscard]] double linetypeScale() const;
    [[nodiscard]] const KdCmColor& color() const;
    Status setColor(const KdCmColor& color);
    // `subEntities` is taken for the interface's sake: a multiline's elements have colours of
    // their own from its style.
    Status setColorIndex(std::uint16_t index, bool subEntities = true);
    [[nodiscard]] bool isVisible() const;

    // Layer, colour and line type as the database's variables say.
    virtual void setDatabaseDefaults(const KdDbDatabase* database);

    [[nodiscard]] const orvex::EntityTraits& traits() const;
    // Refused, like every setter here, by a drawing's entity of this class itself.
    Status setTraits(const orvex::EntityTraits& traits);

protected:
    [[nodiscard]] const std::shared_ptr<const orvex::EntityTraits>& sharedTraits() const {
        return m_traits;
    }
    // Whoever keeps the traits a second time has to follow.
    virtual void storeTraits(std::shared_ptr<const orvex::EntityTraits> traits);

private:
    [[nodiscard]] bool isOnlySeen() const;

    std::shared_ptr<const orvex::EntityTraits> m_traits; // never null; shared by entities alike
};
