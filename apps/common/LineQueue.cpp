#include "LineQueue.h"

#include <system_error>

namespace orvex {

namespace {

constexpr std::size_t kBatch = 4096; // lines; handing over takes as long as painting some

} // namespace

LineQueue::LineQueue(QImage& image, int threads) : m_painter(image) {
    if (threads < 2) {
        return;
    }
    m_lines.reserve(kBatch);
    m_handedOver.reserve(kBatch);
    try {
        m_worker = std::thread([this] { work(); });
    } catch (const std::system_error&) {
        // The system has no thread to give; one does it all.
    }
}

LineQueue::~LineQueue() {
    if (m_worker.joinable()) {
        {
            const std::lock_guard lock(m_mutex);
            m_isEnding = true;
        }
        m_turn.notify_all();
        m_worker.join();
    }
}

bool LineQueue::take(QPointF from, QPointF to, double width, std::uint32_t rgb) {
    if (!m_painter.canPaint(from, to, width)) {
        return false;
    }
    if (!m_worker.joinable()) {
        m_painter.paint(from, to, width, rgb);
        return true;
    }
    m_lines.push_back({from, to, width, rgb});
    if (m_lines.size() >= kBatch) {
        handOver();
    }
    return true;
}

void LineQueue::settle() {
    if (m_worker.joinable()) {
        waitForWorker();
        paint(m_lines);
        m_lines.clear();
    }
}

void LineQueue::paint(const std::vector<Line>& lines) {
    for (const Line& line : lines) {
        m_painter.paint(line.from, line.to, line.width, line.rgb);
    }
}

void LineQueue::handOver() {
    waitForWorker();
    {
        const std::lock_guard lock(m_mutex);
        m_handedOver.swap(m_lines);
        m_isWorking = true;
    }
    m_turn.notify_all();
    m_lines.clear();
}

void LineQueue::waitForWorker() {
    std::unique_lock lock(m_mutex);
    m_turn.wait(lock, [this] { return !m_isWorking; });
}

void LineQueue::work() {
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_turn.wait(lock, [this] { return m_isWorking || m_isEnding; });
        if (!m_isWorking) {
            return;
        }
        // Nobody touches what was handed over before this says that it is done.
        lock.unlock();
        paint(m_handedOver);
        lock.lock();
        m_isWorking = false;
        m_turn.notify_all();
    }
}

} // namespace orvex
