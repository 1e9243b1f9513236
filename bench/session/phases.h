#pragma once

#include "ScriptSource.h"
#include "Session.h"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

// What programs share that time the phases of a session, each of which happens once.
namespace orvex::bench {

[[noreturn]] inline void giveUp(const std::string& why) {
    std::fprintf(stderr, "%s: %s\n", program_invocation_short_name, why.c_str());
    std::exit(1);
}

template <class Work>
double secondsOf(Work&& work) {
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    work();
    return std::chrono::duration<double>(Clock::now() - start).count();
}

inline std::string contentOf(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    if (!stream) {
        giveUp("can't read " + path);
    }
    return {std::istreambuf_iterator<char>(stream), {}};
}

// A script that can't be played to its end ends the program.
inline void play(
    Session& session, const std::string& path,
    const ScriptSource::Printer& print = [](const std::wstring&) {}) {
    ScriptSource script(contentOf(path), print);
    session.setSource(&script);
    while (!script.atEnd()) {
        const std::wstring command = session.askCommand();
        if (!command.empty() && session.run(command)) {
            giveUp("can't play " + path);
        }
    }
    session.setSource(nullptr);
    if (script.failure()) {
        giveUp("an answer in " + path + " fits no prompt");
    }
}

} // namespace orvex::bench
