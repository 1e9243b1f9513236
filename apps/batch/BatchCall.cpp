#include "BatchCall.h"

#include "verbs.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <array>

namespace orvex {

namespace {

constexpr int kMostJobs = 1024;
constexpr int kMostThreads = 1024;

void addManyOptions(CLI::App& app, ManyOptions& many, bool hasOutput) {
    const char* const group = "Several drawings";
    if (hasOutput) {
        CLI::Option* const folder = app.add_option("--output-dir", many.outputDir,
                                                   "Where to save a result for each drawing")
                                        ->group(group);
        app.add_option("--suffix", many.suffix, "What the names of results have before the ending")
            ->needs(folder)
            ->group(group);
        app.add_flag("--overwrite", many.overwrite, "Results may replace what is there")
            ->needs(folder)
            ->group(group);
    }
    app.add_option("--jobs", many.jobs, "How many drawings to work on at once")
        ->capture_default_str()
        ->check(CLI::Range(1, kMostJobs))
        ->group(group);
    app.add_flag("--keep-going", many.keepGoing, "Go on with the others after a failure")
        ->group(group);
    app.add_option("--report", many.report, "Where to tell of each drawing, a JSON line each")
        ->group(group);
}

CLI::App& addVerb(CLI::App& app, Verb& verb, VerbCall& call) {
    const VerbTraits& traits = verb.traits();
    CLI::App* const options = app.add_subcommand(traits.name, traits.purpose);
    options->add_option("DRAWING", call.drawings, "The drawings to open; - reads standard input")
        ->required();
    if (traits.output != nullptr) {
        options->add_option("--output", call.output,
                            traits.output + std::string("; - is standard output"));
    }
    options
        ->add_option("--threads", call.many.threads,
                     "How many processors may work on one drawing; all that --jobs leaves")
        ->check(CLI::Range(1, kMostThreads));
    addManyOptions(*options, call.many, traits.output != nullptr);
    verb.addOptions(*options);
    return *options;
}

bool hasManyOption(const CLI::App& options) {
    return std::ranges::any_of(
        std::array{"--output-dir", "--jobs", "--keep-going", "--report"}, [&](const char* name) {
            const CLI::Option* const option = options.get_option_no_throw(name);
            return option != nullptr && option->count() > 0;
        });
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
    std::vector<VerbCall> calls(verbs.size());
    std::vector<const CLI::App*> options;
    for (std::size_t i = 0; i < verbs.size(); ++i) {
        options.push_back(&addVerb(app, *verbs[i], calls[i]));
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
    while (!options[called]->parsed()) {
        ++called;
    }
    VerbCall call = std::move(calls[called]);
    call.verb = std::move(verbs[called]);
    call.isOfMany = call.drawings.size() > 1 || hasManyOption(*options[called]);
    return call;
}

} // namespace orvex
