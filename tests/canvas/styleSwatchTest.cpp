#include "styleSwatch.h"

#include "KdDbMlineStyle.h"
#include "MlineStyleContent.h"

#include <QImage>

#include <gmock/gmock.h>

#include <algorithm>

namespace orvex::testing {
namespace {

KdCmColor colorOf(std::uint16_t index) {
    KdCmColor color;
    color.setColorIndex(index);
    return color;
}

QImage swatchOf(const KdDbMlineStyle& style, double ratio = 1.0) {
    return styleSwatch(style, {64, 24}, ratio).toImage();
}

// The first row from above whose middle has the colour; -1 for none.
int rowOf(const QImage& image, std::uint32_t rgb) {
    for (int y = 0; y < image.height(); ++y) {
        if ((image.pixel(image.width() / 4, y) & 0xFFFFFFU) == rgb) {
            return y;
        }
    }
    return -1;
}

TEST(StyleSwatch, showsElementsWhereTheirOffsetsPutThem) {
    KdDbMlineStyle style;
    MlineStyleContent content;
    content.elements = {{1000.0, colorOf(1), {}, {}}, {-500.0, colorOf(5), {}, {}}};
    content.flags = 16 | 64; // a line and a round cap at the start
    style.setContent(std::make_shared<MlineStyleContent>(content));
    const QImage plain = swatchOf(style);
    const int red = rowOf(plain, 0xFF0000);
    const int blue = rowOf(plain, 0x0000FF);
    EXPECT_NEAR(red, 4, 1); // 62 of 100 of 24 rows lie between them
    EXPECT_NEAR(blue, 19, 1);
    EXPECT_EQ(rowOf(plain, 0x00FF00), -1);

    content.flags |= 1;
    content.fillColor = colorOf(3);
    style.setContent(std::make_shared<MlineStyleContent>(content));
    EXPECT_EQ(rowOf(swatchOf(style), 0x00FF00), red + 1);
    EXPECT_EQ(swatchOf(style, 2.0).size(), QSize(128, 48));
    EXPECT_NEAR(rowOf(swatchOf(style, 2.0), 0xFF0000), 2 * red, 2);
}

TEST(StyleSwatch, isTheGroundAloneWhereNothingFits) {
    KdDbMlineStyle style;
    MlineStyleContent content;
    style.setContent(std::make_shared<MlineStyleContent>(content));
    const QImage empty = swatchOf(style);
    content.elements = {{0.0, {}, {}, {}}};
    style.setContent(std::make_shared<MlineStyleContent>(content));
    EXPECT_NE(swatchOf(style), empty) << "one element has no extent";
    EXPECT_NEAR(rowOf(swatchOf(style), 0xFFFFFF), 12, 1);
    content.elements = {{1.0, {}, {}, {}}, {-1.0, {}, {}, {}}};
    content.startAngle = 1e-9; // slants far out of it
    style.setContent(std::make_shared<MlineStyleContent>(content));
    EXPECT_EQ(swatchOf(style).size(), QSize(64, 24));
    EXPECT_TRUE(styleSwatch(style, {}).isNull());
}

} // namespace
} // namespace orvex::testing
