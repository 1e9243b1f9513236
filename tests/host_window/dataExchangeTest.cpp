#include "CDataExchange.h"
#include "CEdit.h"
#include "DialogPair.h"
#include "messageBeep.h"

#include <QLineEdit>

#include <gtest/gtest.h>

using orvex::testing::Logic;

namespace {

// Counts beeps for as long as it lives.
class Beeps {
public:
    Beeps() : m_before(orvex::setBeeper([this] { ++m_count; })) {}
    ~Beeps() { orvex::setBeeper(m_before); }
    Beeps(const Beeps&) = delete;
    Beeps& operator=(const Beeps&) = delete;
    [[nodiscard]] int count() const { return m_count; }

private:
    int m_count = 0;
    std::function<void()> m_before;
};

class CountingEdit : public CEdit {
public:
    void PreSubclassWindow() override { ++bindings; }
    int bindings = 0;
};

TEST(DataExchange, aFailureEndsItWithOneBeepAndLeavesTheFocus) {
    Logic logic;
    auto& first = logic.add<QLineEdit>(1050);
    auto& second = logic.add<QLineEdit>(1044);
    auto& button = logic.add<QLineEdit>(1);
    first.setText("a");
    second.setText("b");
    CStdStr<wchar_t> read;
    CountingEdit edit;
    logic.onExchange = [&](CDataExchange* exchange) {
        for (const int number : {1050, 1044}) {
            exchange->PrepareEditCtrl(number);
            MessageBeep(~0U);
            exchange->Fail();
        }
        DDX_Text(exchange, 1044, read);
        DDX_Control(exchange, 1044, edit);
    };
    const Beeps beeps;
    logic.runWith([&] {
        button.setFocus();
        EXPECT_FALSE(logic.UpdateData(true));
        EXPECT_TRUE(button.hasFocus());
        logic.OnCancel();
    });
    // One at the start of the dialog, one here.
    EXPECT_EQ(beeps.count(), 2);
    EXPECT_TRUE(read.IsEmpty());
    EXPECT_EQ(edit.bindings, 0);
    EXPECT_EQ(CDataExchange::current(), nullptr);
    MessageBeep(~0U);
    EXPECT_EQ(beeps.count(), 3);
}

TEST(DataExchange, isNotReentrant) {
    Logic logic;
    int runs = 0;
    bool inner = true;
    logic.onExchange = [&](CDataExchange*) {
        ++runs;
        inner = logic.UpdateData(true);
    };
    EXPECT_TRUE(logic.UpdateData(true));
    EXPECT_FALSE(inner);
    EXPECT_EQ(runs, 1);
    logic.UpdateData(false);
    EXPECT_EQ(runs, 2);
}

TEST(DataExchange, aControlIsBoundOnceToTheWidgetOfItsNumber) {
    Logic logic;
    logic.add<QLineEdit>(1050);
    CountingEdit edit;
    CStdStr<wchar_t> lost = L"kept";
    logic.onExchange = [&](CDataExchange* exchange) {
        DDX_Control(exchange, 1050, edit);
        DDX_Control(exchange, 4711, edit);
        DDX_Text(exchange, 4711, lost);
    };
    logic.UpdateData(false);
    logic.UpdateData(true);
    EXPECT_EQ(edit.bindings, 1);
    EXPECT_STREQ(lost, L"kept");
    auto& fresh = logic.add<QLineEdit>(1050);
    logic.UpdateData(false);
    EXPECT_EQ(edit.bindings, 2);
    EXPECT_EQ(edit.GetSafeHwnd(), &fresh);
}

} // namespace
