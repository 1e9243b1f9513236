#pragma once

#include "InputHistory.h"

#include <QLineEdit>

class QCompleter;
class QStringListModel;

namespace orvex {

// What the blank key does.
enum class BlankKey {
    enters,         // as Enter
    entersUnlessXy, // as Enter, but a blank after a comma: a handle may follow a point
    types,          // a blank
};

// The field of the command line. Up and Down fetch former lines, Tab completes, a list offers what
// begins as what was typed.
class CommandInput final : public QLineEdit {
    Q_OBJECT

public:
    explicit CommandInput(QWidget* parent = nullptr);

    void setBlankKey(BlankKey blank) { m_blank = blank; }
    void setTakesLengths(bool takes) { m_takesLengths = takes; }
    void setTakesPoints(bool takes) { m_takesPoints = takes; }
    void setCompletions(const QStringList& words);
    [[nodiscard]] int lineCount() const; // several ones only where they were pasted

signals:
    // The field is empty again.
    void entered(const QString& line);
    void linesEntered(const QStringList& lines); // several that were pasted
    void cancelled();
    // Ctrl with an arrow, while the field held a number; x and y are 0, 1 or -1.
    void steered(double length, int x, int y);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] bool isEnter(const QKeyEvent& event) const;
    // The word chosen in the list, or what is typed.
    [[nodiscard]] QString chosenOrTyped() const;
    void enter();
    void takePasted();
    bool steer(const QKeyEvent& event);
    void complete();
    void hideList();

    QCompleter* m_completer;
    QStringListModel* m_words;
    InputHistory m_history;
    BlankKey m_blank = BlankKey::enters;
    bool m_takesLengths = false;
    bool m_takesPoints = false;
};

} // namespace orvex
