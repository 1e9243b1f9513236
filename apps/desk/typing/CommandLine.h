#pragma once

#include "CommandInput.h"
#include "KeywordBar.h"

#include <QKeyEvent>
#include <QWidget>

#include <vector>

class QLabel;
class QPlainTextEdit;

namespace orvex {

// The command line: what was said before, what is asked, the keywords on offer, and the answer.
class CommandLine final : public QWidget {
    Q_OBJECT

public:
    explicit CommandLine(QWidget* parent = nullptr);

    struct Question {
        QString text;
        std::vector<KeywordButton> keywords;
        QStringList completions; // what the field offers
        BlankKey blank = BlankKey::enters;
        bool takesLengths = false; // Ctrl with an arrow gives the one typed a direction
        bool takesPoints = false;  // the keypad's comma parts coordinates
    };
    void setQuestion(const Question& question);
    // Stands before the question until it is empty again.
    void setNotice(const QString& notice);
    // Said below everything said before: a question with its answer after ": ", or a remark.
    void print(const QString& line);
    // The same of something that went wrong.
    void complain(const QString& line);
    [[nodiscard]] QString history() const;

    [[nodiscard]] QString typed() const { return m_input->text(); }
    // Text that can't be taken goes back into the field, to be put right at `place`.
    void putBack(const QString& text, int place);

    // A key that was pressed elsewhere goes into the field.
    void takeKey(const QKeyEvent& event);

signals:
    void entered(const QString& line); // typed, or a keyword's button
    void linesEntered(const QStringList& lines);
    void cancelled();
    void edited(); // `typed` is different
    // A length that was typed goes along an axis: x and y are 0, 1 or -1.
    void steered(double length, int x, int y);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showLatest();
    void showPrompt();
    void showLineCount();
    [[nodiscard]] QColor mixed(double part) const;
    void append(const QString& text, const QColor& color, bool startsLine);

    QPlainTextEdit* m_history;
    KeywordBar* m_keywords;
    QLabel* m_prompt;
    QString m_question;
    QString m_notice;
    CommandInput* m_input;
    QLabel* m_lineCount;
};

} // namespace orvex
