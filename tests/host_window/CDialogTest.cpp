#include "DialogPair.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>

#include <stdexcept>

using orvex::testing::Logic;

namespace {

TEST(CDialog, onlyTheLogicsOkGivesOne) {
    const struct {
        const char* what;
        void (*end)(Logic&);
        int result;
    } cases[] = {
        {"the logic's OK", [](Logic& logic) { logic.OnOK(); }, 1},
        {"the logic's cancel", [](Logic& logic) { logic.OnCancel(); }, 2},
        {"Qt's accept", [](Logic& logic) { logic.view().accept(); }, 2},
        {"a result of Qt's that is 1", [](Logic& logic) { logic.view().done(1); }, 2},
        {"the close control", [](Logic& logic) { logic.view().close(); }, 2},
        {"a cancel after the OK", [](Logic& logic) { logic.OnOK(), logic.OnCancel(); }, 1},
        {"an OK after the cancel", [](Logic& logic) { logic.OnCancel(), logic.OnOK(); }, 2},
    };
    for (const auto& each : cases) {
        Logic logic;
        EXPECT_EQ(logic.runWith([&] { each.end(logic); }), each.result) << each.what;
        EXPECT_FALSE(logic.view().isVisible()) << each.what;
    }
}

TEST(CDialog, refusesWithoutViewAndWhenTheLogicDoesNotStart) {
    CDialog bare(1);
    EXPECT_EQ(bare.DoModal(), -1);

    Logic refusing;
    bool shown = false;
    refusing.onInit = [&] { return 0; };
    QObject::connect(&refusing.view(), &QDialog::finished, [&] { shown = true; });
    EXPECT_EQ(refusing.DoModal(), -1);
    EXPECT_FALSE(shown);
    EXPECT_EQ(CWnd::FromHandle(&refusing.view()), nullptr);

    Logic throwing;
    throwing.onInit = []() -> int { throw std::runtime_error("no"); };
    EXPECT_THROW(throwing.DoModal(), std::runtime_error);
    throwing.onInit = [] { return 0; };
    EXPECT_EQ(throwing.DoModal(), -1); // it isn't taken for running
}

TEST(CDialog, nestsAndDoesNotRunTwice) {
    Logic outer;
    int outerKeys = 0;
    outer.onKey = [&](tagMSG&) { return ++outerKeys > 0; };
    const int result = outer.runWith([&] {
        EXPECT_EQ(outer.DoModal(), -1);
        Logic inner;
        inner.onKey = [&](tagMSG&) {
            inner.OnOK();
            return true;
        };
        const auto press = [&] { QTest::keyClick(&inner.view(), Qt::Key_Return); };
        EXPECT_EQ(inner.runWith(press), 1);
        EXPECT_EQ(outerKeys, 0); // a dialog on top keeps its keys
        EXPECT_EQ(CWnd::FromHandle(&outer.view()), &outer);
        outer.OnCancel();
    });
    EXPECT_EQ(result, 2);
}

TEST(CDialog, theViewDiesWithTheLogicExactlyOnce) {
    QPointer<QDialog> view;
    {
        Logic logic;
        view = &logic.view();
        QObject::connect(view, &QObject::destroyed,
                         [dying = view.data()] { EXPECT_EQ(CWnd::FromHandle(dying), nullptr); });
    }
    EXPECT_TRUE(view.isNull());

    Logic orphan;
    delete &orphan.view();
    EXPECT_EQ(orphan.GetSafeHwnd(), nullptr);
    EXPECT_EQ(orphan.DoModal(), -1);
    orphan.SetWindowTextW(L"nothing happens");

    auto parent = std::make_unique<Logic>();
    const Logic child(parent.get());
    EXPECT_EQ(child.GetParent(), parent.get());
    parent.reset();
    EXPECT_EQ(child.GetParent(), nullptr);
}

TEST(CDialog, reportsClicksAsLongAsItRuns) {
    Logic logic;
    auto& box = logic.add<QCheckBox>(1038);
    logic.CheckDlgButton(1038, 1); // is silent
    EXPECT_EQ(logic.IsDlgButtonChecked(1038), 1);
    logic.onCommand = [] { throw std::runtime_error("no"); }; // doesn't reach Qt
    box.click();
    EXPECT_EQ(logic.commands, std::vector<unsigned long>{1038});

    CWnd* whenHidden = &logic;
    logic.runWith([&] {
        logic.OnOK();
        whenHidden = CWnd::FromHandle(&logic.view());
    });
    EXPECT_EQ(whenHidden, nullptr);
    box.click();
    EXPECT_EQ(logic.commands.size(), 1U);
}

TEST(CDialog, numberOneIsTheOnlyDefaultButton) {
    Logic logic;
    auto& other = logic.add<QPushButton>(1028);
    auto& accept = logic.add<QPushButton>(1);
    const auto* const unregistered = new QPushButton(&logic.view());
    logic.runWith([&] {
        other.setFocus();
        EXPECT_FALSE(other.isDefault());
        EXPECT_FALSE(other.autoDefault() || unregistered->autoDefault());
        EXPECT_TRUE(accept.isDefault());
        logic.OnCancel();
    });
}

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
