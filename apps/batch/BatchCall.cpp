#include "BatchCall.h"

#include <CLI/CLI.hpp>

#include <charconv>

namespace orvex {

namespace {

// "WxH" in pixels.
std::optional<PictureSize> parseSize(const std::string& text) {
    const auto number = [](const char* first, const char* last) {
        int value = 0;
        const auto result = std::from_chars(first, last, value);
        return result.ec == std::errc() && result.ptr == last ? value : 0;
    };
    const std::size_t cross = text.find('x');
    if (cross == std::string::npos) {
        return std::nullopt;
    }
    const int width = number(text.data(), text.data() + cross);
    const int height = number(text.data() + cross + 1, text.data() + text.size());
    if (width <= 0 || height <= 0) {
        return std::nullopt;
    }
    return PictureSize{width, height};
}

std::string checkSize(const std::string& text) {
    return parseSize(text) ? std::string() : "the size is two numbers of pixels, as in 1600x1200";
}

// What CLI11 fills while it reads the command line.
struct Options {
    RunCall run;
    ShowCall show;
    ListCall list;
    std::string size = "1600x1200";
};

CLI::App* addRun(CLI::App& app, RunCall& call) {
    CLI::App* const verb = app.add_subcommand("run", "Play a script on a drawing");
    verb->add_option("DRAWING", call.drawing, "The drawing to open")->required();
    verb->add_option("--script", call.script, "The script to play; - reads standard input")
        ->required();
    verb->add_option("--output", call.output, "Where to save the result");
    verb->add_option("--module", call.module, "The module file to load");
    return verb;
}

CLI::App* addShow(CLI::App& app, ShowCall& call, std::string& size) {
    CLI::App* const verb = app.add_subcommand("show", "Draw a drawing into a picture");
    verb->add_option("DRAWING", call.drawing, "The drawing to open")->required();
    verb->add_option("--output", call.output, "The picture: .svg, .png or .pdf")->required();
    verb->add_option("--size", size, "Its size in pixels")
        ->type_name("WxH")
        ->capture_default_str()
        ->check(checkSize);
    return verb;
}

CLI::App* addList(CLI::App& app, ListCall& call) {
    CLI::App* const verb =
        app.add_subcommand("list", "List every multiline and multiline style in a drawing");
    verb->add_option("DRAWING", call.drawing, "The drawing to open")->required();
    verb->add_flag("--json", call.asJson, "Print JSON, for programs");
    return verb;
}

} // namespace

BatchCall parseBatchCall(int argc, const char* const* argv) {
    Options options;
    CLI::App app("Edits, draws and lists drawings with multilines, without a window.",
                 "orvex-batch");
    app.set_version_flag("--version", "orvex-batch " ORVEX_VERSION);
    app.require_subcommand(1);
    const CLI::App* const run = addRun(app, options.run);
    const CLI::App* const show = addShow(app, options.show, options.size);
    addList(app, options.list);
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForVersion& request) {
        return AnsweredCall{false, std::string(request.what()) + '\n'};
    } catch (const CLI::Success&) {
        return AnsweredCall{false, app.help()}; // of the verb that was asked
    } catch (const CLI::ParseError& error) {
        const bool hasVerb = !app.get_subcommands().empty();
        return AnsweredCall{true, hasVerb ? error.what()
                                          : "the first argument has to be run, show or list"};
    }
    if (run->parsed()) {
        return options.run;
    }
    if (show->parsed()) {
        options.show.size = *parseSize(options.size);
        return options.show;
    }
    return options.list;
}

} // namespace orvex
