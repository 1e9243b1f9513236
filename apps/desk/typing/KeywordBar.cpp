#include "KeywordBar.h"

#include "FlowLayout.h"
#include "PromptSource.h"
#include "editTools.h"
#include "qtWide.h"
#include "strokeIcon.h"

#include <QCoreApplication>
#include <QResizeEvent>
#include <QTextDocument>
#include <QToolButton>

#include <algorithm>

namespace orvex {

namespace {

constexpr int kMargin = 4; // pixels
constexpr int kSpacing = 2;

// The letters that will do, as the list's capitals say: "ST" of "STyle".
QString shortestOf(const QString& keyword) {
    QString capitals;
    std::copy_if(keyword.begin(), keyword.end(), std::back_inserter(capitals),
                 [](QChar each) { return !each.isLower(); });
    return capitals.isEmpty() ? keyword : capitals;
}

} // namespace

std::vector<KeywordButton> keywordButtons(const PromptRequest& request, const QPalette& palette) {
    std::vector<KeywordButton> buttons;
    const bool isTools = isToolQuestion(request);
    for (const std::wstring& each : request.keywords) {
        const QString keyword = toQt(each);
        const EditTool* const tool = isTools ? findEditTool(keyword) : nullptr;
        if (tool != nullptr) {
            buttons.push_back({keyword, keyword + ' ' + toolName(*tool), toolHelp(*tool),
                               strokeIcon(tool->picture, palette)});
        } else {
            buttons.push_back(
                {keyword, keyword,
                 KeywordBar::tr("Answers %1; typed, %2 will do").arg(keyword, shortestOf(keyword)),
                 QIcon()});
        }
    }
    return buttons;
}

KeywordBar::KeywordBar(QWidget* parent) : QScrollArea(parent) {
    setObjectName(QStringLiteral("commandKeywords"));
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Maximum);
    setWidgetResizable(true);
    auto* const content = new QWidget(this);
    auto* const flow = new FlowLayout(content, kSpacing);
    flow->setContentsMargins(kMargin, 0, kMargin, 0);
    setWidget(content);
    hide();
}

void KeywordBar::setKeywords(const std::vector<KeywordButton>& keywords) {
    for (QToolButton* const old : findChildren<QToolButton*>()) {
        old->hide();
        old->setObjectName(QString());
        old->deleteLater(); // it may be the one that was clicked
    }
    for (const KeywordButton& each : keywords) {
        auto* const button = new QToolButton(widget());
        button->setText(QString(each.text).replace('&', QLatin1String("&&")));
        button->setToolTip(Qt::convertFromPlainText(each.hint));
        if (!each.icon.isNull()) {
            button->setIcon(each.icon);
            button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        }
        button->setObjectName(QStringLiteral("keyword") + each.keyword);
        button->setFocusPolicy(Qt::NoFocus);
        connect(button, &QToolButton::clicked, this,
                [this, keyword = each.keyword] { emit chosen(keyword); });
        widget()->layout()->addWidget(button);
        button->show(); // what is hidden has no place in a line
    }
    setVisible(!keywords.empty());
    fitHeight();
}

void KeywordBar::fitHeight() {
    widget()->setMinimumHeight(widget()->layout()->heightForWidth(viewport()->width()));
    updateGeometry();
}

QSize KeywordBar::sizeHint() const {
    return {minimumSizeHint().width(), widget()->layout()->heightForWidth(width())};
}

QSize KeywordBar::minimumSizeHint() const {
    return widget()->layout()->minimumSize();
}

void KeywordBar::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    if (event->size().width() != event->oldSize().width()) {
        fitHeight(); // there may be more lines, or fewer
    }
}

} // namespace orvex
