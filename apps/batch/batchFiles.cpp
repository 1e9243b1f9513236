#include "batchFiles.h"

#include <cstdio>

namespace orvex {

void complain(const std::string& text) {
    std::fprintf(stderr, "orvex-batch: %s\n", text.c_str());
}

void printWarnings(const std::string& path, const std::vector<DrawingWarning>& warnings) {
    for (const DrawingWarning& warning : warnings) {
        complain(locatedText(path, warning.line, "warning: " + warning.text));
    }
}

Result<std::unique_ptr<DrawingFile>> openDrawing(const std::string& path) {
    std::unique_ptr<DrawingFile> drawing;
    auto failure = withMemory(FailureCause::unreadableInput, path, [&]() -> std::optional<Failure> {
        auto opened = DrawingFile::open(path);
        if (!opened) {
            return opened.failure();
        }
        drawing = std::move(*opened);
        return std::nullopt;
    });
    if (failure) {
        return std::move(*failure);
    }
    printWarnings(path, drawing->warnings());
    return drawing;
}

std::optional<Failure> saveDrawing(DrawingFile& drawing, const std::string& output) {
    if (auto failure = flushOutput()) {
        return failure;
    }
    return withMemory(FailureCause::unwritableOutput, output, [&] { return drawing.save(output); });
}

std::optional<Failure> flushOutput() {
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) {
        return std::nullopt;
    }
    return Failure{FailureCause::unwritableOutput, "standard output", 0, "it can't be written"};
}

} // namespace orvex
