#pragma once

#include "PointGuide.h"

#include <QList>
#include <QObject>

class QAction;
class QActionGroup;
class QLabel;
class QMainWindow;
class QMenu;

namespace orvex {

class Canvas;
class DeskPrompts;
class DeskSettings;

// Points where one means them: snap and directions, with their buttons in the status bar, keys,
// words and settings.
class SnapDesk final : public QObject {
    Q_OBJECT

public:
    // All outlive it.
    SnapDesk(QMainWindow& window, Canvas& canvas, DeskPrompts& prompts, DeskSettings& settings);

    void setSession(Session& session);
    // Where a click goes while a point is asked, or a grip is hot; with the modes as they are at
    // each click. Valid as long as the session.
    Guide guide(const PointContext& context);

    // A word that holds for the point that is asked; false for any other text, and where no point
    // is asked or the question has such a keyword.
    bool takeWord(const QString& typed);
    // Gives the word up; false when there is none.
    bool dropWord();

    [[nodiscard]] const QList<QAction*>& actions() const { return m_actions; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeSnapButton(QMainWindow& window);
    void makeDirectionButtons(QMainWindow& window);
    QAction* addAction(QMainWindow& window, const char* name, const QString& text,
                       const QString& help, const QKeySequence& key, const QString& caption,
                       QMenu* menu);
    void askAperture(QMainWindow& window);
    void setDirection(PointDirection direction);
    void changed(); // by the user: kept, and shown
    void show();

    Canvas& m_canvas;
    DeskPrompts& m_prompts;
    DeskSettings& m_settings;
    Session* m_session = nullptr;
    PointGuide m_guide;
    QList<QAction*> m_actions;
    QAction* m_snap = nullptr;
    QAction* m_square = nullptr;
    QAction* m_steps = nullptr;
    QList<QAction*> m_modes; // in the order of SnapMode
    QLabel* m_word = nullptr;
};

} // namespace orvex
