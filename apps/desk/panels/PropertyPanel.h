#pragma once

#include "selectionFacts.h"

#include <QStringList>
#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;

namespace orvex {

// The properties that the multilines of a selection have in common. A field that was edited tells
// so by Enter or as it loses the focus, and only then.
class PropertyPanel final : public QWidget {
    Q_OBJECT

public:
    explicit PropertyPanel(QWidget* parent = nullptr);

    void showFacts(const SelectionFacts& facts, const QStringList& styles,
                   const QStringList& layers);

signals:
    // The answers of MLCHANGE that say it.
    void edited(const QStringList& answers);
    // Escape: the focus belongs elsewhere.
    void left();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QComboBox* addChoice(const char* name, const QString& label, const QString& keyword,
                         const QStringList& texts, const QStringList& answers);
    void applyScale();
    void setChoices(QComboBox& box, const QStringList& texts);
    static void showChoice(QComboBox& box, int index);

    QComboBox* m_style;
    QLineEdit* m_scale;
    QComboBox* m_justification;
    QComboBox* m_layer;
    QComboBox* m_caps;
    QComboBox* m_closed;
    QLabel* m_foot;
    QString m_shownScale;
};

} // namespace orvex
