// What random calls of the accessors give and leave behind: settled.

#include "Chance.h"
#include "Digest.h"
#include "KdDbDatabase.h"
#include "KdDbMline.h"
#include "KdDbMlineStyle.h"
#include "mlineAccessors.h"
#include "parameterLists.h"
#include "styleAccessors.h"
#include "vertexSnapshot.h"

#include <gtest/gtest.h>

#include <functional>
#include <iterator>
#include <memory>
#include <span>
#include <vector>

using orvex::testing::Chance;
using orvex::testing::Digest;

static void describe(Digest& digest, const KdCmColor& color) {
    digest.add(color.color(), color.colorIndex(), color.colorNameForDisplay());
}

namespace {

constexpr int kMost = 6; // vertices, elements, values of a list

class Calls : public Chance {
public:
    Calls() : Chance(6) {}

    int from(int low, int high) { return low + below(high - low + 1); }
    std::vector<double> numbers() {
        std::vector<double> made(std::size_t{3} * kMost);
        for (double& number : made) {
            number = from(-40, 40) / 8.0;
        }
        return made;
    }
};

void addMline(Digest& digest, const KdDbMline& mline) {
    int flags = 0;
    int elements = 0;
    double points[3][kMost][3] = {};
    digest.add(GetFlag(&mline, &flags), flags, mledit::isClosed(&mline));
    digest.add(GetSegmentsSize(&mline, &elements), elements, mline.numVertices());
    digest.add(GetVertices(&mline, points[0]), GetAxis(&mline, points[1]),
               GetMilters(&mline, points[2]));
    digest.add(points);
    const std::unique_ptr<db_mlvertlink[]> copy(ret_vert(&mline));
    for (int v = 0; copy != nullptr && v < mline.numVertices(); ++v) {
        const db_mlvertlink& vertex = copy[static_cast<std::size_t>(v)];
        digest.add(vertex.pt, vertex.axis, vertex.miter);
        for (int k = 0; k < elements; ++k) {
            const db_mlelemlink& element = vertex.elem[k];
            digest.add(std::span(element.lineParams, std::size_t(element.numLine)),
                       std::span(element.areaParams, std::size_t(element.numArea)));
        }
    }
}

TEST(Settled, isWhatAccessorsOfMultilinesGive) {
    using namespace mledit;
    Calls calls;
    KdDbMline mline;
    Digest digest;
    for (int round = 0; round < 40000; ++round) {
        const int vertex = calls.from(-1, kMost);
        const int element = calls.from(-1, kMost);
        const int count = calls.from(-1, kMost);
        std::vector<double> numbers = calls.numbers();
        const auto* const points = reinterpret_cast<const double(*)[3]>(numbers.data());
        int number = 0;
        const std::function<int()> choices[] = {
            [&] { return SetFlag(&mline, count); },
            [&] { return SetNumVertices(&mline, count); },
            [&] { return SetSegmentsSize(&mline, count); },
            [&] { return SetNumLine(&mline, count, vertex, element); },
            [&] { return SetLineArray(&mline, numbers.data(), vertex, element); },
            [&] { return SetNumArea(&mline, count, vertex, element); },
            [&] { return SetAreaArray(&mline, numbers.data(), vertex, element); },
            [&] { return SetVertices(&mline, points); },
            [&] { return SetAxis(&mline, points); },
            [&] { return SetMilters(&mline, points); },
            [&] { return GetNumLine(&mline, &number, vertex, element); },
            [&] { return GetNumArea(&mline, &number, vertex, element); },
            [&] { return GetLineArray(&mline, numbers.data(), count, vertex, element); },
            [&] { return GetAreaArray(&mline, numbers.data(), count, vertex, element); },
            [&] {
                storeLineList(&mline, vertex, element, {numbers[0], 0.0, numbers[1]});
                return static_cast<int>(lineList(&mline, vertex, element).size());
            },
            [&] {
                storeAreaList(&mline, vertex, element, {numbers[0]});
                return static_cast<int>(areaList(&mline, vertex, element).size());
            },
        };
        const int choice = calls.below(std::size(choices));
        const int result = choices[choice]();
        digest.add(choice, result, number, numbers);
        digest.add(elementOffset(mline, vertex, element));
        addMline(digest, mline);
    }
    EXPECT_EQ(digest.text(), "55C02BE5534181E4");
}

TEST(Settled, isWhatAccessorsOfStylesGive) {
    Calls calls;
    const KdDbDatabase database;
    KdDbMlineStyle style;
    style.initMlineStyle();
    Digest digest;
    wchar_t texts[][8] = {L"a$b", L"b", L"$", L"a$b$c", L"x$", L""};
    for (int round = 0; round < 40000; ++round) {
        const int count = calls.from(-1, kMost);
        const std::vector<double> numbers = calls.numbers();
        std::vector<int> indices(kMost);
        std::vector<unsigned> values(kMost);
        std::vector<wchar_t*> names(kMost);
        for (std::size_t i = 0; i < kMost; ++i) {
            indices[i] = calls.from(-20, 270);
            values[i] = static_cast<unsigned>(calls.from(0xFFFFF0, 0x1000008));
            const int text = calls.from(0, std::size(texts));
            names[i] = text < static_cast<int>(std::size(texts)) ? texts[text] : nullptr;
        }
        const std::function<int()> choices[] = {
            [&] { return SetNumElements(&style, count); },
            [&] { return SetElemOffset(&style, numbers.data(), count); },
            [&] { return SetElemColor(&style, indices.data(), count); },
            [&] { return SetElemRgb(&style, values.data(), count); },
            [&] { return SetElemName(&style, names.data(), count); },
            [&] { return SetFlag(&style, calls.from(0, 2047)); },
        };
        const int choice = calls.below(std::size(choices));
        const int result = choices[choice]();
        digest.add(choice, result, indices, style.numElements());
        std::vector<double> offsets(kMost, 9.0);
        digest.add(GetElemOffset(&style, offsets.data(), count), offsets);
        for (int i = 0; i < style.numElements(); ++i) {
            double offset = 0.0;
            KdCmColor color;
            KdDbObjectId linetype;
            style.getElementAt(i, offset, color, linetype);
            digest.add(offset, color, linetype.isNull());
        }
        digest.add(style.filled(), style.startSquareCap(), style.endRoundCap());
    }
    EXPECT_EQ(digest.text(), "B44DA5E751CA81CE");
}

} // namespace
