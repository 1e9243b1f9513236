// The verb run: a drawing, a script, a result.

#include "ModuleLoader.h"
#include "ScriptSource.h"
#include "Session.h"
#include "atLine.h"
#include "moduleFiles.h"
#include "openDrawing.h"
#include "textCodec.h"
#include "verbs.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>

namespace orvex {

namespace {

namespace fs = std::filesystem;
using Cause = BatchFailure::Cause;

// How messages name a script.
std::string scriptName(const RunCall& call) {
    return call.script == "-" ? "standard input" : call.script;
}

std::variant<std::string, BatchFailure> readScript(const RunCall& call) {
    std::string text;
    if (call.script == "-") {
        text.assign(std::istreambuf_iterator<char>(std::cin), {});
    } else {
        std::error_code ignored;
        std::ifstream stream(call.script, std::ios::binary);
        // A folder can be opened, but not read.
        if (!stream || fs::is_directory(call.script, ignored)) {
            return BatchFailure{Cause::reading, call.script + ": the script can't be read"};
        }
        text.assign(std::istreambuf_iterator<char>(stream), {});
    }
    if (const auto line = ScriptSource::firstLineThatIsNoUtf8(text)) {
        return BatchFailure{Cause::reading,
                            atLine(scriptName(call), *line, "the script isn't UTF-8")};
    }
    return text;
}

void printLine(const std::wstring& line) {
    const std::string utf8 = narrow(line) + '\n';
    std::fwrite(utf8.data(), 1, utf8.size(), stdout);
}

std::optional<BatchFailure> playToTheEnd(Session& session, const ScriptSource& script,
                                         const std::string& name) {
    while (!script.atEnd()) {
        const std::wstring command = session.askCommand();
        const std::size_t line = script.line();
        if (!command.empty()) {
            const Session::Result result = session.run(command);
            if (result.outcome != Session::Outcome::done) {
                return BatchFailure{Cause::playing, atLine(name, line, narrow(result.message))};
            }
        }
    }
    if (const auto& failure = script.failure()) {
        return BatchFailure{Cause::playing, atLine(name, failure->line, narrow(failure->text))};
    }
    return std::nullopt;
}

} // namespace

std::optional<BatchFailure> runScript(const RunCall& call) {
    auto read = readScript(call);
    if (const auto* const failure = std::get_if<BatchFailure>(&read)) {
        return *failure;
    }
    auto opened = openDrawing(call.drawing);
    if (const auto* const failure = std::get_if<BatchFailure>(&opened)) {
        return *failure;
    }
    ScriptSource script(std::get<std::string>(read), printLine);
    ModuleLoader modules;
    SessionSetup setup;
    setup.drawing = std::move(std::get<std::unique_ptr<DrawingFile>>(opened));
    setup.source = &script;
    setup.moduleFiles = moduleFiles(call.module);
    Session session(std::move(setup), modules);
    if (auto failure = playToTheEnd(session, script, scriptName(call))) {
        return failure;
    }
    if (!call.output) {
        return std::nullopt;
    }
    // Before the save: a call that can't say what it did leaves nothing behind.
    if (auto failure = flushOutput()) {
        return failure;
    }
    if (const auto error = session.drawing().save(*call.output)) {
        return BatchFailure{Cause::writing, atLine(*call.output, 0, error->text)};
    }
    return std::nullopt;
}

} // namespace orvex
