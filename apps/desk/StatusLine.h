#pragma once

#include <QObject>

class QLabel;
class QStatusBar;

namespace orvex {

// What the status bar always shows: where the cursor is, the current style, how many multilines
// there are. Hints of actions come and go beside it.
class StatusLine final : public QObject {
    Q_OBJECT

public:
    explicit StatusLine(QStatusBar& bar);

    // Drawing units; decimals below a pixel's width aren't shown.
    void showCursor(double x, double y, double unitsPerPixel);
    void clearCursor();
    void showDrawing(const QString& style, int mlines);

private:
    QLabel* m_cursor;
    QLabel* m_style;
    QLabel* m_mlines;
};

} // namespace orvex
