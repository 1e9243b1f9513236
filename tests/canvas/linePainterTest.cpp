#include "LinePainter.h"

#include <gmock/gmock.h>

#include <cmath>
#include <random>

namespace orvex::testing {
namespace {

constexpr int kSide = 64;

QImage emptyImage() {
    QImage image(kSide, kSide, QImage::Format_RGB32);
    image.fill(Qt::black);
    return image;
}

// What lines leave in the image, in pixels of full colour.
double coverageOf(const QImage& image) {
    double covered = 0.0;
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x) {
            covered += qGreen(image.pixel(x, y)) / 255.0;
        }
    }
    return covered;
}

TEST(LinePainter, linesAreAsWideInEveryDirection) {
    constexpr double kLength = 40.0;
    for (const int width : {1, 2, 3}) {
        for (int degrees = 0; degrees < 360; degrees += 7) {
            const double angle = degrees * 3.14159265358979 / 180;
            QImage image = emptyImage();
            LinePainter lines(image, image.rect(), width);
            const PlanPoint start{32.3 - std::cos(angle) * 20, 32.4 - std::sin(angle) * 20};
            const std::vector<PlanPoint> line{
                start, {start.x + std::cos(angle) * kLength, start.y + std::sin(angle) * kLength}};
            lines.chain(line, 0xFFFFFF);
            // Square ends reach over by half the width along the axis that is nearer: at 45
            // degrees a line is the square root of 2 times as long there.
            EXPECT_GE(coverageOf(image), kLength * width - 1) << degrees;
            EXPECT_LE(coverageOf(image), (kLength + 1.5 * width) * width + 1) << degrees;
        }
    }
}

TEST(LinePainter, linesAlongTheAxesAreCrisp) {
    QImage image = emptyImage();
    LinePainter lines(image, image.rect(), 1);
    lines.chain(std::vector<PlanPoint>{{10.7, 5.3}, {20.2, 5.3}, {20.2, 30.9}}, 0xFFFFFF);
    EXPECT_EQ(coverageOf(image), 11 + 25); // columns 10 to 20, then rows 6 to 30
    lines.dot({40.5, 40.5}, 0xFFFFFF);
    EXPECT_EQ(image.pixel(40, 40), 0xFFFFFFFFU);
}

TEST(LinePainter, dashesFollowTheChainFromItsStart) {
    QImage image = emptyImage();
    LinePainter lines(image, image.rect(), 1);
    const DashCycle cycle{{4.0, 6.0}, 0.0};
    // Round a corner after 15: the second dash ends there, and 5 of the gap follow it.
    lines.dashedChain(std::vector<PlanPoint>{{0, 10}, {15, 10}, {15, 40}}, 0xFFFFFF, cycle);
    const auto isDrawn = [&](int x, int y) { return qGreen(image.pixel(x, y)) == 255; };
    for (int x = 0; x < 15; ++x) {
        EXPECT_EQ(isDrawn(x, 10), x % 10 < 4) << x;
    }
    for (int y = 11; y < 40; ++y) {
        EXPECT_EQ(isDrawn(15, y), (y - 10 + 15) % 10 < 4) << y;
    }
}

TEST(LinePainter, areasMeetWithoutGapsAndOverlaps) {
    QImage image = emptyImage();
    LinePainter lines(image, image.rect(), 1);
    const std::vector<PlanPoint> corners{{5.2, 7.9}, {50.1, 3.3}, {57.4, 49.6}, {11.8, 55.5}};
    double covered = 0.0;
    for (std::size_t i = 0; i < 4; ++i) {
        QImage part = emptyImage();
        LinePainter painter(part, part.rect(), 1);
        const std::vector<PlanPoint> triangle{corners[i], corners[(i + 1) % 4], {31.0, 29.5}};
        painter.area(triangle, 0xFFFFFF);
        covered += coverageOf(part);
    }
    lines.area(corners, 0xFFFFFF);
    EXPECT_EQ(coverageOf(image), covered);
    EXPECT_NEAR(coverageOf(image), 2161, 10); // the area by the corners' coordinates
}

// What partial repaints rest on.
TEST(LinePainter, aPixelDoesNotDependOnTheClip) {
    std::mt19937 random(5);
    const auto number = [&](double from, double to) {
        return std::uniform_real_distribution<double>(from, to)(random);
    };
    for (int round = 0; round < 300; ++round) {
        const double far = round % 3 == 0 ? 1e6 : 100.0;
        std::vector<PlanPoint> chain;
        chain.reserve(5);
        for (int i = 0; i < 5; ++i) {
            chain.push_back({number(-far, far), number(-far, far)});
        }
        const DashCycle cycle{{number(1, 9), number(1, 9), number(1, 9), number(1, 9)},
                              number(0, 20)};
        const auto rgb = static_cast<std::uint32_t>(number(1, 0xFFFFFF));
        const int width = 1 + round % 3;
        const auto paint = [&](QImage& image, const QRect& clip) {
            LinePainter lines(image, clip, width);
            lines.chain(chain, rgb);
            lines.dashedChain(chain, ~rgb & 0xFFFFFFU, cycle);
            lines.dot(chain.front(), rgb);
            lines.area(chain, rgb / 2);
        };
        QImage whole = emptyImage();
        paint(whole, whole.rect());
        QImage parts = emptyImage();
        const int x = static_cast<int>(number(1, kSide - 1));
        const int y = static_cast<int>(number(1, kSide - 1));
        for (const QRect& clip : {QRect(0, 0, x, y), QRect(x, 0, kSide - x, y),
                                  QRect(0, y, x, kSide - y), QRect(x, y, kSide - x, kSide - y)}) {
            paint(parts, clip);
        }
        ASSERT_EQ(parts, whole) << round;
    }
}

TEST(LinePainter, passesOverWhatHasNoPlace) {
    QImage image = emptyImage();
    LinePainter lines(image, image.rect(), 1);
    for (const double odd : std::vector<double>{NAN, INFINITY, 1e300, -1e18}) {
        lines.chain(std::vector<PlanPoint>{{odd, 1}, {5, 5}}, 0xFFFFFF);
        lines.dashedChain(std::vector<PlanPoint>{{odd, 1}, {5, 5}}, 0xFFFFFF, {{4.0, 4.0}, 0.0});
        lines.dot({5, odd}, 0xFFFFFF);
        lines.area(std::vector<PlanPoint>{{odd, 1}, {5, 5}, {9, 60}}, 0xFFFFFF);
    }
    EXPECT_EQ(coverageOf(image), 0.0);
}

} // namespace
} // namespace orvex::testing
