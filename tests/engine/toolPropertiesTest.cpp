// What holds for every tool on any drawing: random multilines that cross each other, with gaps here
// and there, and picks on what is drawn of them.

#include "Digest.h"
#include "ToolWorld.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <random>

using namespace mledit;

namespace {

using orvex::PromptAnswer;
using orvex::testing::Digest;

constexpr std::array kTools = {
    &CMlineEdit::cmd_mledit_ClosedCross,  &CMlineEdit::cmd_mledit_OpenCross,
    &CMlineEdit::cmd_mledit_MergedCross,  &CMlineEdit::cmd_mledit_ClosedTree,
    &CMlineEdit::cmd_mledit_OpenTree,     &CMlineEdit::cmd_mledit_MergedTree,
    &CMlineEdit::cmd_mledit_CornerJoint,  &CMlineEdit::cmd_mledit_AddVertex,
    &CMlineEdit::cmd_mledit_DeleteVertex, &CMlineEdit::cmd_mledit_CutSingle,
    &CMlineEdit::cmd_mledit_CutAll,       &CMlineEdit::cmd_mledit_WeldAll,
};
constexpr std::size_t kFirstOnOne = 7; // from here on both picks are on one multiline
bool hasOnePick(std::size_t tool) {
    return tool == 7 || tool == 8;
}

struct Shape {
    std::vector<KdGePoint3d> chain;
    std::vector<double> offsets;
    bool closed = false;
    KdGeVector3d normal;
    int cutVertex = 0;
    std::vector<double> breaks;
};
struct Scene {
    std::array<Shape, 2> shapes;
    struct Pick {
        std::size_t shape;
        int vertex, element;
        double along; // of the segment's length
    };
    std::array<Pick, 2> picks;
    double start, end; // angles of the style, degrees
    int stray;         // 0: both picks are answered alone; else what comes before one of them
};

class RandomScenes {
public:
    explicit RandomScenes(unsigned seed) : m_random(seed) {}

    int upTo(int greatest) { return std::uniform_int_distribution<int>(0, greatest)(m_random); }
    double between(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(m_random);
    }

    // On a grid lines meet in vertices, run over each other and stand square.
    Scene scene(std::size_t tool, bool onGrid) {
        Scene made{};
        static constexpr double kAngles[] = {90, 90, 45, 60, 135};
        made.start = kAngles[upTo(4)];
        made.end = kAngles[upTo(4)];
        made.stray = std::max(0, upTo(31) - 23);
        for (Shape& shape : made.shapes) {
            shape = this->shape(onGrid);
        }
        const auto one = static_cast<std::size_t>(upTo(1));
        const bool same = tool >= kFirstOnOne || upTo(5) == 0;
        made.picks[0] = pick(made, one);
        made.picks[1] = pick(made, same ? one : 1 - one);
        return made;
    }

private:
    Shape shape(bool onGrid) {
        Shape made;
        const int count = 2 + upTo(4);
        while (static_cast<int>(made.chain.size()) < count) {
            const KdGePoint3d at = onGrid ? KdGePoint3d{4.0 * upTo(8), 4.0 * upTo(8), 0.0}
                                          : KdGePoint3d{between(0, 32), between(0, 32), 0.0};
            made.chain.push_back(at);
            if (hasFold(made.chain, false)) {
                made.chain.pop_back();
            }
        }
        made.closed = count > 2 && upTo(3) == 0 && !hasFold(made.chain, true);
        const int elements = 1 + upTo(4);
        double offset = between(0.5, 1.5);
        for (int k = 0; k < elements; ++k) {
            made.offsets.push_back(offset);
            offset -= between(0.5, 1.0);
        }
        static constexpr double kNormals[][2] = {{0, 1}, {0, 1}, {0, 1}, {0, -1}, {0.6, 0.8}};
        const auto& normal = kNormals[upTo(4)];
        made.normal = {0.0, normal[0], normal[1]};
        made.cutVertex = upTo(count - 1);
        made.breaks = {0};
        for (int k = upTo(3); k > 0; --k) {
            made.breaks.push_back(made.breaks.back() + between(0.5, 4.0));
        }
        return made;
    }
    // Back over itself, or no way at all: such a vertex has no miter.
    static bool hasFold(const std::vector<KdGePoint3d>& chain, bool closed) {
        const std::size_t count = chain.size();
        for (std::size_t i = 0; i + (closed ? 0 : 1) < count; ++i) {
            const KdGeVector3d out = chain[(i + 1) % count] - chain[i];
            const KdGeVector3d in = chain[i] - chain[(i + count - 1) % count];
            const bool hasIn = closed || i > 0;
            if (out.isZeroLength() ||
                (hasIn && in.x * out.y == in.y * out.x && in.x * out.x + in.y * out.y <= 0.0)) {
                return true;
            }
        }
        return false;
    }
    Scene::Pick pick(const Scene& made, std::size_t which) {
        const Shape& shape = made.shapes[which];
        const int segments = static_cast<int>(shape.chain.size()) - (shape.closed ? 0 : 1);
        return {which, upTo(segments - 1), upTo(static_cast<int>(shape.offsets.size()) - 1),
                between(0.05, 0.95)};
    }

    std::mt19937 m_random;
};

class ToolProperties : public orvex::testing::ToolWorld {
protected:
    std::array<KdDbMline*, 2> mlines{};
    std::array<PromptAnswer, 2> picks;

    // The scene, moved along x and y.
    void build(const Scene& scene, double moved) {
        display.known.clear();
        for (std::size_t i = 0; i < 2; ++i) {
            const Shape& shape = scene.shapes[i];
            std::vector<KdGePoint3d> chain = shape.chain;
            for (KdGePoint3d& point : chain) {
                point.x += moved;
                point.y += moved;
            }
            mlines[i] = add(chain, shape.offsets, shape.closed);
            mlines[i]->setNormal(shape.normal);
            setBreaks(mlines[i], shape.cutVertex,
                      std::vector<std::vector<double>>(shape.offsets.size(), shape.breaks));
            storeAreaList(mlines[i], shape.cutVertex, 0, shape.breaks);
        }
        setStyle(scene.shapes[scene.picks[0].shape].offsets, scene.start, scene.end);
        for (std::size_t i = 0; i < 2; ++i) {
            picks[i] = placeOf(scene.picks[i]);
        }
    }
    PromptAnswer placeOf(const Scene::Pick& where) const {
        const KdDbMline* const mline = mlines[where.shape];
        const auto position = [&](int vertex) {
            const double offset = lineList(mline, vertex, where.element)[0];
            return mline->vertexAt(vertex) + mline->miterAt(vertex) * offset;
        };
        const KdGePoint3d from = position(where.vertex);
        const KdGePoint3d to = position((where.vertex + 1) % mline->numVertices());
        return pick(mline, from.x + (to.x - from.x) * where.along,
                    from.y + (to.y - from.y) * where.along);
    }
    void playScene(std::size_t tool, int stray, bool undoes = false) {
        answer({picks[0]});
        if (!hasOnePick(tool)) {
            user.answers.push_back(picks[1]);
        }
        if (stray > 0) {
            const PromptAnswer strays[] = {miss(), keyword(L"UNDO"), pick(addLine(), 1.0, 1.0),
                                           enter()};
            user.answers.insert(user.answers.begin() + stray % 2, strays[stray / 2 % 4]);
        }
        if (undoes) {
            user.answers.push_back(keyword(L"UNDO"));
        }
        CMlineEdit run;
        (run.*kTools[tool])(resources);
    }
    void clear() {
        for (KdDbMline* const mline : mlines) {
            mline->erase();
        }
    }
    // All numbers of both multilines, counts included.
    std::vector<double> numbers() const {
        std::vector<double> all;
        for (const KdDbMline* const mline : mlines) {
            EXPECT_GE(mline->numVertices(), 2);
            all.push_back(mline->numVertices());
            all.push_back(flags(mline));
            for (int v = 0; v < mline->numVertices(); ++v) {
                const KdGePoint3d at = mline->vertexAt(v);
                const KdGeVector3d axis = mline->axisAt(v);
                const KdGeVector3d miter = mline->miterAt(v);
                all.insert(all.end(),
                           {at.x, at.y, at.z, axis.x, axis.y, axis.z, miter.x, miter.y, miter.z});
                for (int k = 0; k < elements(mline); ++k) {
                    const std::vector<double> list = lineList(mline, v, k);
                    EXPECT_FALSE(list.empty()) << "vertex " << v << ", element " << k;
                    all.push_back(static_cast<double>(list.size()));
                    all.insert(all.end(), list.begin(), list.end());
                    const std::vector<double> areas = areaList(mline, v, k);
                    all.insert(all.end(), areas.begin(), areas.end());
                }
            }
        }
        return all;
    }
    static int elements(const KdDbMline* mline) {
        int count = 0;
        GetSegmentsSize(mline, &count);
        return count;
    }
};

// Of what the tools made of all scenes, tool by tool.
constexpr std::array<const char*, kTools.size()> kSettled = {
    "51887F7D6572A44D", "4971F6DFCDC06E62", "693901560EB13890", "470B6B1511E810AE",
    "7195B83FE24CD82D", "7D8F6F6100053397", "7A635AF092A262A2", "264C099068077235",
    "31EBE79743EDDCD1", "45755652045B5B29", "DFD7ABA99DC9B05D", "ADEB2716A639FDCE",
};

TEST_F(ToolProperties, undoRestoresEveryBitAndResultsAreSettled) {
    RandomScenes random(12);
    std::array<int, kTools.size()> changed{};
    std::array<Digest, kTools.size()> digests;
    for (int round = 0; round < 12000; ++round) {
        const std::size_t tool = static_cast<std::size_t>(round) % kTools.size();
        SCOPED_TRACE("round " + std::to_string(round) + ", tool " + std::to_string(tool + 1));
        const Scene scene = random.scene(tool, random.upTo(1) == 0);
        static constexpr double kPlaces[] = {0.0, 0.0, 1e5, 1e7};
        build(scene, kPlaces[random.upTo(3)]);
        const auto first = mlines[0]->content();
        const auto second = mlines[1]->content();

        playScene(tool, scene.stray);
        for (const double number : numbers()) {
            ASSERT_TRUE(std::isfinite(number));
            digests[tool].add(number);
        }
        digests[tool].add(user.prompts, user.lines, display.events, isOpen(mlines[0]),
                          isOpen(mlines[1]));
        for (std::size_t i = 0; i < 2; ++i) {
            ASSERT_EQ(elements(mlines[i]), static_cast<int>(scene.shapes[i].offsets.size()));
        }
        const bool hasChanged =
            !mlines[0]->content()->equals(*first) || !mlines[1]->content()->equals(*second);
        const bool isPlain = scene.stray == 0;
        ASSERT_TRUE(!isPlain || isUndoOffered() || !hasChanged)
            << "what failed has changed nothing";
        changed[tool] += hasChanged ? 1 : 0;

        mlines[0]->setContent(first);
        mlines[1]->setContent(second);
        playScene(tool, scene.stray, true);
        digests[tool].add(user.prompts, display.events);
        ASSERT_TRUE(!isPlain || mlines[0]->content()->equals(*first));
        ASSERT_TRUE(!isPlain || mlines[1]->content()->equals(*second));
        clear();
        if (HasFatalFailure()) {
            return;
        }
    }
    for (std::size_t tool = 0; tool < kTools.size(); ++tool) {
        EXPECT_GT(changed[tool], 100) << "tool " << tool + 1 << " hardly ever does anything";
        EXPECT_EQ(digests[tool].text(), kSettled[tool]) << "tool " << tool + 1;
    }
}

} // namespace
