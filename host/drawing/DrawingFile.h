#pragma once

#include "Failure.h"
#include "KdDbDatabase.h"
#include "readFile.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace orvex {

class AtomicFile;
class BinaryDrawing;   // the bytes of a file in the binary form
class DrawingDocument; // the file's bytes and their table of records
struct FileEdit;
struct MlineExport;

// Something odd in a file that opens all the same.
struct DrawingWarning {
    std::size_t line = 0; // from 1; 0 for the whole file
    std::string text;     // UTF-8; begins with the place in a file without lines
};

// An open drawing: the file's bytes as they came, and the objects made of them. What isn't changed
// is written back byte for byte, in the text form or the binary one, whichever the file has.
class DrawingFile {
public:
    ~DrawingFile();
    DrawingFile(const DrawingFile&) = delete;
    DrawingFile& operator=(const DrawingFile&) = delete;

    // Reads the whole of a regular file; it may change or vanish afterwards. When `progress` gives
    // up, the failure's cause is `interrupted`.
    static Result<std::unique_ptr<DrawingFile>> open(const std::string& path,
                                                     const Progress& progress = {});
    // The same from bytes in memory.
    static Result<std::unique_ptr<DrawingFile>> openBytes(std::string bytes,
                                                          const Progress& progress = {});
    // An empty drawing that every reader takes.
    static std::unique_ptr<DrawingFile> create();

    [[nodiscard]] KdDbDatabase& database() { return *m_database; }
    [[nodiscard]] const std::vector<DrawingWarning>& warnings() const { return m_warnings; }

    // Writes the drawing whole or not at all: an older file at `path` stays until the new one is
    // complete on disk. The objects stay as they are. A later save starts from the bytes that were
    // opened again, so that edits taken back leave no trace in it. Values that the binary form has
    // no room for are a failure.
    [[nodiscard]] std::optional<Failure> save(const std::string& path);
    [[nodiscard]] std::optional<Failure> save(AtomicFile& target); // not open yet
    // What the last save had to leave as it was although it isn't right any more.
    [[nodiscard]] const std::vector<DrawingWarning>& savingWarnings() const {
        return m_savingWarnings;
    }
    // Writes the drawing as it was opened, with plain entities for its multilines. Saved like by
    // save.
    [[nodiscard]] std::optional<Failure> saveExported(AtomicFile& target, const MlineExport& how);
    // The bytes that save would write; none when it would fail.
    [[nodiscard]] std::string bytes();
    // Distinguishes contents: while it is the same, save would write the same bytes. Costs nothing
    // for objects that nobody touched.
    [[nodiscard]] std::size_t contentMark();

private:
    DrawingFile();
    [[nodiscard]] Result<std::vector<FileEdit>> edits(std::vector<DrawingWarning>& warnings);
    [[nodiscard]] Result<std::vector<FileEdit>> inOpenedForm(std::vector<FileEdit> ofText);
    [[nodiscard]] std::optional<Failure> write(AtomicFile& target,
                                               const Result<std::vector<FileEdit>>& changes);
    [[nodiscard]] const std::string& openedBytes() const;

    std::vector<DrawingWarning> m_warnings;
    std::vector<DrawingWarning> m_savingWarnings;
    std::unique_ptr<BinaryDrawing> m_binary; // null for a file in the text form
    std::shared_ptr<DrawingDocument> m_document;
    std::unique_ptr<KdDbDatabase> m_database;
};

} // namespace orvex
