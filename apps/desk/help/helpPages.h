#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>

class QTextDocument;

namespace orvex {

// The pages of the help, Markdown in the resource library ORVEXHelp.dll, in the order in which one
// reads and searches them; the first is the contents.
const QStringList& helpPages();
QUrl helpAddress(const QString& page);
QString pageAt(const QUrl& address);
// Empty where the library or the page is missing.
QString helpText(const QString& page);
// Why the library was refused, with its file; empty where it wasn't.
QString helpRefusal();

// Where a page tells of a topic, a command's name or a tool's keyword: the position of the heading
// or of the table's row that begins with it. -1 for nowhere.
int topicPlace(const QTextDocument& page, const QString& topic);

} // namespace orvex
