#include "DrawingReader.h"

#include "BlockList.h"
#include "CStdStr.h"
#include "DatabaseCore.h"
#include "DictionaryRecord.h"
#include "HeaderRecord.h"
#include "NumberText.h"
#include "ObjectTable.h"
#include "StyleRecord.h"
#include "TableRecords.h"
#include "WellKnownObjects.h"
#include "textCodec.h"

#include <algorithm>

namespace orvex {

namespace {

constexpr std::string_view kNewestVersion = "AC1032";
constexpr double kPartOfCutting = 0.7; // of the whole work

class DrawingReader {
public:
    DrawingReader(DrawingDocument& document, DatabaseCore& core, const Progress& progress,
                  std::vector<DrawingWarning>& warnings)
        : m_document(document), m_records(document.cut.records), m_core(core), m_progress(progress),
          m_warnings(warnings) {}

    std::optional<Failure> run();

private:
    std::optional<Failure> cut(std::size_t start);
    void readSections();
    [[nodiscard]] bool goesOn(std::uint32_t record);
    void warnOfForm(std::size_t start);
    void warnOfVersion(std::string_view version);
    void findSections();
    void readHeader();
    void readTables(const RecordRun& section);
    void startTable(std::uint32_t record);
    void addTableEntry(RecordRun& table, std::uint32_t record);
    void readBlocks(const RecordRun& section);
    void startBlock(std::uint32_t record);
    void readEntities(const RecordRun& section);
    void addEntity(std::uint32_t record, BlockEntities& block);
    void readObjects(const RecordRun& section);
    KdDbStub* addDictionary(std::uint32_t record, KdDbStub* owner);
    void addStyles(const RecordRun& section);
    void noteObject(KdDbStub& stub);
    void noteEntries(const KdDbStub& dictionary);
    void warnOfStyles();
    void completeDefaults();
    BlockEntities& blockNamed(const std::wstring& name);

    [[nodiscard]] std::string_view nameOf(std::uint32_t record) const {
        return readName(m_document.bytes, m_document.span(record));
    }
    // Asked for in the order of the file, so that no byte is counted twice.
    [[nodiscard]] std::size_t lineOf(std::size_t offset) {
        const char* const bytes = m_document.bytes.data();
        m_linesCounted +=
            static_cast<std::size_t>(std::count(bytes + m_countedTo, bytes + offset, '\n'));
        m_countedTo = offset;
        return 1 + m_linesCounted;
    }
    void warn(std::size_t line, std::string text) { m_warnings.push_back({line, std::move(text)}); }

    DrawingDocument& m_document;
    RecordTable& m_records;
    DatabaseCore& m_core;
    const Progress& m_progress;
    bool m_isGivenUp = false;
    std::vector<DrawingWarning>& m_warnings;
    std::unordered_map<std::wstring, KdDbStub*> m_blockRecords; // by name in one case
    std::size_t m_countedTo = 0;
    std::size_t m_linesCounted = 0;
};

std::optional<Failure> DrawingReader::run() {
    const std::string_view bytes = m_document.bytes;
    const std::size_t start = bytes.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
    if (auto error = cut(start)) {
        return error;
    }
    warnOfForm(start);
    findSections();
    readHeader();
    m_warnings.insert(m_warnings.end(), m_document.cut.warnings.begin(),
                      m_document.cut.warnings.end());
    m_core.objects().noteHighestHandle(m_document.cut.highestHandle);
    readSections();
    if (m_isGivenUp) {
        return Failure{FailureCause::interrupted, {}, 0, "interrupted"};
    }
    warnOfStyles();
    completeDefaults();
    return std::nullopt;
}

// The first part of the work; making the objects is the rest.
std::optional<Failure> DrawingReader::cut(std::size_t start) {
    Progress progress;
    if (m_progress) {
        progress = [this](double done) { return m_progress(done * kPartOfCutting); };
    }
    return cutDrawing(m_document.bytes, start, progress, m_document.cut);
}

void DrawingReader::readSections() {
    for (const RecordRun& section : m_document.sections) {
        if (section.name == "TABLES") {
            readTables(section);
        }
    }
    for (const RecordRun& section : m_document.sections) {
        if (section.name == "BLOCKS") {
            readBlocks(section);
        }
    }
    // A drawing has a model space, whether its file lists it as a block or not.
    if (BlockEntities& model = m_core.blocks().modelSpace(); model.record == nullptr) {
        model.record = m_blockRecords[foldCase(model.name)];
    }
    for (const RecordRun& section : m_document.sections) {
        if (section.name == "ENTITIES") {
            readEntities(section);
        }
    }
    if (const RecordRun* const objects = m_document.findSection("OBJECTS");
        objects != nullptr && !m_isGivenUp) {
        readObjects(*objects);
    }
}

// Asked at each record of long runs; reports the progress now and then.
bool DrawingReader::goesOn(std::uint32_t record) {
    constexpr std::uint32_t kStep = 4096; // records between two calls
    if (m_progress && record % kStep == 0 && !m_isGivenUp) {
        const double part = static_cast<double>(record) / static_cast<double>(m_records.size());
        m_isGivenUp = !m_progress(kPartOfCutting + (1.0 - kPartOfCutting) * part);
    }
    return !m_isGivenUp;
}

void DrawingReader::warnOfForm(std::size_t start) {
    const CutDrawing& cut = m_document.cut;
    if (start > 0) {
        warn(1, "a byte-order mark stands before the drawing");
    }
    const std::size_t end = m_records.begin(m_records.size());
    const bool unended = end > start && m_document.bytes[end - 1] != '\n';
    const std::size_t lineFeeds = cut.lineEnds.lineFeeds - (unended ? 1 : 0);
    if (cut.lineEnds.carriageReturns > 0 && cut.lineEnds.carriageReturns < lineFeeds) {
        warn(0, "the lines end in different ways");
    }
    if (unended) {
        warn(cut.lineCount, "the last line has no end");
    }
    if (!cut.hasEnd) {
        warn(cut.lineCount,
             m_document.bytes.empty() ? "the drawing is empty" : "the drawing stops without EOF");
    }
    if (end < m_document.bytes.size()) {
        warn(cut.lineCount + 1, "bytes follow after EOF");
    }
}

void DrawingReader::findSections() {
    RecordRun* open = nullptr;
    for (std::uint32_t i = 0; i < m_records.size(); ++i) {
        const RecordKind kind = m_records[i].kind;
        const bool opens = kind == RecordKind::section;
        if (!opens && kind != RecordKind::endSection && kind != RecordKind::endOfFile) {
            continue;
        }
        if (open != nullptr) {
            open->end = i;
            open->closed = kind == RecordKind::endSection;
            open = nullptr;
        }
        if (opens) {
            open = &m_document.sections.emplace_back();
            open->name = nameOf(i);
            open->begin = i;
        }
    }
    if (open != nullptr) {
        open->end = m_records.size();
    }
}

void DrawingReader::readHeader() {
    HeaderBasics basics;
    const RecordRun* const header = m_document.findSection("HEADER");
    if (header != nullptr) {
        basics = readBasics(m_document.bytes, m_document.span(header->begin));
    }
    m_document.text = DrawingText(basics.version, basics.codePage);
    m_document.version = basics.version;
    warnOfVersion(basics.version);
    if (header != nullptr) {
        readVariables(m_document.context(m_core), m_document.span(header->begin));
    }
    m_document.variables = m_core.variables();
}

void DrawingReader::warnOfVersion(std::string_view version) {
    if (version.empty()) {
        warn(0, "the drawing doesn't say its version");
    } else if (version < kOldestVersion) {
        warn(0, "the drawing's version " + std::string(version) + " is older than " +
                    std::string(kOldestVersion));
    } else if (version > kNewestVersion) {
        warn(0, "the drawing's version " + std::string(version) + " is newer than " +
                    std::string(kNewestVersion));
    }
}

// ---- tables -------------------------------------------------------------------------------------

void DrawingReader::readTables(const RecordRun& section) {
    RecordRun* table = nullptr;
    for (std::uint32_t i = section.begin + 1; i < section.end; ++i) {
        const RecordKind kind = m_records[i].kind;
        if (kind == RecordKind::table || kind == RecordKind::endTable) {
            if (table != nullptr) {
                table->end = i;
                table->closed = kind == RecordKind::endTable;
                table = nullptr;
            }
            if (kind == RecordKind::table) {
                startTable(i);
                table = &m_document.tables.back();
            }
        } else if (table != nullptr) {
            addTableEntry(*table, i);
        }
    }
    if (table != nullptr) {
        table->end = section.end;
    }
}

void DrawingReader::startTable(std::uint32_t record) {
    RecordRun& table = m_document.tables.emplace_back();
    table.name = nameOf(record);
    table.begin = record;
    struct Known {
        std::string_view kind;
        ObjectKind object;
        KdDbStub** place;
    };
    for (const Known& known :
         {Known{"LAYER", ObjectKind::layerTable, &m_core.wellKnown().layerTable},
          Known{"LTYPE", ObjectKind::linetypeTable, &m_core.wellKnown().linetypeTable},
          Known{"BLOCK_RECORD", ObjectKind::blockTable, &m_core.wellKnown().blockTable}}) {
        if (table.name == known.kind) {
            if (*known.place == nullptr) {
                *known.place = &m_core.objects().addStub(known.object, m_records[record].handle,
                                                         record, nullptr);
            }
            table.stub = *known.place; // a second table of a kind counts as more of the first
        }
    }
}

void DrawingReader::addTableEntry(RecordRun& table, std::uint32_t record) {
    ++table.entries;
    const Record& entry = m_records[record];
    const auto add = [&](ObjectKind kind, std::vector<KdDbStub*>& list) {
        list.push_back(&m_core.objects().addStub(kind, entry.handle, record, table.stub));
        return list.back();
    };
    if (entry.kind == RecordKind::layer && table.name == "LAYER") {
        add(ObjectKind::layer, m_document.layers);
    } else if (entry.kind == RecordKind::linetype && table.name == "LTYPE") {
        add(ObjectKind::linetype, m_document.linetypes);
    } else if (entry.kind == RecordKind::blockRecord && table.name == "BLOCK_RECORD") {
        KdDbStub* const stub = add(ObjectKind::blockRecord, m_document.blockRecords);
        m_blockRecords.try_emplace(foldCase(m_document.text.decode(nameOf(record))), stub);
    }
}

// ---- blocks and entities ------------------------------------------------------------------------

BlockEntities& DrawingReader::blockNamed(const std::wstring& name) {
    BlockEntities* block = m_core.blocks().find(name);
    if (block == nullptr) {
        block = &m_core.blocks().add(name);
        if (const auto found = m_blockRecords.find(foldCase(name)); found != m_blockRecords.end()) {
            block->record = found->second;
        }
    }
    return *block;
}

// All blocks first, then what stands in them: looking up a block is quick once they are all known.
void DrawingReader::readBlocks(const RecordRun& section) {
    const std::size_t first = m_document.blocks.size();
    bool open = false;
    for (std::uint32_t i = section.begin + 1; i < section.end && goesOn(i); ++i) {
        const RecordKind kind = m_records[i].kind;
        if (kind != RecordKind::block && kind != RecordKind::endBlock) {
            continue;
        }
        if (open) {
            m_document.blocks.back().end = i;
            m_document.blocks.back().closed = kind == RecordKind::endBlock;
        }
        open = kind == RecordKind::block;
        if (open) {
            startBlock(i);
            m_document.blocks.back().end = section.end;
        }
    }
    for (std::size_t block = first; block < m_document.blocks.size(); ++block) {
        const RecordRun& run = m_document.blocks[block];
        for (std::uint32_t i = run.begin + 1; i < run.end && goesOn(i); ++i) {
            addEntity(i, *run.block);
        }
    }
}

void DrawingReader::startBlock(std::uint32_t record) {
    RecordRun& run = m_document.blocks.emplace_back();
    run.name = nameOf(record);
    run.begin = record;
    run.block = &blockNamed(m_document.text.decode(run.name));
    const RecordSpan span = m_document.span(record);
    TagReader reader(m_document.bytes, span.begin, span.end);
    Tag tag;
    while (reader.next(tag) == TagReader::Result::tag) {
        KdGePoint3d& base = run.block->basePoint;
        double* const part = tag.code == 10   ? &base.x
                             : tag.code == 20 ? &base.y
                             : tag.code == 30 ? &base.z
                                              : nullptr;
        if (part != nullptr) {
            *part = parseReal(tag.value).value_or(*part);
        }
    }
}

void DrawingReader::readEntities(const RecordRun& section) {
    BlockEntities& model = m_core.blocks().modelSpace();
    BlockEntities* paper = nullptr;
    for (std::uint32_t i = section.begin + 1; i < section.end && goesOn(i); ++i) {
        if (!m_records[i].inPaperSpace) {
            addEntity(i, model);
            continue;
        }
        if (paper == nullptr) {
            paper = &blockNamed(L"*Paper_Space");
        }
        addEntity(i, *paper);
    }
}

void DrawingReader::addEntity(std::uint32_t record, BlockEntities& block) {
    const Record& entry = m_records[record];
    if (isPartOfEntity(entry.kind)) {
        return;
    }
    const ObjectKind kind = entry.kind != RecordKind::mline ? ObjectKind::entity
                            : entry.opaque                  ? ObjectKind::opaque
                                                            : ObjectKind::mline;
    m_core.blocks().appendEntity(
        block, m_core.objects().addStub(kind, entry.handle, record, block.record));
}

// ---- objects ------------------------------------------------------------------------------------

void DrawingReader::readObjects(const RecordRun& section) {
    std::uint32_t root = section.begin + 1;
    while (root < section.end && m_records[root].kind != RecordKind::dictionary) {
        ++root;
    }
    if (root < section.end) {
        m_core.wellKnown().rootDictionary = addDictionary(root, nullptr);
        std::uint64_t handle = 0;
        for (const DictionaryPair& pair : readPairs(m_document.bytes, m_document.span(root))) {
            if (StrCmpI(m_document.text.decode(pair.key).c_str(), L"ACAD_MLINESTYLE") == 0) {
                handle = pair.handle;
                break;
            }
        }
        for (std::uint32_t i = root + 1; handle != 0 && i < section.end; ++i) {
            if (m_records[i].handle == handle && m_records[i].kind == RecordKind::dictionary) {
                m_core.wellKnown().styleDictionary =
                    addDictionary(i, m_core.wellKnown().rootDictionary);
                break;
            }
        }
    }
    addStyles(section);
    for (const KdDbStub* const dictionary :
         {m_core.wellKnown().rootDictionary, m_core.wellKnown().styleDictionary}) {
        if (dictionary != nullptr) {
            noteEntries(*dictionary);
        }
    }
}

KdDbStub* DrawingReader::addDictionary(std::uint32_t record, KdDbStub* owner) {
    const std::uint64_t handle = m_records[record].handle;
    KdDbStub& stub = m_core.objects().addStub(ObjectKind::dictionary, handle, record, owner);
    noteObject(stub);
    return &stub;
}

void DrawingReader::addStyles(const RecordRun& section) {
    for (std::uint32_t i = section.begin + 1; i < section.end; ++i) {
        Record& record = m_records[i];
        if (record.kind != RecordKind::mlineStyle) {
            continue;
        }
        if (const auto failure = checkStyle(m_document.bytes, m_document.span(i))) {
            record.opaque = true;
            warn(lineOf(record.offset), "a multiline style contradicts itself, " + failure->text);
        }
        KdDbStub& stub =
            m_core.objects().addStub(record.opaque ? ObjectKind::opaque : ObjectKind::mlineStyle,
                                     record.handle, i, m_core.wellKnown().styleDictionary);
        noteObject(stub);
    }
}

// Entries stand for objects that aren't understood, too; those are named by their handle alone.
void DrawingReader::noteEntries(const KdDbStub& dictionary) {
    for (const DictionaryPair& pair :
         readPairs(m_document.bytes, m_document.span(dictionary.record))) {
        if (pair.handle != 0 && !m_document.objects.contains(pair.handle)) {
            noteObject(
                m_core.objects().addStub(ObjectKind::opaque, pair.handle, kNoRecord, nullptr));
        }
    }
}

// What has no handle can't be named.
void DrawingReader::noteObject(KdDbStub& stub) {
    if (stub.handle != 0) {
        m_document.objects.try_emplace(stub.handle, &stub);
    }
}

void DrawingReader::warnOfStyles() {
    std::vector<std::size_t> lines;
    for (const auto& [handle, line] : m_document.cut.namedStyles) {
        const KdDbStub* const style = m_document.findObject(handle);
        if (style == nullptr || style->kind != ObjectKind::mlineStyle) {
            lines.push_back(line);
            // Nothing new may take the missing style's handle and so pass for it.
            m_core.objects().noteHighestHandle(handle);
        }
    }
    std::ranges::sort(lines);
    for (const std::size_t line : lines) {
        warn(line, "a multiline names a style that the drawing doesn't have");
    }
}

void DrawingReader::completeDefaults() {
    const std::size_t present = m_core.objects().stubs().size();
    m_core.wellKnown().completeDefaults();
    const auto keep = [this](const KdDbStub& stub) {
        m_document.untouched[&stub] = stub.object != nullptr ? stub.object->content() : nullptr;
    };
    keep(*m_core.wellKnown().rootDictionary);
    keep(*m_core.wellKnown().styleDictionary);
    for (std::size_t i = present; i < m_core.objects().stubs().size(); ++i) {
        keep(m_core.objects().stubs()[i]);
    }
}

} // namespace

std::optional<Failure> readDrawing(DrawingDocument& document, DatabaseCore& core,
                                   const Progress& progress,
                                   std::vector<DrawingWarning>& warnings) {
    return DrawingReader(document, core, progress, warnings).run();
}

} // namespace orvex
