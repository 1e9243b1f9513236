#include "dialogIcon.h"

#include "CDialog.h"
#include "resourceLibrary.h"

#include <QDialog>
#include <QIcon>

#include <gtest/gtest.h>

namespace {

TEST(DialogIcon, isTheHostsOnceItsLibraryIsOpen) {
    QDialog view;
    CDialog dialog(1);
    dialog.SetHandle(&view);
    setDialogIcon(dialog, 1);
    EXPECT_TRUE(view.windowIcon().isNull());

    const HINSTANCE library = loadResourceDll(L"ORVEXRes.dll");
    ASSERT_NE(library, nullptr);
    setDialogIcon(dialog, 1);
    EXPECT_FALSE(view.windowIcon().pixmap(32, 32).isNull());
    AfxFreeLibrary(library);
}

} // namespace
