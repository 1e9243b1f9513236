#pragma once

#include <QApplication>

#include <algorithm>
#include <ctime>
#include <utility>

namespace orvex::testing {

// An application that knows for how long at most it worked without being able to handle an event.
// By the time of the processor, so that what else the machine does doesn't count.
class TimedApplication final : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override {
        look();
        const bool isTaken = QApplication::notify(receiver, event);
        look();
        return isTaken;
    }

    // Seconds, since the last call.
    double takeLongest() {
        look();
        return std::exchange(m_longest, 0.0);
    }

private:
    static double now() {
        timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
    }
    void look() {
        const double time = now();
        m_longest = std::max(m_longest, time - m_since);
        m_since = time;
    }

    double m_since = now();
    double m_longest = 0.0;
};

} // namespace orvex::testing
