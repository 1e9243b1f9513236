#include "workThreads.h"

#include <algorithm>
#include <atomic>
#include <thread>

namespace orvex {

namespace {

std::atomic<int> g_threads = 0; // 0: not set

} // namespace

int workThreads() {
    const int threads = g_threads;
    return threads > 0 ? threads
                       : std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
}

void setWorkThreads(int threads) {
    g_threads = std::max(threads, 1);
}

} // namespace orvex
