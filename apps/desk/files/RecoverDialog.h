#pragma once

#include "AutosaveStore.h"

#include <QDialog>

#include <vector>

class QPushButton;
class QTreeWidget;

namespace orvex {

// Lists autosaves with their times and paths. Discarding asks first, and is done at once.
class RecoverDialog final : public QDialog {
    Q_OBJECT

public:
    // Drops from the list, which outlives it, what the user discards.
    RecoverDialog(std::vector<AutosaveEntry>& entries, QWidget* parent);

    // Accepted: what to open, an index of the list.
    [[nodiscard]] int chosen() const;

private:
    void discard();
    void enable();

    std::vector<AutosaveEntry>& m_entries;
    QTreeWidget* m_list;
    QPushButton* m_open;
    QPushButton* m_discard;
};

} // namespace orvex
