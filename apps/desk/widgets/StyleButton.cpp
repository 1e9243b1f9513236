#include "StyleButton.h"

#include "KdDbDatabase.h"
#include "KdDbMlineStyle.h"
#include "Opened.h"
#include "qtWide.h"
#include "styleSwatch.h"

#include <QTextDocument>

namespace orvex {

namespace {

constexpr QSize kSwatch(80, 24); // pixels

} // namespace

StyleButton::StyleButton(QWidget* parent) : QToolButton(parent) {
    setObjectName(QStringLiteral("styleButton"));
    setToolButtonStyle(Qt::ToolButtonIconOnly);
    setIconSize(kSwatch);
    setAutoRaise(true);
    setFocusPolicy(Qt::NoFocus);
    setStatusTip(tr("The current multiline style; a click manages the styles of the drawing"));
}

void StyleButton::showStyle(KdDbDatabase& database) {
    const Opened<KdDbMlineStyle> style(database.cmlstyle(), kForRead);
    if (!style) {
        setIcon(QIcon());
        setToolTip(tr("No style"));
        return;
    }
    setIcon(styleSwatch(*style, kSwatch, devicePixelRatioF()));
    const QString name = toQt(std::wstring(style->name()));
    setToolTip(
        Qt::convertFromPlainText(tr("Current style: %1; a click manages the styles").arg(name)));
}

} // namespace orvex
