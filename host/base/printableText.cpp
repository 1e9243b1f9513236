#include "printableText.h"

namespace orvex {

namespace {

constexpr unsigned kDelete = 0x7F;
constexpr unsigned kFirstPrintable = 0x20;
constexpr unsigned kLeadOfHighControls = 0xC2; // U+0080 to U+009F are this and 80 to 9F

std::string escaped(unsigned code) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    return {'\\', 'U', '+', '0', '0', kDigits[code >> 4U], kDigits[code & 0xFU]};
}

} // namespace

std::string printableText(std::string_view utf8) {
    std::string text;
    text.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto byte = static_cast<unsigned char>(utf8[i]);
        const unsigned next = i + 1 < utf8.size() ? static_cast<unsigned char>(utf8[i + 1]) : 0U;
        if (byte < kFirstPrintable || byte == kDelete) {
            text += escaped(byte);
        } else if (byte == kLeadOfHighControls && next >= 0x80U && next < 0xA0U) {
            text += escaped(next);
            ++i;
        } else {
            text += utf8[i];
        }
    }
    return text;
}

} // namespace orvex
