#pragma once

#include "RoundLinePainter.h"

#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <thread>
#include <vector>

namespace orvex {

// Paints lines into a picture in the order in which they come, by a thread of its own where a
// drawing may have more than one, so that the next ones can be worked out meanwhile.
class LineQueue {
public:
    LineQueue(QImage& image, int threads);
    ~LineQueue();
    LineQueue(const LineQueue&) = delete;
    LineQueue& operator=(const LineQueue&) = delete;

    // False, and nothing is taken, for a line that RoundLinePainter can't paint.
    bool take(QPointF from, QPointF to, double width, std::uint32_t rgb);
    // Paints what was taken. Before this returned, nobody else may paint into the picture.
    void settle();

private:
    struct Line {
        QPointF from;
        QPointF to;
        double width = 0.0;
        std::uint32_t rgb = 0;
    };
    void paint(const std::vector<Line>& lines);
    void work();
    void waitForWorker();
    void handOver();

    RoundLinePainter m_painter;
    std::vector<Line> m_lines; // not yet handed over
    std::mutex m_mutex;        // of what follows
    std::condition_variable m_turn;
    std::vector<Line> m_handedOver;
    bool m_isWorking = false; // there is something handed over
    bool m_isEnding = false;
    std::thread m_worker; // none where one thread has to do
};

} // namespace orvex
