#pragma once

#include "CDialog.h"

#include <QDialog>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <cstdlib>
#include <utility>

namespace orvex::testing {

// A widget of the dialog by its object name; a test that asks for a missing one ends.
template <class Widget>
Widget& child(const CDialog& dialog, const char* name) {
    auto* const widget = dialog.GetSafeHwnd()->findChild<Widget*>(name);
    if (widget == nullptr) {
        ADD_FAILURE() << "there is no " << name;
        std::abort();
    }
    return *widget;
}

// Runs the dialog, with `act` as soon as its window is active; its result. A dialog that is still
// there after `act` is closed, which is a failure.
template <class Act>
int runDialog(CDialog& dialog, Act act) {
    auto* const view = qobject_cast<QDialog*>(dialog.GetSafeHwnd());
    QTimer::singleShot(0, view, [view, act = std::move(act)] {
        EXPECT_TRUE(QTest::qWaitForWindowActive(view));
        act();
        if (view->isVisible()) {
            ADD_FAILURE() << "the dialog stayed open";
            view->QDialog::reject();
        }
    });
    return dialog.DoModal();
}

} // namespace orvex::testing
