#include "QBaseDialog.h"
#include "dialogRun.h"

#include <QKeyEvent>
#include <QMainWindow>
#include <QScreen>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QWindow>

namespace {

class Dialog : public QBaseDialog {
public:
    Dialog() : list(new QListWidget(this)), button(new QPushButton("OK", this)) {
        list->addItems({"a", "b"});
        list->resize(100, 50);
        button->move(0, 60);
        button->setAutoDefault(false);
        button->setDefault(true);
        connect(button, &QPushButton::clicked, this, [this] { ++clicks; });
    }
    void OnCancel() override {
        ++cancels;
        if (!stays) {
            QBaseDialog::OnCancel();
        }
    }

    template <class Act>
    int runWith(Act act) {
        orvex::testing::whenActive(*this, std::move(act));
        return exec();
    }

    QListWidget* list;
    QPushButton* button;
    int clicks = 0;
    int cancels = 0;
    bool stays = false;
};

TEST(BaseDialog, everyWayOutGoesThroughCancel) {
    const struct {
        const char* what;
        void (*leave)(Dialog&);
    } cases[] = {
        {"Escape", [](Dialog& dialog) { QTest::keyClick(dialog.list, Qt::Key_Escape); }},
        {"the close control", [](Dialog& dialog) { dialog.close(); }},
        {"reject", [](Dialog& dialog) { dialog.reject(); }},
        {"the window system", [](Dialog& dialog) { dialog.windowHandle()->close(); }},
    };
    for (const auto& each : cases) {
        Dialog dialog;
        dialog.stays = true;
        const int result = dialog.runWith([&] {
            each.leave(dialog);
            EXPECT_EQ(dialog.cancels, 1) << each.what;
            EXPECT_TRUE(dialog.isVisible()) << each.what; // the derived class decides
            dialog.stays = false;
            each.leave(dialog);
        });
        EXPECT_EQ(result, QDialog::Rejected) << each.what;
        EXPECT_EQ(dialog.cancels, 2) << each.what;
        EXPECT_EQ(dialog.clicks, 0) << each.what;
    }
}

TEST(BaseDialog, enterNeedsAnEnabledDefaultButton) {
    struct Case {
        bool isDefault;
        bool enabled;
        int clicks;
    };
    for (const Case& each : {Case{true, true, 2}, Case{true, false, 0}, Case{false, true, 0}}) {
        Dialog dialog;
        dialog.button->setDefault(each.isDefault);
        dialog.button->setEnabled(each.enabled);
        dialog.runWith([&] {
            dialog.list->setFocus();
            QTest::keyClick(dialog.list, Qt::Key_Return);
            QTest::keyClick(&dialog, Qt::Key_Enter);
            EXPECT_TRUE(dialog.isVisible()); // a click alone ends nothing
            QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, {}, true);
            QCoreApplication::sendEvent(&dialog, &held);
            dialog.reject();
        });
        EXPECT_EQ(dialog.clicks, each.clicks) << each.isDefault << each.enabled;
    }
}

TEST(BaseDialog, enterPressesTheButtonThatHasTheFocus) {
    Dialog dialog;
    dialog.button->setDefault(true);
    QPushButton other(&dialog);
    other.setAutoDefault(false);
    QSignalSpy pressed(&other, &QPushButton::clicked);
    dialog.runWith([&] {
        other.setFocus();
        QTest::keyClick(&other, Qt::Key_Return);
        other.setEnabled(false); // the focus goes on, Enter to the default button again
        QTest::keyClick(&dialog, Qt::Key_Enter);
        dialog.reject();
    });
    EXPECT_EQ(pressed.count(), 1);
    EXPECT_EQ(dialog.clicks, 1);
}

TEST(BaseDialog, scrollsWhatTheScreenHasNoRoomFor) {
    for (const int height : {200, 4000}) {
        QBaseDialog dialog;
        auto* const column = new QVBoxLayout(&dialog);
        auto* const first = new QPushButton("First");
        auto* const last = new QPushButton("Last");
        first->setMinimumHeight(height);
        column->addWidget(first);
        column->addWidget(last);
        dialog.setMaximumSize(500, 500);
        first->setFocus();
        orvex::testing::whenActive(dialog, [&] {
            EXPECT_LE(dialog.height(), dialog.screen()->availableSize().height());
            EXPECT_TRUE(first->hasFocus());
            QTest::keyClick(first, Qt::Key_Tab);
            EXPECT_TRUE(last->hasFocus());
            EXPECT_FALSE(last->visibleRegion().isEmpty()) << height;
            dialog.reject();
        });
        dialog.exec();
    }
}

TEST(BaseDialog, staysAboveTheWindowItWasOpenedFrom) {
    QMainWindow host;
    host.setGeometry(100, 100, 500, 400);
    host.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&host));
    Dialog dialog;
    dialog.resize(200, 100);
    EXPECT_EQ(dialog.parent(), nullptr);
    dialog.runWith([&] {
        EXPECT_EQ(dialog.windowHandle()->transientParent(), host.windowHandle());
        EXPECT_TRUE(host.geometry().contains(dialog.geometry()));
        Dialog inner;
        inner.move(7, 9);
        inner.runWith([&] {
            EXPECT_EQ(inner.windowHandle()->transientParent(), dialog.windowHandle());
            EXPECT_EQ(inner.pos(), QPoint(7, 9)); // a place that was asked for
            inner.reject();
        });
        dialog.reject();
    });
}

} // namespace
