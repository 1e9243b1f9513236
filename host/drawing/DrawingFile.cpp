#include "DrawingFile.h"

#include "AtomicFile.h"
#include "DatabaseCore.h"
#include "DrawingDocument.h"
#include "DrawingReader.h"
#include "DrawingWriter.h"
#include "ObjectTable.h"
#include "newDrawingText.h"

#include <functional>

namespace orvex {

namespace {

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

Result<std::unique_ptr<DrawingFile>> DrawingFile::open(const std::string& path,
                                                       const Progress& progress) {
    constexpr double kPartOfReading = 0.2;
    Progress ofReading;
    Progress ofTheRest;
    if (progress) {
        ofReading = [&](double done) { return progress(done * kPartOfReading); };
        ofTheRest = [&](double done) {
            return progress(kPartOfReading + done * (1.0 - kPartOfReading));
        };
    }
    auto bytes = readRegularFile(path, ofReading);
    if (!bytes) {
        return bytes.failure();
    }
    auto opened = openBytes(std::move(*bytes), ofTheRest);
    if (!opened) {
        Failure failure = opened.failure();
        failure.file = path;
        return failure;
    }
    return opened;
}

Result<std::unique_ptr<DrawingFile>> DrawingFile::openBytes(std::string bytes,
                                                            const Progress& progress) {
    std::unique_ptr<DrawingFile> file(new DrawingFile);
    file->m_document = std::make_shared<DrawingDocument>(std::move(bytes));
    DatabaseCore& core = file->m_database->core();
    core.objects().setSource(file->m_document);
    if (auto failure = readDrawing(*file->m_document, core, progress, file->m_warnings)) {
        return std::move(*failure);
    }
    limitWarnings(file->m_warnings);
    return file;
}

std::unique_ptr<DrawingFile> DrawingFile::create() {
    return std::move(*openBytes(newDrawingText()));
}

std::optional<Failure> DrawingFile::save(const std::string& path) {
    const std::vector<FileEdit> edits = collectEdits(*m_document, m_database->core());
    AtomicFile target(path);
    std::optional<Failure> failure = target.open();
    if (!failure) {
        writeEdited(m_document->bytes, edits, [&](std::string_view piece) {
            failure = target.write(piece);
            return !failure;
        });
    }
    return failure ? failure : target.commit();
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
