#include "widgetText.h"

#include "SilentScope.h"
#include "qtText.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>
#include <QWidget>

namespace orvex {

namespace {

// In a window's title Qt replaces this mark, and takes two of them for the mark itself.
const QLatin1String kModifiedMark("[*]");
const QLatin1String kPlainMark("[*][*]");

QString shownText(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        return label->text();
    }
    if (const auto* field = qobject_cast<const QLineEdit*>(&widget)) {
        return field->text();
    }
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
        return combo->currentText();
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        return button->text();
    }
    if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) {
        return group->title();
    }
    if (const auto* area = qobject_cast<const QTextEdit*>(&widget)) {
        return area->toPlainText();
    }
    if (const auto* area = qobject_cast<const QPlainTextEdit*>(&widget)) {
        return area->toPlainText();
    }
    return widget.isWindow() ? widget.windowTitle().replace(kPlainMark, kModifiedMark) : QString();
}

void showText(QWidget& widget, const QString& text) {
    if (auto* label = qobject_cast<QLabel*>(&widget)) {
        label->setTextFormat(Qt::PlainText);
        label->setText(text);
    } else if (auto* field = qobject_cast<QLineEdit*>(&widget)) {
        field->setText(text);
    } else if (auto* combo = qobject_cast<QComboBox*>(&widget)) {
        if (combo->isEditable()) {
            combo->setEditText(text);
        }
    } else if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
        button->setText(text);
    } else if (auto* group = qobject_cast<QGroupBox*>(&widget)) {
        group->setTitle(text);
    } else if (auto* area = qobject_cast<QTextEdit*>(&widget)) {
        area->setPlainText(text);
    } else if (auto* plain = qobject_cast<QPlainTextEdit*>(&widget)) {
        plain->setPlainText(text);
    } else if (widget.isWindow()) {
        widget.setWindowTitle(QString(text).replace(kModifiedMark, kPlainMark));
    }
}

} // namespace

CStdStr<wchar_t> widgetText(const QWidget* widget) {
    return widget != nullptr ? fromQt(shownText(*widget)) : CStdStr<wchar_t>();
}

void setWidgetText(QWidget* widget, const wchar_t* text) {
    if (widget != nullptr) {
        const SilentScope silent(widget);
        showText(*widget, toQt(text));
    }
}

void setChecked(QWidget* widget, bool on) {
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
        const SilentScope silent(button);
        button->setChecked(on);
    }
}

bool isChecked(const QWidget* widget) {
    const auto* const button = qobject_cast<const QAbstractButton*>(widget);
    return button != nullptr && button->isChecked();
}

} // namespace orvex
