// Whatever commands do, undoing them one by one gives back each drawing that there was before.

#include "DatabaseCore.h"
#include "KdDbDatabase.h"
#include "KdDbDictionary.h"
#include "KdDbLayerTable.h"
#include "KdDbMline.h"
#include "KdDbMlineImp.h"
#include "KdDbMlineStyle.h"
#include "KdDbSystemInternals.h"
#include "MlineContent.h"
#include "sampleDrawing.h"

#include <functional>
#include <random>

namespace {

using namespace orvex;
using namespace orvex::testing;

// Does something or other to the sample, as commands would.
class Editor {
public:
    explicit Editor(unsigned seed) : m_random(seed) {
        for (const std::uint64_t handle : {0x41, 0x51, 0x52}) {
            m_mlines.push_back(&stubOf(*m_file, handle));
        }
    }

    DatabaseCore& core() { return m_file->database().core(); }

    // The drawing as a file, and of the layer, which is written only when it is new, what changes.
    std::string state() {
        const auto& walls = static_cast<KdDbLayerTableRecord&>(*core().load(stub(0x10)));
        return m_file->bytes() + std::to_string(walls.color().colorIndex()) +
               std::to_string(static_cast<int>(walls.isFrozen()));
    }
    void edit() {
        oneOf({[&] { editStyle(); }, [&] { editDictionary(); }, [&] { editVariable(); },
               [&] { editLayer(); }, [&] { editMline(); }, [&] { editMline(); },
               [&] { editMline(); }, [&] { editMline(); }, [&] { makeMline(); }});
    }

private:
    KdDbStub& stub(std::uint64_t handle) { return stubOf(*m_file, handle); }
    unsigned below(unsigned count) { return static_cast<unsigned>(m_random()) % count; }
    bool either() { return below(2) == 1; }
    double number() {
        const double numbers[] = {0.0, -0.0, 1.0, -7.25, 1.0 / 3.0};
        return numbers[below(5)];
    }
    std::wstring letter() { return {1, static_cast<wchar_t>(L'A' + below(4))}; }
    void oneOf(std::initializer_list<std::function<void()>> edits) {
        edits.begin()[below(static_cast<unsigned>(edits.size()))]();
    }

    void editMline() {
        KdDbStub& chosen = *m_mlines[below(static_cast<unsigned>(m_mlines.size()))];
        auto* const mline = static_cast<KdDbMline*>(core().open(chosen, true));
        if (mline == nullptr) {
            return;
        }
        KdGePoint3d point{number(), number(), number()};
        oneOf({[&] { mline->setScale(number()); }, [&] { mline->appendSeg(point); },
               [&] { mline->removeLastSeg(point); }, [&] { mline->setClosedMline(either()); },
               [&] { mline->setLayer(either() ? L"0" : L"Walls"); }, [&] { copyOver(*mline); },
               [&] { below(4) == 0 ? void(mline->erase()) : void(); },
               [&] {
                   mline->setNormal({0.0, 0.0, either() ? 1.0 : -1.0});
               },
               [&] { movePoints(*mline, point); }, [&] { editList(*mline); },
               [&] { editList(*mline); }});
        if (either()) {
            mline->close();
        }
    }
    void editList(KdDbMline& mline) {
        KdArray<void*> parameters;
        mline.getParametersAt(0, parameters);
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
        mline.setParametersAt(0, parameters);
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
        mline->setDatabaseDefaults(&m_file->database());
        mline->appendSeg({1.0, 2.0, 3.0});
        KdDbStub& made = core().adopt(std::move(mline), ObjectKind::mline, nullptr);
        core().appendEntity(core().modelSpace(), made);
        m_mlines.push_back(&made);
    }
    void editStyle() {
        auto* const style = static_cast<KdDbMlineStyle*>(core().open(stub(0x2E), true));
        int index = 0;
        KdCmColor color;
        color.setNamesFromDictionaryKey(L"book$blue");
        oneOf({[&] { style->addElement(index, number(), color, KdDbObjectId(), true); },
               [&] { style->removeElementAt(0); }, [&] { style->setFilled(either()); },
               [&] { style->setStartAngle(number()); }});
    }
    void editDictionary() {
        auto* const styles = static_cast<KdDbDictionary*>(core().open(stub(0x17), true));
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
        oneOf({[&] { core().setVariable("CMLSCALE", number()); },
               [&] { core().setVariable("CMLSTYLE", letter()); },
               [&] {
                   core().setVariable("UCSORG", KdGePoint3d{number(), number(), number()});
               },
               [&] { core().setVariable("CMLJUST", static_cast<int>(below(3))); }});
    }
    void editLayer() {
        auto* const walls = static_cast<KdDbLayerTableRecord*>(core().open(stub(0x10), true));
        KdCmColor color;
        color.setColorIndex(static_cast<std::uint16_t>(1 + below(3)));
        either() ? walls->setColor(color) : walls->setIsFrozen(either());
    }

    std::unique_ptr<DrawingFile> m_file = openDrawing(sampleDrawing());
    std::mt19937 m_random;
    std::vector<KdDbStub*> m_mlines;
};

TEST(Undo, RestoresEveryStepByteForByte) {
    std::size_t steps = 0;
    for (unsigned seed = 1; seed <= 40; ++seed) {
        SCOPED_TRACE(seed);
        Editor editor(seed);
        std::vector<std::string> before;
        const auto stepBack = [&] {
            ASSERT_TRUE(editor.core().undo());
            ASSERT_TRUE(sameText(editor.state(), before.back()));
            before.pop_back();
        };
        for (int i = 0; i < 60; ++i) {
            const std::string now = editor.state();
            editor.core().beginCommand();
            for (int edits = 1 + i % 4; edits > 0; --edits) {
                editor.edit();
            }
            if (editor.core().endCommand()) {
                before.push_back(now);
                ++steps;
            } else {
                ASSERT_TRUE(sameText(editor.state(), now)) << "no command, and yet a change";
            }
            for (int back = i % 7 == 6 ? 3 : 0; back > 0 && !before.empty(); --back) {
                ASSERT_NO_FATAL_FAILURE(stepBack());
            }
        }
        while (!before.empty()) {
            ASSERT_NO_FATAL_FAILURE(stepBack());
        }
        EXPECT_FALSE(editor.core().undo());
    }
    EXPECT_GT(steps, 1000U);
}

} // namespace
