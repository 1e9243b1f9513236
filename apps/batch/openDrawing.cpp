#include "openDrawing.h"

#include "atLine.h"

#include <cstdio>

namespace orvex {

void complain(const std::string& text) {
    std::fprintf(stderr, "orvex-batch: %s\n", text.c_str());
}

std::variant<std::unique_ptr<DrawingFile>, BatchFailure> openDrawing(const std::string& path) {
    DrawingFile::Opened opened = DrawingFile::open(path);
    if (const auto* const error = std::get_if<DrawingError>(&opened)) {
        return BatchFailure{BatchFailure::Cause::reading, atLine(path, error->line, error->text)};
    }
    auto drawing = std::move(std::get<std::unique_ptr<DrawingFile>>(opened));
    for (const DrawingWarning& warning : drawing->warnings()) {
        complain(atLine(path, warning.line, "warning: " + warning.text));
    }
    return drawing;
}

std::optional<BatchFailure> flushOutput() {
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) {
        return std::nullopt;
    }
    return BatchFailure{BatchFailure::Cause::writing, "standard output can't be written"};
}

} // namespace orvex
