#pragma once

#include "KdArray.h"
#include "KdDbEntity.h"
#include "KdGePoint3d.h"
#include "KdGeVector3d.h"

class KdDbMlineImp;

// A multiline: parallel lines that follow one chain of vertices. Everything is stored exactly as
// given; nothing here ever recomputes an axis, a miter or a list.
class KdDbMline : public KdDbEntity {
public:
    KdDbMline(); // free-standing: no vertices, not closed
    ~KdDbMline() override;

    static KdRxClass* desc();
    [[nodiscard]] KdRxClass* isA() const override;

    [[nodiscard]] int numVertices() const;
    // Index outside: zeros.
    [[nodiscard]] KdGePoint3d vertexAt(int vertex) const;
    [[nodiscard]] KdGeVector3d axisAt(int vertex) const;
    [[nodiscard]] KdGeVector3d miterAt(int vertex) const;

    // `parameters` gets one entry, a pointer to the VoVector<KdMLSegment> of the vertex, readable
    // until the next call on the entity. Index outside: it comes back empty.
    Status getParametersAt(int vertex, KdArray<void*>& parameters) const;
    // Takes a copy at once of the VoVector<KdMLSegment> that entry 0 points to. A size other than
    // 1, a null entry or an index outside is refused. Values and counts aren't judged.
    Status setParametersAt(int vertex, const KdArray<void*>& parameters);

    // Adds a vertex there, with zero axis and miter and as many empty records as vertex 0 has.
    Status appendSeg(const KdGePoint3d& position);
    // Drops the last vertex with its lists.
    Status removeLastSeg(KdGePoint3d& removed);

    // Plain flags: no vertex is added, removed or moved.
    [[nodiscard]] bool closedMline() const;
    void setClosedMline(bool closed);
    [[nodiscard]] bool supressStartCaps() const;
    void setSupressStartCaps(bool supressed);
    [[nodiscard]] bool supressEndCaps() const;
    void setSupressEndCaps(bool supressed);

    [[nodiscard]] KdDbObjectId style() const; // null when the drawing has no such style
    Status setStyle(KdDbObjectId style);
    // The style of a multiline, known without opening or reading it where the drawing can; null
    // when it has none or isn't there.
    [[nodiscard]] static KdDbObjectId styleOf(KdDbObjectId mline);
    [[nodiscard]] KdGeVector3d normal() const;
    Status setNormal(const KdGeVector3d& normal);
    [[nodiscard]] double scale() const;
    Status setScale(double scale);
    [[nodiscard]] int justification() const; // 0 top, 1 zero, 2 bottom
    Status setJustification(int justification);

    void setDatabaseDefaults(const KdDbDatabase* database) override;

    [[nodiscard]] std::shared_ptr<const orvex::ObjectContent> content() const override;
    Status setContent(const std::shared_ptr<const orvex::ObjectContent>& content) override;

protected:
    void storeTraits(std::shared_ptr<const orvex::EntityTraits> traits) override;

private:
    friend class KdDbMlineImp;
    friend class KdDbSystemInternals;
    std::unique_ptr<KdDbMlineImp> m_imp;
};
