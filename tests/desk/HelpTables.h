#pragma once

#include "helpPages.h"

#include <QFile>
#include <QRegularExpression>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

#include <gmock/gmock.h>

namespace orvex::testing {

inline QString textOf(const QTextTable& table, int row) {
    QTextCursor cell = table.cellAt(row, 0).firstCursorPosition();
    cell.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    return cell.selectedText();
}

// The first cells of the rows of all tables whose first column has this head, a list in a cell as
// several.
inline QStringList firstCells(const QString& page, const QString& head) {
    QTextDocument document;
    document.setMarkdown(helpText(page));
    QStringList cells;
    for (QTextFrame* const frame : document.rootFrame()->childFrames()) {
        const auto* const table = qobject_cast<QTextTable*>(frame);
        for (int row = 1; table != nullptr && textOf(*table, 0) == head && row < table->rows();
             ++row) {
            cells += textOf(*table, row).split(QStringLiteral(", "));
        }
    }
    cells.sort();
    return cells;
}

// Every page has a title, and what it links to or shows is there.
inline void expectLinksLeadSomewhere() {
    for (const QString& page : helpPages()) {
        const QString text = helpText(page);
        EXPECT_TRUE(text.startsWith("# ")) << page.toStdString();
        static const QRegularExpression link(R"(\]\(([^)]+)\))");
        for (auto it = link.globalMatch(text); it.hasNext();) {
            const QUrl target = helpAddress(page).resolved(QUrl(it.next().captured(1)));
            EXPECT_TRUE(QFile::exists(":" + target.path()))
                << page.toStdString() << " links to " << target.toString().toStdString();
        }
    }
}

} // namespace orvex::testing
