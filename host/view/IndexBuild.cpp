#include "IndexBuild.h"

#include <utility>

namespace orvex {

namespace {

constexpr std::size_t kFewBoxes = 2000; // packed in less time than a thread takes to start

// False when the time is over before.
bool waitFor(const std::future<PickIndex>& packing, Deadline deadline) {
    if (deadline == Deadline::max()) {
        packing.wait();
        return true;
    }
    return packing.wait_until(deadline) != std::future_status::timeout;
}

PickIndex packed(std::vector<PlanBox> boxes) {
    PickIndex index;
    index.build(std::move(boxes));
    return index;
}

} // namespace

bool IndexBuild::advance(std::size_t count, const std::function<PlanBox(std::size_t)>& boxAt,
                         Deadline deadline) {
    if (m_isStale) {
        if (!waitFor(m_packing, deadline)) {
            return false;
        }
        m_packing = {};
        m_isStale = false;
    }
    if (!m_packing.valid()) {
        m_boxes.reserve(count);
        while (m_boxes.size() < count) {
            m_boxes.push_back(boxAt(m_boxes.size()));
            if (isOver(deadline)) {
                return false;
            }
        }
        const auto where = count > kFewBoxes && deadline != Deadline::max() ? std::launch::async
                                                                            : std::launch::deferred;
        m_packing = std::async(where, packed, std::exchange(m_boxes, {}));
    }
    return waitFor(m_packing, deadline);
}

void IndexBuild::take(PickIndex& target) {
    PickIndex former = std::exchange(target, m_packing.get());
    if (former.size() > kFewBoxes) {
        m_disposal = std::async(std::launch::async,
                                [disposed = std::move(former)]() mutable { disposed = {}; });
    }
}

// A packing that runs is left to run, since waiting for its end here would take as long.
void IndexBuild::restart() {
    m_boxes.clear();
    m_isStale = m_packing.valid();
}

} // namespace orvex
