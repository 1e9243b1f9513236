#include "elidedLabel.h"

#include <QHelpEvent>
#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace mledit {

namespace {

// A filter and no class of label: layouts and whoever finds the label by its class stay as they
// are.
class Elision final : public QObject {
public:
    explicit Elision(QLabel& label) : QObject(&label), m_label(label) {}

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            paint();
            return true;
        }
        if (event->type() == QEvent::ToolTip) {
            const QString whole = shownText() != m_label.text() ? m_label.text() : QString();
            QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), plain(whole),
                               &m_label);
            return true;
        }
        return false;
    }

private:
    [[nodiscard]] QString shownText() const {
        return m_label.fontMetrics().elidedText(m_label.text(), Qt::ElideRight,
                                                m_label.contentsRect().width());
    }
    // Tooltips read what looks like one as rich text.
    static QString plain(const QString& text) {
        return text.isEmpty() ? text : "<span>" + text.toHtmlEscaped() + "</span>";
    }
    void paint() {
        QPainter painter(&m_label);
        m_label.style()->drawItemText(&painter, m_label.contentsRect(),
                                      static_cast<int>(m_label.alignment()), m_label.palette(),
                                      m_label.isEnabled(), shownText(), m_label.foregroundRole());
    }

    QLabel& m_label;
};

} // namespace

void elideLabel(QLabel& label) {
    label.setTextFormat(Qt::PlainText);
    label.setSizePolicy(QSizePolicy::Ignored, label.sizePolicy().verticalPolicy());
    label.installEventFilter(new Elision(label)); // goes with the label
}

} // namespace mledit
