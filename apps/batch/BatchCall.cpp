#include "BatchCall.h"

#include "verbs.h"

#include <CLI/CLI.hpp>

namespace orvex {

namespace {

// What CLI11 fills while it reads the command line.
struct CallOptions {
    CLI::App* app = nullptr; // of a verb
    DrawingTask task;
};

void addVerb(CLI::App& app, Verb& verb, CallOptions& options) {
    const VerbTraits& traits = verb.traits();
    options.app = app.add_subcommand(traits.name, traits.purpose);
    options.app->add_option("DRAWING", options.task.drawing, "The drawing to open")->required();
    if (traits.output != nullptr) {
        options.app->add_option("--output", options.task.output, traits.output)
            ->required(traits.needsOutput);
    }
    verb.addOptions(*options.app);
}

// "run, show or list"
std::string nameList(const std::vector<std::unique_ptr<Verb>>& verbs) {
    std::string text;
    for (const auto& verb : verbs) {
        text += verb == verbs.front() ? "" : verb == verbs.back() ? " or " : ", ";
        text += verb->traits().name;
    }
    return text;
}

} // namespace

BatchCall parseBatchCall(int argc, const char* const* argv) {
    CLI::App app("Edits, draws and lists drawings with multilines, without a window.",
                 "orvex-batch");
    app.set_version_flag("--version", "orvex-batch " ORVEX_VERSION);
    app.require_subcommand(1);
    std::vector<std::unique_ptr<Verb>> verbs = makeVerbs();
    std::vector<CallOptions> options(verbs.size());
    for (std::size_t i = 0; i < verbs.size(); ++i) {
        addVerb(app, *verbs[i], options[i]);
    }
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForVersion& request) {
        return AnsweredCall{false, std::string(request.what()) + '\n'};
    } catch (const CLI::Success&) {
        return AnsweredCall{false, app.help()}; // of the verb that was asked
    } catch (const CLI::ParseError& error) {
        const bool hasVerb = !app.get_subcommands().empty();
        return AnsweredCall{true, hasVerb ? error.what()
                                          : "the first argument has to be " + nameList(verbs)};
    }
    std::size_t called = 0;
    while (!options[called].app->parsed()) {
        ++called;
    }
    return VerbCall{std::move(verbs[called]), std::move(options[called].task)};
}

} // namespace orvex
