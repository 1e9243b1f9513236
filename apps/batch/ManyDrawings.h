#pragma once

#include "BatchCall.h"
#include "JobReport.h"
#include "ProgressBar.h"
#include "endingSignals.h"

#include <deque>
#include <map>
#include <vector>

namespace orvex {

// Several drawings in one call, each in a process of its own. What they print comes out in the
// order of the drawings, as soon as all before have ended.
class ManyDrawings {
public:
    // The verb is prepared. Both outlive this.
    ManyDrawings(Verb& verb, const std::vector<DrawingTask>& tasks, const ManyOptions& options);

    // The greatest exit status.
    int run();

private:
    struct Entry {
        DrawingOutcome outcome;
        Descriptor output;
        bool isOver = false;
    };

    [[nodiscard]] bool mayBegin() const;
    void beginNext();
    void reap();
    void end(std::size_t index, JobResult result);
    void interrupt(int signal);
    void publish();
    void print(const DrawingTask& task, const Entry& entry);
    void noteStatus(int status);
    void noteFailure(const std::optional<Failure>& failure);

    Verb& m_verb;
    const std::vector<DrawingTask>& m_tasks;
    const ManyOptions& m_options;
    SignalWait m_signals;
    JobReport m_report;
    ProgressBar m_bar;
    std::map<std::size_t, Job> m_running; // by task
    std::deque<Entry> m_entries;          // from the first that isn't published to the last begun
    std::size_t m_published = 0;
    std::size_t m_over = 0;
    std::size_t m_failed = 0;
    bool m_isStopped = false; // nothing more is begun
    bool m_canReport = true;
    int m_status = 0;
};

} // namespace orvex
