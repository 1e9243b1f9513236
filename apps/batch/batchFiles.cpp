#include "batchFiles.h"

#include "Verb.h"
#include "printableText.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace orvex {

namespace {

constexpr const char* kStandardOutput = "standard output";
int g_result = -1; // what standard output was before it was claimed

Result<std::unique_ptr<DrawingFile>> openUnguarded(const std::string& path) {
    if (path != kStandardStream) {
        return DrawingFile::open(path);
    }
    auto bytes = readStandardInput();
    if (!bytes) {
        return bytes.failure();
    }
    auto opened = DrawingFile::openBytes(std::move(*bytes));
    if (!opened) {
        Failure failure = opened.failure();
        failure.file = inputName(path);
        return failure;
    }
    return opened;
}

bool beginsCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

// What a message quotes may be as long as a file. Any file's name and the end stay.
std::string shortened(const std::string& text) {
    constexpr std::size_t kHead = 5000;
    constexpr std::size_t kTail = 300;
    if (text.size() <= kHead + kTail) {
        return text;
    }
    std::size_t head = kHead;
    std::size_t tail = text.size() - kTail;
    while (!beginsCharacter(text[head])) {
        --head;
    }
    while (!beginsCharacter(text[tail])) {
        ++tail;
    }
    return text.substr(0, head) + " ... " + text.substr(tail);
}

} // namespace

std::string complaint(const std::string& text) {
    return kComplaintStart + printableText(shortened(text)) + '\n';
}

void complain(const std::string& text) {
    const std::string line = complaint(text);
    std::fwrite(line.data(), 1, line.size(), stderr);
}

std::string inputName(const std::string& path) {
    return path == kStandardStream ? "standard input" : path;
}

std::optional<Failure> claimStandardOutput() {
    g_result = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    if (g_result < 0 || dup2(STDERR_FILENO, STDOUT_FILENO) < 0) {
        return Failure{FailureCause::unwritableOutput, kStandardOutput, 0, std::strerror(errno)};
    }
    return std::nullopt;
}

AtomicFile resultFile(const std::string& output) {
    if (output == kStandardStream) {
        return {g_result, kStandardOutput};
    }
    return AtomicFile(output);
}

void printWarnings(const std::string& path, const std::vector<DrawingWarning>& warnings) {
    for (const DrawingWarning& warning : warnings) {
        complain(locatedText(inputName(path), warning.line, "warning: " + warning.text));
    }
}

Result<std::unique_ptr<DrawingFile>> openDrawing(const std::string& path) {
    std::unique_ptr<DrawingFile> drawing;
    auto failure =
        withMemory(FailureCause::unreadableInput, inputName(path), [&]() -> std::optional<Failure> {
            auto opened = openUnguarded(path);
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
    AtomicFile target = resultFile(output);
    auto failure = withMemory(FailureCause::unwritableOutput, target.path(),
                              [&] { return drawing.save(target); });
    printWarnings(target.path(), drawing.savingWarnings());
    return failure;
}

std::optional<Failure> flushOutput() {
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) {
        return std::nullopt;
    }
    return Failure{FailureCause::unwritableOutput, kStandardOutput, 0, "it can't be written"};
}

} // namespace orvex
