#pragma once

#include <QToolButton>

class KdDbDatabase;

namespace orvex {

// Shows the current multiline style of a drawing: a swatch and the name.
class StyleButton final : public QToolButton {
    Q_OBJECT

public:
    explicit StyleButton(QWidget* parent = nullptr);

    void showStyle(KdDbDatabase& database);
};

} // namespace orvex
