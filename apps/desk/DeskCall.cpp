#include "DeskCall.h"

#include <CLI/CLI.hpp>

namespace orvex {

std::variant<DeskCall, AnsweredDeskCall> parseDeskCall(int argc, const char* const* argv) {
    DeskCall call;
    CLI::App app("Shows and edits drawings with multilines.", "orvex-desk");
    app.set_version_flag("--version", "orvex-desk " ORVEX_VERSION);
    app.add_option("DRAWING", call.drawing, "The drawing to open");
    app.add_option("--module", call.module, "The module file to load");
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForVersion& request) {
        return AnsweredDeskCall{false, std::string(request.what()) + '\n'};
    } catch (const CLI::Success&) {
        return AnsweredDeskCall{false, app.help()};
    } catch (const CLI::ParseError& error) {
        return AnsweredDeskCall{true, error.what()};
    }
    return call;
}

} // namespace orvex
