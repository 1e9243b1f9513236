#include "teePlan.h"

#include <algorithm>

namespace {

// The bar's line at a depth counted from the stem.
struct BarLines {
    int count;
    bool nearerIsFirst;

    [[nodiscard]] int atDepth(int depth) const { return nearerIsFirst ? depth : count - 1 - depth; }
};

TeePlan openPlan(int stem, const BarLines& bar) {
    TeePlan plan;
    const int near = bar.atDepth(0);
    for (int element = 0; element < stem; ++element) {
        plan.trims.push_back({element, near});
    }
    plan.cuts.push_back({true, near, {0, near}, {stem - 1, near}});
    return plan;
}

// A bar of one line has no depth, so nothing of it opens.
TeePlan mergedPlan(int stem, const BarLines& bar) {
    int limit = std::min(bar.count - 2, stem / 2);
    if (limit < 1) {
        limit = bar.count - 1;
    }
    TeePlan plan;
    const int near = bar.atDepth(0);
    plan.trims.push_back({0, near});
    plan.trims.push_back({stem - 1, near});
    for (int k = 1; k <= stem - 2; ++k) {
        plan.trims.push_back({k, bar.atDepth(std::min({k, stem - 1 - k, limit}))});
    }
    for (int depth = 0; depth < limit; ++depth) {
        const int line = bar.atDepth(depth);
        plan.cuts.push_back({true, line, {depth, line}, {stem - 1 - depth, line}});
    }
    return plan;
}

} // namespace

TeePlan teePlan(TeeKind kind, int stemElements, int barElements, bool nearerIsFirst) {
    const BarLines bar{barElements, nearerIsFirst};
    return kind == TeeKind::merged ? mergedPlan(stemElements, bar) : openPlan(stemElements, bar);
}
