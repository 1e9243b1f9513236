#include "DrawingConversion.h"

#include "BinaryDrawing.h"
#include "DrawingDocument.h"
#include "blanks.h"

namespace orvex {

namespace {

constexpr int kComment = 999;
constexpr std::string_view kLastWithShortCodes = "AC1009";
constexpr const char* kTail = "the bytes after EOF are left out";

Result<ConvertedDrawing> toText(std::string bytes) {
    auto drawing = BinaryDrawing::read(std::move(bytes), {});
    if (!drawing) {
        return drawing.failure();
    }
    if (!(*drawing)->unwritable().empty()) {
        return Failure{FailureCause::unwritableOutput,
                       {},
                       0,
                       atByte((*drawing)->unwritable().front(),
                              "the text form can't hold a line end in a text or a number that is "
                              "not finite")};
    }
    ConvertedDrawing result;
    result.bytes = (*drawing)->takeText();
    if ((*drawing)->hasTail()) {
        result.warnings.push_back({0, kTail});
    }
    return result;
}

// Readers take a drawing without a version for an old one, so its codes are short.
CodeWidth widthFor(std::string_view bytes, std::size_t start) {
    TagReader reader(bytes, start, bytes.size());
    Tag tag;
    bool isVersion = false;
    while (reader.next(tag) == TagReader::Result::tag) {
        if (tag.code == kComment) {
            continue;
        }
        const std::string_view value = trimBlanks(tag.value);
        if (isVersion) {
            return value > kLastWithShortCodes ? CodeWidth::two : CodeWidth::one;
        }
        isVersion = tag.code == 9 && value == "$ACADVER";
        if (tag.code == 0 && value == "ENDSEC") {
            break;
        }
    }
    return CodeWidth::one;
}

Result<ConvertedDrawing> toBinary(std::string_view bytes) {
    const std::size_t start = bytes.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
    const CodeWidth width = widthFor(bytes, start);
    ConvertedDrawing result;
    result.bytes = binarySignature();
    TagReader reader(bytes, start, bytes.size());
    Tag tag;
    TagReader::Result read = TagReader::Result::end;
    bool begun = false;
    std::size_t comments = 0;
    std::size_t firstComment = 0;
    while ((read = reader.next(tag)) == TagReader::Result::tag) {
        const std::size_t line = 2 * reader.tagCount(); // of the value
        const char* reason = nullptr;
        if (tag.code == kComment) {
            firstComment = comments++ == 0 ? line : firstComment;
            continue;
        }
        if (!begun && tag.code != 0) {
            reason = "the binary form has to begin with the group code 0";
        } else {
            reason = addBinaryTag(result.bytes, width, tag.code, tag.value);
        }
        if (reason != nullptr) {
            return Failure{FailureCause::unwritableOutput, {}, line, reason};
        }
        begun = true;
        if (tag.code == 0 && recordKind(trimBlanks(tag.value)) == RecordKind::endOfFile) {
            break;
        }
    }
    if (read != TagReader::Result::tag && read != TagReader::Result::end) {
        return Failure{FailureCause::unreadableInput,
                       {},
                       2 * reader.tagCount() + 1,
                       "a group code and its value are due"};
    }
    if (comments > 0) {
        result.warnings.push_back({firstComment, "the binary form has no comments; " +
                                                     std::to_string(comments) + " left out"});
    }
    if (reader.position() < bytes.size()) {
        result.warnings.push_back({2 * reader.tagCount() + 1, kTail});
    }
    return result;
}

} // namespace

Result<ConvertedDrawing> convertBytes(std::string bytes, DrawingForm form) {
    const bool isBinary = BinaryDrawing::isMeant(bytes);
    if (isBinary == (form == DrawingForm::binary)) {
        return ConvertedDrawing{std::move(bytes), {}};
    }
    return isBinary ? toText(std::move(bytes)) : toBinary(bytes);
}

} // namespace orvex
