#pragma once

#include "Job.h"
#include "Verb.h"

#include <optional>
#include <string>

namespace orvex {

// What became of a drawing.
struct DrawingOutcome {
    std::optional<int> status; // none: it was never begun
    std::string messages;      // lines of standard error
    Counts counts;
    double seconds = 0.0;
};

// The report of a call: a JSON line for each drawing, on disk as soon as it is added.
class JobReport {
public:
    std::optional<Failure> open(const std::string& path);
    std::optional<Failure> add(const DrawingTask& task, const DrawingOutcome& outcome);

private:
    std::string m_path;
    Descriptor m_file; // none: nobody wants a report
};

} // namespace orvex
