#pragma once

#include <QComboBox>

#include <functional>

namespace VOUI {

// A combo box that distinguishes the user's choice from what a program sets.
class MRUComboBox : public QComboBox {
    Q_OBJECT

public:
    explicit MRUComboBox(QWidget* parent = nullptr);

    // Asked with the index before a choice is notified; may change the entries and the current one.
    // False keeps the choice quiet. Empty: every choice is notified.
    using Chooser = std::function<bool(int index)>;
    void setChooser(Chooser chooser);

    // What was current before the user's latest act; -1 for none.
    [[nodiscard]] int indexBefore() const { return m_before; }

    void showPopup() override;

signals:
    // The user chose an entry.
    void selChanged();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    // A wheel that scrolls past changes nothing.
    void wheelEvent(QWheelEvent* event) override;

private:
    void choose(int index);

    Chooser m_chooser;
    int m_before = -1;
};

} // namespace VOUI
