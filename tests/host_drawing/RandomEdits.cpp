#include "RandomEdits.h"

#include "BlockList.h"
#include "DatabaseCore.h"
#include "DictionaryContent.h"
#include "KdDbDictionary.h"
#include "KdDbLayerTable.h"
#include "KdDbLinetypeTable.h"
#include "KdDbMline.h"
#include "KdDbMlineStyle.h"
#include "MlineContent.h"
#include "ObjectTable.h"
#include "PlainEntity.h"
#include "WellKnownObjects.h"

#include <functional>
#include <iterator>

namespace orvex::testing {

namespace {

// Gives one element of a vertex another list of lines.
void setLines(KdDbMline& mline, int vertex, std::initializer_list<double> values) {
    KdArray<void*> parameters;
    if (mline.getParametersAt(vertex, parameters) != Status::done) {
        return;
    }
    VoVector<KdMLSegment> record(*static_cast<VoVector<KdMLSegment>*>(parameters[0]));
    if (record.isEmpty()) {
        return;
    }
    record[0].m_lineParams.resize(0);
    for (const double value : values) {
        record[0].m_lineParams.append(value);
    }
    KdArray<void*> changed;
    changed.append(&record);
    mline.setParametersAt(vertex, changed);
}

} // namespace

RandomEdits::RandomEdits(DrawingFile& file, Chance& chance) : m_file(file), m_chance(chance) {
    for (KdDbStub& stub : file.database().core().objects().stubs()) {
        switch (stub.kind) {
        case ObjectKind::mline:
            m_mlines.push_back(&stub);
            break;
        case ObjectKind::mlineStyle:
            m_styles.push_back(&stub);
            break;
        case ObjectKind::layer: // of one that the file hasn't, a change may show nowhere
            if (stub.record != kNoRecord) {
                m_layers.push_back(&stub);
            }
            break;
        default:
            break;
        }
    }
}

template <class Object>
Object* RandomEdits::anyOf(const std::vector<KdDbStub*>& stubs) {
    if (stubs.empty()) {
        return nullptr;
    }
    KdDbStub& stub = *m_chance.of(stubs);
    return dynamic_cast<Object*>(m_file.database().core().open(stub, true));
}

void RandomEdits::edit() {
    const double number = m_chance.below(2) == 0 ? -0.0 : m_chance.below(5) / 3.0;
    const std::wstring key(1, static_cast<wchar_t>(L'A' + m_chance.below(3)));
    const std::function<void()> edits[] = {
        [&] { editMline(number, key.c_str()); },
        [&] { editMline(number, key.c_str()); },
        [&] { editMline(number, key.c_str()); },
        [&] { editStyle(number, key.c_str()); },
        [&] { editDictionary(key.c_str()); },
        [&] { editTables(key.c_str()); },
        [&] { editVariable(number); },
        [&] {
            auto made = std::make_unique<KdDbMline>();
            made->setDatabaseDefaults(&m_file.database());
            made->appendSeg({number, 1.0, 2.0});
            add(std::move(made), ObjectKind::mline);
        },
    };
    m_chance.of(edits)();
}

void RandomEdits::add(std::unique_ptr<KdDbObject> entity, ObjectKind kind) {
    DatabaseCore& core = m_file.database().core();
    KdDbStub& stub = core.adopt(std::move(entity), kind, nullptr);
    core.blocks().appendEntity(core.blocks().modelSpace(), stub);
    if (kind == ObjectKind::mline) {
        m_mlines.push_back(&stub);
    }
}

void RandomEdits::editMline(double number, const wchar_t* key) {
    auto* const mline = anyOf<KdDbMline>(m_mlines);
    if (mline == nullptr) {
        return;
    }
    const int vertex = mline->numVertices() > 0 ? m_chance.below(mline->numVertices()) : 0;
    KdGePoint3d point{number, 1.0, 2.0};
    const std::function<void()> edits[] = {
        [&] { mline->setScale(number); },
        [&] { mline->appendSeg(point); },
        [&] { mline->removeLastSeg(point); },
        [&] { mline->setClosedMline(!mline->closedMline()); },
        [&] { mline->setSupressEndCaps(!mline->supressEndCaps()); },
        [&] { mline->setJustification(m_chance.below(3)); },
        [&] { mline->setLayer(key); },
        [&] { mline->setLinetype(key); },
        [&] { mline->setColorIndex(static_cast<std::uint16_t>(m_chance.below(257))); },
        [&] {
            mline->setNormal({0.0, number, 1.0});
        },
        [&] {
            setLines(*mline, vertex, {number, 1.0, 2.0});
        },
        [&] {
            if (auto* const style = anyOf<KdDbMlineStyle>(m_styles)) {
                mline->setStyle(style->objectId());
            }
        },
        [&] {
            const auto content = std::static_pointer_cast<const MlineContent>(mline->content());
            auto moved = std::make_shared<MlineContent>(*content);
            for (ChainVertex& each : moved->vertices) {
                each.position.x += number;
                each.miter.y += number;
            }
            mline->setContent(moved);
        },
        [&] {
            auto made = std::make_unique<PlainEntity>();
            auto content = std::make_shared<PlainContent>();
            content->traits = shareTraits(mline->traits());
            content->shape = LineShape{{number, 2.0, 0.0}, {3.0, 4.0, 5.0}};
            content->replaces = mline->objectId();
            made->setContent(content);
            add(std::move(made), ObjectKind::entity);
            mline->erase();
        },
        [&] {
            KdDbMline copy; // changed and changed back
            copy.copyFrom(mline);
            mline->setScale(5.0);
            mline->copyFrom(&copy);
        },
    };
    m_chance.of(edits)();
}

void RandomEdits::editStyle(double number, const wchar_t* key) {
    auto* const style = anyOf<KdDbMlineStyle>(m_styles);
    if (style == nullptr) {
        return;
    }
    KdCmColor color;
    color.setColorIndex(static_cast<std::uint16_t>(1 + m_chance.below(3)));
    int index = 0;
    const std::function<void()> edits[] = {
        [&] { style->addElement(index, number, color, KdDbObjectId(), true); },
        [&] { style->addElement(index, number, color, KdDbObjectId(), true); },
        [&] { style->removeElementAt(0); },
        [&] { style->setFilled(m_chance.below(2) == 0); },
        [&] { style->setEndInnerArcs(!style->endInnerArcs()); },
        [&] { style->setFillColor(color); },
        [&] { style->setStartAngle(number); },
        [&] { style->setDescription((std::wstring(key) + L" \u00E4\n~\u4E2D").c_str()); },
    };
    m_chance.of(edits)();
}

void RandomEdits::editDictionary(const wchar_t* key) {
    DatabaseCore& core = m_file.database().core();
    auto* const dictionary =
        dynamic_cast<KdDbDictionary*>(core.open(*core.wellKnown().styleDictionary, true));
    if (dictionary == nullptr) {
        return;
    }
    // What is listed there and is no style, the dictionary itself for one, nobody takes for one.
    std::vector<std::wstring> styles{L"A"};
    for (const DictionaryEntry& entry : dictionary->entries().entries) {
        if (entry.id.isValid() && entry.id.stub()->kind == ObjectKind::mlineStyle) {
            styles.push_back(entry.key);
        }
    }
    const std::wstring known = m_chance.of(styles);
    const std::function<void()> edits[] = {
        [&] { dictionary->remove(known.c_str()); },
        [&] { dictionary->setName(known.c_str(), key); },
        [&] {
            KdDbObjectId id;
            auto* const made = new KdDbMlineStyle;
            made->initMlineStyle();
            dictionary->setAt(key, made, id);
        },
    };
    m_chance.of(edits)();
}

void RandomEdits::editTables(const wchar_t* key) {
    const WellKnownObjects& known = m_file.database().core().wellKnown();
    const auto add = [&](KdDbStub* stub, std::unique_ptr<KdDbSymbolTableRecord> record) {
        KdDbObjectId id;
        auto* const table = dynamic_cast<KdDbSymbolTable*>(stub->database->open(*stub, true));
        record->setName(key);
        if (table->add(id, record.get()) == Status::done) {
            static_cast<void>(record.release());
        }
    };
    auto* const layer = anyOf<KdDbLayerTableRecord>(m_layers);
    KdCmColor color;
    color.setColorIndex(static_cast<std::uint16_t>(1 + m_chance.below(3)));
    const std::function<void()> edits[] = {
        [&] { add(known.layerTable, std::make_unique<KdDbLayerTableRecord>()); },
        [&] { add(known.linetypeTable, std::make_unique<KdDbLinetypeTableRecord>()); },
        [&] { layer->setColor(color); },
        [&] { layer->setIsFrozen(!layer->isFrozen()); },
        [&] { layer->setIsLocked(!layer->isLocked()); },
        [&] { layer->setLineweight(m_chance.below(100)); },
    };
    edits[m_chance.below(layer == nullptr ? 2 : std::size(edits))]();
}

void RandomEdits::editVariable(double number) {
    DatabaseCore& core = m_file.database().core();
    const std::function<void()> edits[] = {
        [&] { core.setVariable("CMLSCALE", number); },
        [&] { core.setVariable("CMLJUST", m_chance.below(3)); },
        [&] { core.setVariable("CLAYER", std::wstring(L"Walls")); },
        [&] {
            core.setVariable("UCSORG", KdGePoint3d{number, 1.0, 2.0});
        },
    };
    m_chance.of(edits)();
}

} // namespace orvex::testing
