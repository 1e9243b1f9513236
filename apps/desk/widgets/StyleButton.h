#pragma once

#include <QToolButton>

class KdDbDatabase;

namespace orvex {

// Shows the current multiline style of a drawing: a swatch, with the name in its hint.
class StyleButton final : public QToolButton {
    Q_OBJECT

public:
    explicit StyleButton(QWidget* parent = nullptr);

    void showStyle(KdDbDatabase& database);
};

} // namespace orvex
