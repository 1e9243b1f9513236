#include "PropertyPanel.h"

#include "KeypadPoint.h"

#include <QComboBox>
#include <QFormLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>

#include <cmath>

namespace orvex {

namespace {

constexpr int kDiffer = -1; // no entry of the field's own

// Keys open the list, and only what is taken from it there is a choice; a wheel that happens to
// turn over the field is none.
class FieldBox final : public QComboBox {
public:
    using QComboBox::QComboBox;

protected:
    void keyPressEvent(QKeyEvent* event) override {
        const int key = event->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Return ||
            key == Qt::Key_Enter || key == Qt::Key_Space) {
            showPopup();
        } else {
            event->ignore();
        }
    }
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

QString scaleText(double scale) {
    return QLocale::c().toString(scale, 'g', QLocale::FloatingPointShortest);
}

} // namespace

PropertyPanel::PropertyPanel(QWidget* parent)
    : QWidget(parent), m_scale(new QLineEdit(this)), m_foot(new QLabel(this)) {
    auto* const form = new QFormLayout(this);
    m_style = addChoice("propertyStyle", tr("&Style"), QStringLiteral("STyle"), {}, {});
    m_scale->setObjectName(QStringLiteral("propertyScale"));
    markNumberField(*m_scale);
    form->addRow(tr("S&cale"), m_scale);
    connect(m_scale, &QLineEdit::editingFinished, this, &PropertyPanel::applyScale);
    m_justification =
        addChoice("propertyJustification", tr("&Justification"), QStringLiteral("Justification"),
                  {tr("Top"), tr("Zero"), tr("Bottom")}, {"Top", "Zero", "Bottom"});
    m_layer = addChoice("propertyLayer", tr("&Layer"), QStringLiteral("LAyer"), {}, {});
    m_caps = addChoice("propertyCaps", tr("C&aps"), QStringLiteral("CAps"),
                       {tr("None"), tr("At the start"), tr("At the end"), tr("Both")},
                       {"None", "Start", "End", "Both"});
    m_closed = addChoice("propertyClosed", tr("C&hain"), QString(), {tr("Open"), tr("Closed")},
                         {"Open", "CLose"});
    m_foot->setObjectName(QStringLiteral("propertyFoot"));
    m_foot->setWordWrap(true);
    form->addRow(m_foot);
    setTabOrder(m_style, m_scale);
    setTabOrder(m_scale, m_justification);
    setFocusProxy(m_style);
    showFacts({}, {}, {});
}

// Without answers of their own the texts are the answers, after the keyword where there is one.
QComboBox* PropertyPanel::addChoice(const char* name, const QString& label, const QString& keyword,
                                    const QStringList& texts, const QStringList& answers) {
    auto* const box = new FieldBox(this);
    box->setObjectName(QLatin1String(name));
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->addItems(texts);
    static_cast<QFormLayout*>(layout())->addRow(label, box);
    connect(box, qOverload<int>(&QComboBox::activated), this,
            [this, box, keyword, answers](int index) {
                if (box->itemData(index).toBool()) {
                    return; // differing stays differing
                }
                QStringList lines;
                if (!keyword.isEmpty()) {
                    lines << keyword;
                }
                emit edited(lines << (answers.isEmpty() ? box->itemText(index) : answers[index]));
            });
    return box;
}

void PropertyPanel::setChoices(QComboBox& box, const QStringList& texts) {
    const QSignalBlocker silent(box);
    box.clear();
    box.addItems(texts);
}

void PropertyPanel::showChoice(QComboBox& box, int index) {
    const QSignalBlocker silent(box);
    const int last = box.count() - 1;
    if (box.itemData(last).toBool()) {
        box.removeItem(last);
    }
    if (index == kDiffer && box.isEnabled()) { // a placeholder isn't shown by every style
        box.addItem(tr("(differ)"), true);
        index = box.count() - 1;
    }
    box.setCurrentIndex(index);
}

void PropertyPanel::showFacts(const SelectionFacts& facts, const QStringList& styles,
                              const QStringList& layers) {
    const bool isAny = facts.mlines > 0;
    for (QComboBox* const box : findChildren<QComboBox*>()) {
        box->setEnabled(isAny);
    }
    setChoices(*m_style, styles);
    setChoices(*m_layer, layers);
    const auto indexIn = [](const QComboBox& box, const std::optional<QString>& text) {
        return text ? box.findText(*text, Qt::MatchFixedString) : kDiffer;
    };
    showChoice(*m_style, indexIn(*m_style, facts.style));
    showChoice(*m_layer, indexIn(*m_layer, facts.layer));
    showChoice(*m_justification, facts.justification.value_or(kDiffer));
    showChoice(*m_caps, facts.caps.value_or(kDiffer));
    showChoice(*m_closed, facts.closed ? (*facts.closed ? 1 : 0) : kDiffer);
    m_shownScale = facts.scale ? scaleText(*facts.scale) : QString();
    m_scale->setText(m_shownScale);
    m_scale->setEnabled(isAny);
    m_scale->setPlaceholderText(isAny ? tr("(differ)") : QString());
    if (!isAny) {
        m_foot->setText(tr("No multiline is selected."));
    } else if (facts.locked > 0) {
        m_foot->setText(tr("%1 of %2 are locked.").arg(facts.locked).arg(facts.mlines));
    } else {
        m_foot->setText(facts.mlines == 1 ? tr("1 multiline")
                                          : tr("%1 multilines").arg(facts.mlines));
    }
}

// An Enter that ended a field isn't one for the command line.
void PropertyPanel::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        m_scale->setText(m_shownScale);
        emit left();
    } else if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QWidget::keyPressEvent(event);
    }
}

void PropertyPanel::applyScale() {
    const QString text = m_scale->text().trimmed();
    if (text == m_shownScale) {
        return;
    }
    bool isNumber = false;
    const double scale = QLocale::c().toDouble(text, &isNumber);
    if (!isNumber || !std::isfinite(scale) || scale == 0.0) {
        m_foot->setText(isNumber ? tr("'%1' is no scale.").arg(text) : numberComplaint(text));
        m_scale->setText(m_shownScale);
        m_scale->selectAll(); // what is typed next replaces it
        return;
    }
    m_shownScale = text; // losing the focus afterwards isn't another edit
    emit edited({QStringLiteral("SCale"), text});
}

} // namespace orvex
