#include "BinaryDrawing.h"

#include "RecordKind.h"
#include "TagReader.h"
#include "blanks.h"

#include <algorithm>

namespace orvex {

namespace {

constexpr std::size_t kSignatureLetters = 18; // then four bytes that a transfer as text spoils

Failure unreadable(std::size_t offset, const std::string& text) {
    return {FailureCause::unreadableInput, {}, 0, atByte(offset, text)};
}

// Tags whose bytes can't be made again from their text; an edit that keeps the tag keeps the bytes.
class OddTags {
public:
    OddTags(std::string_view bytes, std::size_t from, std::size_t to, CodeWidth width) {
        BinaryTagReader reader(bytes, from, to, width);
        BinaryTag tag;
        while (reader.next(tag) == BinaryTagReader::Result::tag) {
            const std::string_view own = bytes.substr(tag.begin, tag.end - tag.begin);
            std::string text;
            addValueText(text, tag);
            std::string again;
            if (addBinaryTag(again, width, tag.code, text) != nullptr || again != own) {
                m_tags.push_back({tag.code, std::move(text), own, false});
            }
        }
    }
    // The bytes of the next such tag; empty when there is none.
    std::string_view take(const Tag& tag) {
        const auto found = std::ranges::find_if(m_tags, [&](const OddTag& odd) {
            return !odd.taken && odd.code == tag.code && odd.text == tag.value;
        });
        if (found == m_tags.end()) {
            return {};
        }
        found->taken = true;
        return found->bytes;
    }

private:
    struct OddTag {
        int code = 0;
        std::string text;
        std::string_view bytes;
        bool taken = false;
    };
    std::vector<OddTag> m_tags;
};

// The bytes of edited or new lines; null, or why there are none.
const char* encodeLines(std::string_view lines, OddTags& oddTags, CodeWidth width,
                        std::string& bytes, Tag& tag) {
    TagReader reader(lines);
    while (reader.next(tag) == TagReader::Result::tag) {
        if (const std::string_view own = oddTags.take(tag); !own.empty()) {
            bytes += own;
        } else if (const char* const reason = addBinaryTag(bytes, width, tag.code, tag.value)) {
            return reason;
        }
    }
    return nullptr;
}

// Index of the record that starts at an offset of the text, or the number of records.
std::uint32_t recordAt(const RecordTable& records, std::size_t offset) {
    std::uint32_t low = 0;
    std::uint32_t high = records.size();
    while (low < high) {
        const std::uint32_t middle = low + (high - low) / 2;
        if (records.begin(middle) < offset) {
            low = middle + 1;
        } else {
            high = middle;
        }
    }
    return low;
}

} // namespace

std::string atByte(std::size_t offset, const std::string& text) {
    return "at byte " + std::to_string(offset) + ": " + text;
}

bool BinaryDrawing::isMeant(std::string_view bytes) {
    const std::string_view signature = binarySignature();
    const std::string_view end = signature.substr(kSignatureLetters);
    return bytes.starts_with(signature.substr(0, kSignatureLetters)) ||
           (bytes.size() >= signature.size() && bytes.substr(kSignatureLetters, end.size()) == end);
}

BinaryDrawing::BinaryDrawing(std::string bytes) : m_bytes(std::move(bytes)) {}

Result<std::unique_ptr<BinaryDrawing>> BinaryDrawing::read(std::string bytes,
                                                           const Progress& progress) {
    std::unique_ptr<BinaryDrawing> drawing(new BinaryDrawing(std::move(bytes)));
    if (auto failure = drawing->readTags(progress)) {
        return std::move(*failure);
    }
    return drawing;
}

std::optional<Failure> BinaryDrawing::readTags(const Progress& progress) {
    constexpr std::size_t kStep = std::size_t{4} << 20U; // bytes between two calls of `progress`
    const std::size_t start = binarySignature().size();
    if (!m_bytes.starts_with(binarySignature())) {
        return unreadable(0, "the signature of the binary form is damaged");
    }
    if (m_bytes.size() > start && m_bytes[start] != '\0') {
        return unreadable(start, "a binary drawing has to begin with the group code 0");
    }
    m_width =
        m_bytes.size() > start + 1 && m_bytes[start + 1] != '\0' ? CodeWidth::one : CodeWidth::two;
    BinaryTagReader reader(m_bytes, start, m_bytes.size(), m_width);
    BinaryTag tag;
    BinaryTagReader::Result result = BinaryTagReader::Result::end;
    std::size_t nextCall = kStep;
    m_text.reserve(m_bytes.size() + m_bytes.size() / 2);
    while ((result = reader.next(tag)) == BinaryTagReader::Result::tag) {
        if (!addTagLines(m_text, tag)) {
            m_unwritable.push_back(tag.begin);
        }
        if (tag.code != 0) {
            continue;
        }
        m_records.push_back(tag.begin);
        if (recordKind(trimBlanks(tag.value)) == RecordKind::endOfFile) {
            break;
        }
        if (tag.begin >= nextCall) {
            nextCall = tag.begin + kStep;
            if (progress &&
                !progress(static_cast<double>(tag.begin) / static_cast<double>(m_bytes.size()))) {
                return Failure{FailureCause::interrupted, {}, 0, "interrupted"};
            }
        }
    }
    m_records.push_back(reader.position());
    if (result == BinaryTagReader::Result::badCode) {
        return unreadable(reader.position(), "there is no group code " + std::to_string(tag.code));
    }
    if (result == BinaryTagReader::Result::cutOff) {
        return unreadable(reader.position(), "the file ends within the value that starts here");
    }
    return std::nullopt;
}

void BinaryDrawing::locate(std::vector<DrawingWarning>& warnings) const {
    std::vector<DrawingWarning*> inOrder;
    for (DrawingWarning& warning : warnings) {
        if (warning.line != 0) {
            inOrder.push_back(&warning);
        }
    }
    std::ranges::stable_sort(inOrder, {}, &DrawingWarning::line);
    BinaryTagReader reader(m_bytes, binarySignature().size(), m_bytes.size(), m_width);
    std::size_t passed = 0;
    BinaryTag tag;
    for (DrawingWarning* const warning : inOrder) {
        for (const std::size_t before = (warning->line - 1) / 2;
             passed < before && reader.next(tag) == BinaryTagReader::Result::tag; ++passed) {
        }
        warning->text = atByte(reader.position(), warning->text);
        warning->line = 0;
    }
}

Result<std::vector<FileEdit>> BinaryDrawing::encode(const RecordTable& records,
                                                    const std::vector<FileEdit>& edits) const {
    std::vector<FileEdit> result;
    result.reserve(edits.size());
    for (const FileEdit& edit : edits) {
        const std::size_t begin = m_records[recordAt(records, edit.offset)];
        const std::size_t end = m_records[recordAt(records, edit.offset + edit.length)];
        OddTags oddTags(m_bytes, begin, end, m_width);
        std::string bytes;
        Tag tag;
        if (const char* const reason = encodeLines(edit.text, oddTags, m_width, bytes, tag)) {
            return Failure{FailureCause::unwritableOutput,
                           {},
                           0,
                           "the value " + std::string(tag.value) + " of group code " +
                               std::to_string(tag.code) + ": " + reason};
        }
        result.push_back({begin, end - begin, std::move(bytes)});
    }
    return result;
}

} // namespace orvex
