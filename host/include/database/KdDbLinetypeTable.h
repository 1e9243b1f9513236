#pragma once

#include "KdDbSymbolTable.h"

class KdDbLinetypeTable : public KdDbSymbolTable {
public:
    static KdRxClass* desc();
    [[nodiscard]] KdRxClass* isA() const override;
};

// A line type: strokes along the line, in drawing units at scale 1. Positive is pen down,
// negative pen up, 0 a dot; without dashes the line is continuous.
class KdDbLinetypeTableRecord : public KdDbSymbolTableRecord {
public:
    static KdRxClass* desc();
    [[nodiscard]] KdRxClass* isA() const override;

    [[nodiscard]] const std::wstring& comments() const { return m_comments; }
    void setComments(const wchar_t* comments);
    [[nodiscard]] const std::vector<double>& dashes() const { return m_dashes; }
    void setDashes(std::vector<double> dashes);

    [[nodiscard]] std::shared_ptr<const orvex::ObjectContent> content() const override;
    Status setContent(const std::shared_ptr<const orvex::ObjectContent>& content) override;

private:
    std::wstring m_comments;
    std::vector<double> m_dashes;
};
