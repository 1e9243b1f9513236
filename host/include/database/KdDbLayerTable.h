#pragma once

#include "KdCmColor.h"
#include "KdDbSymbolTable.h"

class KdDbLayerTable : public KdDbSymbolTable {
public:
    static KdRxClass* desc();
    [[nodiscard]] KdRxClass* isA() const override;
};

// A layer: colour, line type and whether its entities are seen.
class KdDbLayerTableRecord : public KdDbSymbolTableRecord {
public:
    static KdRxClass* desc();
    [[nodiscard]] KdRxClass* isA() const override;

    [[nodiscard]] const KdCmColor& color() const { return m_color; }
    void setColor(const KdCmColor& color);
    [[nodiscard]] const std::wstring& linetype() const { return m_linetype; }
    void setLinetype(const wchar_t* name);
    // Hundredths of a millimetre on paper; -3 for the usual one.
    [[nodiscard]] int lineweight() const { return m_lineweight; }
    void setLineweight(int lineweight);
    [[nodiscard]] bool isOff() const { return m_off; }
    void setIsOff(bool off);
    [[nodiscard]] bool isFrozen() const { return m_frozen; }
    void setIsFrozen(bool frozen);
    [[nodiscard]] bool isLocked() const { return m_locked; }
    void setIsLocked(bool locked);

    [[nodiscard]] std::shared_ptr<const orvex::ObjectContent> content() const override;
    Status setContent(const std::shared_ptr<const orvex::ObjectContent>& content) override;

private:
    KdCmColor m_color;
    std::wstring m_linetype = L"Continuous";
    int m_lineweight = -3;
    bool m_off = false;
    bool m_frozen = false;
    bool m_locked = false;
};
