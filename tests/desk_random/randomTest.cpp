#include "DeskRound.h"
#include "TestPaths.h"

#include <CLI/CLI.hpp>

#include <gmock/gmock.h>

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <thread>

namespace orvex::testing {

namespace {

struct Call {
    std::uint64_t seed = 1;
    double minutes = 0.0;
    int rounds = 0; // 0: as many as the minutes hold
    int events = 300;
    double patience = 1.0;
    std::string drawing;
    std::string log;
};

TimedApplication* s_application = nullptr;

// The drawings of a round after the other; the last is a new one.
std::filesystem::path sampleOf(std::uint64_t round) {
    constexpr std::array kNames{"floorplan.dxf", "", "flat.dxf", "drawn_flat.dxf"};
    const char* const name = kNames[round % kNames.size()];
    return *name == '\0' ? std::filesystem::path() : sourceDir() / "samples" / name;
}

class AnySeed : public ::testing::TestWithParam<std::uint64_t> {};

TEST_P(AnySeed, leavesDrawingAndHistoryWhole) {
    RoundPlan plan;
    plan.seed = GetParam();
    plan.drawing = sampleOf(GetParam());
    plan.patience = 1e9; // other tests run at the same time
    const RoundResult result = playRound(*s_application, plan);
    EXPECT_THAT(result.faults, ::testing::IsEmpty());
    EXPECT_EQ(result.events, plan.events);
}

INSTANTIATE_TEST_SUITE_P(RandomUser, AnySeed, ::testing::Values(1, 2, 3));

int playForMinutes(const Call& call) {
    const auto start = std::chrono::steady_clock::now();
    const auto seconds = [start] {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    };
    std::FILE* const log = call.log.empty() ? nullptr : std::fopen(call.log.c_str(), "w");
    std::size_t faults = 0;
    long events = 0;
    std::size_t steps = 0;
    long replayed = 0;
    double longest = 0.0;
    std::uint64_t round = 0;
    while (call.rounds > 0 ? round < static_cast<std::uint64_t>(call.rounds)
                           : seconds() < call.minutes * 60.0) {
        RoundPlan plan{call.seed + round, call.events,
                       call.drawing.empty() ? sampleOf(call.seed + round)
                                            : std::filesystem::path(call.drawing),
                       call.patience, log};
        if (log != nullptr) {
            std::fprintf(log, "==== seed %lu on %s\n", static_cast<unsigned long>(plan.seed),
                         plan.drawing.c_str());
        }
        const RoundResult result = playRound(*s_application, plan);
        for (const std::string& fault : result.faults) {
            std::cout << "seed " << plan.seed << ", " << fault << std::endl;
        }
        faults += result.faults.size();
        events += result.events;
        steps += result.steps;
        replayed += result.isReplayed ? 1 : 0;
        longest = std::max(longest, result.longest);
        ++round;
    }
    std::cout << round << " rounds, " << events << " events, " << steps
              << " steps taken back and brought again, " << replayed
              << " histories played, longest event " << longest << " s, " << faults << " faults in "
              << seconds() << " s" << std::endl;
    return faults == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

} // namespace orvex::testing

int main(int argc, char** argv) {
    using namespace orvex::testing;
    // The offscreen platform complains about each window.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
        if (!text.contains(QLatin1String("propagateSizeHints"))) {
            std::cerr << text.toStdString() << std::endl;
        }
    });
    ::testing::InitGoogleMock(&argc, argv);
    Call call;
    CLI::App options{"A user who does anything, in the window; without options a short test"};
    options.add_option("--seed", call.seed, "Of the first round; each round takes the next");
    options.add_option("--minutes", call.minutes, "How long to play");
    options.add_option("--rounds", call.rounds, "How many rounds, in place of minutes");
    options.add_option("--events", call.events, "In a round");
    options.add_option("--patience", call.patience, "Seconds in which an event has to be handled");
    options.add_option("--drawing", call.drawing, "Played on; else the samples in turn");
    options.add_option("--log", call.log, "A file for all events");
    CLI11_PARSE(options, argc, argv);
    TimedApplication application(argc, argv);
    s_application = &application;
    return call.minutes > 0.0 || call.rounds > 0 ? playForMinutes(call) : RUN_ALL_TESTS();
}
