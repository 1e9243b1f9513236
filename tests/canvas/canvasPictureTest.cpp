#include "CanvasFixture.h"

#include <random>

namespace orvex::testing {
namespace {

// The number of pixels that differ, for messages that say something.
int differences(const QImage& a, const QImage& b) {
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            count += a.pixel(x, y) != b.pixel(x, y) ? 1 : 0;
        }
    }
    return count;
}

TEST_F(CanvasFixture, ManyMovementsComeToThePictureOfTheirEnd) {
    std::mt19937 random(7);
    const auto number = [&](int from, int to) {
        return std::uniform_int_distribution<int>(from, to)(random);
    };
    for (int round = 0; round < 12; ++round) {
        for (int step = 0; step < 12; ++step) {
            const QPoint from(number(0, kWidth), number(0, kHeight));
            drag(from, from + QPoint(number(-90, 90), number(-90, 90)), Qt::MiddleButton);
            if (step % 5 == 0) {
                wheel(from, number(-2, 2));
            }
            if (step % 3 == 0) {
                QCoreApplication::processEvents(); // some tiles are painted, others aren't
            }
        }
        settle();
        ASSERT_EQ(differences(picture(), pictureFromScratch()), 0) << round;
    }
}

} // namespace
} // namespace orvex::testing
