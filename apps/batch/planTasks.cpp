#include "planTasks.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <map>
#include <sys/stat.h>
#include <utility>

namespace orvex {

namespace {

Failure wrongCall(const std::string& file, std::string text) {
    return {FailureCause::wrongCall, file, 0, std::move(text)};
}

// What a file is, whatever it is called.
using FileIdentity = std::pair<dev_t, ino_t>;

FileIdentity identityOf(const struct stat& status) {
    return {status.st_dev, status.st_ino};
}

// Of the drawings that there are; the others are complained of when they are opened.
std::map<FileIdentity, std::string> identities(const std::vector<std::string>& drawings) {
    std::map<FileIdentity, std::string> found;
    for (const std::string& drawing : drawings) {
        struct stat status {};
        if (drawing != kStandardStream && stat(drawing.c_str(), &status) == 0) {
            found.emplace(identityOf(status), drawing);
        }
    }
    return found;
}

std::optional<Failure> checkStreams(const VerbCall& call) {
    const auto readers = std::ranges::count(call.drawings, kStandardStream) +
                         (call.verb->readsStandardInput() ? 1 : 0);
    if (readers > 1) {
        return wrongCall({}, "standard input can be read for one argument only");
    }
    if (call.many.outputDir && std::ranges::count(call.drawings, kStandardStream) > 0) {
        return wrongCall({}, "standard input has no name for a result in --output-dir");
    }
    return std::nullopt;
}

std::optional<Failure> checkOutputOptions(const VerbCall& call) {
    const VerbTraits& traits = call.verb->traits();
    if (call.output && call.many.outputDir) {
        return wrongCall({}, "either --output or --output-dir");
    }
    if (call.output && call.isOfMany) {
        return wrongCall({}, "--output is for one drawing, --output-dir for several");
    }
    if (traits.needsOutput && !call.output && !call.many.outputDir) {
        return wrongCall({}, call.isOfMany ? "--output-dir is required"
                                           : "--output is required, or --output-dir");
    }
    if (call.many.suffix.find('/') != std::string::npos) {
        return wrongCall({}, "--suffix can't have a slash");
    }
    return std::nullopt;
}

std::optional<Failure> checkFolder(const std::string& folder) {
    struct stat status {};
    const bool exists = stat(folder.c_str(), &status) == 0;
    if (exists && S_ISDIR(status.st_mode)) {
        return std::nullopt;
    }
    return Failure{FailureCause::unwritableOutput, folder, 0,
                   std::strerror(exists ? ENOTDIR : errno)};
}

std::optional<Failure> checkOutput(const std::string& output,
                                   const std::map<FileIdentity, std::string>& inputs,
                                   bool overwrite) {
    struct stat status {};
    if (lstat(output.c_str(), &status) != 0) {
        return std::nullopt;
    }
    if (S_ISLNK(status.st_mode)) {
        return wrongCall(output, "a link stands where a result would be saved");
    }
    if (const auto input = inputs.find(identityOf(status)); input != inputs.end()) {
        return wrongCall(output, "a result would be saved over the drawing " + input->second);
    }
    if (!overwrite) {
        return wrongCall(output, "there is a file already; --overwrite replaces it");
    }
    return std::nullopt;
}

std::optional<Failure> checkOutputs(const VerbCall& call, const std::vector<DrawingTask>& tasks) {
    if (auto failure = checkFolder(*call.many.outputDir)) {
        return failure;
    }
    const auto inputs = identities(call.drawings);
    std::map<std::string, std::string> drawings; // by output
    for (const DrawingTask& task : tasks) {
        const auto [other, isNew] = drawings.emplace(*task.output, task.drawing);
        if (!isNew) {
            return wrongCall(*task.output, "the results of " + other->second + " and " +
                                               task.drawing + " would have this name");
        }
        if (auto failure = checkOutput(*task.output, inputs, call.many.overwrite)) {
            return failure;
        }
    }
    return std::nullopt;
}

// A report in a drawing's place would be the drawing's end.
std::optional<Failure> checkReport(const VerbCall& call, const std::vector<DrawingTask>& tasks) {
    const std::string& report = *call.many.report;
    if (report == kStandardStream) {
        return wrongCall({}, "the report can't go to standard output");
    }
    struct stat status {};
    const bool isInput = stat(report.c_str(), &status) == 0 &&
                         identities(call.drawings).contains(identityOf(status));
    const bool isOutput = std::ranges::any_of(tasks, [&](const DrawingTask& task) {
        std::error_code ignored;
        return task.output && std::filesystem::weakly_canonical(*task.output, ignored) ==
                                  std::filesystem::weakly_canonical(report, ignored);
    });
    return isInput || isOutput
               ? std::optional(wrongCall(report, "the report can't be saved over a drawing"))
               : std::nullopt;
}

std::vector<DrawingTask> tasksOf(const VerbCall& call) {
    std::vector<DrawingTask> tasks;
    for (const std::string& drawing : call.drawings) {
        DrawingTask& task = tasks.emplace_back();
        task.drawing = drawing;
        task.output = call.output;
        task.isOneOfMany = call.isOfMany;
        if (call.many.outputDir) {
            const std::string name = std::filesystem::path(drawing).stem().string() +
                                     call.many.suffix + call.verb->outputEnding(drawing);
            task.output = (std::filesystem::path(*call.many.outputDir) / name).string();
        }
    }
    return tasks;
}

} // namespace

Result<std::vector<DrawingTask>> planTasks(const VerbCall& call) {
    for (const auto check : {checkOutputOptions, checkStreams}) {
        if (auto failure = check(call)) {
            return std::move(*failure);
        }
    }
    std::vector<DrawingTask> tasks = tasksOf(call);
    for (const DrawingTask& task : tasks) {
        if (auto failure = call.verb->check(task)) {
            return std::move(*failure);
        }
    }
    if (call.many.outputDir) {
        if (auto failure = checkOutputs(call, tasks)) {
            return std::move(*failure);
        }
    }
    if (call.many.report) {
        if (auto failure = checkReport(call, tasks)) {
            return std::move(*failure);
        }
    }
    return tasks;
}

} // namespace orvex
