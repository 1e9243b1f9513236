#pragma once

#include <QComboBox>

#include <functional>
#include <vector>

namespace orvex {

// A box of a tool bar that shows what holds now, and asks for the choices only when it is opened.
// A click leaves the focus where one types; keys come to it by Tab. The wheel does nothing, since a
// value is changed by it too easily.
class ChoiceBox final : public QComboBox {
    Q_OBJECT

public:
    struct Choice {
        QIcon icon;
        QString text;
        QString value;
        bool isEnabled = true;
        QString hint;
    };

    explicit ChoiceBox(QWidget* parent = nullptr);

    void setChoices(std::function<std::vector<Choice>()> choices) {
        m_choices = std::move(choices);
    }
    void showCurrent(const Choice& choice);

    void showPopup() override;
    void hidePopup() override;

signals:
    // Nothing has changed yet; the box goes on showing what holds.
    void chosen(const QString& value);
    void left(); // by Escape

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void addChoice(const Choice& choice);

    std::function<std::vector<Choice>()> m_choices;
    Choice m_current;
};

} // namespace orvex
