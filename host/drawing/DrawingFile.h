#pragma once

#include "KdDbDatabase.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace orvex {

class DrawingDocument; // the file's bytes and their table of records

// Something odd in a file that opens all the same.
struct DrawingWarning {
    std::size_t line = 0; // from 1; 0 for the whole file
    std::string text;     // UTF-8
};

// Why a drawing can't be opened or written.
struct DrawingError {
    std::size_t line = 0; // from 1; 0 when no line is to blame
    std::string text;     // UTF-8, without the file's name
    bool cancelled = false;
};

// Told now and then while a large drawing is read, with the part done from 0 to 1; false gives up.
using DrawingProgress = std::function<bool(double)>;

// An open drawing: the file's bytes as they came, and the objects made of them. What isn't changed
// is written back byte for byte.
class DrawingFile {
public:
    ~DrawingFile();
    DrawingFile(const DrawingFile&) = delete;
    DrawingFile& operator=(const DrawingFile&) = delete;

    using Opened = std::variant<std::unique_ptr<DrawingFile>, DrawingError>;

    // Reads the whole file; it may change or vanish afterwards.
    static Opened open(const std::string& path, const DrawingProgress& progress = {});
    // The same from bytes in memory.
    static Opened openBytes(std::string bytes, const DrawingProgress& progress = {});
    // An empty drawing that every reader takes.
    static std::unique_ptr<DrawingFile> create();

    [[nodiscard]] KdDbDatabase& database() { return *m_database; }
    [[nodiscard]] const std::vector<DrawingWarning>& warnings() const { return m_warnings; }

    // Writes the drawing whole or not at all: an older file at `path` stays until the new one is
    // complete on disk. Nothing when it went well. The objects stay as they are. A later save
    // starts from the bytes that were opened again, so that edits taken back leave no trace in it.
    [[nodiscard]] std::unique_ptr<DrawingError> save(const std::string& path);
    // The bytes that save would write.
    [[nodiscard]] std::string bytes();
    // Tells contents apart: while it is the same, save would write the same bytes. Costs nothing
    // for objects that nobody touched.
    [[nodiscard]] std::size_t contentMark();

private:
    DrawingFile();
    std::vector<DrawingWarning> m_warnings;
    std::shared_ptr<DrawingDocument> m_document;
    std::unique_ptr<KdDbDatabase> m_database;
};

} // namespace orvex
