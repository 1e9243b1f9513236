#include "DrawingWriter.h"

#include "BlockList.h"
#include "ChangeLog.h"
#include "DatabaseCore.h"
#include "DictionaryRecord.h"
#include "FileLayout.h"
#include "GoneReferences.h"
#include "HeaderRecord.h"
#include "KdDbDictionary.h"
#include "KdDbMline.h"
#include "KdDbMlineStyle.h"
#include "MlineRecord.h"
#include "ObjectTable.h"
#include "PlainEntity.h"
#include "PlainRecord.h"
#include "StyleRecord.h"
#include "TableRecords.h"
#include "WellKnownObjects.h"

#include <algorithm>
#include <limits>
#include <unordered_set>
#include <utility>

namespace orvex {

namespace {

constexpr std::wstring_view kUsualVersion = L"AC1015";

// The content of an object in memory; null for one that has none of that kind.
template <class Content>
const Content* contentOf(const KdDbStub& stub) {
    if (stub.object == nullptr) {
        return nullptr;
    }
    // The object goes on holding it.
    return dynamic_cast<const Content*>(stub.object->content().get());
}

// Finds out what has to be written: what differs from its record, what the file hasn't had, and
// whatever those refer to.
class DrawingWriter {
public:
    DrawingWriter(const DrawingDocument& document, DatabaseCore& core)
        : m_document(document), m_core(core), m_context(document.context(core)), m_layout(document),
          m_gone(document, core) {}

    std::vector<FileEdit> run(std::vector<DrawingWarning>& warnings);

private:
    void collect(KdDbStub& stub);
    void collectVariables();
    void edit(KdDbStub& stub);
    void drop(const KdDbStub& stub);
    void noteReplacements();
    [[nodiscard]] bool isUntouched(const KdDbStub& stub) const;
    void replace(const KdDbStub& stub, std::optional<std::string> text);

    // Sees to it that the object is in the file.
    void require(KdDbStub* stub);
    void add(KdDbStub& stub);
    void requireDictionary(KdDbStub* stub);
    void requireMline(const MlineContent& content);
    void requireTraits(const EntityTraits* traits);
    void requireStyle(const MlineStyleContent& content);
    void requireTable(KdDbStub* stub);

    void writeDictionaries();
    void writeObjects();
    void writeTables();
    void writeEntities();
    void writeHeader();
    [[nodiscard]] std::string entries(std::string_view kind, const TagFormat& format,
                                      int& count) const;
    // A handle that the file has or will have.
    [[nodiscard]] std::uint64_t ownerHandle(KdDbStub* owner) const;

    const DrawingDocument& m_document;
    DatabaseCore& m_core;
    RecordContext m_context;
    FileLayout m_layout;
    GoneReferences m_gone;
    std::vector<KdDbStub*> m_new;                // in the order in which they were met
    std::unordered_set<const KdDbStub*> m_known; // those and the dictionaries below
    std::vector<KdDbStub*> m_dictionaries;       // that the file has and that may change
    std::vector<const KdDbStub*> m_droppedTableRecords;
    VariableChanges m_variables;
};

std::vector<FileEdit> DrawingWriter::run(std::vector<DrawingWarning>& warnings) {
    for (KdDbStub* const stub : m_core.changes().changedStubs()) {
        collect(*stub);
    }
    collectVariables();
    std::ranges::sort(m_new, {}, &KdDbStub::ordinal);
    writeDictionaries();
    writeTables();
    writeEntities();
    writeObjects();
    writeHeader();
    noteReplacements();
    m_gone.settle(m_layout, warnings);
    return m_layout.takeEdits();
}

// ---- what has to be written ---------------------------------------------------------------------

void DrawingWriter::collect(KdDbStub& stub) {
    if (stub.record != kNoRecord && stub.erased) {
        drop(stub);
    } else if (stub.record != kNoRecord) {
        edit(stub);
    } else if (!stub.erased && !isUntouched(stub)) {
        require(&stub);
    }
}

bool DrawingWriter::isUntouched(const KdDbStub& stub) const {
    const auto found = m_document.untouched.find(&stub);
    if (found == m_document.untouched.end()) {
        return false;
    }
    const auto content = stub.object != nullptr ? stub.object->content() : nullptr;
    return content == nullptr || found->second == nullptr || content->equals(*found->second);
}

void DrawingWriter::edit(KdDbStub& stub) {
    const RecordSpan span = m_document.span(stub.record);
    if (stub.kind == ObjectKind::mline) {
        if (const auto* const content = contentOf<MlineContent>(stub)) {
            if (auto text = editMline(m_context, span, *content)) {
                replace(stub, std::move(text));
                requireMline(*content);
            }
        }
    } else if (stub.kind == ObjectKind::mlineStyle) {
        if (const auto* const content = contentOf<MlineStyleContent>(stub)) {
            if (auto text = editStyle(m_context, span, *content)) {
                replace(stub, std::move(text));
                requireStyle(*content);
            }
        }
    } else if (stub.kind == ObjectKind::dictionary && !isUntouched(stub)) {
        requireDictionary(&stub);
    }
}

void DrawingWriter::replace(const KdDbStub& stub, std::optional<std::string> text) {
    if (text) {
        m_layout.replace(m_document.span(stub.record), std::move(*text));
    }
}

void DrawingWriter::drop(const KdDbStub& stub) {
    const RecordTable& records = m_document.cut.records;
    m_layout.replace(
        {records.begin(stub.record), records.begin(records.skipParts(stub.record + 1))}, {});
    if (stub.kind == ObjectKind::layer || stub.kind == ObjectKind::linetype) {
        m_droppedTableRecords.push_back(&stub);
    } else if (stub.kind == ObjectKind::mline || stub.kind == ObjectKind::entity) {
        m_gone.note(stub.record);
    }
}

// Once what is new has its handle.
void DrawingWriter::noteReplacements() {
    for (KdDbStub* const stub : m_new) {
        const auto* const plain = contentOf<PlainContent>(*stub);
        const KdDbStub* const gone = plain != nullptr ? plain->replaces.stub() : nullptr;
        if (gone != nullptr && gone->erased && gone->record != kNoRecord) {
            m_gone.noteReplacement(gone->handle, stub->handle,
                                   ownerHandle(m_core.blocks().blockOf(*stub)->record));
        }
    }
}

void DrawingWriter::collectVariables() {
    m_variables = changedVariables(m_document.variables, m_core.variables());
    for (const auto& [name, value] : m_variables) {
        const auto* const text = std::get_if<std::wstring>(&value);
        if (text != nullptr && name == "CMLSTYLE") {
            require(m_core.wellKnown().findStyle(*text));
        } else if (text != nullptr && name == "CLAYER") {
            require(m_core.wellKnown().findLayer(*text));
        } else if (text != nullptr && name == "CELTYPE") {
            require(m_core.wellKnown().findLinetype(*text));
        }
    }
}

void DrawingWriter::require(KdDbStub* stub) {
    if (stub == nullptr || stub->record != kNoRecord || stub->erased || stub->object == nullptr ||
        m_known.contains(stub)) {
        return;
    }
    switch (stub->kind) {
    case ObjectKind::mline:
        add(*stub);
        if (const auto* const content = contentOf<MlineContent>(*stub)) {
            requireMline(*content);
        }
        break;
    case ObjectKind::entity:
        if (const auto* const content = contentOf<PlainContent>(*stub)) {
            add(*stub);
            requireTraits(content->traits.get());
        }
        break;
    case ObjectKind::mlineStyle:
        add(*stub);
        requireDictionary(stub->owner != nullptr ? stub->owner
                                                 : m_core.wellKnown().styleDictionary);
        if (const auto* const content = contentOf<MlineStyleContent>(*stub)) {
            requireStyle(*content);
        }
        break;
    case ObjectKind::dictionary:
        requireDictionary(stub);
        break;
    case ObjectKind::layer:
    case ObjectKind::linetype:
        // Layer 0 and the line types that every drawing has are understood without a record.
        if (!m_document.untouched.contains(stub)) {
            add(*stub);
            requireTable(stub->owner);
        }
        break;
    default:
        break;
    }
}

void DrawingWriter::add(KdDbStub& stub) {
    m_core.objects().ensureHandle(stub);
    m_known.insert(&stub);
    m_new.push_back(&stub);
}

void DrawingWriter::requireTable(KdDbStub* stub) {
    if (stub != nullptr && stub->record == kNoRecord) {
        m_core.objects().ensureHandle(*stub);
    }
}

void DrawingWriter::requireDictionary(KdDbStub* stub) {
    if (stub == nullptr || stub->erased || !m_known.insert(stub).second) {
        return;
    }
    if (stub->record != kNoRecord) {
        m_dictionaries.push_back(stub);
    } else {
        add(*stub);
        if (stub != m_core.wellKnown().rootDictionary) {
            requireDictionary(m_core.wellKnown().rootDictionary);
        }
    }
    if (const auto* const content = contentOf<DictionaryContent>(*stub)) {
        for (const DictionaryEntry& entry : content->entries) {
            require(entry.id.stub());
        }
    }
}

void DrawingWriter::requireMline(const MlineContent& content) {
    require(content.style.stub());
    requireTraits(content.traits.get());
}

void DrawingWriter::requireTraits(const EntityTraits* traits) {
    if (traits != nullptr) {
        require(m_core.wellKnown().findLayer(traits->layer));
        require(m_core.wellKnown().findLinetype(traits->linetype));
    }
}

void DrawingWriter::requireStyle(const MlineStyleContent& content) {
    for (const StyleElement& element : content.elements) {
        require(element.linetype.stub());
    }
}

// ---- writing ------------------------------------------------------------------------------------

std::uint64_t DrawingWriter::ownerHandle(KdDbStub* owner) const {
    const bool isWritten =
        owner != nullptr && (owner->record != kNoRecord || m_known.contains(owner));
    return isWritten ? owner->handle : 0;
}

void DrawingWriter::writeDictionaries() {
    for (const KdDbStub* const stub : m_dictionaries) {
        if (const auto* const content = contentOf<DictionaryContent>(*stub)) {
            replace(*stub,
                    editDictionary(m_context, m_document.span(stub->record), content->entries));
        }
    }
}

void DrawingWriter::writeObjects() {
    TagText text(m_layout.formatOf("OBJECTS"));
    TagText root(text.format());
    for (KdDbStub* const stub : m_new) {
        if (stub->kind == ObjectKind::dictionary) {
            const bool isRoot = stub == m_core.wellKnown().rootDictionary;
            if (const auto* const content = contentOf<DictionaryContent>(*stub)) {
                writeDictionary(isRoot ? root : text, m_context, content->entries, stub->handle,
                                isRoot ? 0 : ownerHandle(m_core.wellKnown().rootDictionary));
            }
        }
    }
    for (KdDbStub* const stub : m_new) {
        const auto* const content = contentOf<MlineStyleContent>(*stub);
        if (stub->kind == ObjectKind::mlineStyle && content != nullptr) {
            KdDbStub* const owner =
                stub->owner != nullptr ? stub->owner : m_core.wellKnown().styleDictionary;
            writeStyle(text, m_context, *content, stub->handle, ownerHandle(owner));
        }
    }
    m_layout.addObjects(root.text(), text.text());
}

std::string DrawingWriter::entries(std::string_view kind, const TagFormat& format,
                                   int& count) const {
    TagText text(format);
    count = 0;
    for (KdDbStub* const stub : m_new) {
        KdDbStub* const table = stub->owner;
        const std::uint64_t owner = table != nullptr ? table->handle : 0;
        if (stub->kind == ObjectKind::layer && kind == "LAYER") {
            if (const auto* const layer =
                    dynamic_cast<const KdDbLayerTableRecord*>(stub->object.get())) {
                writeLayer(text, m_context, *layer, stub->handle, owner);
                ++count;
            }
        } else if (stub->kind == ObjectKind::linetype && kind == "LTYPE") {
            if (const auto* const linetype =
                    dynamic_cast<const KdDbLinetypeTableRecord*>(stub->object.get())) {
                writeLinetype(text, m_context, *linetype, stub->handle, owner);
                ++count;
            }
        }
    }
    return text.take();
}

void DrawingWriter::writeTables() {
    struct Kind {
        std::string_view name;
        ObjectKind object;
        KdDbStub* table;
    };
    for (const Kind& kind : {Kind{"LTYPE", ObjectKind::linetype, m_core.wellKnown().linetypeTable},
                             Kind{"LAYER", ObjectKind::layer, m_core.wellKnown().layerTable}}) {
        int added = 0;
        const std::string text = entries(kind.name, m_layout.formatOf("TABLES"), added);
        const auto dropped = static_cast<int>(
            std::ranges::count(m_droppedTableRecords, kind.object, &KdDbStub::kind));
        if (added > 0 || dropped > 0) {
            m_layout.addTableEntries(m_context, kind.name, *kind.table, text, added,
                                     added - dropped);
        }
    }
}

void DrawingWriter::writeEntities() {
    for (KdDbStub* const stub : m_new) {
        const auto* const mline = contentOf<MlineContent>(*stub);
        const auto* const plain = contentOf<PlainContent>(*stub);
        if (mline == nullptr && plain == nullptr) {
            continue;
        }
        BlockEntities& block = *m_core.blocks().blockOf(*stub);
        const EntityPlace place{stub->handle, ownerHandle(block.record),
                                m_layout.isActivePaperSpace(block)};
        TagText text(m_layout.formatOfBlock(block));
        if (mline != nullptr) {
            writeMline(text, m_context, *mline, place);
        } else {
            writePlain(text, m_context, *plain, place);
        }
        m_layout.addEntity(block, text.text());
    }
}

// The seed has to lie above every handle in the file, but a file to which nothing came keeps the
// one it has.
void DrawingWriter::writeHeader() {
    std::erase_if(m_variables, [](const auto& change) { return change.first == "HANDSEED"; });
    if (!m_new.empty()) {
        std::uint64_t seed = 0;
        if (const HeaderValue* const value = m_core.variables().find("HANDSEED")) {
            const auto* const handle = std::get_if<HeaderHandle>(value);
            seed = handle != nullptr ? handle->value : 0;
        }
        std::uint64_t highest = m_document.cut.highestHandle;
        for (const KdDbStub* const stub : m_new) {
            highest = std::max(highest, stub->handle);
        }
        for (const KdDbStub* const table :
             {m_core.wellKnown().layerTable, m_core.wellKnown().linetypeTable}) {
            highest = std::max(highest, table != nullptr ? table->handle : 0);
        }
        const bool isLast = highest == std::numeric_limits<std::uint64_t>::max();
        m_variables.emplace_back("HANDSEED",
                                 HeaderHandle{std::max(seed, isLast ? highest : highest + 1)});
        if (m_document.version.empty()) {
            // Readers take a drawing without a version for one from before multilines.
            m_variables.emplace(m_variables.begin(), "ACADVER", std::wstring(kUsualVersion));
        }
    }
    if (!m_variables.empty()) {
        m_layout.setVariables(m_context, m_variables);
    }
}

} // namespace

std::vector<FileEdit> collectEdits(const DrawingDocument& document, DatabaseCore& core,
                                   std::vector<DrawingWarning>* warnings) {
    std::vector<DrawingWarning> ignored;
    return DrawingWriter(document, core).run(warnings != nullptr ? *warnings : ignored);
}

bool writeEdited(std::string_view bytes, const std::vector<FileEdit>& edits, bool hasLines,
                 const std::function<bool(std::string_view)>& sink) {
    constexpr std::size_t kPiece = std::size_t{1} << 20U;
    const std::size_t start = bytes.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
    std::string pending;
    const auto put = [&](std::string_view piece) {
        if (pending.size() + piece.size() < kPiece) {
            pending += piece;
            return true;
        }
        const bool done = sink(pending) && (piece.size() < kPiece || sink(piece));
        pending = piece.size() < kPiece ? piece : std::string_view();
        return done;
    };
    std::size_t at = 0;
    char last = '\n';
    for (const FileEdit& edit : edits) {
        const std::string_view kept = bytes.substr(at, edit.offset > at ? edit.offset - at : 0);
        last = kept.empty() ? last : kept.back();
        const bool endLine = hasLines && edit.length == 0 && last != '\n' && edit.offset > start;
        const std::string_view lineEnd = edit.text.find('\r') != std::string::npos ? "\r\n" : "\n";
        if (!put(kept) || (endLine && !put(lineEnd)) || !put(edit.text)) {
            return false;
        }
        last = edit.text.empty() ? last : edit.text.back();
        at = std::max(at, edit.offset + edit.length);
    }
    return put(bytes.substr(at)) && sink(pending);
}

} // namespace orvex
