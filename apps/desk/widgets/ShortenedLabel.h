#pragma once

#include <QLabel>

namespace orvex {

// A line of plain text. Where it has too little room, it ends in dots and is whole in its tooltip.
class ShortenedLabel final : public QLabel {
    Q_OBJECT

public:
    explicit ShortenedLabel(QWidget* parent);

    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    [[nodiscard]] QString shownText() const;
};

} // namespace orvex
