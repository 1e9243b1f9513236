#include "canvasMarks.h"

#include "readableColor.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace orvex::testing {
namespace {

TEST(Glow, canBeReadThroughItsOpacity) {
    for (const std::uint32_t ground : {kDarkGround, kLightGround}) {
        QImage image(1, 1, QImage::Format_RGB32);
        image.fill(QColor::fromRgb(ground));
        QPainter painter(&image);
        painter.setBackground(QColor::fromRgb(ground));
        painter.setOpacity(kGlowOpacity);
        painter.fillRect(image.rect(), glowColor(painter));
        EXPECT_GE(contrastOf(image.pixel(0, 0) & 0xFFFFFFU, ground), 3.0) << std::hex << ground;
    }
}

} // namespace
} // namespace orvex::testing
