#pragma once

#include "KdArray.h"
#include "KdGePoint3d.h"
#include "KdGeVector3d.h"
#include "KdMLSegment.h"
#include "Status.h"

#include <memory>

class KdDbMline;

namespace orvex {
struct MlineContent;
}

// The implementation object behind a multiline. It lives as long as the multiline.
class KdDbMlineImp {
public:
    explicit KdDbMlineImp(KdDbMline* mline);
    ~KdDbMlineImp();
    KdDbMlineImp(const KdDbMlineImp&) = delete;
    KdDbMlineImp& operator=(const KdDbMlineImp&) = delete;

    // Despite the names both replace what the present vertices have, in order, and never change
    // their number; of unequal lengths the shorter counts.
    Status appendSegments(const KdArray<KdGePoint3d>& positions);
    Status appendSeg(const KdArray<KdGeVector3d>& vectors, bool axes); // axes, else miters

    // The host's own view of the values.
    [[nodiscard]] const orvex::MlineContent& content() const { return *m_content; }
    // For writing: notifies undo, index and saving first, and unshares the value.
    [[nodiscard]] orvex::MlineContent& changeContent();

private:
    friend class KdDbMline;
    KdDbMline* m_mline; // not owned
    std::shared_ptr<orvex::MlineContent> m_content;
    VoVector<KdMLSegment> m_lent; // what getParametersAt gave last
};
