#include "JobReport.h"

#include "AtomicFile.h"
#include "batchFiles.h"
#include "fileNameJson.h"

#include <cerrno>
#include <cmath>
#include <cstring>
#include <fcntl.h>
#include <sstream>

namespace orvex {

namespace {

using Json = nlohmann::ordered_json;

Json messagesJson(const std::string& text) {
    Json messages = Json::array();
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(kComplaintStart)) {
            line.erase(0, std::strlen(kComplaintStart));
        }
        messages.push_back(jsonText(line));
    }
    return messages;
}

std::string reportLine(const DrawingTask& task, const DrawingOutcome& outcome) {
    constexpr double kPerSecond = 1000.0; // digits that matter
    Json json;
    addFileName(json, "input", "input_bytes", task.drawing);
    json["output"] = nullptr;
    if (task.output) {
        addFileName(json, "output", "output_bytes", *task.output);
    }
    json["status"] = outcome.status ? Json(*outcome.status) : Json();
    json["messages"] = messagesJson(outcome.messages);
    json["counts"] = Json::object();
    for (const auto& [name, count] : outcome.counts) {
        json["counts"][name] = count;
    }
    json["seconds"] = std::round(outcome.seconds * kPerSecond) / kPerSecond;
    return json.dump() + '\n';
}

} // namespace

std::optional<Failure> JobReport::open(const std::string& path) {
    constexpr mode_t kUsualMode = 0666;
    m_path = path;
    m_file = Descriptor(
        ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_NOCTTY | O_CLOEXEC, kUsualMode));
    return m_file.number() >= 0 ? std::nullopt
                                : std::optional(Failure{FailureCause::unwritableOutput, path, 0,
                                                        std::strerror(errno)});
}

std::optional<Failure> JobReport::add(const DrawingTask& task, const DrawingOutcome& outcome) {
    return m_file.number() >= 0
               ? AtomicFile(m_file.number(), m_path).write(reportLine(task, outcome))
               : std::nullopt;
}

} // namespace orvex
