#include "changeMline.h"

#include "ChainFrame.h"
#include "breakLists.h"
#include "elementMatch.h"
#include "geometry.h"
#include "hostText.h"
#include "impossible.h"
#include "layRight.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace orvex {

namespace {

constexpr std::size_t kMostElements = 16;
constexpr std::size_t kFewestForClosing = 3;

// Nothing when it can be made.
std::optional<std::string> objectionTo(const MlineContent& mline, const StyleLayout* style,
                                       const MlineChange& change) {
    if (style == nullptr) {
        return hostText("its style is missing");
    }
    if (style->offsets.empty() || style->offsets.size() > kMostElements) {
        return hostText("a style has 1 to 16 elements");
    }
    if (change.scale && (!std::isfinite(*change.scale) || *change.scale == 0.0)) {
        return hostText("a scale is a number other than 0");
    }
    if (change.keepsLines && (change.style || change.scale || change.closed)) {
        return hostText("its lines can be kept under another justification only");
    }
    if (const auto contradiction = gapContradiction(mline)) {
        return contradiction->text;
    }
    return std::nullopt;
}

// The list of the last vertex draws what closes the chain; it is drawn without a gap.
void unbreakLast(MlineContent& mline) {
    const auto last = static_cast<unsigned>(mline.vertices.size()) - 1;
    VoVector<KdMLSegment> record = mline.lists.nested(last);
    const auto unbroken = [](const VoVector<double>& list) {
        VoVector<double> fresh;
        if (!list.isEmpty()) {
            fresh.append(list[0]);
            fresh.append(0.0);
        }
        return fresh;
    };
    for (unsigned e = 0; e < record.size(); ++e) {
        KdMLSegment& element = record[static_cast<int>(e)];
        element.m_lineParams = unbroken(element.m_lineParams);
        element.m_areaParams = unbroken(element.m_areaParams);
    }
    mline.lists.setNested(last, record);
}

Result<MlineContent> closedChain(MlineContent mline) {
    const std::vector<ChainVertex>& vertices = mline.vertices;
    if (vertices.size() > 1 &&
        (vertices.back().position - vertices.front().position).isZeroLength()) {
        mline.vertices.pop_back();
        mline.lists.dropLastVertex();
    }
    if (mline.vertices.size() < kFewestForClosing) {
        return impossible(hostText("a closed chain has three vertices or more"));
    }
    mline.closed = true;
    unbreakLast(mline);
    return mline;
}

// The ends get the miters of the style.
Result<MlineContent> openChain(MlineContent mline, const StyleLayout& style) {
    if (mline.vertices.size() < 2) {
        return impossible(hostText("it has fewer than two vertices"));
    }
    const std::size_t last = mline.vertices.size() - 1;
    mline.closed = false;
    unbreakLast(mline);
    ChainVertex& end = mline.vertices[last];
    end.axis = mline.vertices[last - 1].axis;
    end.miter = endMiter(end.axis, mline.normal, style.endAngle).direction;
    ChainVertex& start = mline.vertices.front();
    start.miter = endMiter(start.axis, mline.normal, style.startAngle).direction;
    return mline;
}

void addToFirst(VoVector<double>& list, double summand) {
    if (!list.isEmpty()) {
        list.setAt(0, list[0] + summand);
    }
}

// Moves the chain by `distance` to the left under lines that stay.
Result<MlineContent> withChainMoved(const MlineContent& mline, const ChainFrame& frame,
                                    double distance, const StyleLayout& style) {
    MlineContent result = mline;
    for (unsigned v = 0; v < mline.vertices.size(); ++v) {
        ChainVertex& vertex = result.vertices[v];
        const double along = distance / sineOf(vertex.miter, frame.vertices[v]);
        vertex.position = vertex.position + vertex.miter * along;
        VoVector<KdMLSegment> record = mline.lists.nested(v);
        for (unsigned e = 0; e < record.size(); ++e) {
            addToFirst(record[static_cast<int>(e)].m_lineParams, -along);
            addToFirst(record[static_cast<int>(e)].m_areaParams, -along);
        }
        result.lists.setNested(v, record);
    }
    const Result<ChainFrame> moved = chainFrameOf(result, style);
    if (!moved) {
        return moved.failure();
    }
    for (std::size_t v = 0; v < result.vertices.size(); ++v) {
        if (dot(moved->vertices[v].axis, frame.vertices[v].axis) <= 0.0) {
            return impossible(hostText("a segment is too short to keep its lines"));
        }
    }
    return result;
}

Result<MlineContent> keepingLines(const MlineContent& mline, const StyleLayout& style,
                                  int justification) {
    const Result<ChainFrame> frame = chainFrameOf(mline, style);
    if (!frame) {
        return frame.failure();
    }
    const double before = frame->distances.front();
    const double after = elementDistances(style, mline.scale, justification).front();
    Result<MlineContent> moved = withChainMoved(mline, *frame, before - after, style);
    if (moved) {
        moved->justification = justification;
    }
    return moved;
}

// Ends at the angles of one style get those of another; an end that was cut otherwise stays as it
// is.
Result<MlineContent> withEndsOf(const MlineContent& mline, const StyleLayout& before,
                                const StyleLayout& after) {
    if (mline.closed ||
        (before.startAngle == after.startAngle && before.endAngle == after.endAngle)) {
        return mline;
    }
    constexpr double kSameAngle = 1e-9; // sine
    const Result<ChainFrame> frame = chainFrameOf(mline, before);
    if (!frame) {
        return frame.failure();
    }
    MlineContent turned = mline;
    const std::size_t last = mline.vertices.size() - 1;
    for (const auto& [end, old, fresh] :
         {std::tuple(std::size_t{0}, before.startAngle, after.startAngle),
          std::tuple(last, before.endAngle, after.endAngle)}) {
        const KdGeVector3d& axis = frame->vertices[end].axis;
        KdGeVector3d& miter = turned.vertices[end].miter;
        const KdGeVector3d styled = endMiter(axis, mline.normal, old).direction;
        if (cross(styled, miter).length() <= kSameAngle * styled.length() * miter.length()) {
            miter = endMiter(axis, mline.normal, fresh).direction;
        }
    }
    return laidAnew(std::move(turned), mline, before);
}

Result<MlineContent> withTopology(const MlineContent& mline, const StyleLayout& style,
                                  const MlineChange& change) {
    if (!change.closed || *change.closed == mline.closed) {
        return mline;
    }
    return *change.closed ? closedChain(mline) : openChain(mline, style);
}

Result<ChangedMline> relaid(const MlineContent& mline, const StyleLayout* style,
                            const MlineChange& change) {
    const StyleLayout* const newStyle = change.style ? &change.style->layout : style;
    if (const auto objection = objectionTo(mline, newStyle, change)) {
        return impossible(*objection);
    }
    Result<MlineContent> chain = withTopology(mline, *newStyle, change);
    if (chain && change.style && style != nullptr && chain->closed == mline.closed &&
        style->offsets.size() == chain->elementCount()) {
        chain = withEndsOf(*chain, *style, *newStyle);
    }
    if (!chain) {
        return chain.failure();
    }
    ChangedMline result;
    if (change.keepsLines && change.justification) {
        chain = keepingLines(*chain, *newStyle, *change.justification);
        if (!chain) {
            return chain.failure();
        }
    }
    MlineContent wanted = *chain;
    wanted.style = change.style ? change.style->id : mline.style;
    wanted.scale = change.scale.value_or(mline.scale);
    wanted.justification = change.justification.value_or(mline.justification);
    // The tracks of an opened chain are those of the closed one.
    MlineContent old = *chain;
    if (mline.closed && !chain->closed) {
        old.vertices = mline.vertices;
        old.lists = mline.lists;
        old.lists.setNested(old.lists.vertexCount() - 1,
                            chain->lists.nested(old.lists.vertexCount() - 1));
    }
    if (wanted.elementCount() != newStyle->offsets.size()) {
        Result<MatchedMline> matched = withElementsOf(wanted, *newStyle, style);
        if (!matched) {
            return matched.failure();
        }
        result.hasMovedGaps = matched->hasMovedGaps;
        result.mline = std::move(matched->mline);
    } else {
        Result<MlineContent> laid = laidAnew(std::move(wanted), old, *newStyle);
        if (!laid) {
            return laid.failure();
        }
        result.mline = std::move(*laid);
    }
    if (!isFinite(result.mline)) {
        return impossible(hostText("a number in it would be too large"));
    }
    return result;
}

} // namespace

Result<ChangedMline> changed(const MlineContent& mline, const StyleLayout* style,
                             const MlineChange& change) {
    const bool isLaid = change.style || change.scale || change.justification || change.closed;
    Result<ChangedMline> result =
        isLaid ? relaid(mline, style, change) : ChangedMline{mline, false};
    if (result && change.caps) {
        result->mline.startCapsSuppressed = !change.caps->atStart;
        result->mline.endCapsSuppressed = !change.caps->atEnd;
    }
    return result;
}

} // namespace orvex
