#include "LibraryLines.h"

#include "textCodec.h"

void LibraryLines::takeLine() {
    const std::size_t lineFeed = m_bytes.find('\n');
    m_hasLineFeed = lineFeed != std::string_view::npos;
    m_line = orvex::widen(m_bytes.substr(0, lineFeed));
    m_bytes.remove_prefix(m_hasLineFeed ? lineFeed + 1 : m_bytes.size());
    m_given = 0;
}

std::optional<std::wstring> LibraryLines::next() {
    constexpr std::size_t kLongest = 2047;
    if (m_isComplete) {
        if (m_bytes.empty()) {
            m_metEnd = true;
            return std::nullopt;
        }
        takeLine();
    }
    std::wstring piece = m_line.substr(m_given, kLongest);
    m_given += piece.size();
    // A piece of full length stops before whatever comes next, be it the line feed alone or the
    // end of the file.
    const bool isFull = piece.size() == kLongest;
    m_isComplete = !isFull || (m_given == m_line.size() && !m_hasLineFeed);
    m_metEnd = !isFull && !m_hasLineFeed;
    if (const std::size_t zero = piece.find(L'\0'); zero != std::wstring::npos) {
        piece.resize(zero); // texts end there
    }
    return piece;
}
