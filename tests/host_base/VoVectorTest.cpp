#include "VoVector.h"
#include "BoundedCrashRecorder.h"

#include <gmock/gmock.h>

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

TEST_F(VoVectorTest, everyWayOfWritingLeavesTheOtherCopyAlone) {
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

    VoVector<VoVector<double>> nested;
    nested.append(original);
    VoVector<VoVector<double>> nestedCopy = nested;
    nestedCopy[0].append(4);
    EXPECT_THAT(nested.at(0), ElementsAre(1, 2, 3));
    EXPECT_THAT(nestedCopy.at(0), ElementsAre(1, 2, 3, 4));
    EXPECT_EQ(VoVector<double>(static_cast<const VoVector<double>*>(nullptr)).size(), 0U);
}

TEST_F(VoVectorTest, aBadIndexIsToldAndMeetsAFreshZero) {
    VoVector<double> vector = numbers({1});
    const VoVector<double>& reading = vector;
    for (const int index : {-1, 1, 1000000}) {
        recorder.clear();
        vector[index] = 5;
        EXPECT_EQ(reading.at(index), 0);
        vector.setAt(index, 6);
        EXPECT_EQ(recorder.messages(), std::vector<std::wstring>(3, L"Invalid array index!"));
        EXPECT_THAT(vector, ElementsAre(1));
    }
}

TEST_F(VoVectorTest, roomBehindTheEndIsZeroWhateverStoodThere) {
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

TEST_F(VoVectorTest, anElementOfTheArrayItselfCanBeAppendedAndSet) {
    VoVector<std::wstring> vector;
    vector.append(L"a text that is too long for the small buffer of a string");
    for (int i = 0; i < 20; ++i) {
        vector.append(vector.at(0));
    }
    vector.setAt(0, vector.at(20));
    EXPECT_EQ(vector.at(0), vector.at(20));
    EXPECT_EQ(vector.at(0).size(), 56U);
}

TEST_F(VoVectorTest, appendingManyMovesThemRarely) {
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

} // namespace
