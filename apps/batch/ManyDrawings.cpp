#include "ManyDrawings.h"

#include "batchFiles.h"
#include "carryOutTask.h"
#include "printableText.h"

#include <algorithm>
#include <cstdio>
#include <sys/wait.h>

namespace orvex {

namespace {

// Each drawing that ended before an earlier one holds an open file until that one ends.
constexpr std::size_t kFarthestAhead = 256;

} // namespace

ManyDrawings::ManyDrawings(Verb& verb, const std::vector<DrawingTask>& tasks,
                           const ManyOptions& options)
    : m_verb(verb), m_tasks(tasks), m_options(options), m_bar(tasks.size()) {}

int ManyDrawings::run() {
    if (m_options.report) {
        if (const auto failure = m_report.open(*m_options.report)) {
            noteFailure(failure);
            return m_status;
        }
    }
    // A reader that leaves is a failure to print, not our end.
    std::signal(SIGPIPE, SIG_IGN);
    m_bar.show(0, 0);
    for (;;) {
        while (mayBegin()) {
            beginNext();
        }
        if (m_running.empty()) {
            break;
        }
        if (const int signal = m_signals.next(); signal != SIGCHLD) {
            interrupt(signal);
        }
        reap();
        publish();
    }
    m_entries.resize(m_tasks.size() - m_published);
    std::ranges::for_each(m_entries, [](Entry& entry) { entry.isOver = true; });
    publish();
    return m_status;
}

bool ManyDrawings::mayBegin() const {
    return !m_isStopped && m_published + m_entries.size() < m_tasks.size() &&
           m_entries.size() < kFarthestAhead &&
           m_running.size() < static_cast<std::size_t>(m_options.jobs);
}

void ManyDrawings::beginNext() {
    const std::size_t index = m_published + m_entries.size();
    const DrawingTask& task = m_tasks[index];
    m_entries.emplace_back();
    auto job = Job::begin([&](Counts& counts) {
        std::signal(SIGPIPE, SIG_DFL);
        m_signals.restore();
        return static_cast<int>(carryOutTask(m_verb, task, counts));
    });
    if (job) {
        m_running.emplace(index, std::move(*job));
        return;
    }
    JobResult result;
    result.status = static_cast<int>(exitStatus(job.failure().cause));
    result.messages = complaint(inputName(task.drawing) + ": " + job.failure().text);
    end(index, std::move(result));
    publish();
}

// Several ends may come with one signal.
void ManyDrawings::reap() {
    for (auto each = m_running.begin(); each != m_running.end();) {
        int waited = 0;
        const pid_t ended = waitpid(each->second.process(), &waited, WNOHANG);
        if (ended == 0) {
            ++each;
            continue;
        }
        const std::size_t index = each->first;
        end(index, std::move(each->second).result(waited, inputName(m_tasks[index].drawing)));
        each = m_running.erase(each);
    }
}

void ManyDrawings::end(std::size_t index, JobResult result) {
    Entry& entry = m_entries[index - m_published];
    entry.isOver = true;
    entry.outcome = {result.status, std::move(result.messages), std::move(result.counts),
                     result.seconds};
    entry.output = std::move(result.output);
    ++m_over;
    if (result.status != 0) {
        ++m_failed;
        m_isStopped = m_isStopped || !m_options.keepGoing;
    }
    noteStatus(result.status);
}

// The children end and leave nothing half-written, then we do.
void ManyDrawings::interrupt(int signal) {
    m_isStopped = true;
    for (const auto& [index, job] : m_running) {
        kill(job.process(), SIGTERM);
    }
    const int status = kSignalStatus + signal;
    for (auto& [index, job] : m_running) {
        int waited = 0;
        waitpid(job.process(), &waited, 0);
        const std::string name = inputName(m_tasks[index].drawing);
        JobResult result = std::move(job).result(waited, name);
        // What was done before the signal came is done.
        if (!WIFEXITED(waited) || WEXITSTATUS(waited) >= kSignalStatus) {
            result.status = status;
            result.messages = complaint(name + ": interrupted");
        }
        end(index, std::move(result));
    }
    m_running.clear();
    noteStatus(status);
}

// In the order of the drawings.
void ManyDrawings::publish() {
    while (!m_entries.empty() && m_entries.front().isOver) {
        const DrawingTask& task = m_tasks[m_published];
        const Entry& entry = m_entries.front();
        m_bar.hide();
        print(task, entry);
        if (m_canReport) {
            const auto failure = m_report.add(task, entry.outcome);
            m_canReport = !failure;
            noteFailure(failure);
        }
        m_entries.pop_front();
        ++m_published;
    }
    m_bar.show(m_over, m_failed);
}

void ManyDrawings::print(const DrawingTask& task, const Entry& entry) {
    std::fwrite(entry.outcome.messages.data(), 1, entry.outcome.messages.size(), stderr);
    bool isFirst = !m_verb.printsJson();
    const bool isRead =
        entry.output.number() < 0 || readPieces(entry.output, [&](std::string_view piece) {
            if (isFirst) {
                std::printf("%s\n", printableText(inputName(task.drawing)).c_str());
                isFirst = false;
            }
            std::fwrite(piece.data(), 1, piece.size(), stdout);
        });
    // Said once: what couldn't be printed once can't be later.
    const auto failure = isRead ? flushOutput() : std::nullopt;
    if (failure && !m_isStopped) {
        m_isStopped = true;
        noteFailure(failure);
    }
    std::clearerr(stdout);
}

void ManyDrawings::noteStatus(int status) {
    m_status = std::max(m_status, status);
}

void ManyDrawings::noteFailure(const std::optional<Failure>& failure) {
    if (failure) {
        complain(messageOf(*failure));
        noteStatus(static_cast<int>(exitStatus(failure->cause)));
    }
}

} // namespace orvex
