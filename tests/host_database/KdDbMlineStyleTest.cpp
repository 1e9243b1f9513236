#include "KdDbMlineStyle.h"
#include "KdDbDatabase.h"
#include "MlineStyleContent.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

std::vector<double> offsets(const KdDbMlineStyle& style) {
    std::vector<double> result;
    for (int index = 0; index < style.numElements(); ++index) {
        double offset = 0.0;
        KdCmColor color;
        KdDbObjectId linetype;
        EXPECT_EQ(style.getElementAt(index, offset, color, linetype), Status::done);
        result.push_back(offset);
    }
    return result;
}

void add(KdDbMlineStyle& style, int index, double offset) {
    int given = index;
    EXPECT_EQ(style.addElement(given, offset, KdCmColor(), KdDbObjectId(), true), Status::done);
    EXPECT_EQ(given, index);
}

TEST(KdDbMlineStyle, elementsKeepTheirOrderAndMayRepeat) {
    KdDbMlineStyle style;
    style.initMlineStyle();
    EXPECT_EQ(offsets(style), (std::vector{0.5, -0.5}));
    add(style, 0, 0.5);
    add(style, 0, -9.0);
    add(style, 4, 7.0);
    EXPECT_EQ(offsets(style), (std::vector{-9.0, 0.5, 0.5, -0.5, 7.0}));
    int index = 2;
    EXPECT_EQ(style.setElement(index, 0.5, KdCmColor(), KdDbObjectId()), Status::done);
    EXPECT_EQ(index, 2);
    EXPECT_EQ(style.removeElementAt(0), Status::done);
    EXPECT_EQ(offsets(style), (std::vector{0.5, 0.5, -0.5, 7.0}));

    double offset = 42.0;
    KdCmColor color;
    KdDbObjectId linetype;
    for (int outside : {-1, 4, 99}) {
        EXPECT_NE(style.getElementAt(outside, offset, color, linetype), Status::done);
        EXPECT_NE(style.setElement(outside, 1.0, color, linetype), Status::done);
        EXPECT_NE(style.removeElementAt(outside), Status::done);
    }
    EXPECT_EQ(offset, 42.0);
    int beyond = 5;
    EXPECT_NE(style.addElement(beyond, 1.0, color, linetype, false), Status::done);

    KdDbMlineStyle target;
    target.setName(L"COPY");
    ASSERT_EQ(target.set(style, true), Status::done); // all but the name
    EXPECT_STREQ(target.name(), L"COPY");
    EXPECT_EQ(offsets(target), offsets(style));
    ASSERT_EQ(target.set(target, true), Status::done);
    EXPECT_EQ(offsets(target), offsets(style));
}

TEST(KdDbMlineStyle, anUnknownLinetypeKeepsItsNameTillAnotherIsSet) {
    const KdDbDatabase database;
    auto content = std::make_shared<orvex::MlineStyleContent>();
    content->elements.push_back({1.0, KdCmColor(), KdDbObjectId(), L"HEDGE"});
    KdDbMlineStyle style;
    style.setContent(content);
    int index = 0;
    style.setElement(index, 2.0, KdCmColor(), KdDbObjectId());
    EXPECT_EQ(style.values().elements[0].linetypeName, L"HEDGE");
    EXPECT_EQ(style.values().elements[0].offset, 2.0);
    EXPECT_EQ(content->elements[0].offset, 1.0);
    style.setElement(index, 2.0, KdCmColor(), database.linetypeTableId());
    EXPECT_TRUE(style.values().elements[0].linetypeName.empty());
    style.setElement(index, 2.0, KdCmColor(), KdDbObjectId());
    EXPECT_TRUE(style.values().elements[0].linetypeName.empty());
}

} // namespace
