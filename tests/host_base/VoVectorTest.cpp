#include "VoVector.h"
#include "BoundedCrashRecorder.h"
#include "KdArray.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <stdexcept>
#include <string>

namespace {

using orvex::BoundedCrashRecorder;
using testing::ElementsAre;

class VoVectorTest : public testing::Test {
protected:
    VoVectorTest() : m_before(orvex::setCrashRecorder(&recorder)) {}
    ~VoVectorTest() override { orvex::setCrashRecorder(m_before); }

    BoundedCrashRecorder recorder;

private:
    CrashRecorder* m_before;
};

VoVector<double> numbers(std::initializer_list<double> values) {
    VoVector<double> vector;
    for (const double value : values) {
        vector.append(value);
    }
    return vector;
}

TEST_F(VoVectorTest, CopiesShareTheirMemoryUntilOneIsWritten) {
    VoVector<double> first = numbers({1, 2, 3});
    VoVector<double> second = first;
    const auto& readFirst = first;
    const auto& readSecond = second;
    EXPECT_EQ(readFirst.data(), readSecond.data());

    second.setAt(1, 20);
    EXPECT_THAT(first, ElementsAre(1, 2, 3));
    EXPECT_THAT(second, ElementsAre(1, 20, 3));
    EXPECT_NE(readFirst.data(), readSecond.data());
}

TEST_F(VoVectorTest, EveryWayOfWritingLeavesTheOtherCopyAlone) {
    const VoVector<double> original = numbers({1, 2, 3});
    VoVector<double> copies[6] = {original, original, original, original, original, original};
    copies[0][0] = 9;
    copies[1].append(9);
    copies[2].resize(1);
    copies[3].clear();
    copies[4].data()[2] = 9;
    copies[5].setPhysicalLength(2);
    EXPECT_THAT(original, ElementsAre(1, 2, 3));
    EXPECT_THAT(copies[0], ElementsAre(9, 2, 3));
    EXPECT_THAT(copies[1], ElementsAre(1, 2, 3, 9));
    EXPECT_THAT(copies[2], ElementsAre(1));
    EXPECT_TRUE(copies[3].isEmpty());
    EXPECT_THAT(copies[4], ElementsAre(1, 2, 9));
    EXPECT_THAT(copies[5], ElementsAre(1, 2));
}

TEST_F(VoVectorTest, NestedCopiesAreIndependentToo) {
    VoVector<VoVector<double>> first;
    first.append(numbers({1, 2}));
    VoVector<VoVector<double>> second = first;
    second[0].append(3);
    second.at(0)[0] = 7;
    EXPECT_THAT(first.at(0), ElementsAre(1, 2));
    EXPECT_THAT(second.at(0), ElementsAre(7, 2, 3));
    EXPECT_EQ(first.at(0), numbers({1, 2}));
}

TEST_F(VoVectorTest, ACopyThroughANullPointerIsEmpty) {
    const VoVector<double> source = numbers({4});
    EXPECT_THAT(VoVector<double>(&source), ElementsAre(4));
    EXPECT_EQ(VoVector<double>(static_cast<const VoVector<double>*>(nullptr)).size(), 0U);
}

TEST_F(VoVectorTest, ABadIndexIsToldAndMeetsAFreshZero) {
    VoVector<double> vector = numbers({1});
    const VoVector<double>& reading = vector;
    for (const int index : {-1, 1, 1000000}) {
        recorder.clear();
        vector[index] = 5;
        EXPECT_EQ(reading.at(index), 0);
        vector.setAt(index, 6);
        EXPECT_THAT(
            recorder.messages(),
            ElementsAre(L"Invalid array index!", L"Invalid array index!", L"Invalid array index!"));
        EXPECT_THAT(vector, ElementsAre(1));
    }
}

TEST_F(VoVectorTest, RoomBehindTheEndIsZeroWhateverStoodThere) {
    VoVector<int> vector;
    for (int i = 1; i <= 100; ++i) {
        vector.append(i);
    }
    vector.resize(3);
    ASSERT_GE(vector.physicalLength(), 100U);
    for (unsigned i = 3; i < vector.physicalLength(); ++i) {
        ASSERT_EQ(vector.data()[i], 0) << i;
    }
    vector.resize(5);
    EXPECT_THAT(vector, ElementsAre(1, 2, 3, 0, 0));
    vector.setPhysicalLength(50);
    EXPECT_EQ(vector.physicalLength(), 50U);
    EXPECT_EQ(vector.data()[49], 0);
}

TEST_F(VoVectorTest, AnElementOfTheArrayItselfCanBeAppendedAndSet) {
    VoVector<std::wstring> vector;
    vector.append(L"a text that is too long for the small buffer of a string");
    for (int i = 0; i < 20; ++i) {
        vector.append(vector.at(0));
    }
    vector.setAt(0, vector.at(20));
    EXPECT_EQ(vector.at(0), vector.at(20));
    EXPECT_EQ(vector.at(0).size(), 56U);
}

TEST_F(VoVectorTest, AppendingManyMovesThemRarely) {
    VoVector<int> vector;
    int moves = 0;
    const int* place = nullptr;
    for (int i = 0; i < 100000; ++i) {
        vector.append(i);
        const int* const now = vector.data();
        moves += now != place ? 1 : 0;
        place = now;
    }
    EXPECT_LE(moves, 18); // doubling from 4
    EXPECT_EQ(vector.at(99999), 99999);
}

struct StepPolicy {
    [[nodiscard]] unsigned growCount(unsigned, unsigned physical, unsigned wanted) const {
        return std::max(physical + 10, wanted);
    }
};

TEST_F(VoVectorTest, GrowthFollowsThePolicyAndIsNotAskedForWithinTheRoom) {
    VoVector<int, StepPolicy> vector;
    vector.append(1);
    EXPECT_EQ(vector.physicalLength(), 10U);
    vector.resize(10);
    EXPECT_EQ(vector.physicalLength(), 10U);
    vector.append(1);
    EXPECT_EQ(vector.physicalLength(), 20U);
    vector.resize(0);
    EXPECT_EQ(vector.physicalLength(), 20U);
}

TEST(KdArrayTest, IsAValue) {
    KdArray<int> array;
    EXPECT_TRUE(array.isEmpty());
    array.append(3);
    array.append(4);
    KdArray<int> copy = array;
    copy[0] = 30;
    copy.append(5);
    EXPECT_THAT(array, ElementsAre(3, 4));
    EXPECT_THAT(copy, ElementsAre(30, 4, 5));
    copy.removeAll();
    EXPECT_EQ(copy.length(), 0);
    EXPECT_THROW((void)array[2], std::out_of_range);
}

} // namespace
