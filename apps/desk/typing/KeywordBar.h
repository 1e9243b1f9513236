#pragma once

#include <QIcon>
#include <QScrollArea>

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

// Buttons for them, in as many lines as they need, of which one is always seen. Hidden while there
// are none.
class KeywordBar final : public QScrollArea {
    Q_OBJECT

public:
    explicit KeywordBar(QWidget* parent = nullptr);

    void setKeywords(const std::vector<KeywordButton>& keywords);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    void chosen(const QString& keyword);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void fitHeight();
};

} // namespace orvex
