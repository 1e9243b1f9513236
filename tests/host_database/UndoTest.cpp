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
#include <cstring>
#include <random>

namespace {

using orvex::DatabaseCore;
using orvex::HeaderHandle;
using orvex::HeaderValue;
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
        put(color.color());
        put(color.colorIndex());
        put(std::wstring(color.bookName()));
        put(std::wstring(color.colorName()));
    }
    void put(const VoVector<double>& list) {
        put(list.size());
        for (const double value : list) {
            put(value);
        }
    }

    void putObject(const KdDbObject& object) {
        if (const auto* const mline = dynamic_cast<const KdDbMline*>(&object)) {
            putMline(*mline);
        } else if (const auto* const style = dynamic_cast<const KdDbMlineStyle*>(&object)) {
            putStyle(*style);
        } else if (const auto* const entries = dynamic_cast<const KdDbDictionary*>(&object)) {
            for (const auto& entry : entries->entries().entries) {
                put(entry.key);
                put(entry.id.stub());
            }
        } else if (const auto* const layer = dynamic_cast<const KdDbLayerTableRecord*>(&object)) {
            put(layer->name());
            put(layer->color());
            put(layer->isFrozen());
        }
    }
    void putMline(const KdDbMline& mline) {
        put(mline.layer());
        put(mline.color());
        put(mline.style().stub());
        put(mline.scale());
        put(mline.justification());
        put(mline.closedMline());
        put(mline.supressStartCaps());
        put(mline.supressEndCaps());
        put(mline.normal());
        put(mline.numVertices());
        for (int vertex = 0; vertex < mline.numVertices(); ++vertex) {
            put(mline.vertexAt(vertex));
            put(mline.axisAt(vertex));
            put(mline.miterAt(vertex));
            KdArray<void*> parameters;
            mline.getParametersAt(vertex, parameters);
            const auto& record = *static_cast<const VoVector<KdMLSegment>*>(parameters[0]);
            put(record.size());
            for (const KdMLSegment& segment : record) {
                put(segment.m_areaParams);
                put(segment.m_lineParams);
            }
        }
    }
    void putStyle(const KdDbMlineStyle& style) {
        const orvex::MlineStyleContent& values = style.values();
        put(values.name);
        put(values.description);
        put(values.flags);
        put(values.fillColor);
        put(values.startAngle);
        put(values.endAngle);
        for (const orvex::StyleElement& element : values.elements) {
            put(element.offset);
            put(element.color);
            put(element.linetype.stub());
            put(element.linetypeName);
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
        switch (below(10)) {
        case 0:
            editStyle();
            break;
        case 1:
            editDictionary();
            break;
        case 2:
            editVariable();
            break;
        case 3:
            editLayer();
            break;
        default:
            editMline();
        }
    }

private:
    unsigned below(unsigned count) { return static_cast<unsigned>(m_random()) % count; }

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
        switch (below(12)) {
        case 0:
            mline->setScale(number());
            break;
        case 1:
            mline->appendSeg(point);
            break;
        case 2:
            mline->removeLastSeg(point);
            break;
        case 3:
            mline->setClosedMline(below(2) == 1);
            break;
        case 4:
            mline->setLayer(below(2) == 1 ? L"0" : L"Walls");
            break;
        case 5:
            copyOver(*mline);
            break;
        case 6:
            if (below(4) == 0) {
                mline->erase();
            }
            break;
        case 7:
            makeMline();
            break;
        case 8:
            movePoints(*mline, point);
            break;
        default:
            editList(*mline);
        }
        if (below(2) == 0) {
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
        if (below(2) == 0) {
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
        switch (below(4)) {
        case 0:
            style->addElement(index, number(), color, KdDbObjectId(), true);
            break;
        case 1:
            style->removeElementAt(0);
            break;
        case 2:
            style->setFilled(below(2) == 1);
            break;
        default:
            style->setStartAngle(number());
        }
    }
    void editDictionary() {
        KdDbDictionary* styles = nullptr;
        m_database.getMLStyleDictionary(styles, kForWrite);
        const std::wstring key(1, static_cast<wchar_t>(L'A' + below(4)));
        const std::wstring other(1, static_cast<wchar_t>(L'A' + below(4)));
        KdDbObjectId id;
        switch (below(4)) {
        case 0:
            styles->remove(key.c_str());
            break;
        case 1:
            styles->setName(key.c_str(), other.c_str());
            break;
        default:
            auto* const style = new KdDbMlineStyle;
            style->initMlineStyle();
            style->setName(key.c_str());
            styles->setAt(key.c_str(), style, id);
        }
    }
    void editVariable() {
        switch (below(4)) {
        case 0:
            m_core.setVariable("CMLSCALE", number());
            break;
        case 1:
            m_core.setVariable("CMLSTYLE", std::wstring(1, static_cast<wchar_t>(L'A' + below(4))));
            break;
        case 2:
            m_core.setVariable("EXTMIN", KdGePoint3d{number(), number(), number()});
            break;
        default:
            m_core.setVariable("NOVEL", static_cast<int>(below(2)));
        }
    }
    void editLayer() {
        KdDbLayerTableRecord* layer = nullptr;
        kddbOpenObject(layer, m_database.clayer(), kForWrite);
        KdCmColor color;
        color.setColorIndex(static_cast<std::uint16_t>(1 + below(3)));
        layer->setColor(color);
        layer->setIsFrozen(below(2) == 1);
    }

    KdDbDatabase& m_database;
    DatabaseCore& m_core;
    std::mt19937 m_random;
    std::vector<KdDbStub*> m_mlines;
};

TEST(Undo, RestoresEveryStepBitForBit) {
    for (unsigned seed = 1; seed <= 40; ++seed) {
        SCOPED_TRACE(seed);
        KdDbDatabase database;
        DatabaseCore& core = database.core();
        Editor editor(database, seed);
        for (KdDbStub& stub : core.stubs()) {
            ASSERT_NE(core.load(stub), nullptr);
        }
        std::vector<Fingerprint> before;
        for (int i = 0; i < 60; ++i) {
            Fingerprint now(core);
            core.beginCommand();
            for (unsigned edits = 1 + static_cast<unsigned>(i) % 4; edits > 0; --edits) {
                editor.editSomething();
            }
            const bool changed = !(Fingerprint(core) == now);
            ASSERT_EQ(core.endCommand(), changed);
            if (changed) {
                before.push_back(std::move(now));
            } else {
                ASSERT_TRUE(Fingerprint(core) == now);
            }
            // Now and then some steps back in between.
            for (int back = i % 7 == 6 ? 3 : 0; back > 0 && !before.empty(); --back) {
                ASSERT_TRUE(core.undo());
                ASSERT_TRUE(Fingerprint(core) == before.back());
                before.pop_back();
            }
        }
        while (!before.empty()) {
            ASSERT_TRUE(core.undo());
            ASSERT_TRUE(Fingerprint(core) == before.back());
            before.pop_back();
        }
        EXPECT_FALSE(core.undo());
    }
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

TEST_F(UndoSteps, ChangesOutsideOfCommandsAreNone) {
    m_mline->setScale(2.0);
    m_core.setVariable("CMLSCALE", 2.0);
    EXPECT_EQ(m_core.undoDepth(), 0U);
    EXPECT_EQ(m_core.changedStubs(), std::vector<KdDbStub*>{m_mline->objectId().stub()});
}

TEST_F(UndoSteps, NothingIsTakenBackInsideACommand) {
    command([this] { m_mline->setScale(2.0); });
    m_core.beginCommand();
    EXPECT_FALSE(m_core.undo());
    EXPECT_EQ(m_mline->scale(), 2.0);
    m_core.endCommand();
    EXPECT_TRUE(m_core.undo());
    EXPECT_EQ(m_mline->scale(), 1.0);
}

TEST_F(UndoSteps, ImagesShareWhatIsntChanged) {
    const auto image = m_mline->content();
    m_mline->setScale(1.0);
    EXPECT_NE(m_mline->content(), image); // unshared by the write
    EXPECT_TRUE(m_mline->content()->equals(*image));
    const auto& content = static_cast<const orvex::MlineContent&>(*image);
    const auto& now = KdDbSystemInternals::getImpObject(m_mline)->content();
    EXPECT_EQ(now.lists.line(0, 0).data(), content.lists.line(0, 0).data());
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
