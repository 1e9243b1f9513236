#include "StatusLine.h"

#include "ShortenedLabel.h"
#include "clickedPoint.h"

#include <QStatusBar>

namespace orvex {

namespace {

QLabel* addLabel(QStatusBar& bar, const char* name, int characters) {
    auto* const label = new ShortenedLabel(&bar);
    label->setObjectName(QLatin1String(name));
    label->setMinimumWidth(label->fontMetrics().averageCharWidth() * characters);
    bar.addPermanentWidget(label);
    return label;
}

// A zero has no sign.
QString numberText(double value, int decimals) {
    QString text = QString::number(value, 'f', decimals);
    if (text.startsWith('-') && text.toDouble() == 0.0) {
        text.remove(0, 1);
    }
    return text;
}

} // namespace

StatusLine::StatusLine(QStatusBar& bar)
    : QObject(&bar), m_tool(addLabel(bar, "statusTool", 0)),
      m_hovered(addLabel(bar, "statusHovered", 0)), m_cursor(addLabel(bar, "statusCursor", 20)),
      m_style(addLabel(bar, "statusStyle", 0)) {}

void StatusLine::showCursor(double x, double y, double unitsPerPixel) {
    const int decimals = worthwhileDecimals(unitsPerPixel);
    m_cursor->setText(numberText(x, decimals) + QLatin1String(", ") + numberText(y, decimals));
}

void StatusLine::clearCursor() {
    m_cursor->clear();
}

void StatusLine::showTool(const QString& tool) {
    m_tool->setText(tool);
}

void StatusLine::showHovered(const QString& hovered) {
    m_hovered->setText(hovered);
}

void StatusLine::showStyle(const QString& style) {
    m_style->setText(tr("Style: %1").arg(style));
}

} // namespace orvex
