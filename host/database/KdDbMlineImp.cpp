#include "KdDbMlineImp.h"

#include "KdDbMline.h"
#include "MlineContent.h"

#include <algorithm>

namespace {

// Fresh multilines share one empty content, since most get another at once.
const std::shared_ptr<orvex::MlineContent>& emptyContent() {
    static const auto content = [] {
        auto empty = std::make_shared<orvex::MlineContent>();
        empty->traits = orvex::shareTraits({});
        return empty;
    }();
    return content;
}

} // namespace

KdDbMlineImp::KdDbMlineImp(KdDbMline* mline) : m_mline(mline), m_content(emptyContent()) {}

KdDbMlineImp::~KdDbMlineImp() = default;

orvex::MlineContent& KdDbMlineImp::changeContent() {
    m_mline->aboutToChange();
    if (m_content.use_count() > 1) {
        m_content = std::make_shared<orvex::MlineContent>(*m_content);
    }
    return *m_content;
}

Status KdDbMlineImp::appendSegments(const KdArray<KdGePoint3d>& positions) {
    auto& vertices = changeContent().vertices;
    const std::size_t count =
        std::min(vertices.size(), static_cast<std::size_t>(positions.length()));
    for (std::size_t i = 0; i < count; ++i) {
        vertices[i].position = positions[static_cast<int>(i)];
    }
    return Status::done;
}

Status KdDbMlineImp::appendSeg(const KdArray<KdGeVector3d>& vectors, bool axes) {
    auto& vertices = changeContent().vertices;
    const std::size_t count = std::min(vertices.size(), static_cast<std::size_t>(vectors.length()));
    for (std::size_t i = 0; i < count; ++i) {
        (axes ? vertices[i].axis : vertices[i].miter) = vectors[static_cast<int>(i)];
    }
    return Status::done;
}
