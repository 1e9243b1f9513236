#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

// The lines of a library as the readers see them: wide, without the line feed, and at most 2047
// characters long; the rest of a longer one comes as a further line. A carriage return stays in
// the line. What is no UTF-8 is replaced.
class LibraryLines {
public:
    explicit LibraryLines(std::string_view bytes) : m_bytes(bytes) {} // has to outlive the lines

    std::optional<std::wstring> next(); // nothing at the end

    // Set by the read that met the end of the file: of a last line without a line feed already by
    // the read that gave it.
    [[nodiscard]] bool metEnd() const { return m_metEnd; }

private:
    void takeLine();

    std::string_view m_bytes;   // behind the line at hand
    std::wstring m_line;        // the line at hand
    std::size_t m_given = 0;    // how much of it has been given
    bool m_isComplete = true;   // all of it has been given
    bool m_hasLineFeed = false; // behind it
    bool m_metEnd = false;
};
