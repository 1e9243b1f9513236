#include "GoneReferences.h"

#include "DatabaseCore.h"
#include "DictionaryRecord.h"
#include "ObjectTable.h"
#include "RecordEdit.h"
#include "blanks.h"
#include "handleText.h"

namespace orvex {

namespace {

// The value of the first tag with the code outside of groups in braces; 0 for none.
std::uint64_t handleUnder(const TagList& tags, int code) {
    for (std::size_t i = 1; i < tags.size(); i = skipGroup(tags, i)) {
        if (tags[i].code == code) {
            return parseHandle(tags[i].value).value_or(0);
        }
    }
    return 0;
}

std::uint64_t extensionDictionary(const TagList& tags) {
    for (std::size_t i = 1; i + 1 < tags.size(); ++i) {
        if (tags[i].code == 102 && trimBlanks(tags[i].value) == "{ACAD_XDICTIONARY" &&
            tags[i + 1].code == 360) {
            return parseHandle(tags[i + 1].value).value_or(0);
        }
    }
    return 0;
}

} // namespace

void GoneReferences::note(std::uint32_t record) {
    m_entities.push_back(record);
    const std::uint64_t handle = m_document.cut.records[record].handle;
    // In a broken file two entities may have one handle, and one of them may stay.
    const KdDbStub* const stub = m_core.objects().findHandle(handle);
    if (handle != 0 && (stub == nullptr || stub->erased || stub->record == record)) {
        m_gone.insert(handle);
    }
}

void GoneReferences::noteReplacement(std::uint64_t gone, std::uint64_t replacement,
                                     std::uint64_t block) {
    Replacements& replacements = m_replacements[gone];
    replacements.block = block;
    replacements.entities.push_back(replacement);
}

const std::vector<std::uint64_t>& GoneReferences::replacementsOf(std::uint64_t gone) const {
    static const std::vector<std::uint64_t> kNone;
    const auto found = m_replacements.find(gone);
    return found != m_replacements.end() ? found->second.entities : kNone;
}

void GoneReferences::settle(FileLayout& layout, std::vector<DrawingWarning>& warnings) {
    if (m_entities.empty()) {
        return;
    }
    for (const std::uint32_t record : m_entities) {
        dropOwned(record, layout);
    }
    const ObjectRecords& objects = m_document.objectRecords();
    const auto tellUnreadable = [&](Reading reading, std::uint32_t record, const char* what) {
        if (reading == Reading::unreadable) {
            warnings.push_back({0, std::string(what) + " #" +
                                       handleText(m_document.cut.records[record].handle) +
                                       " can't be read and still names what was erased"});
        }
    };
    for (const std::uint32_t group : objects.groups) {
        tellUnreadable(settleGroup(group, layout), group, "the group");
    }
    for (const std::uint32_t table : objects.sortTables) {
        tellUnreadable(settleSortTable(table, layout), table, "the table of drawing order");
    }
    dropEntries(layout);
}

void GoneReferences::dropOwned(std::uint32_t record, FileLayout& layout) {
    const RecordSpan span = m_document.span(record);
    const RecordEdit entity(m_document.bytes, span.begin, span.end);
    if (const std::uint64_t dictionary = extensionDictionary(entity.tags())) {
        dropDictionary(dictionary, m_document.cut.records[record].handle, layout);
    }
}

// With all that names it as its owner.
void GoneReferences::dropDictionary(std::uint64_t handle, std::uint64_t owner, FileLayout& layout) {
    const auto found = m_document.objectRecords().byHandle.find(handle);
    if (found == m_document.objectRecords().byHandle.end()) {
        return;
    }
    const RecordSpan span = m_document.span(found->second);
    const RecordEdit object(m_document.bytes, span.begin, span.end);
    if (handleUnder(object.tags(), 330) != owner || !m_gone.insert(handle).second) {
        return;
    }
    layout.replace(span, {});
    if (m_document.cut.records[found->second].kind == RecordKind::dictionary) {
        for (const DictionaryPair& pair : readPairs(m_document.bytes, span)) {
            dropDictionary(pair.handle, handle, layout);
        }
    }
}

GoneReferences::Reading GoneReferences::settleGroup(std::uint32_t record, FileLayout& layout) {
    constexpr int kMember = 340;
    const RecordSpan span = m_document.span(record);
    RecordEdit edit(m_document.bytes, span.begin, span.end);
    const TagList& tags = edit.tags();
    std::size_t left = 0;
    bool isConcerned = false;
    bool isReadable = true;
    for (std::size_t i = 1; i < tags.size(); i = skipGroup(tags, i)) {
        if (tags[i].code != kMember) {
            continue;
        }
        const auto member = parseHandle(tags[i].value);
        isReadable = isReadable && member.has_value();
        if (!member || !isGone(*member)) {
            ++left;
            continue;
        }
        isConcerned = true;
        edit.remove(i);
        for (const std::uint64_t replacement : replacementsOf(*member)) {
            edit.insertAfter(i, edit.lines(i, handleText(replacement)));
            ++left;
        }
    }
    if (!isConcerned) {
        return Reading::unconcerned;
    }
    if (!isReadable) {
        return Reading::unreadable;
    }
    if (left > 0) {
        layout.replace(span, edit.text());
    } else {
        dropGroup(record, layout);
    }
    return Reading::edited;
}

// Readers complain about groups without members.
void GoneReferences::dropGroup(std::uint32_t record, FileLayout& layout) {
    const RecordSpan span = m_document.span(record);
    const RecordEdit group(m_document.bytes, span.begin, span.end);
    layout.replace(span, {});
    const auto& byHandle = m_document.objectRecords().byHandle;
    const auto owner = byHandle.find(handleUnder(group.tags(), 330));
    if (owner != byHandle.end()) {
        m_entries[owner->second].insert(m_document.cut.records[record].handle);
    }
}

void GoneReferences::dropEntries(FileLayout& layout) {
    for (const auto& [record, handles] : m_entries) {
        const RecordSpan span = m_document.span(record);
        RecordEdit edit(m_document.bytes, span.begin, span.end);
        const TagList& tags = edit.tags();
        for (std::size_t i = 2; i < tags.size(); ++i) {
            const bool isEntry =
                (tags[i].code == 350 || tags[i].code == 360) && tags[i - 1].code == 3;
            if (isEntry && handles.contains(parseHandle(tags[i].value).value_or(0))) {
                edit.remove(i - 1);
                edit.remove(i);
            }
        }
        layout.replace(span, edit.text());
    }
}

// An entity that the table doesn't name has the place that its own handle gives it; entities may
// share a place.
GoneReferences::Reading GoneReferences::settleSortTable(std::uint32_t record, FileLayout& layout) {
    constexpr int kEntity = 331;
    constexpr int kPlace = 5;
    constexpr int kBlock = 330;
    const RecordSpan span = m_document.span(record);
    RecordEdit edit(m_document.bytes, span.begin, span.end);
    const TagList& tags = edit.tags();
    bool isConcerned = false;
    bool isReadable = true;
    std::uint64_t block = 0; // the last such handle; the one before is the table's owner
    std::size_t lastPair = 0;
    std::unordered_set<std::uint64_t> placed;
    const auto insert = [&](std::size_t pair, std::uint64_t gone, std::string_view place) {
        for (const std::uint64_t replacement : replacementsOf(gone)) {
            edit.insertAfter(pair + 1, edit.lines(pair, handleText(replacement)) +
                                           edit.lines(pair + 1, place));
        }
    };
    for (std::size_t i = 1; i < tags.size(); i = skipGroup(tags, i)) {
        if (tags[i].code == kBlock) {
            block = parseHandle(tags[i].value).value_or(0);
        }
        if (tags[i].code != kEntity) {
            continue;
        }
        const auto entity = parseHandle(tags[i].value);
        const bool isPair = i + 1 < tags.size() && tags[i + 1].code == kPlace;
        isReadable = isReadable && entity && isPair;
        lastPair = isPair ? i : lastPair;
        if (entity && isGone(*entity)) {
            isConcerned = true;
            edit.remove(i);
            if (isPair) {
                edit.remove(i + 1);
                insert(i, *entity, tags[i + 1].value);
                placed.insert(*entity);
            }
        }
    }
    for (const auto& [gone, replacements] : m_replacements) {
        if (lastPair != 0 && block != 0 && replacements.block == block && isGone(gone) &&
            !placed.contains(gone)) {
            isConcerned = true;
            insert(lastPair, gone, handleText(gone));
        }
    }
    if (!isConcerned) {
        return Reading::unconcerned;
    }
    if (!isReadable) {
        return Reading::unreadable;
    }
    layout.replace(span, edit.text());
    return Reading::edited;
}

} // namespace orvex
