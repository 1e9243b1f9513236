#pragma once

#include <QLayout>

#include <memory>
#include <vector>

namespace orvex {

// Puts widgets side by side as words are put into lines: what doesn't fit any more goes below.
class FlowLayout final : public QLayout {
    Q_OBJECT

public:
    FlowLayout(QWidget* parent, int spacing);
    ~FlowLayout() override;

    void addItem(QLayoutItem* item) override;
    [[nodiscard]] int count() const override { return static_cast<int>(m_items.size()); }
    [[nodiscard]] QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override; // the caller's from then on
    [[nodiscard]] Qt::Orientations expandingDirections() const override { return {}; }
    // Not by Qt's hasHeightForWidth, which docks take for a wish to be tall: the widget asks.
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize sizeHint() const override { return minimumSize(); }
    [[nodiscard]] QSize minimumSize() const override;
    void setGeometry(const QRect& place) override;

private:
    // Height of all lines within the width; `place` puts the items there, too.
    int arrange(const QRect& place, bool moves) const;

    std::vector<std::unique_ptr<QLayoutItem>> m_items;
};

} // namespace orvex
