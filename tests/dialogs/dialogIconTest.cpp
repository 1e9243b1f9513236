#include "dialogIcon.h"

#include "CDialog.h"
#include "resourceLibrary.h"

#include <QDialog>
#include <QIcon>

#include <gtest/gtest.h>

namespace {

TEST(DialogIcon, isTheHosts) {
    QDialog view;
    CDialog dialog(1);
    dialog.SetHandle(&view);
    const HINSTANCE library = loadResourceDll(L"ORVEXRes.dll");
    ASSERT_NE(library, nullptr);
    setDialogIcon(dialog, 1);
    EXPECT_FALSE(view.windowIcon().pixmap(32, 32).isNull());
    AfxFreeLibrary(library);
}

} // namespace
