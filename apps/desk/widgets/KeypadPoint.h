#pragma once

#include <QObject>

class QLineEdit;

namespace orvex {

// Lets the keypad's decimal key type a point into each field for a number, also where the keyboard
// has a comma there. Such fields say so by their input hints (Qt::ImhFormattedNumbersOnly).
class KeypadPoint final : public QObject {
    Q_OBJECT

public:
    explicit KeypadPoint(QObject* parent); // works for the whole program as long as it lives

    bool eventFilter(QObject* watched, QEvent* event) override;
};

void markNumberField(QLineEdit& field);

// What is wrong with a text in such a field.
QString numberComplaint(const QString& text);

} // namespace orvex
