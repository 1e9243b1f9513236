#include "HelpWindow.h"

#include "helpPages.h"

#include <QHBoxLayout>
#include <QImage>
#include <QImageReader>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBrowser>
#include <QTextCursor>
#include <QTextDocument>
#include <QVBoxLayout>

namespace orvex {

namespace {

constexpr QSize kFirstSize(760, 640);

// Markdown that is read into what is shown is laid out anew with each piece, for seconds; HTML at
// its end. So pages are turned into HTML out of sight.
class HelpBrowser final : public QTextBrowser {
public:
    using QTextBrowser::QTextBrowser;

    QVariant loadResource(int kind, const QUrl& address) override {
        if (kind == QTextDocument::ImageResource) {
            return picture(address);
        }
        if (kind != QTextDocument::HtmlResource) {
            return QTextBrowser::loadResource(kind, address);
        }
        QTextDocument document;
        document.setMarkdown(helpText(pageAt(address)));
        return document.toHtml();
    }

private:
    // They are drawn for white paper, whatever the ground of the text; as fine as the screen is.
    [[nodiscard]] QImage picture(const QUrl& address) const {
        QImageReader reader(':' + address.path());
        const double ratio = devicePixelRatioF();
        reader.setScaledSize(reader.size() * ratio);
        const QImage drawn = reader.read();
        QImage paper(drawn.size(), QImage::Format_RGB32);
        paper.fill(Qt::white);
        QPainter(&paper).drawImage(0, 0, drawn);
        paper.setDevicePixelRatio(ratio);
        return paper;
    }
};

QPushButton* addButton(QHBoxLayout& row, const QString& text, const char* name) {
    auto* const button = new QPushButton(text);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    row.addWidget(button);
    return button;
}

} // namespace

HelpWindow::HelpWindow(QWidget* parent)
    : QDialog(parent, Qt::Window), m_browser(new HelpBrowser(this)), m_words(new QLineEdit(this)) {
    setWindowTitle(tr("Help"));
    m_browser->setObjectName(QStringLiteral("helpBrowser"));
    m_browser->setOpenLinks(false); // it would take pages for what their names say
    m_words->setObjectName(QStringLiteral("helpSearch"));
    m_words->setPlaceholderText(tr("Search all pages"));
    m_words->setClearButtonEnabled(true);

    auto* const row = new QHBoxLayout;
    auto* const back = addButton(*row, tr("&Back"), "helpBack");
    const auto* const contents = addButton(*row, tr("&Contents"), "helpContents");
    row->addWidget(m_words, 1);
    const auto* const next = addButton(*row, tr("&Next"), "helpNext");
    const auto* const previous = addButton(*row, tr("&Previous"), "helpPrevious");
    auto* const column = new QVBoxLayout(this);
    column->addLayout(row);
    column->addWidget(m_browser, 1);
    constexpr double kMostOfScreen = 0.9; // the rest is left to the window's frame
    resize(kFirstSize.boundedTo(screen()->availableSize() * kMostOfScreen));

    connect(m_browser, &QTextBrowser::anchorClicked, this,
            [this](const QUrl& address) { showPage(pageAt(address)); });
    back->setEnabled(false);
    connect(m_browser, &QTextBrowser::backwardAvailable, back, &QPushButton::setEnabled);
    connect(back, &QPushButton::clicked, m_browser, &QTextBrowser::backward);
    connect(contents, &QPushButton::clicked, this, [this] { showPage(helpPages().front()); });
    connect(m_words, &QLineEdit::returnPressed, this, [this] { search(false); });
    connect(next, &QPushButton::clicked, this, [this] { search(false); });
    connect(previous, &QPushButton::clicked, this, [this] { search(true); });
    const auto onKey = [this](const QKeySequence& key, auto act) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, act);
    };
    onKey(QKeySequence::Find, [this] { startSearch(); });
    onKey(QKeySequence::Back, [this] { m_browser->backward(); });
    onKey(Qt::Key_F3, [this] { search(false); });
    onKey(QKeySequence(QStringLiteral("Shift+F3")), [this] { search(true); });
}

void HelpWindow::showTopic(const QStringList& topics) {
    if (m_browser->source().isEmpty()) {
        showPage(helpPages().front());
    }
    show(); // before going anywhere: places depend on the width
    raise();
    activateWindow();
    m_browser->setFocus();
    for (const QString& topic : topics) {
        for (const QString& page : helpPages()) {
            if (goTo(page, topic)) {
                return;
            }
        }
    }
}

void HelpWindow::showPage(const QString& page) {
    if (helpText(page).isEmpty()) {
        m_browser->setPlainText(tr("The pages of the help can't be found.") + '\n' + helpRefusal());
    } else if (m_browser->source() != helpAddress(page)) {
        m_browser->setSource(helpAddress(page), QTextDocument::HtmlResource);
    }
}

bool HelpWindow::goTo(const QString& page, const QString& topic) {
    QTextDocument document;
    document.setMarkdown(helpText(page));
    const int place = topicPlace(document, topic);
    if (place < 0) {
        return false;
    }
    showPage(page);
    QTextCursor cursor(m_browser->document());
    cursor.setPosition(place);
    m_browser->setTextCursor(cursor);
    QScrollBar* const bar = m_browser->verticalScrollBar();
    bar->setValue(bar->value() + m_browser->cursorRect().top());
    return true;
}

void HelpWindow::startSearch() {
    m_words->setFocus();
    m_words->selectAll();
}

// From the cursor on, then in the pages after, round to where it began.
void HelpWindow::search(bool backward) {
    const QString words = m_words->text();
    const auto flags = backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    if (words.isEmpty() || m_browser->find(words, flags)) {
        return;
    }
    const QStringList& pages = helpPages();
    int at = 0;
    while (at < pages.size() - 1 && helpAddress(pages[at]) != m_browser->source()) {
        ++at;
    }
    for (int step = 1; step <= pages.size(); ++step) {
        const int turn = backward ? pages.size() - step : step;
        const QString& page = pages[(at + turn) % pages.size()];
        QTextDocument document;
        document.setMarkdown(helpText(page));
        if (!document.find(words).isNull()) {
            showPage(page);
            m_browser->moveCursor(backward ? QTextCursor::End : QTextCursor::Start);
            m_browser->find(words, flags);
            return;
        }
    }
}

} // namespace orvex
