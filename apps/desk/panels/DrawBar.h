#pragma once

#include <QObject>
#include <QString>

class QLineEdit;
class QMainWindow;
class QToolBar;

namespace orvex {

class ChoiceBox;
class CommandRunner;
class DeskPrompts;
class Session;
class StyleButton;

// The tool bar of what is drawn next: style, layer, scale, justification. At the first prompt of
// MLINE a choice answers it; while nothing runs it sets the variable by a command of its own; while
// anything else is asked the bar rests.
class DrawBar final : public QObject {
    Q_OBJECT

public:
    // All outlive it.
    DrawBar(QMainWindow& window, CommandRunner& runner, DeskPrompts& prompts);

    void setSession(Session& session);
    // What holds in the drawing now.
    void showValues();
    [[nodiscard]] QToolBar* bar() const { return m_bar; }

signals:
    void complained(const QString& line);
    // A field was used, and the keys belong to the command line again.
    void left();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // How a value is set: by a keyword of MLINE, or by a variable.
    struct Setting {
        const char* keyword = "";
        const char* variable = "";
    };
    void fillBoxes();
    void connectBoxes();
    void enterScale();
    // `typed` is what the keyword's question takes, `value` what the variable takes.
    void choose(const Setting& setting, const QString& typed, const QString& value);
    [[nodiscard]] bool isDrawingAsked() const;
    void updateEnabled();

    CommandRunner& m_runner;
    DeskPrompts& m_prompts;
    QToolBar* m_bar;
    StyleButton* m_swatch;
    ChoiceBox* m_style;
    ChoiceBox* m_layer;
    QLineEdit* m_scale;
    ChoiceBox* m_justification;
    Session* m_session = nullptr;
    QString m_running; // a command's name; empty while none runs
};

} // namespace orvex
