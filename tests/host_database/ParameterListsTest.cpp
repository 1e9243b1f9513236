#include "MlineContent.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace {

using orvex::ParameterLists;

struct ListPair {
    std::vector<double> line;
    std::vector<double> area;
};
using Model = std::vector<std::vector<ListPair>>; // by vertex, by element

template <class List>
std::vector<double> values(const List& list) {
    return {list.begin(), list.end()};
}

VoVector<double> vectorOf(const std::vector<double>& from) {
    VoVector<double> result;
    for (const double value : from) {
        result.append(value);
    }
    return result;
}

void expectSame(const ParameterLists& lists, const Model& model) {
    ASSERT_EQ(lists.vertexCount(), model.size());
    for (unsigned vertex = 0; vertex < model.size(); ++vertex) {
        ASSERT_EQ(lists.elementCount(vertex), model[vertex].size());
        for (unsigned element = 0; element < model[vertex].size(); ++element) {
            ASSERT_EQ(values(lists.line(vertex, element)), model[vertex][element].line);
            ASSERT_EQ(values(lists.area(vertex, element)), model[vertex][element].area);
        }
    }
}

// Changes lists and their model alike.
class Editor {
public:
    explicit Editor(unsigned seed) : m_random(seed) { assignFlat(); }

    ParameterLists lists;
    Model model;

    unsigned below(unsigned count) { return static_cast<unsigned>(m_random()) % count; }

    void step() {
        const unsigned kind = below(12);
        if (kind == 0) {
            assignFlat();
        } else if (kind < 3) {
            lists.appendVertex();
            model.emplace_back(model.empty() ? 0 : model[0].size());
        } else if (kind < 5) {
            lists.dropLastVertex();
            model.resize(model.empty() ? 0 : model.size() - 1);
        } else if (!model.empty()) {
            const unsigned vertex = below(static_cast<unsigned>(model.size()));
            kind < 8 ? readNested(vertex) : setNested(vertex);
        }
    }

private:
    std::vector<double> list() {
        std::vector<double> result(below(5));
        std::ranges::generate(result, [this] { return static_cast<double>(below(9)) - 4.0; });
        return result;
    }
    void assignFlat() {
        const unsigned elements = 1 + below(3);
        model.assign(below(5), std::vector<ListPair>(elements));
        std::vector<std::uint32_t> counts;
        std::vector<double> flat;
        for (auto& record : model) {
            for (ListPair& pair : record) {
                pair = {list(), list()};
                for (const auto* const part : {&pair.line, &pair.area}) {
                    counts.push_back(static_cast<std::uint32_t>(part->size()));
                    flat.insert(flat.end(), part->begin(), part->end());
                }
            }
        }
        lists.assignFlat(elements, counts, flat);
    }
    void setNested(unsigned vertex) {
        model[vertex].resize(below(4));
        VoVector<KdMLSegment> record;
        for (ListPair& pair : model[vertex]) {
            pair = {list(), list()};
            record.append({vectorOf(pair.area), vectorOf(pair.line)});
        }
        lists.setNested(vertex, record);
    }
    void readNested(unsigned vertex) {
        const VoVector<KdMLSegment>& record = lists.nested(vertex);
        ASSERT_EQ(record.size(), model[vertex].size());
        for (unsigned element = 0; element < record.size(); ++element) {
            const KdMLSegment& segment = record[static_cast<int>(element)];
            ASSERT_EQ(values(segment.m_lineParams), model[vertex][element].line);
            ASSERT_EQ(values(segment.m_areaParams), model[vertex][element].area);
        }
        ASSERT_EQ(&record, &lists.nested(vertex));
    }

    std::mt19937 m_random;
};

TEST(ParameterLists, BehaveAsNestedListsAndCopiesAsValues) {
    for (unsigned seed = 1; seed <= 60; ++seed) {
        SCOPED_TRACE(seed);
        Editor editor(seed);
        ParameterLists copy = editor.lists;
        Model copyModel = editor.model;
        for (int i = 0; i < 200; ++i) {
            editor.step();
            ASSERT_NO_FATAL_FAILURE(expectSame(editor.lists, editor.model));
            ASSERT_NO_FATAL_FAILURE(expectSame(copy, copyModel));
            if (editor.below(10) == 0) {
                copy = editor.lists;
                copyModel = editor.model;
                ASSERT_TRUE(copy == editor.lists);
            }
        }
    }
}

TEST(ParameterLists, CountsBeyondTheValuesAreCutAndWhatIsOutsideIsEmpty) {
    ParameterLists lists;
    lists.assignFlat(1, {2, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF}, {1.0, 2.0, 3.0});
    EXPECT_EQ(values(lists.line(0, 0)), (std::vector{1.0, 2.0}));
    EXPECT_EQ(values(lists.area(0, 0)), (std::vector{3.0}));
    EXPECT_TRUE(lists.line(1, 0).empty());
    EXPECT_TRUE(lists.line(0, 1).empty());
    EXPECT_TRUE(lists.line(2, 0).empty());
    EXPECT_EQ(lists.nested(2).size(), 0U);
    lists.setNested(2, VoVector<KdMLSegment>(3));
    EXPECT_EQ(lists.vertexCount(), 2U);
}

TEST(ParameterLists, EqualityGoesByBits) {
    const auto with = [](double value, bool nested) {
        ParameterLists lists;
        lists.assignFlat(1, {1, 0}, {value});
        if (nested) {
            const VoVector<KdMLSegment> record = lists.nested(0);
            lists.setNested(0, record);
        }
        return lists;
    };
    const double nan = std::nan("");
    EXPECT_TRUE(with(1.0, false) == with(1.0, true));
    EXPECT_TRUE(with(nan, false) == with(nan, true));
    EXPECT_FALSE(with(0.0, false) == with(-0.0, false));
    EXPECT_FALSE(with(0.0, true) == with(-0.0, true));
}

} // namespace
