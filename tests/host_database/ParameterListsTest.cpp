#include "MlineContent.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
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

class Fuzz {
public:
    explicit Fuzz(unsigned seed) : m_random(seed) {}

    unsigned below(unsigned count) { return static_cast<unsigned>(m_random()) % count; }

    std::vector<double> list() {
        std::vector<double> result(below(5));
        for (double& value : result) {
            value = static_cast<double>(below(9)) - 4.0;
        }
        return result;
    }
    std::vector<ListPair> record() {
        std::vector<ListPair> result(below(4));
        for (ListPair& pair : result) {
            pair = {list(), list()};
        }
        return result;
    }

private:
    std::mt19937 m_random;
};

void assignFlat(Fuzz& fuzz, ParameterLists& lists, Model& model) {
    const unsigned elements = 1 + fuzz.below(3);
    model.assign(fuzz.below(5), std::vector<ListPair>(elements));
    std::vector<std::uint32_t> counts;
    std::vector<double> flat;
    for (auto& record : model) {
        for (ListPair& pair : record) {
            pair = {fuzz.list(), fuzz.list()};
            for (const auto* const list : {&pair.line, &pair.area}) {
                counts.push_back(static_cast<std::uint32_t>(list->size()));
                flat.insert(flat.end(), list->begin(), list->end());
            }
        }
    }
    lists.assignFlat(elements, counts, flat);
}

void setNested(Fuzz& fuzz, ParameterLists& lists, Model& model) {
    const unsigned vertex = fuzz.below(static_cast<unsigned>(model.size()));
    model[vertex] = fuzz.record();
    VoVector<KdMLSegment> record;
    for (const ListPair& pair : model[vertex]) {
        record.append({vectorOf(pair.area), vectorOf(pair.line)});
    }
    lists.setNested(vertex, record);
}

void readNested(Fuzz& fuzz, const ParameterLists& lists, const Model& model) {
    const unsigned vertex = fuzz.below(static_cast<unsigned>(model.size()));
    const VoVector<KdMLSegment>& record = lists.nested(vertex);
    ASSERT_EQ(record.size(), model[vertex].size());
    for (unsigned element = 0; element < record.size(); ++element) {
        const KdMLSegment& segment = record[static_cast<int>(element)];
        ASSERT_EQ(values(segment.m_lineParams), model[vertex][element].line);
        ASSERT_EQ(values(segment.m_areaParams), model[vertex][element].area);
    }
    ASSERT_EQ(&record, &lists.nested(vertex));
}

void step(Fuzz& fuzz, ParameterLists& lists, Model& model) {
    const unsigned kind = fuzz.below(12);
    if (kind == 0) {
        assignFlat(fuzz, lists, model);
    } else if (kind < 3) {
        lists.appendVertex();
        model.emplace_back(model.empty() ? 0 : model[0].size());
    } else if (kind < 5) {
        lists.dropLastVertex();
        model.resize(model.empty() ? 0 : model.size() - 1);
    } else if (!model.empty()) {
        kind < 8 ? readNested(fuzz, lists, model) : setNested(fuzz, lists, model);
    }
}

TEST(ParameterLists, BehaveAsNestedListsAndCopiesAsValues) {
    for (unsigned seed = 1; seed <= 60; ++seed) {
        SCOPED_TRACE(seed);
        Fuzz fuzz(seed);
        ParameterLists lists;
        Model model;
        assignFlat(fuzz, lists, model);
        ParameterLists copy = lists;
        Model copyModel = model;
        for (int i = 0; i < 200; ++i) {
            step(fuzz, lists, model);
            ASSERT_NO_FATAL_FAILURE(expectSame(lists, model));
            ASSERT_NO_FATAL_FAILURE(expectSame(copy, copyModel));
            if (fuzz.below(10) == 0) {
                copy = lists;
                copyModel = model;
                ASSERT_TRUE(copy == lists);
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
