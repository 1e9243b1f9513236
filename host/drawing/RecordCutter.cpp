#include "RecordCutter.h"

#include "NumberText.h"
#include "blanks.h"
#include "handleText.h"

#include <algorithm>

namespace orvex {

std::optional<Failure> RecordCutter::run(const Progress& progress) {
    constexpr std::size_t kStep = std::size_t{4} << 20U; // bytes between two calls of `progress`
    std::size_t nextCall = m_begin + kStep;
    Tag tag;
    TagReader::Result read = TagReader::Result::end;
    while ((read = m_reader.next(tag)) == TagReader::Result::tag) {
        if (tag.code != 0) {
            take(tag);
            continue;
        }
        startRecord(tag);
        if (m_kind == RecordKind::endOfFile) {
            m_result.hasEnd = true;
            break;
        }
        if (tag.begin >= nextCall) {
            nextCall = tag.begin + kStep;
            const auto done = static_cast<double>(tag.begin - m_begin);
            if (progress && !progress(done / static_cast<double>(m_size))) {
                return Failure{FailureCause::interrupted, {}, line(), "interrupted"};
            }
        }
    }
    endRecord();
    const bool isDrawing = !m_result.records.m_records.empty();
    m_result.records.m_records.emplace_back().offset = m_reader.position();
    m_result.lineCount = 2 * m_reader.tagCount();
    m_result.lineEnds = {m_result.lineCount, m_reader.carriageReturns()};
    if (read != TagReader::Result::badCode && read != TagReader::Result::noValue) {
        return std::nullopt;
    }
    // Whatever else the user took, a picture or a text.
    std::string text = isDrawing ? "" : "this is no drawing: ";
    text += read == TagReader::Result::badCode ? "a group code is no integer"
                                               : "a group code has no value";
    return Failure{FailureCause::unreadableInput, {}, line(), text};
}

void RecordCutter::startRecord(const Tag& tag) {
    endRecord();
    m_kind = recordKind(trimBlanks(tag.value));
    m_hasHandle = m_kind == RecordKind::section; // the header's code 5 names no section
    m_recordLine = line() - 2;
    m_result.records.m_records.push_back({tag.begin, 0, m_kind});
    if (m_kind == RecordKind::mline) {
        m_mline.begin();
    }
}

void RecordCutter::take(const Tag& tag) {
    if (m_kind == RecordKind::mline) {
        m_mline.feed(tag);
    }
    const bool isHandle = m_kind == RecordKind::dimStyle ? tag.code == 105 : tag.code == 5;
    if (isHandle && !m_hasHandle && !m_result.records.m_records.empty()) {
        m_hasHandle = true;
        Record& record = m_result.records.m_records.back();
        record.handle = parseHandle(tag.value).value_or(record.handle);
        m_result.highestHandle = std::max(m_result.highestHandle, record.handle);
    } else if (tag.code == 67 && !m_result.records.m_records.empty()) {
        m_result.records.m_records.back().inPaperSpace = trimBlanks(tag.value) == "1";
    }
}

void RecordCutter::endRecord() {
    if (m_kind != RecordKind::mline) {
        return;
    }
    m_kind = RecordKind::other;
    if (const auto failure = m_mline.finish()) {
        m_result.records.m_records.back().opaque = true;
        m_result.warnings.push_back(
            {m_recordLine, "a multiline contradicts itself, " + failure->text});
    } else if (m_mline.style == 0) {
        m_result.warnings.push_back({m_recordLine, "a multiline names its style by name alone"});
    } else {
        noteStyle(m_result.records.m_records.back());
    }
}

void RecordCutter::noteStyle(Record& record) {
    std::vector<NamedStyle>& styles = m_result.namedStyles;
    // Most multilines have the style of the one before.
    if (m_lastPlace == 0 || styles[m_lastPlace - 1].handle != m_mline.style) {
        const auto next = static_cast<std::uint32_t>(styles.size() + 1);
        const auto [place, isNew] = m_places.try_emplace(m_mline.style, next);
        if (isNew) {
            styles.push_back({m_mline.style, m_recordLine});
        }
        m_lastPlace = place->second;
    }
    record.namedStyle = m_lastPlace;
}

} // namespace orvex
