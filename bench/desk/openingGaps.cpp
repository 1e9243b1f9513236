// How long a window stands still while it opens and shows a drawing: the longest times between two
// passes of its event loop. Prints one line a phase.
//
//     openingGaps DRAWING

#include "Canvas.h"
#include "MainWindow.h"
#include "moduleFiles.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

class Gaps {
public:
    Gaps() {
        m_time.start();
        QObject::connect(&m_timer, &QTimer::timeout, [this] { pass(); });
        m_timer.start(0);
    }
    void end(const char* phase) {
        pass();
        std::sort(m_gaps.begin(), m_gaps.end(), std::greater<>());
        std::printf("%-10s %7.0f ms, longest standstills:", phase,
                    static_cast<double>(m_total.nsecsElapsed()) / 1e6);
        for (std::size_t i = 0; i < std::min<std::size_t>(m_gaps.size(), 5); ++i) {
            std::printf(" %.1f", m_gaps[i]);
        }
        std::printf(" ms\n");
        m_gaps.clear();
        m_total.restart();
    }

private:
    void pass() {
        if (!m_total.isValid()) {
            m_total.start();
        }
        m_gaps.push_back(static_cast<double>(m_time.nsecsElapsed()) / 1e6);
        m_time.restart();
    }
    QTimer m_timer;
    QElapsedTimer m_time;
    QElapsedTimer m_total;
    std::vector<double> m_gaps;
};

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: openingGaps DRAWING\n");
        return 2;
    }
    orvex::ModuleLoader modules;
    orvex::MainWindow window(modules, orvex::moduleFiles(std::nullopt));
    window.show();
    QApplication::processEvents();
    for (const bool again : {false, true}) {
        Gaps gaps;
        window.open(QString::fromLocal8Bit(argv[1]));
        QApplication::processEvents(); // all of the opening
        gaps.end(again ? "open again" : "open");
        while (!window.findChild<orvex::Canvas*>()->isSettled()) {
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        gaps.end("show");
    }
    return 0;
}
