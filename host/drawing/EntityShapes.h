#pragma once

#include "DrawingText.h"
#include "EntityShape.h"
#include "RecordContext.h"
#include "RecordKind.h"
#include "TagReader.h"

#include <span>
#include <string_view>
#include <vector>

namespace orvex {

// What an entity's record, its followers included, looks like; nothing for kinds that aren't
// drawn and for records that lack what they need.
[[nodiscard]] EntityShape readShape(RecordKind kind, std::string_view bytes, const RecordSpan& span,
                                    const DrawingText& text);

// ---- what the families share --------------------------------------------------------------------

// The tags of one record up to the data of other applications.
class ShapeTags {
public:
    explicit ShapeTags(std::span<const Tag> tags);

    [[nodiscard]] std::span<const Tag> all() const { return m_tags; }
    [[nodiscard]] bool has(int code) const { return find(code) != nullptr; }
    // Of the first tag with the code; `otherwise` when there is none, or none that reads.
    [[nodiscard]] double real(int code, double otherwise = 0.0) const;
    [[nodiscard]] int integer(int code, int otherwise = 0) const;
    [[nodiscard]] std::string_view text(int code) const;
    // Under `code`, `code` + 10 and `code` + 20.
    [[nodiscard]] KdGePoint3d point(int code) const;

private:
    [[nodiscard]] const Tag* find(int code) const;
    std::span<const Tag> m_tags;
};

// The axes of the plane that a flat entity lies in.
struct EntityPlane {
    KdGeVector3d xAxis{1.0, 0.0, 0.0};
    KdGeVector3d yAxis{0.0, 1.0, 0.0};
    KdGeVector3d normal{0.0, 0.0, 1.0};

    // By the entity's extrusion, codes 210 to 230, with the arbitrary axis rule of the format.
    static EntityPlane of(const ShapeTags& tags);
    [[nodiscard]] KdGePoint3d toWorld(const KdGePoint3d& point) const;
    [[nodiscard]] KdGeVector3d direction(double angle) const; // unit; radians from the x axis
};

// A record's followers, one each; `tags` starts with the record itself.
[[nodiscard]] std::vector<ShapeTags> splitRecords(std::span<const Tag> tags);

// ---- the families -------------------------------------------------------------------------------

[[nodiscard]] EntityShape lineShape(const ShapeTags& tags);
[[nodiscard]] EntityShape pointShape(const ShapeTags& tags);
[[nodiscard]] EntityShape solidShape(const ShapeTags& tags);
[[nodiscard]] EntityShape arcShape(const ShapeTags& tags, bool whole);
[[nodiscard]] EntityShape ellipseShape(const ShapeTags& tags);
[[nodiscard]] EntityShape lwPolylineShape(const ShapeTags& tags);
[[nodiscard]] EntityShape polylineShape(const std::vector<ShapeTags>& records);
[[nodiscard]] TextShape textShape(const ShapeTags& tags, const DrawingText& text);
[[nodiscard]] EntityShape mtextShape(const ShapeTags& tags, const DrawingText& text);
[[nodiscard]] EntityShape insertShape(const std::vector<ShapeTags>& records,
                                      const DrawingText& text);
[[nodiscard]] EntityShape hatchShape(const ShapeTags& tags);

} // namespace orvex
