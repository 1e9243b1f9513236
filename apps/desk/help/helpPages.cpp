#include "helpPages.h"

#include "ResourceLibraries.h"
#include "resourceLibrary.h"

#include <QFile>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

namespace orvex {

namespace {

const QString kFolder = QStringLiteral("/docs/");

// A picture of the help may be asked for by the widget alone, so the library stays open.
struct Library {
    HINSTANCE handle = loadResourceDll(L"ORVEXHelp.dll");
    QString refusal = QString::fromStdString(ResourceLibraries::instance().takeRefusal());
};

const Library& library() {
    static const Library opened;
    return opened;
}

bool beginsRowOrSection(const QTextBlock& block) {
    const QTextCursor cursor(block);
    const QTextTable* const table = cursor.currentTable();
    return table != nullptr ? table->cellAt(cursor).column() == 0
                            : block.blockFormat().headingLevel() > 0;
}

} // namespace

const QStringList& helpPages() {
    static const QStringList pages{
        QStringLiteral("help/contents.md"),      QStringLiteral("help/tools.md"),
        QStringLiteral("help/commands.md"),      QStringLiteral("help/keys.md"),
        QStringLiteral("help/peculiarities.md"), QStringLiteral("limits.md"),
        QStringLiteral("glossary.md"),
    };
    return pages;
}

QUrl helpAddress(const QString& page) {
    return QUrl(QStringLiteral("qrc:") + kFolder + page);
}

QString pageAt(const QUrl& address) {
    return address.path().mid(kFolder.size());
}

QString helpText(const QString& page) {
    QFile file(':' + kFolder + page);
    return library().handle != nullptr && file.open(QIODevice::ReadOnly)
               ? QString::fromUtf8(file.readAll())
               : QString();
}

QString helpRefusal() {
    return library().refusal;
}

int topicPlace(const QTextDocument& page, const QString& topic) {
    for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
        const QString text = block.text();
        const bool tells = text == topic || text.startsWith(topic + ' ');
        if (tells && beginsRowOrSection(block)) {
            return block.position();
        }
    }
    return -1;
}

} // namespace orvex
