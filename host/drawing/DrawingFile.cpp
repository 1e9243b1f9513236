#include "DrawingFile.h"

#include "AtomicFile.h"
#include "BinaryDrawing.h"
#include "DatabaseCore.h"
#include "DrawingDocument.h"
#include "DrawingExport.h"
#include "DrawingReader.h"
#include "DrawingWriter.h"
#include "ObjectTable.h"
#include "newDrawingText.h"

#include <functional>

namespace orvex {

namespace {

constexpr double kPartOfDecoding = 0.5; // of the opening of a binary drawing
constexpr const char* kTailWarning = "bytes follow after EOF";

// Progress of a step that is the part [from, to] of the whole work.
Progress partOf(const Progress& whole, double from, double to) {
    if (!whole) {
        return {};
    }
    return [&whole, from, to](double done) { return whole(from + done * (to - from)); };
}

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
    auto bytes = readRegularFile(path, partOf(progress, 0.0, kPartOfReading));
    if (!bytes) {
        return bytes.failure();
    }
    auto opened = openBytes(std::move(*bytes), partOf(progress, kPartOfReading, 1.0));
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
    Progress ofReading = progress;
    if (BinaryDrawing::isMeant(bytes)) {
        Progress ofDecoding = partOf(progress, 0.0, kPartOfDecoding);
        ofReading = partOf(progress, kPartOfDecoding, 1.0);
        auto binary = BinaryDrawing::read(std::move(bytes), ofDecoding);
        if (!binary) {
            return binary.failure();
        }
        file->m_binary = std::move(*binary);
        bytes = file->m_binary->takeText();
    }
    file->m_document = std::make_shared<DrawingDocument>(std::move(bytes));
    DatabaseCore& core = file->m_database->core();
    core.objects().setSource(file->m_document);
    if (auto failure = readDrawing(*file->m_document, core, ofReading, file->m_warnings)) {
        failure->line = file->m_binary != nullptr ? 0 : failure->line;
        return std::move(*failure);
    }
    if (file->m_binary != nullptr && file->m_binary->hasTail()) {
        file->m_warnings.push_back({file->m_document->cut.lineCount + 1, kTailWarning});
    }
    limitWarnings(file->m_warnings);
    if (file->m_binary != nullptr) {
        file->m_binary->locate(file->m_warnings);
    }
    return file;
}

std::unique_ptr<DrawingFile> DrawingFile::create() {
    return std::move(*openBytes(newDrawingText()));
}

const std::string& DrawingFile::openedBytes() const {
    return m_binary != nullptr ? m_binary->bytes() : m_document->bytes;
}

Result<std::vector<FileEdit>> DrawingFile::edits(std::vector<DrawingWarning>& warnings) {
    warnings.clear();
    return inOpenedForm(collectEdits(*m_document, m_database->core(), &warnings));
}

Result<std::vector<FileEdit>> DrawingFile::inOpenedForm(std::vector<FileEdit> ofText) {
    if (m_binary == nullptr) {
        return ofText;
    }
    return m_binary->encode(m_document->cut.records, ofText);
}

std::optional<Failure> DrawingFile::save(const std::string& path) {
    AtomicFile target(path);
    return save(target);
}

std::optional<Failure> DrawingFile::save(AtomicFile& target) {
    return write(target, edits(m_savingWarnings));
}

std::optional<Failure> DrawingFile::saveExported(AtomicFile& target, const MlineExport& how) {
    m_savingWarnings.clear();
    return write(target,
                 inOpenedForm(exportEdits(*m_document, m_database->core(), how, m_savingWarnings)));
}

std::optional<Failure> DrawingFile::write(AtomicFile& target,
                                          const Result<std::vector<FileEdit>>& changes) {
    if (!changes) {
        Failure failure = changes.failure();
        failure.file = target.path();
        return failure;
    }
    std::optional<Failure> failure = target.open();
    if (!failure) {
        const auto sink = [&](std::string_view piece) {
            failure = target.write(piece);
            return !failure;
        };
        writeEdited(openedBytes(), *changes, m_binary == nullptr, sink);
    }
    return failure ? failure : target.commit();
}

std::string DrawingFile::bytes() {
    std::vector<DrawingWarning> warnings;
    const auto changes = edits(warnings);
    std::string result;
    if (!changes) {
        return result;
    }
    result.reserve(openedBytes().size() + openedBytes().size() / 64);
    writeEdited(openedBytes(), *changes, m_binary == nullptr, [&](std::string_view piece) {
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
