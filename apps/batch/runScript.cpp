// The verb run: a drawing, a script, a result.

#include "ModuleLoader.h"
#include "ScriptSource.h"
#include "Session.h"
#include "batchFiles.h"
#include "moduleFiles.h"
#include "textCodec.h"
#include "verbs.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

namespace orvex {

namespace {

// How messages name a script.
std::string scriptName(const RunCall& call) {
    return call.script == "-" ? "standard input" : call.script;
}

// A script may be a pipe.
Result<std::string> readScript(const RunCall& call) {
    std::string text;
    if (call.script == "-") {
        text.assign(std::istreambuf_iterator<char>(std::cin), {});
    } else {
        std::error_code ignored;
        std::ifstream stream(call.script, std::ios::binary);
        // A folder can be opened, but not read.
        if (!stream || std::filesystem::is_directory(call.script, ignored)) {
            return Failure{FailureCause::unreadableInput, call.script, 0,
                           "the script can't be read"};
        }
        text.assign(std::istreambuf_iterator<char>(stream), {});
    }
    if (const auto line = ScriptSource::firstLineThatIsNoUtf8(text)) {
        return Failure{FailureCause::unreadableInput, scriptName(call), *line,
                       "the script isn't UTF-8"};
    }
    return text;
}

void printLine(const std::wstring& line) {
    const std::string utf8 = narrow(line) + '\n';
    std::fwrite(utf8.data(), 1, utf8.size(), stdout);
}

std::optional<Failure> playToTheEnd(Session& session, const ScriptSource& script,
                                    const std::string& name) {
    while (!script.atEnd()) {
        const std::wstring command = session.askCommand();
        const std::size_t line = script.line();
        if (command.empty()) {
            continue;
        }
        if (auto failure = session.run(command)) {
            failure->file = name;
            failure->line = line;
            return failure;
        }
    }
    std::optional<Failure> failure = script.failure();
    if (failure) {
        failure->file = name;
    }
    return failure;
}

std::optional<Failure> save(Session& session, const std::string& output) {
    // Before the save: a call that can't print what it did leaves nothing behind.
    if (auto failure = flushOutput()) {
        return failure;
    }
    return withMemory(FailureCause::unwritableOutput, output,
                      [&] { return session.drawing().save(output); });
}

} // namespace

std::optional<Failure> runScript(const RunCall& call) {
    const auto text = readScript(call);
    if (!text) {
        return text.failure();
    }
    auto drawing = openDrawing(call.drawing);
    if (!drawing) {
        return drawing.failure();
    }
    ScriptSource script(*text, printLine);
    ModuleLoader modules;
    SessionSetup setup;
    setup.drawing = std::move(*drawing);
    setup.source = &script;
    setup.moduleFiles = moduleFiles(call.module);
    Session session(std::move(setup), modules);
    const std::string name = scriptName(call);
    if (auto failure = withMemory(FailureCause::unplayableScript, name,
                                  [&] { return playToTheEnd(session, script, name); })) {
        return failure;
    }
    return call.output ? save(session, *call.output) : std::nullopt;
}

} // namespace orvex
