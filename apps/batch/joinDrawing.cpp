// The verb join: a plan, its joints, a result.

#include "AtomicFile.h"
#include "ChangeLog.h"
#include "DatabaseCore.h"
#include "JoinRun.h"
#include "ModuleLoader.h"
#include "Session.h"
#include "batchFiles.h"
#include "joinMlines.h"
#include "moduleFiles.h"
#include "printJoin.h"
#include "textCodec.h"
#include "verbs.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <map>

namespace orvex {

namespace {

const std::map<std::string, JoinKind> kJoinKinds{{"closed", JoinKind::closed},
                                                 {"open", JoinKind::open},
                                                 {"merged", JoinKind::merged},
                                                 {"none", JoinKind::none}};

std::optional<double> parseTolerance(const std::string& text) {
    double value = 0.0;
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    const bool isNumber = result.ec == std::errc() && result.ptr == end && std::isfinite(value);
    return isNumber && value >= 0.0 ? std::optional(value) : std::nullopt;
}

std::string checkTolerance(const std::string& text) {
    return parseTolerance(text) ? std::string()
                                : "the tolerance is a number of drawing units, 0 or more";
}

std::string reasonCodes() {
    std::string text = "Codes of reasons:";
    for (const JoinReason reason : joinReasons()) {
        text += ' ' + std::string(joinReasonCode(reason));
    }
    return text;
}

bool isSameFile(const std::string& a, const std::string& b) {
    std::error_code ignored;
    return a == b || std::filesystem::equivalent(a, b, ignored);
}

// Prints which of the named layers take no part.
Result<std::vector<KdDbStub*>> chosenMlines(Session& session, const std::string& drawing,
                                            const std::vector<std::string>& layerNames) {
    std::vector<std::wstring> layers(layerNames.size());
    std::ranges::transform(layerNames, layers.begin(), [](auto& name) { return widen(name); });
    JoinMlines found = mlinesToJoin(session.database().core(), layers);
    if (!found.unknownLayers.empty()) {
        return Failure{FailureCause::wrongCall, inputName(drawing), 0,
                       "there is no layer '" + narrow(found.unknownLayers.front()) + "'"};
    }
    for (const std::wstring& layer : found.withheldLayers) {
        complain(inputName(drawing) + ": warning: the layer '" + narrow(layer) +
                 "' is off, frozen or locked and takes no part");
    }
    return std::move(found.mlines);
}

std::optional<Failure> saveScript(AtomicFile& file, const std::string& text) {
    if (auto failure = file.open()) {
        return failure;
    }
    return file.write(text);
}

std::optional<Failure> saveJoined(Session& session, JoinRun& join, const std::string& output) {
    DatabaseCore& core = session.database().core();
    core.changes().beginCommand();
    join.giveBack();
    core.changes().endCommand();
    return saveDrawing(session.drawing(), output);
}

class JoinVerb final : public Verb {
public:
    JoinVerb()
        : Verb({"join", "Join the multilines of a plan where they meet",
                "Where to save the result"}) {}

    void addOptions(CLI::App& options) override;
    [[nodiscard]] std::optional<Failure> check(const DrawingTask& task) const override;
    [[nodiscard]] bool printsJson() const override { return m_asJson; }
    std::optional<Failure> carryOut(const DrawingTask& task, Counts& counts) override;

private:
    std::optional<Failure> join(std::unique_ptr<DrawingFile> drawing, const DrawingTask& task,
                                Counts& counts);
    // The script goes to standard output, and all else that is printed to standard error.
    [[nodiscard]] bool printsScript() const { return m_saveScript == "-"; }
    [[nodiscard]] std::optional<Failure> print(const JoinRun& join, const DrawingTask& task) const;
    [[nodiscard]] std::optional<Failure> save(Session& session, JoinRun& join,
                                              const DrawingTask& task) const;

    JoinOptions m_options;
    std::vector<std::string> m_layers;       // all without
    std::optional<std::string> m_saveScript; // the joints as a script
    std::optional<std::string> m_module;     // else beside the program or in the library folder
    bool m_asJson = false;
};

void JoinVerb::addOptions(CLI::App& options) {
    options
        .add_option_function<std::string>(
            "--tolerance",
            [this](const std::string& text) { m_options.tolerance = parseTolerance(text); },
            "How far an end may be short or over, drawing units; without, half the width of the "
            "narrower multiline of a pair")
        ->check(checkTolerance);
    for (const auto& [name, kind] :
         {std::pair("--cross", &m_options.cross), {"--tee", &m_options.tee}}) {
        options
            .add_option_function<std::string>(
                name, [target = kind](const std::string& word) { *target = kJoinKinds.at(word); },
                "closed, open, merged or none")
            ->default_str("open")
            ->check(CLI::IsMember(&kJoinKinds));
    }
    options
        .add_option_function<std::string>(
            "--corners", [this](const std::string& word) { m_options.corners = word == "yes"; },
            "yes or no")
        ->default_str("yes")
        ->check(CLI::IsMember({"yes", "no"}));
    options.add_option("--layer", m_layers, "Join what is on this layer; may be given again")
        ->allow_extra_args(false);
    options.add_option("--save-script", m_saveScript,
                       "Where to save the joints as a script; - prints it");
    options.add_flag("--json", m_asJson, "Print JSON, for programs");
    options.add_option("--module", m_module, "The module file to load");
    options.footer(reasonCodes());
}

// A script in a drawing's place would be the drawing's end.
std::optional<Failure> JoinVerb::check(const DrawingTask& task) const {
    const auto wrongCall = [this](std::string text) {
        return Failure{FailureCause::wrongCall, *m_saveScript, 0, std::move(text)};
    };
    if (m_saveScript && task.isOneOfMany) {
        return wrongCall("--save-script is for one drawing");
    }
    if (printsScript() && task.printsResult()) {
        return wrongCall("either the drawing or the script can be printed");
    }
    const bool isDrawing = m_saveScript && !printsScript() &&
                           (isSameFile(*m_saveScript, task.drawing) ||
                            (task.output && isSameFile(*m_saveScript, *task.output)));
    return isDrawing ? std::optional(wrongCall("the script can't be saved over a drawing"))
                     : std::nullopt;
}

std::optional<Failure> JoinVerb::carryOut(const DrawingTask& task, Counts& counts) {
    auto drawing = openDrawing(task.drawing);
    if (!drawing) {
        return drawing.failure();
    }
    return withMemory(FailureCause::unplayableScript, inputName(task.drawing),
                      [&] { return join(std::move(*drawing), task, counts); });
}

std::optional<Failure> JoinVerb::join(std::unique_ptr<DrawingFile> drawing, const DrawingTask& task,
                                      Counts& counts) {
    ModuleLoader modules;
    SessionSetup setup;
    setup.drawing = std::move(drawing);
    setup.moduleFiles = moduleFiles(m_module);
    Session session(std::move(setup), modules);
    auto mlines = chosenMlines(session, task.drawing, m_layers);
    if (!mlines) {
        return mlines.failure();
    }
    JoinRun run(session, std::move(*mlines), m_options);
    if (auto failure = run.play()) {
        return failure;
    }
    counts = joinCounts(run);
    if (auto failure = print(run, task)) {
        return failure;
    }
    return withMemory(FailureCause::unwritableOutput, task.output.value_or(""),
                      [&] { return save(session, run, task); });
}

// Before the save: a call that can't print what it did leaves nothing behind.
std::optional<Failure> JoinVerb::print(const JoinRun& join, const DrawingTask& task) const {
    printJoin(join, task, m_asJson, printsScript() ? stderr : stdout);
    if (printsScript()) {
        const std::string script = join.script();
        std::fwrite(script.data(), 1, script.size(), stdout);
    }
    return flushOutput();
}

// Both files or none.
std::optional<Failure> JoinVerb::save(Session& session, JoinRun& join,
                                      const DrawingTask& task) const {
    std::optional<AtomicFile> script;
    if (m_saveScript && !printsScript()) {
        script.emplace(*m_saveScript);
        if (auto failure = saveScript(*script, join.script())) {
            return failure;
        }
    }
    if (task.output) {
        if (auto failure = saveJoined(session, join, *task.output)) {
            return failure;
        }
    }
    return script ? script->commit() : std::nullopt;
}

} // namespace

std::unique_ptr<Verb> makeJoinVerb() {
    return std::make_unique<JoinVerb>();
}

} // namespace orvex
