#include "KeypadPoint.h"

#include "keyText.h"
#include "qtWide.h"
#include "typedAnswer.h"

#include <QCoreApplication>
#include <QLineEdit>

namespace orvex {

KeypadPoint::KeypadPoint(QObject* parent) : QObject(parent) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool KeypadPoint::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !isKeypadComma(*static_cast<QKeyEvent*>(event))) {
        return false;
    }
    auto* const field = qobject_cast<QLineEdit*>(watched);
    if (field == nullptr || (field->inputMethodHints() & Qt::ImhFormattedNumbersOnly) == 0) {
        return false;
    }
    field->insert(QStringLiteral("."));
    return true;
}

void markNumberField(QLineEdit& field) {
    field.setInputMethodHints(field.inputMethodHints() | Qt::ImhFormattedNumbersOnly);
}

QString numberComplaint(const QString& text) {
    const QString pointed = QString(text).replace(',', '.');
    if (text.contains(',') && parseReal(toWide(pointed))) {
        return KeypadPoint::tr("'%1' is no number: decimals follow a point, %2.")
            .arg(text, pointed);
    }
    return KeypadPoint::tr("'%1' is no number.").arg(text);
}

} // namespace orvex
