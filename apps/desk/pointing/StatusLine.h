#pragma once

#include <QObject>

class QLabel;
class QStatusBar;

namespace orvex {

// What the status bar always shows: where the cursor is, and the current style. Hints of actions
// come and go beside it.
class StatusLine final : public QObject {
    Q_OBJECT

public:
    explicit StatusLine(QStatusBar& bar);

    // Drawing units; decimals below a pixel's width aren't shown.
    void showCursor(double x, double y, double unitsPerPixel);
    void clearCursor();
    void showStyle(const QString& style);
    void showTool(const QString& tool);       // that runs; empty for none
    void showHovered(const QString& hovered); // what a pick at the cursor would find

private:
    QLabel* m_tool;
    QLabel* m_hovered;
    QLabel* m_cursor;
    QLabel* m_style;
};

} // namespace orvex
