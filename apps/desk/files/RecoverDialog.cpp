#include "RecoverDialog.h"

#include "boxButtons.h"

#include <QDateTime>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace orvex {

namespace {

constexpr QSize kFirstSize(720, 260);
enum Column { kDrawing, kFolder, kSavedAt };

QString timeText(std::int64_t milliseconds) {
    return QLocale::system().toString(QDateTime::fromMSecsSinceEpoch(milliseconds),
                                      QLocale::ShortFormat);
}

QTreeWidgetItem* makeRow(const AutosaveEntry& entry) {
    const QString path = QString::fromStdString(entry.readOriginal().path);
    const QFileInfo file(path);
    const bool isLater =
        !path.isEmpty() && file.lastModified().toMSecsSinceEpoch() > entry.savedAt();
    QString time = timeText(entry.savedAt());
    if (isLater) {
        time += RecoverDialog::tr(", before its file was written");
    }
    return new QTreeWidgetItem(
        {path.isEmpty() ? RecoverDialog::tr("Unnamed drawing") : file.fileName(),
         path.isEmpty() ? QString() : file.path(), time});
}

} // namespace

RecoverDialog::RecoverDialog(std::vector<AutosaveEntry>& entries, QWidget* parent)
    : QDialog(parent), m_entries(entries), m_list(new QTreeWidget(this)) {
    setWindowTitle(tr("Recover drawings"));
    auto* const text = new QLabel(
        tr("A window ended before these drawings were saved. Their files are as they were saved "
           "last; what was done since then was kept at the times below."));
    text->setWordWrap(true);
    m_list->setHeaderLabels({tr("Drawing"), tr("Folder"), tr("Kept")});
    m_list->setRootIsDecorated(false);
    for (const AutosaveEntry& entry : entries) {
        m_list->addTopLevelItem(makeRow(entry));
    }
    m_list->setCurrentItem(m_list->topLevelItem(0));
    m_list->header()->resizeSections(QHeaderView::ResizeToContents);

    auto* const buttons = new QDialogButtonBox;
    m_open = buttons->addButton(tr("&Open"), QDialogButtonBox::AcceptRole);
    m_discard = buttons->addButton(tr("&Discard..."), QDialogButtonBox::DestructiveRole);
    auto* const later = buttons->addButton(tr("Ask &Later"), QDialogButtonBox::RejectRole);
    later->setAutoDefault(false);
    m_open->setDefault(true);
    m_open->setObjectName(QStringLiteral("openAutosave"));
    m_discard->setObjectName(QStringLiteral("discardAutosave"));
    auto* const column = new QVBoxLayout(this);
    column->addWidget(text);
    column->addWidget(m_list, 1);
    column->addWidget(buttons);
    resize(kFirstSize);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_list, &QTreeWidget::itemActivated, this, &QDialog::accept);
    connect(m_list, &QTreeWidget::itemSelectionChanged, this, &RecoverDialog::enable);
    connect(m_discard, &QPushButton::clicked, this, &RecoverDialog::discard);
    enable();
}

int RecoverDialog::chosen() const {
    return m_list->indexOfTopLevelItem(m_list->currentItem());
}

void RecoverDialog::enable() {
    m_open->setEnabled(chosen() >= 0);
    m_discard->setEnabled(chosen() >= 0);
}

void RecoverDialog::discard() {
    const int row = chosen();
    QMessageBox box(QMessageBox::Warning, tr("Orvex"),
                    tr("What was kept of %1 will be lost.").arg(m_list->currentItem()->text(0)),
                    QMessageBox::Discard | QMessageBox::Cancel, this);
    nameButtons(box);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::Cancel);
    if (row < 0 || box.exec() != QMessageBox::Discard) {
        return;
    }
    m_entries[static_cast<std::size_t>(row)].drop();
    m_entries.erase(m_entries.begin() + row);
    delete m_list->takeTopLevelItem(row);
    enable();
    if (m_entries.empty()) {
        reject();
    }
}

} // namespace orvex
