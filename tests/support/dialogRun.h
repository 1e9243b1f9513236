#pragma once

#include <QApplication>
#include <QDialog>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <concepts>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

namespace orvex::testing {

// What is made while it lives has text of that size.
class TextSize {
public:
    explicit TextSize(int points) {
        QFont font = m_before;
        font.setPointSize(points);
        QApplication::setFont(font);
    }
    ~TextSize() { QApplication::setFont(m_before); }
    TextSize(const TextSize&) = delete;
    TextSize& operator=(const TextSize&) = delete;

private:
    QFont m_before = QApplication::font();
};
inline constexpr int kUsualTextSize = 9; // points
inline constexpr int kLargeTextSize = 18;

// A widget of the dialog by its object name; a test that asks for a missing one ends.
template <class Widget>
Widget& child(const QWidget& dialog, const char* name) {
    auto* const widget = dialog.findChild<Widget*>(name);
    if (widget == nullptr) {
        ADD_FAILURE() << "there is no " << name;
        std::abort();
    }
    return *widget;
}

// The same of the view of a logic.
template <class Widget, class Logic>
requires(!std::derived_from<Logic, QWidget>) Widget& child(const Logic& dialog, const char* name) {
    return child<Widget>(*dialog.GetSafeHwnd(), name);
}

inline void press(const QWidget& dialog, const char* button) {
    QTest::mouseClick(&child<QPushButton>(dialog, button), Qt::LeftButton);
}

inline std::vector<std::string> textsOf(const QListWidget& list) {
    std::vector<std::string> texts;
    texts.reserve(static_cast<std::size_t>(list.count()));
    for (int row = 0; row < list.count(); ++row) {
        texts.push_back(list.item(row)->text().toStdString());
    }
    return texts;
}

inline void clickRow(const QListWidget& list, int row) {
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualItemRect(list.item(row)).center());
}

// Clicks the one row that says that.
inline void clickText(const QListWidget& list, const char* text) {
    const auto items = list.findItems(text, Qt::MatchExactly);
    ASSERT_EQ(items.size(), 1) << text;
    clickRow(list, list.row(items.front()));
}

// Acts in the dialog as soon as its window is active. One that is still there afterwards is closed,
// which is a failure.
template <class Act>
void whenActive(QDialog& view, Act act) {
    QTimer::singleShot(0, &view, [&view, act = std::move(act)] {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
        act();
        if (view.isVisible()) {
            ADD_FAILURE() << "the dialog stayed open";
            view.QDialog::reject();
        }
    });
}

// Runs the view of a logic with `act` in it; its result.
template <class Logic, class Act>
int runDialog(Logic& dialog, Act act) {
    whenActive(*qobject_cast<QDialog*>(dialog.GetSafeHwnd()), std::move(act));
    return dialog.DoModal();
}

// Acts in whatever dialog opens next.
template <class Act>
void inNextDialog(Act act) {
    QTimer::singleShot(0, qApp, [act = std::move(act)] {
        QWidget* const dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        act(*dialog);
    });
}

} // namespace orvex::testing
