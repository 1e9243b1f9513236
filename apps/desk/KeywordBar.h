#pragma once

#include <QIcon>
#include <QWidget>

#include <vector>

namespace orvex {

struct PromptRequest;

// A keyword on offer.
struct KeywordButton {
    QString keyword; // what a click answers
    QString text;
    QString hint;
    QIcon icon;
};

// The keywords of a question; those of the tools with their pictures and names.
std::vector<KeywordButton> keywordButtons(const PromptRequest& request, const QPalette& palette);

// Buttons for them, in as many lines as they need. Hidden while there are none.
class KeywordBar final : public QWidget {
    Q_OBJECT

public:
    explicit KeywordBar(QWidget* parent = nullptr);

    void setKeywords(const std::vector<KeywordButton>& keywords);

signals:
    void chosen(const QString& keyword);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void fitHeight();
};

} // namespace orvex
