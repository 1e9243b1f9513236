#pragma once

#include <QString>
#include <QWidget>

namespace orvex {

// What a command wants to know of a file.
struct FileQuestion {
    QString title;
    QString defaultPath; // a folder or a file
    QString extension;   // without its point
    int flags = 0;       // bits: 1 to save into, 2 without asking before an old file; 64 existing
};

// Lets the user choose, over what he sees last. Empty when he doesn't.
QString askFile(QWidget& window, const FileQuestion& question);

} // namespace orvex
