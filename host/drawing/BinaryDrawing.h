#pragma once

#include "BinaryTags.h"
#include "DrawingWriter.h"
#include "RecordTable.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace orvex {

// The bytes of a drawing in the binary form. The rest of the system reads and edits the drawing as
// the text that stands for them, tag by tag; this knows which bytes each record came from, and
// makes edits of the text edits of the bytes. So what isn't edited is kept byte for byte.
class BinaryDrawing {
public:
    // Whether the bytes begin as no text does, with the signature or most of it.
    [[nodiscard]] static bool isMeant(std::string_view bytes);

    // Reads up to EOF. Failures name the byte.
    static Result<std::unique_ptr<BinaryDrawing>> read(std::string bytes, const Progress& progress);

    // All tags as lines, each tag once. To be taken once.
    [[nodiscard]] std::string takeText() { return std::move(m_text); }
    [[nodiscard]] const std::string& bytes() const { return m_bytes; }
    [[nodiscard]] bool hasTail() const { return m_records.back() < m_bytes.size(); }
    // Where the text isn't what the file holds: line ends in texts, numbers that aren't finite.
    [[nodiscard]] const std::vector<std::size_t>& unwritable() const { return m_unwritable; }

    // From lines of the text to bytes, in place and wording.
    void locate(std::vector<DrawingWarning>& warnings) const;
    // The same edits for the bytes. `records` are those of the text.
    [[nodiscard]] Result<std::vector<FileEdit>> encode(const RecordTable& records,
                                                       const std::vector<FileEdit>& edits) const;

private:
    explicit BinaryDrawing(std::string bytes);
    [[nodiscard]] std::optional<Failure> readTags(const Progress& progress);

    std::string m_bytes;
    CodeWidth m_width = CodeWidth::two;
    std::string m_text;
    std::vector<std::uint64_t> m_records; // where each starts, and after the last
    std::vector<std::size_t> m_unwritable;
};

// "at byte N: text".
[[nodiscard]] std::string atByte(std::size_t offset, const std::string& text);

} // namespace orvex
