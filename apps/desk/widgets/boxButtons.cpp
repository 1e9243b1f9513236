#include "boxButtons.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QMessageBox>

namespace orvex {

void nameButtons(QMessageBox& box) {
    const struct {
        QMessageBox::StandardButton button;
        const char* text;
    } captions[] = {
        {QMessageBox::Save, QT_TRANSLATE_NOOP("orvex", "&Save")},
        {QMessageBox::Discard, QT_TRANSLATE_NOOP("orvex", "&Discard")},
        {QMessageBox::Cancel, QT_TRANSLATE_NOOP("orvex", "&Cancel")},
    };
    for (const auto& caption : captions) {
        if (QAbstractButton* const button = box.button(caption.button)) {
            button->setText(QCoreApplication::translate("orvex", caption.text));
        }
    }
}

} // namespace orvex
