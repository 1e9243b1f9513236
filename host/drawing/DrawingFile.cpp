#include "DrawingFile.h"

#include "AtomicFile.h"
#include "DatabaseCore.h"
#include "DrawingDocument.h"
#include "DrawingReader.h"
#include "DrawingWriter.h"
#include "NewDrawing.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orvex {

namespace {

// A file opened for reading.
class InputFile {
public:
    explicit InputFile(const std::string& path)
        : m_descriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC)) {}
    ~InputFile() {
        if (m_descriptor >= 0) {
            close(m_descriptor);
        }
    }
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    enum class Outcome { done, failed, givenUp };
    // All its bytes; when it failed, `errno` tells why.
    Outcome readAll(std::string& bytes, const DrawingProgress& progress) const {
        struct stat status {};
        if (m_descriptor < 0 || fstat(m_descriptor, &status) != 0) {
            return Outcome::failed;
        }
        constexpr std::size_t kPiece = std::size_t{1} << 20U;
        // A pipe has no size.
        const std::size_t size =
            S_ISREG(status.st_mode) ? static_cast<std::size_t>(status.st_size) : 0;
        bytes.reserve(size + kPiece); // with room to see its end
        for (std::size_t filled = 0;;) {
            // Memory that is used for the first time takes as long as reading.
            bytes.resize(filled + kPiece);
            const ssize_t got = readPiece(bytes.data() + filled, kPiece);
            if (got < 0) {
                return Outcome::failed;
            }
            filled += static_cast<std::size_t>(got);
            bytes.resize(filled);
            if (got == 0) {
                return Outcome::done;
            }
            const double part =
                size == 0 ? 0.0
                          : std::min(1.0, static_cast<double>(filled) / static_cast<double>(size));
            if (progress && !progress(part)) {
                return Outcome::givenUp;
            }
        }
    }

private:
    ssize_t readPiece(char* target, std::size_t size) const {
        ssize_t got = 0;
        do {
            got = ::read(m_descriptor, target, size);
        } while (got < 0 && errno == EINTR);
        return got;
    }

    int m_descriptor;
};

// Enough to see what is wrong with a file in which everything is.
void limitWarnings(std::vector<DrawingWarning>& warnings) {
    constexpr std::size_t kMost = 100;
    if (warnings.size() > kMost) {
        const std::size_t more = warnings.size() - kMost;
        warnings.resize(kMost);
        warnings.push_back({0, "and " + std::to_string(more) + " more"});
    }
}

} // namespace

DrawingFile::DrawingFile() : m_database(std::make_unique<KdDbDatabase>(false, true)) {}

DrawingFile::~DrawingFile() = default;

DrawingFile::Opened DrawingFile::open(const std::string& path, const DrawingProgress& progress) {
    constexpr double kPartOfReading = 0.2;
    DrawingProgress ofReading;
    DrawingProgress ofTheRest;
    if (progress) {
        ofReading = [&](double done) { return progress(done * kPartOfReading); };
        ofTheRest = [&](double done) {
            return progress(kPartOfReading + done * (1.0 - kPartOfReading));
        };
    }
    std::string bytes;
    switch (InputFile(path).readAll(bytes, ofReading)) {
    case InputFile::Outcome::failed:
        return DrawingError{0, std::strerror(errno), false};
    case InputFile::Outcome::givenUp:
        return DrawingError{0, "given up", true};
    case InputFile::Outcome::done:
        break;
    }
    return openBytes(std::move(bytes), ofTheRest);
}

DrawingFile::Opened DrawingFile::openBytes(std::string bytes, const DrawingProgress& progress) {
    std::unique_ptr<DrawingFile> file(new DrawingFile);
    file->m_document = std::make_shared<DrawingDocument>(std::move(bytes));
    DatabaseCore& core = file->m_database->core();
    core.setSource(file->m_document);
    if (auto error = readDrawing(*file->m_document, core, progress, file->m_warnings)) {
        return std::move(*error);
    }
    limitWarnings(file->m_warnings);
    return file;
}

std::unique_ptr<DrawingFile> DrawingFile::create() {
    auto opened = openBytes(newDrawingText());
    return std::move(std::get<std::unique_ptr<DrawingFile>>(opened));
}

std::unique_ptr<DrawingError> DrawingFile::save(const std::string& path) {
    const std::vector<FileEdit> edits = collectEdits(*m_document, m_database->core());
    AtomicFile target(path);
    std::string error = target.open();
    if (error.empty()) {
        writeEdited(m_document->bytes, edits, [&](std::string_view piece) {
            error = target.write(piece);
            return error.empty();
        });
    }
    if (error.empty()) {
        error = target.commit();
    }
    return error.empty() ? nullptr : std::make_unique<DrawingError>(DrawingError{0, error, false});
}

std::string DrawingFile::bytes() {
    const std::vector<FileEdit> edits = collectEdits(*m_document, m_database->core());
    std::string result;
    result.reserve(m_document->bytes.size() + m_document->bytes.size() / 64);
    writeEdited(m_document->bytes, edits, [&](std::string_view piece) {
        result += piece;
        return true;
    });
    return result;
}

std::size_t DrawingFile::contentMark() {
    constexpr std::size_t kStart = 0xCBF29CE484222325U; // FNV-1a over whole words
    constexpr std::size_t kPrime = 0x100000001B3U;
    std::size_t mark = kStart;
    for (const FileEdit& edit : collectEdits(*m_document, m_database->core())) {
        for (const std::size_t part :
             {edit.offset, edit.length, std::hash<std::string>()(edit.text)}) {
            mark = (mark ^ part) * kPrime;
        }
    }
    return mark;
}

} // namespace orvex
