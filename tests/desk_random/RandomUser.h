#pragma once

#include "Chance.h"

#include <QPoint>
#include <QString>
#include <QWidget>

#include <functional>
#include <vector>

namespace orvex {
class Canvas;
class MainWindow;
struct PromptRequest;
} // namespace orvex

namespace orvex::testing {

// Somebody who does anything with a window: clicks, drags, wheel, keys, commands and answers,
// menus, dialogs, panels, pasted lines. What would leave the drawing, or write files elsewhere than
// into its own, he doesn't do.
class RandomUser {
public:
    // Styles: whether he works with dialogs that change styles, which no script can do.
    RandomUser(MainWindow& window, std::uint64_t seed, bool changesStyles);

    // One event, or a few that belong together. What it was, for people.
    QString act();
    // The way out of whatever is open or runs.
    void escape();

private:
    QString inPopup(QWidget& popup);
    QString inDialog(QWidget& dialog);
    QString onWidget(QWidget& widget);

    QString click();
    QString moveMouse();
    QString drag();
    QString turnWheel();
    QString pressKey();
    QString triggerAction();
    QString typeCommand();
    QString typeAnswer();
    QString workPanel();
    QString pasteLines();

    QString word(const char* words); // one of those between the "|"
    [[nodiscard]] const PromptRequest* request() const;
    QString enter(const QString& line);
    QString answer();
    QString point();
    QString number();
    QString handle();
    QPoint place();
    Qt::KeyboardModifiers modifiers();

    MainWindow& m_window;
    Canvas& m_canvas;
    Chance m_chance;
    bool m_changesStyles;
};

} // namespace orvex::testing
