#include "DictionaryRecord.h"

#include "KdDbStub.h"
#include "NumberText.h"
#include "RecordEdit.h"
#include "StyleRecord.h"
#include "blanks.h"
#include "handleText.h"

#include <algorithm>

namespace orvex {

namespace {

constexpr int kKeyCode = 3;
constexpr int kSoftOwner = 350;
constexpr int kHardOwner = 360;

bool isHandle(const Tag& tag) {
    return tag.code == kSoftOwner || tag.code == kHardOwner;
}

// Tag indices of a pair, and the first one after it.
struct PairTags {
    std::size_t key = 0;
    std::size_t handle = 0;
    std::size_t end = 0;
    std::uint64_t value = 0;
};

std::vector<PairTags> findPairs(const TagList& tags) {
    std::vector<PairTags> pairs;
    std::size_t key = 0; // 0: none
    for (std::size_t i = 1; i < tags.size() && tags[i].code < 1000; i = skipGroup(tags, i)) {
        if (tags[i].code == kKeyCode) {
            key = i;
        } else if (isHandle(tags[i]) && key != 0) {
            pairs.push_back({key, i, i + 1, parseHandle(tags[i].value).value_or(0)});
            key = 0;
        }
    }
    return pairs;
}

// The pair of this handle that isn't used yet, looked for from `start` on and then before it, as
// entries mostly follow in the order of their pairs; the number of pairs when there is none.
std::size_t findPair(const std::vector<PairTags>& pairs, const std::vector<bool>& used,
                     std::size_t start, std::uint64_t handle) {
    for (std::size_t step = 0; step < pairs.size(); ++step) {
        const std::size_t at = (start + step) % pairs.size();
        if (!used[at] && pairs[at].value == handle) {
            return at;
        }
    }
    return pairs.size();
}

// Where a dictionary without pairs gets its first one: after what is its own.
std::size_t lastOwnTag(const TagList& tags) {
    std::size_t last = 0;
    for (std::size_t i = 0; i < tags.size() && tags[i].code < 1000; i = skipGroup(tags, i)) {
        last = skipGroup(tags, i) - 1;
    }
    return last;
}

bool endsInsideGroup(const TagList& tags) {
    bool inside = false;
    for (std::size_t i = 0; i < tags.size(); ++i) {
        const Tag tag = tags[i];
        inside = tag.code == 102 ? tag.value.starts_with('{') : inside;
    }
    return inside;
}

void addPair(TagText& target, const RecordContext& context, const DictionaryEntry& entry,
             int handleCode) {
    target.add(kKeyCode, context.text.encode(entry.key));
    target.addHandle(handleCode, entry.id.isNull() ? 0 : entry.id.stub()->handle);
}

} // namespace

std::vector<DictionaryPair> readPairs(std::string_view bytes, const RecordSpan& span) {
    const TagList tags(bytes, span.begin, span.end);
    std::vector<DictionaryPair> result;
    for (const PairTags& pair : findPairs(tags)) {
        result.push_back({tags[pair.key].value, pair.value});
    }
    return result;
}

std::optional<std::string> editDictionary(const RecordContext& context, const RecordSpan& span,
                                          const std::vector<DictionaryEntry>& entries) {
    RecordEdit edit(context.bytes, span.begin, span.end);
    const TagList& tags = edit.tags();
    std::vector<PairTags> pairs = findPairs(tags);
    const int handleCode = pairs.empty() ? kSoftOwner : tags[pairs.front().handle].code;
    const std::size_t place = pairs.empty() ? lastOwnTag(tags) : pairs.front().key - 1;

    TagText fresh(edit.format());
    if (pairs.empty() && endsInsideGroup(tags)) {
        fresh.add(102, "}"); // the file breaks off there
    }
    std::vector<bool> used(pairs.size());
    std::size_t next = 0;
    bool same = entries.size() == pairs.size();
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const DictionaryEntry& entry = entries[i];
        const std::uint64_t handle = entry.id.isNull() ? 0 : entry.id.stub()->handle;
        const std::size_t old = findPair(pairs, used, next, handle);
        next = old + 1;
        same = same && old == i;
        if (old == pairs.size()) {
            addPair(fresh, context, entry, handleCode);
            continue;
        }
        used[old] = true;
        const Tag key = tags[pairs[old].key];
        const bool sameKey = context.text.decode(trimBlanks(key.value)) == entry.key;
        same = same && sameKey;
        fresh.addLines(sameKey ? edit.lines(pairs[old].key)
                               : edit.lines(pairs[old].key, context.text.encode(entry.key)));
        for (std::size_t tag = pairs[old].key + 1; tag < pairs[old].end; ++tag) {
            fresh.addLines(edit.lines(tag));
        }
    }
    if (same) {
        return std::nullopt;
    }
    for (const PairTags& pair : pairs) {
        for (std::size_t tag = pair.key; tag < pair.end; ++tag) {
            edit.remove(tag);
        }
    }
    edit.insertAfter(place, fresh.text());
    return edit.text();
}

void writeDictionary(TagText& target, const RecordContext& context,
                     const std::vector<DictionaryEntry>& entries, std::uint64_t handle,
                     std::uint64_t owner) {
    target.add(0, "DICTIONARY");
    writeOwned(target, handle, owner);
    target.add(100, "AcDbDictionary");
    target.add(281, 1); // of two entries with one key the first is kept
    for (const DictionaryEntry& entry : entries) {
        addPair(target, context, entry, kSoftOwner);
    }
}

} // namespace orvex
