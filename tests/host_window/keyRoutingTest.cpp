#include "DialogPair.h"

#include <QKeyEvent>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using orvex::testing::Logic;

namespace {

TEST(KeyRouting, pressesReachTheLogicOnceBeforeQt) {
    Logic logic;
    auto& list = logic.add<QListWidget>(1058);
    auto& button = logic.add<QPushButton>(1);
    list.addItems({"a", "b"});
    std::vector<unsigned long> seen;
    logic.onKey = [&](tagMSG& message) {
        EXPECT_EQ(message.message, 256U);
        seen.push_back(message.wParam);
        return message.wParam == 32;
    };
    QSignalSpy clicked(&button, &QPushButton::clicked);
    logic.runWith([&] {
        list.setFocus();
        // Enter is ignored by the list and comes again for the dialog: that isn't news.
        QTest::keyClick(&list, Qt::Key_Return);
        QTest::keyClick(&list, Qt::Key_Return);
        QTest::keyClick(&list, Qt::Key_Down);
        EXPECT_EQ(list.currentRow(), 1); // not swallowed
        button.setFocus();
        QTest::keyClick(&button, Qt::Key_Space); // swallowed
        logic.OnCancel();
    });
    EXPECT_EQ(seen, (std::vector<unsigned long>{13, 13, 40, 32}));
    EXPECT_EQ(clicked.count(), 2); // by the two Enters: it is the default button
}

TEST(KeyRouting, releasesAndRepeatsAreNotShown) {
    Logic logic;
    int seen = 0;
    logic.onKey = [&](tagMSG&) { return ++seen > 0; };
    logic.runWith([&] {
        QTest::keyRelease(&logic.view(), Qt::Key_Return);
        QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, {}, true);
        QCoreApplication::sendEvent(&logic.view(), &repeat);
        EXPECT_EQ(seen, 0);
        QTest::keyPress(&logic.view(), Qt::Key_A);
        EXPECT_EQ(seen, 1);
        logic.OnCancel();
    });
    QTest::keyClick(&logic.view(), Qt::Key_Return);
    EXPECT_EQ(seen, 1);
}

} // namespace
