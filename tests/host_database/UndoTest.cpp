#include "DictionaryContent.h"
#include "FlatSource.h"
#include "KdDbDatabase.h"
#include "KdDbDictionary.h"
#include "KdDbLayerTable.h"
#include "KdDbMlineStyle.h"
#include "MlineStyleContent.h"
#include "UndoLog.h"
#include "kddbObjects.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <random>

namespace {

using orvex::DatabaseCore;
using orvex::HeaderHandle;
using orvex::ObjectKind;
using orvex::testing::FlatSource;

// All that can be seen of a database, in bytes of its own, so that nothing is shared with it.
class Fingerprint {
public:
    explicit Fingerprint(DatabaseCore& core) {
        for (KdDbStub& stub : core.stubs()) {
            if (!stub.erased && stub.object != nullptr) {
                put(stub.ordinal);
                put(stub.handle);
                putObject(*stub.object);
            }
        }
        for (const auto& [name, value] : core.variables().all()) {
            m_bytes += name;
            std::visit([this](const auto& typed) { put(typed); }, value);
        }
    }
    friend bool operator==(const Fingerprint&, const Fingerprint&) = default;

private:
    template <class T>
    void put(const T& value) {
        static_assert(std::is_trivially_copyable_v<T>);
        m_bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
    }
    void put(const std::wstring& text) {
        put(text.size());
        m_bytes.append(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t));
    }
    void put(KdDbStub* stub) { put(stub != nullptr ? stub->ordinal + 1 : 0); }
    void put(const HeaderHandle& handle) { put(handle.value); }
    void put(const KdCmColor& color) {
        putAll(color.color(), color.colorIndex(), std::wstring(color.bookName()),
               std::wstring(color.colorName()));
    }
    void put(std::span<const double> list) {
        put(list.size());
        m_bytes.append(reinterpret_cast<const char*>(list.data()), list.size_bytes());
    }
    template <class... Values>
    void putAll(const Values&... values) {
        (put(values), ...);
    }

    void putObject(const KdDbObject& object) {
        const auto content = object.content();
        if (const auto* const mline = dynamic_cast<const orvex::MlineContent*>(content.get())) {
            putAll(mline->traits->layer, mline->traits->color);
            putMline(*mline);
        } else if (const auto* const style = dynamic_cast<const KdDbMlineStyle*>(&object)) {
            putStyle(style->values());
        } else if (const auto* const entries = dynamic_cast<const KdDbDictionary*>(&object)) {
            for (const auto& entry : entries->entries().entries) {
                putAll(entry.key, entry.id.stub());
            }
        } else if (const auto* const layer = dynamic_cast<const KdDbLayerTableRecord*>(&object)) {
            putAll(layer->name(), layer->color(), layer->isFrozen());
        }
    }
    void putMline(const orvex::MlineContent& mline) {
        putAll(mline.style.stub(), mline.scale, mline.justification, mline.closed,
               mline.startCapsSuppressed, mline.endCapsSuppressed, mline.normal);
        for (unsigned vertex = 0; vertex < mline.vertices.size(); ++vertex) {
            putAll(mline.vertices[vertex], mline.lists.elementCount(vertex));
            for (unsigned element = 0; element < mline.lists.elementCount(vertex); ++element) {
                putAll(mline.lists.area(vertex, element), mline.lists.line(vertex, element));
            }
        }
    }
    void putStyle(const orvex::MlineStyleContent& style) {
        putAll(style.name, style.description, style.flags, style.fillColor, style.startAngle,
               style.endAngle);
        for (const orvex::StyleElement& element : style.elements) {
            putAll(element.offset, element.color, element.linetype.stub(), element.linetypeName);
        }
    }

    std::string m_bytes;
};

// Does something or other to a drawing, as commands would.
class Editor {
public:
    Editor(KdDbDatabase& database, unsigned seed)
        : m_database(database), m_core(database.core()), m_random(seed) {
        m_core.setSource(std::make_shared<FlatSource>());
        for (std::uint64_t handle = 0x100; handle < 0x106; ++handle) {
            m_mlines.push_back(&m_core.addStub(ObjectKind::mline, handle, 1, nullptr));
        }
        m_core.loadVariable("HANDSEED", HeaderHandle{0x200});
    }

    void editSomething() {
        oneOf({[&] { editStyle(); }, [&] { editDictionary(); }, [&] { editVariable(); },
               [&] { editLayer(); }, [&] { editMline(); }, [&] { editMline(); },
               [&] { editMline(); }, [&] { editMline(); }});
    }

private:
    unsigned below(unsigned count) { return static_cast<unsigned>(m_random()) % count; }
    bool either() { return below(2) == 1; }
    void oneOf(std::initializer_list<std::function<void()>> edits) {
        edits.begin()[below(static_cast<unsigned>(edits.size()))]();
    }
    std::wstring letter() { return {1, static_cast<wchar_t>(L'A' + below(4))}; }

    double number() {
        const double numbers[] = {0.0, -0.0, 1.0, -7.25, std::nan(""), INFINITY};
        return numbers[below(6)];
    }

    void editMline() {
        KdDbStub& stub = *m_mlines[below(static_cast<unsigned>(m_mlines.size()))];
        auto* const mline = static_cast<KdDbMline*>(m_core.open(stub, true));
        if (mline == nullptr) {
            return;
        }
        KdGePoint3d point{number(), number(), number()};
        oneOf({[&] { mline->setScale(number()); }, [&] { mline->appendSeg(point); },
               [&] { mline->removeLastSeg(point); }, [&] { mline->setClosedMline(either()); },
               [&] { mline->setLayer(either() ? L"0" : L"Walls"); }, [&] { copyOver(*mline); },
               [&] { below(4) == 0 ? void(mline->erase()) : void(); }, [&] { makeMline(); },
               [&] { movePoints(*mline, point); }, [&] { editList(*mline); },
               [&] { editList(*mline); }, [&] { editList(*mline); }});
        if (either()) {
            mline->close();
        }
    }
    void editList(KdDbMline& mline) {
        const int vertex = static_cast<int>(below(3));
        KdArray<void*> parameters;
        mline.getParametersAt(vertex, parameters);
        if (parameters.isEmpty()) {
            return;
        }
        VoVector<KdMLSegment> record(static_cast<VoVector<KdMLSegment>*>(parameters[0]));
        if (record.isEmpty() || below(10) == 0) {
            record.resize(below(4));
        } else {
            record[static_cast<int>(below(record.size()))].m_lineParams.append(number());
        }
        parameters.removeAll();
        parameters.append(&record);
        mline.setParametersAt(vertex, parameters);
    }
    static void movePoints(KdDbMline& mline, const KdGePoint3d& point) {
        KdArray<KdGePoint3d> points;
        points.append(point);
        KdDbSystemInternals::getImpObject(&mline)->appendSegments(points);
    }
    void copyOver(KdDbMline& mline) {
        KdDbMline copy;
        copy.copyFrom(&mline);
        mline.setScale(5.0);
        if (either()) {
            mline.copyFrom(&copy); // no change, then
        }
    }
    void makeMline() {
        auto mline = std::make_unique<KdDbMline>();
        mline->setDatabaseDefaults(&m_database);
        mline->appendSeg({1.0, 2.0, 3.0});
        KdDbStub& stub = m_core.adopt(std::move(mline), ObjectKind::mline, nullptr);
        m_core.appendEntity(m_core.modelSpace(), stub);
        m_mlines.push_back(&stub);
    }
    void editStyle() {
        KdDbMlineStyle* style = nullptr;
        kddbOpenObject(style, m_database.cmlstyle(), kForWrite);
        if (style == nullptr) {
            return;
        }
        int index = 0;
        KdCmColor color;
        color.setNamesFromDictionaryKey(L"book$blue");
        oneOf({[&] { style->addElement(index, number(), color, KdDbObjectId(), true); },
               [&] { style->removeElementAt(0); }, [&] { style->setFilled(either()); },
               [&] { style->setStartAngle(number()); }});
    }
    void editDictionary() {
        KdDbDictionary* styles = nullptr;
        m_database.getMLStyleDictionary(styles, kForWrite);
        const std::wstring key = letter();
        const auto put = [&] {
            auto* const style = new KdDbMlineStyle;
            style->initMlineStyle();
            KdDbObjectId id;
            styles->setAt(key.c_str(), style, id);
        };
        oneOf({[&] { styles->remove(key.c_str()); },
               [&] { styles->setName(key.c_str(), letter().c_str()); }, put, put});
    }
    void editVariable() {
        oneOf({[&] { m_core.setVariable("CMLSCALE", number()); },
               [&] { m_core.setVariable("CMLSTYLE", letter()); },
               [&] {
                   m_core.setVariable("EXTMIN", KdGePoint3d{number(), number(), number()});
               },
               [&] { m_core.setVariable("NOVEL", static_cast<int>(below(2))); }});
    }
    void editLayer() {
        KdDbLayerTableRecord* layer = nullptr;
        kddbOpenObject(layer, m_database.clayer(), kForWrite);
        KdCmColor color;
        color.setColorIndex(static_cast<std::uint16_t>(1 + below(3)));
        layer->setColor(color);
        layer->setIsFrozen(either());
    }

    KdDbDatabase& m_database;
    DatabaseCore& m_core;
    std::mt19937 m_random;
    std::vector<KdDbStub*> m_mlines;
};

TEST(Undo, RestoresEveryStepBitForBit) {
    std::size_t steps = 0;
    for (unsigned seed = 1; seed <= 40; ++seed) {
        SCOPED_TRACE(seed);
        KdDbDatabase database;
        DatabaseCore& core = database.core();
        Editor editor(database, seed);
        for (KdDbStub& stub : core.stubs()) {
            ASSERT_NE(core.load(stub), nullptr);
        }
        std::vector<Fingerprint> before;
        const auto stepBack = [&] {
            const bool undone = core.undo() && Fingerprint(core) == before.back();
            before.pop_back();
            return undone;
        };
        for (int i = 0; i < 60; ++i) {
            Fingerprint now(core);
            core.beginCommand();
            for (int edits = 1 + i % 4; edits > 0; --edits) {
                editor.editSomething();
            }
            const bool changed = !(Fingerprint(core) == now);
            ASSERT_EQ(core.endCommand(), changed);
            if (changed) {
                before.push_back(std::move(now));
                ++steps;
            } else {
                ASSERT_TRUE(Fingerprint(core) == now);
            }
            // Now and then some steps back in between.
            for (int back = i % 7 == 6 ? 3 : 0; back > 0 && !before.empty(); --back) {
                ASSERT_TRUE(stepBack());
            }
        }
        while (!before.empty()) {
            ASSERT_TRUE(stepBack());
        }
        EXPECT_FALSE(core.undo());
    }
    EXPECT_GT(steps, 1000U);
}

class UndoSteps : public ::testing::Test {
protected:
    UndoSteps() : m_core(m_database.core()) {
        m_core.setSource(std::make_shared<FlatSource>());
        KdDbStub& stub = m_core.addStub(ObjectKind::mline, 0x100, 1, nullptr);
        m_mline = static_cast<KdDbMline*>(m_core.load(stub));
    }

    template <class Edit>
    bool command(Edit edit) {
        m_core.beginCommand();
        edit();
        return m_core.endCommand();
    }

    KdDbDatabase m_database;
    DatabaseCore& m_core;
    KdDbMline* m_mline = nullptr;
};

TEST_F(UndoSteps, ACommandWithoutNetChangeIsNone) {
    const auto seed = m_core.takeHandle() + 1;
    EXPECT_FALSE(command([] {}));
    EXPECT_FALSE(command([this] { m_core.open(*m_mline->objectId().stub(), true); }));
    EXPECT_FALSE(command([this] {
        m_mline->setScale(2.0);
        m_mline->appendSeg({});
        KdGePoint3d removed;
        m_mline->removeLastSeg(removed);
        m_mline->setScale(1.0);
    }));
    EXPECT_FALSE(command([this] {
        m_core.adopt(std::make_unique<KdDbMline>(), ObjectKind::mline, nullptr).object->erase();
    }));
    EXPECT_EQ(m_core.takeHandle(), seed); // the erased one's is free again
    EXPECT_EQ(m_core.undoDepth(), 0U);
    EXPECT_TRUE(command([this] { m_mline->setScale(-1.0); }));
    EXPECT_TRUE(command([this] { m_core.setVariable("EXTMIN", KdGePoint3d{0.0, 0.0, -0.0}); }));
    EXPECT_TRUE(command([this] { m_core.setVariable("EXTMIN", KdGePoint3d{0.0, 0.0, 0.0}); }));
    EXPECT_EQ(m_core.undoDepth(), 3U);
}

TEST_F(UndoSteps, TheOldestGoWhenMemoryRunsOut) {
    // A list of 8 MiB each time: the limit holds that many images of it.
    constexpr unsigned kValues = 1U << 20U;
    constexpr std::size_t kFitting = orvex::UndoLog::kMemoryLimit / (kValues * sizeof(double));
    for (unsigned i = 0; i < kFitting + 4; ++i) {
        ASSERT_TRUE(command([this, i] {
            VoVector<KdMLSegment> record(1U);
            record[0].m_lineParams.resize(kValues + i);
            KdArray<void*> parameters;
            parameters.append(&record);
            m_mline->setParametersAt(0, parameters);
        }));
    }
    EXPECT_LE(m_core.undoDepth(), kFitting);
    EXPECT_GE(m_core.undoDepth(), kFitting - 1);
    while (m_core.undo()) {
    }
    const auto& now = KdDbSystemInternals::getImpObject(m_mline)->content();
    EXPECT_GT(now.lists.line(0, 0).size(), kValues); // not back to the beginning
}

} // namespace
