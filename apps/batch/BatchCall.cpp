#include "BatchCall.h"

#include <CLI/CLI.hpp>

#include <charconv>
#include <cmath>
#include <map>

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

const std::map<std::string, JoinKind> kJoinKinds{{"closed", JoinKind::closed},
                                                 {"open", JoinKind::open},
                                                 {"merged", JoinKind::merged},
                                                 {"none", JoinKind::none}};

std::string joinFooter() {
    std::string text = "Codes of reasons:";
    for (const JoinReason reason : joinReasons()) {
        text += ' ' + std::string(joinReasonCode(reason));
    }
    return text;
}

// What CLI11 fills while it reads the command line.
struct Options {
    RunCall run;
    ShowCall show;
    ListCall list;
    JoinCall join;
    AuditCall audit;
    ConvertCall convert;
    std::string form;
    std::string tolerance;
    std::string cross = "open";
    std::string tee = "open";
    std::string corners = "yes";
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

CLI::App* addAudit(CLI::App& app, AuditCall& call) {
    CLI::App* const verb =
        app.add_subcommand("audit", "List multilines that contradict their style or themselves");
    verb->add_option("DRAWING", call.drawing, "The drawing to open")->required();
    verb->add_option("--output", call.output, "Lay right what can be, and save the result here");
    verb->add_flag("--json", call.asJson, "Print JSON, for programs");
    return verb;
}

CLI::App* addConvert(CLI::App& app, Options& options) {
    CLI::App* const verb =
        app.add_subcommand("convert", "Write the text or the binary form of a drawing");
    verb->add_option("DRAWING", options.convert.drawing, "The drawing to open")->required();
    verb->add_option("--to", options.form, "text or binary")
        ->required()
        ->check(CLI::IsMember({"text", "binary"}));
    verb->add_option("--output", options.convert.output, "Where to save the result")->required();
    return verb;
}

CLI::App* addJoin(CLI::App& app, Options& options) {
    JoinCall& call = options.join;
    CLI::App* const verb =
        app.add_subcommand("join", "Join the multilines of a plan where they meet");
    verb->add_option("DRAWING", call.drawing, "The drawing to open")->required();
    verb->add_option("--output", call.output, "Where to save the result");
    verb->add_option("--tolerance", options.tolerance,
                     "How far an end may be short or over, drawing units; without, half the width "
                     "of the narrower multiline of a pair")
        ->check(checkTolerance);
    for (const auto& [name, kind] :
         {std::pair("--cross", &options.cross), {"--tee", &options.tee}}) {
        verb->add_option(name, *kind, "closed, open, merged or none")
            ->capture_default_str()
            ->check(CLI::IsMember(&kJoinKinds));
    }
    verb->add_option("--corners", options.corners, "yes or no")
        ->capture_default_str()
        ->check(CLI::IsMember({"yes", "no"}));
    verb->add_option("--layer", call.layers, "Join what is on this layer; may be given again")
        ->allow_extra_args(false);
    verb->add_option("--save-script", call.saveScript,
                     "Where to save the joints as a script; - prints it");
    verb->add_flag("--json", call.asJson, "Print JSON, for programs");
    verb->add_option("--module", call.module, "The module file to load");
    verb->footer(joinFooter());
    return verb;
}

JoinCall joinCall(const Options& options) {
    JoinCall call = options.join;
    call.options.tolerance = parseTolerance(options.tolerance);
    call.options.cross = kJoinKinds.at(options.cross);
    call.options.tee = kJoinKinds.at(options.tee);
    call.options.corners = options.corners == "yes";
    return call;
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
    const CLI::App* const join = addJoin(app, options);
    const CLI::App* const audit = addAudit(app, options.audit);
    const CLI::App* const convert = addConvert(app, options);
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForVersion& request) {
        return AnsweredCall{false, std::string(request.what()) + '\n'};
    } catch (const CLI::Success&) {
        return AnsweredCall{false, app.help()}; // of the verb that was asked
    } catch (const CLI::ParseError& error) {
        const bool hasVerb = !app.get_subcommands().empty();
        return AnsweredCall{
            true, hasVerb ? error.what()
                          : "the first argument has to be run, show, list, join, audit or convert"};
    }
    if (run->parsed()) {
        return options.run;
    }
    if (join->parsed()) {
        return joinCall(options);
    }
    if (audit->parsed()) {
        return options.audit;
    }
    if (convert->parsed()) {
        options.convert.form = options.form == "text" ? DrawingForm::text : DrawingForm::binary;
        return options.convert;
    }
    if (show->parsed()) {
        options.show.size = *parseSize(options.size);
        return options.show;
    }
    return options.list;
}

} // namespace orvex
