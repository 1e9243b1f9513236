#pragma once

#include "Deadline.h"
#include "PickIndex.h"

#include <cstddef>
#include <functional>
#include <future>
#include <vector>

namespace orvex {

// Makes an index in steps, so that a program with a window can answer between them: boxes one by
// one, then the packing of the tree, which can't be interrupted, in the background.
class IndexBuild {
public:
    // Goes on with boxes of the places from 0 to `count`. True once the index can be taken; it
    // then has all places that were there when the last box was made.
    bool advance(std::size_t count, const std::function<PlanBox(std::size_t)>& boxAt,
                 Deadline deadline);
    // Puts the index in the place of another one, which is taken apart in the background.
    void take(PickIndex& target);
    // What was made so far isn't right any more.
    void restart();

private:
    std::vector<PlanBox> m_boxes;
    std::future<PickIndex> m_packing;
    bool m_isStale = false; // the index being packed
    std::future<void> m_disposal;
};

} // namespace orvex
