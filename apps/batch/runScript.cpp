// The verb run: a drawing, a script, a result.

#include "ModuleLoader.h"
#include "ScriptSource.h"
#include "Session.h"
#include "batchFiles.h"
#include "moduleFiles.h"
#include "printableText.h"
#include "refusalText.h"
#include "textCodec.h"
#include "verbs.h"

#include <CLI/CLI.hpp>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

namespace orvex {

namespace {

// A script may be a pipe.
Result<std::string> readScript(const std::string& script) {
    std::string text;
    if (script == kStandardStream) {
        text.assign(std::istreambuf_iterator<char>(std::cin), {});
    } else {
        std::error_code ignored;
        std::ifstream stream(script, std::ios::binary);
        // A folder can be opened, but not read.
        if (!stream || std::filesystem::is_directory(script, ignored)) {
            return Failure{FailureCause::unreadableInput, script, 0, "the script can't be read"};
        }
        text.assign(std::istreambuf_iterator<char>(stream), {});
    }
    if (const auto line = ScriptSource::firstLineThatIsNoUtf8(text)) {
        return Failure{FailureCause::unreadableInput, inputName(script), *line,
                       "the script isn't UTF-8"};
    }
    return text;
}

void printLine(const std::wstring& line) {
    const std::string utf8 = printableText(narrow(line)) + '\n';
    std::fwrite(utf8.data(), 1, utf8.size(), stdout);
}

// Warns of picks that did nothing, each with the line that it stands in.
class MissedPicks {
public:
    MissedPicks(Session& session, const ScriptSource& script, std::string file)
        : m_file(std::move(file)) {
        session.toolWatch().setListener([this, &script](const RefusedPick& refused) {
            if (m_count++ == 0) {
                m_firstLine = script.line();
            }
            const std::string text = narrow(refusalText(refused.reason, refused.entity));
            complain(locatedText(m_file, script.line(), "warning: missed pick: " + text));
        });
    }

    [[nodiscard]] std::size_t count() const { return m_count; }
    // What a strict run makes of them; nothing where there was none.
    [[nodiscard]] std::optional<Failure> failure() const {
        if (m_count == 0) {
            return std::nullopt;
        }
        return Failure{FailureCause::missedPick, m_file, m_firstLine,
                       std::to_string(m_count) + (m_count == 1 ? " missed pick" : " missed picks") +
                           ", the first one here; nothing is saved"};
    }

private:
    std::string m_file;
    std::size_t m_count = 0;
    std::size_t m_firstLine = 0;
};

std::optional<Failure> playToTheEnd(Session& session, const ScriptSource& script,
                                    const std::string& name, std::size_t& commands) {
    while (!script.atEnd()) {
        const std::wstring command = session.askCommand();
        const std::size_t line = script.line();
        if (command.empty()) {
            continue;
        }
        ++commands;
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

class RunVerb final : public Verb {
public:
    RunVerb() : Verb({"run", "Play a script on a drawing", "Where to save the result"}) {}

    void addOptions(CLI::App& options) override {
        options.add_option("--script", m_script, "The script to play; - reads standard input")
            ->required();
        options.add_option("--module", m_module, "The module file to load");
        options.add_flag("--strict", m_isStrict, "Save nothing after a pick that did nothing");
    }

    [[nodiscard]] bool readsStandardInput() const override { return m_script == kStandardStream; }

    std::optional<Failure> prepare() override {
        auto text = readScript(m_script);
        if (!text) {
            return text.failure();
        }
        m_text = std::move(*text);
        return std::nullopt;
    }

    std::optional<Failure> carryOut(const DrawingTask& task, Counts& counts) override {
        auto drawing = openDrawing(task.drawing);
        if (!drawing) {
            return drawing.failure();
        }
        return withMemory(FailureCause::unplayableScript, inputName(m_script),
                          [&] { return play(std::move(*drawing), task, counts); });
    }

private:
    std::optional<Failure> play(std::unique_ptr<DrawingFile> drawing, const DrawingTask& task,
                                Counts& counts) const {
        ScriptSource script(m_text, printLine);
        ModuleLoader modules;
        SessionSetup setup;
        setup.drawing = std::move(drawing);
        setup.source = &script;
        setup.moduleFiles = moduleFiles(m_module);
        Session session(std::move(setup), modules);
        const std::string name = inputName(m_script);
        const MissedPicks missed(session, script, name);
        std::size_t commands = 0;
        auto failure = playToTheEnd(session, script, name, commands);
        counts = {{"commands", commands}, {"missed", missed.count()}};
        if (failure) {
            return failure;
        }
        failure = missed.failure();
        if (failure && m_isStrict) {
            return failure;
        }
        return task.output ? saveDrawing(session.drawing(), *task.output) : std::nullopt;
    }

    std::string m_script;                // "-" is standard input
    std::optional<std::string> m_module; // else beside the program or in the library folder
    bool m_isStrict = false;             // a missed pick is a failure, and nothing is saved
    std::string m_text;                  // of the script
};

} // namespace

std::unique_ptr<Verb> makeRunVerb() {
    return std::make_unique<RunVerb>();
}

} // namespace orvex
