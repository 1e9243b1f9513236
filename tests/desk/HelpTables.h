#pragma once

#include "HelpWindow.h"
#include "commandNames.h"
#include "editTools.h"
#include "helpPages.h"

#include <QAction>
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

// The tables, by their first heads, have all commands, tools and keys; keys under these names.
template <class KeyName>
void expectHelpHasAll(const QWidget& window, const QString& command, const QString& key,
                      KeyName&& nameOf) {
    EXPECT_EQ(firstCells("help/commands.md", command), commandNames());
    QTextDocument tools;
    tools.setMarkdown(helpText("help/tools.md"));
    for (const EditTool& tool : editTools()) {
        EXPECT_GE(topicPlace(tools, tool.keyword), 0) << tool.keyword;
    }
    const QStringList keys = firstCells("help/keys.md", key);
    for (const QAction* const action : window.findChildren<QAction*>()) {
        for (const QKeySequence& each : action->shortcuts()) {
            EXPECT_TRUE(keys.contains(nameOf(each))) << nameOf(each).toStdString();
        }
    }
}

} // namespace orvex::testing
