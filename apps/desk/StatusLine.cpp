#include "StatusLine.h"

#include "clickedPoint.h"

#include <QLabel>
#include <QStatusBar>

namespace orvex {

namespace {

QLabel* addLabel(QStatusBar& bar, const char* name, int characters) {
    auto* const label = new QLabel(&bar);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setMinimumWidth(label->fontMetrics().averageCharWidth() * characters);
    bar.addPermanentWidget(label);
    return label;
}

} // namespace

StatusLine::StatusLine(QStatusBar& bar)
    : QObject(&bar), m_tool(addLabel(bar, "statusTool", 0)),
      m_hovered(addLabel(bar, "statusHovered", 0)), m_cursor(addLabel(bar, "statusCursor", 26)),
      m_style(addLabel(bar, "statusStyle", 0)) {}

void StatusLine::showCursor(double x, double y, double unitsPerPixel) {
    const int decimals = worthwhileDecimals(unitsPerPixel);
    m_cursor->setText(QString::number(x, 'f', decimals) + QLatin1String(", ") +
                      QString::number(y, 'f', decimals));
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
