// What drawings with random faults read as, and what becomes of them when they are edited, saved
// and converted. All of it is settled, and there is too much to name it case by case.

#include "AtomicFile.h"
#include "BlockList.h"
#include "Chance.h"
#include "ChangeLog.h"
#include "DatabaseCore.h"
#include "Digest.h"
#include "DrawingConversion.h"
#include "DrawingExport.h"
#include "KdDbMline.h"
#include "KdDbMlineStyle.h"
#include "MlineContent.h"
#include "MlineStyleContent.h"
#include "ObjectTable.h"
#include "RandomEdits.h"
#include "TableRecordContent.h"
#include "TestPaths.h"
#include "sampleDrawing.h"
#include "wholeFiles.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <gtest/gtest.h>
#include <iterator>
#include <unistd.h>

using orvex::testing::Digest;

// ---- what counts of what was read ---------------------------------------------------------------

static void describe(Digest& digest, const KdCmColor& color) {
    digest.add(color.color(), color.colorIndex(), color.colorNameForDisplay());
}

namespace orvex {

static void describe(Digest& digest, const LineShape& line) {
    digest.add(line.start, line.end);
}
static void describe(Digest& digest, const PolylineShape::Vertex& vertex) {
    digest.add(vertex.position, vertex.bulge);
}
static void describe(Digest& digest, const PolylineShape& polyline) {
    digest.add(polyline.vertices, polyline.closed, polyline.normal);
}
static void describe(Digest& digest, const ConicShape& conic) {
    digest.add(conic.center, conic.major, conic.minor, conic.start, conic.end);
}
static void describe(Digest& digest, const TextShape& text) {
    digest.add(text.position, text.direction, text.up, text.height, text.horizontal, text.vertical,
               text.lines);
}
static void describe(Digest& digest, const InsertShape& insert) {
    digest.add(insert.block, insert.position, insert.xAxis, insert.yAxis, insert.zAxis,
               insert.columns, insert.rows, insert.columnStep, insert.rowStep, insert.attributes);
}
static void describe(Digest& digest, const SolidShape& solid) {
    digest.add(solid.corners);
}
static void describe(Digest& digest, const OutlinesShape& outlines) {
    digest.add(outlines.paths, outlines.arcs);
}
static void describe(Digest& digest, const PointShape& point) {
    digest.add(point.position);
}
static void describe(Digest& digest, const EntityTraits& traits) {
    digest.add(traits.layer, traits.linetype, traits.color, traits.linetypeScale, traits.lineweight,
               traits.visible, traits.inPaperSpace);
}
static void describe(Digest& digest, const StyleElement& element) {
    digest.add(element.offset, element.color, element.linetypeName, element.linetype.isNull());
}
static void describe(Digest& digest, const ChainVertex& vertex) {
    digest.add(vertex.position, vertex.axis, vertex.miter);
}
static void describe(Digest& digest, const HeaderHandle& handle) {
    digest.add(handle.value);
}
static void describe(Digest& digest, const DrawingWarning& warning) {
    digest.add(warning.line, warning.text);
}

} // namespace orvex

namespace {

using namespace orvex;
using namespace orvex::testing;

void addContent(Digest& digest, const ObjectContent* content) {
    if (const auto* const layer = dynamic_cast<const LayerContent*>(content)) {
        digest.add(layer->name, layer->color, layer->linetype, layer->lineweight, layer->off,
                   layer->frozen, layer->locked);
    } else if (const auto* const type = dynamic_cast<const LinetypeContent*>(content)) {
        digest.add(type->name, type->comments, type->dashes);
    } else if (const auto* const style = dynamic_cast<const MlineStyleContent*>(content)) {
        digest.add(style->name, style->description, style->flags, style->fillColor,
                   style->startAngle, style->endAngle, style->elements);
    } else if (const auto* const mline = dynamic_cast<const MlineContent*>(content)) {
        digest.add(mline->styleName, mline->scale, mline->justification, mline->flags(),
                   mline->normal, mline->vertices);
        for (unsigned v = 0; v < mline->vertices.size(); ++v) {
            for (unsigned k = 0; k < mline->lists.elementCount(v); ++k) {
                digest.add(mline->lists.line(v, k), mline->lists.area(v, k));
            }
        }
    }
}

// ---- faults -------------------------------------------------------------------------------------

struct TagLines {
    std::string code, value;
};

class Faults {
public:
    Faults(const std::string& text, Chance& chance) : m_chance(chance) {
        for (std::size_t at = 0; at < text.size();) {
            const std::size_t value = text.find('\n', at) + 1;
            const std::size_t end = text.find('\n', value) + 1;
            m_tags.push_back({text.substr(at, value - at), text.substr(value, end - value)});
            at = end;
        }
    }

    std::string damaged() {
        static constexpr const char* kVersions[] = {"AC1009\n", "AC1015\n", "AC1021\n"};
        static constexpr const char* kPages[] = {"ANSI_932\n", "ansi_1251\n", "dos850\n"};
        std::vector<TagLines> tags = m_tags;
        for (std::size_t i = 1; i < tags.size(); ++i) {
            if (tags[i - 1].value == "$ACADVER\n" && m_chance.oneIn(3)) {
                tags[i].value = m_chance.of(kVersions);
            } else if (tags[i - 1].value == "$DWGCODEPAGE\n" && m_chance.oneIn(2)) {
                tags[i].value = m_chance.of(kPages);
            }
        }
        for (int count = m_chance.below(5); count > 0; --count) {
            damage(tags);
        }
        if (m_chance.oneIn(12)) {
            tags.resize(1 + m_chance.place(tags));
        }
        std::string text;
        for (const TagLines& tag : tags) {
            text += tag.code + tag.value;
        }
        if (m_chance.oneIn(32)) {
            text.resize(m_chance.place(text));
        }
        return m_chance.oneIn(16) ? withReturns(text) : text;
    }

private:
    void damage(std::vector<TagLines>& tags) {
        static constexpr const char* kValues[] = {
            "-1\n",  "2.5\n", "99999\n", "0\n", "{\n",    "\n",          "1e999\n",
            " 7 \n", "2\n",   "nan\n",   "+\n", "-0.0\n", "\xE4\\U+1\n", "3\n",
        };
        static const TagLines kTags[] = {
            {"999\n", "a comment\n"}, {"1001\n", "APP\n"}, {"1000\n", "a\n"},
            {"1070\n", "3\n"},        {"102\n", "{X\n"},   {"102\n", "}\n"},
        };
        const auto at = tags.begin() + static_cast<std::ptrdiff_t>(m_chance.place(tags));
        const TagLines& other = m_chance.of(tags);
        switch (m_chance.below(8)) {
        case 0:
            tags.erase(at);
            break;
        case 1:
            tags.insert(at, TagLines(other));
            break;
        case 2:
            at->code = other.code;
            break;
        case 3:
            at->value = other.value;
            break;
        case 4:
            std::swap(at->value, (at + (at + 1 == tags.end() ? 0 : 1))->value);
            break;
        case 5:
            tags.insert(at, m_chance.of(kTags));
            break;
        default:
            at->value = m_chance.of(kValues);
            break;
        }
    }

    Chance& m_chance;
    std::vector<TagLines> m_tags;
};

// ---- the digests --------------------------------------------------------------------------------

enum Aspect : std::size_t { kOpening, kObjects, kShapes, kSaved, kConverted, kExported, kAspects };
constexpr const char* kAspectNames[] = {"warnings and failures", "objects",   "shapes",
                                        "what is saved",         "converted", "exported"};
using Digests = std::array<Digest, kAspects>;

void addRead(Digests& digests, DrawingFile& file) {
    DatabaseCore& core = file.database().core();
    digests[kOpening].add(file.warnings());
    Digest& objects = digests[kObjects];
    for (const auto& [name, value] : core.variables().all()) {
        objects.add(name, value);
    }
    for (const BlockEntities& block : core.blocks().all()) {
        objects.add(block.name, block.basePoint);
        for (const KdDbStub* const entity : block.entities) {
            objects.add(entity->handle);
        }
    }
    for (std::size_t i = 0; i < core.objects().stubs().size(); ++i) {
        KdDbStub& stub = core.objects().stubs()[i];
        objects.add(stub.handle, stub.kind, stub.owner != nullptr ? stub.owner->handle : 0);
        if (stub.kind == ObjectKind::entity) {
            digests[kShapes].add(core.objects().source()->shapeOf(stub));
        }
        if (const KdDbObject* const object = core.load(stub)) {
            if (const auto* const entity = dynamic_cast<const KdDbEntity*>(object)) {
                objects.add(entity->traits());
            }
            addContent(objects, object->content().get());
        }
    }
}

void addEdited(Digest& digest, DrawingFile& file, Chance& chance) {
    DatabaseCore& core = file.database().core();
    RandomEdits edits(file, chance);
    core.changes().beginCommand();
    for (int count = 1 + chance.below(6); count > 0; --count) {
        edits.edit();
    }
    core.changes().endCommand();
    digest.add(file.bytes());
    if (chance.oneIn(8)) {
        EXPECT_FALSE(file.save("/dev/null"));
        digest.add(file.savingWarnings());
    }
}

void addConverted(Digest& digest, const std::string& bytes, DrawingForm form) {
    const auto converted = convertBytes(bytes, form);
    if (!converted) {
        digest.add(messageOf(converted.failure()));
        return;
    }
    digest.add(converted->bytes);
    digest.add(converted->warnings);
}

void addExported(Digest& digest, DrawingFile& file, ExportForm form) {
    const auto explode = [](const MlineContent& content) -> Result<std::vector<PlainContent>> {
        std::vector<PlainContent> parts(content.vertices.size() + 1);
        for (std::size_t i = 0; i < parts.size(); ++i) {
            parts[i].traits = content.traits;
            parts[i].shape = LineShape{{1.0, 2.0, 0.0}, {3.0, 4.0, static_cast<double>(i)}};
        }
        return parts;
    };
    const auto path =
        std::filesystem::temp_directory_path() / ("settled-" + std::to_string(getpid()) + ".dxf");
    AtomicFile target(path.string());
    if (const auto failure = file.saveExported(target, {form, explode})) {
        digest.add(failure->text);
        return;
    }
    digest.add(readFile(path));
    digest.add(file.savingWarnings());
    std::filesystem::remove(path);
}

void addDrawing(Digests& digests, const std::string& bytes, Chance& chance) {
    const auto opened = DrawingFile::openBytes(bytes);
    if (!opened) {
        digests[kOpening].add(messageOf(opened.failure()));
        return;
    }
    addRead(digests, **opened);
    ASSERT_TRUE(sameText((*opened)->bytes(), bytes)) << "read, it is saved as it came";
    if (chance.oneIn(80)) {
        addExported(digests[kExported], **opened,
                    chance.oneIn(2) ? ExportForm::lines : ExportForm::blocks);
    }
    addEdited(digests[kSaved], **opened, chance);
}

std::string corpusFile(const char* name) {
    return readFile(sourceDir() / "tests/host_drawing/corpus" / name);
}

constexpr int kRounds = 8000;

TEST(Settled, isWhatDrawingsWithFaultsReadAsAndAreSavedAs) {
    const struct {
        const char* name;
        std::array<const char*, kAspects> digests;
    } cases[] = {
        {"sample.dxf",
         {"DA782EFD46BF2137", "02890FA8FCC28FEF", "47A8C91B2932223E", "975A6CF483D1057E",
          "093EC1AAFF80B6C4", "778E5DA0840B9751"}},
        {"kinds.dxf",
         {"19D0176F765DD22D", "DC4EEBC281D33177", "342226DB0B18B8C6", "22F0A4A437708299",
          "AA3E1C74D0DBFCB6", "19281D0178FEB868"}},
        {"bare.dxf",
         {"D2561662CC53A3E0", "0DAAC706F0B1FBD1", "94518FEB901C5C9A", "86A987ABE0B3D91C",
          "A191B5653DDE0C23", "A8616E329DDF9A6B"}},
        {"new.dxf",
         {"4EE8B24BC245F2F8", "94E62DFA93063501", "0000000000000000", "5C0C2FC9FFEC8BE5",
          "A22D6367D4038135", "4AD00E0F3D485FFE"}},
    };
    for (const auto& c : cases) {
        Chance chance(5);
        Faults faults(corpusFile(c.name), chance);
        Digests digests;
        for (int round = 0; round < kRounds; ++round) {
            const std::string bytes = faults.damaged();
            addDrawing(digests, bytes, chance);
            if (round % 4 == 0) {
                addConverted(digests[kConverted], bytes, DrawingForm::binary);
                if (const auto binary = convertBytes(bytes, DrawingForm::binary)) {
                    std::string changed = binary->bytes;
                    const std::size_t at = chance.place(changed);
                    changed[at] = static_cast<char>(chance.word());
                    if (chance.oneIn(2)) { // in numbers, no number
                        changed.replace(at, 8, 8, '\xFF');
                    }
                    addConverted(digests[kConverted], changed, DrawingForm::text);
                    addDrawing(digests, round % 8 == 0 ? changed : binary->bytes, chance);
                }
            }
        }
        for (std::size_t i = 0; i < kAspects; ++i) {
            EXPECT_EQ(digests[i].text(), c.digests[i]) << c.name << ", " << kAspectNames[i];
        }
    }
}

} // namespace
