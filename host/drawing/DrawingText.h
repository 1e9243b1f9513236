#pragma once

#include <string>
#include <string_view>

class QTextCodec;

namespace orvex {

// The texts of a drawing: in UTF-8, or in a code page with \U+XXXX for what it lacks. Both ways a
// text that the file can't hold as it stands (control characters, something that looks like such
// an escape) is written with escapes, so that reading it gives the same text.
class DrawingText {
public:
    DrawingText() = default; // the code page of Western Europe
    // `version` and `codePage` as the header has them, empty where it has none.
    DrawingText(std::string_view version, std::string_view codePage);

    [[nodiscard]] std::wstring decode(std::string_view bytes) const;
    [[nodiscard]] std::string encode(std::wstring_view text) const;

private:
    [[nodiscard]] std::wstring decodeBytes(std::string_view bytes) const;
    [[nodiscard]] std::string encodeCharacter(wchar_t character) const; // empty when it is lacking

    bool m_isUtf8 = false;
    QTextCodec* m_codec = nullptr; // Qt's; null for Western Europe's where Qt has no such codec
};

} // namespace orvex
