#include "fileQuestion.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

namespace orvex {

namespace {

constexpr int kSave = 1;
constexpr int kWithoutOverwriteQuestion = 2;

// Where the chooser starts: `defaultPath` or its folder. An installed program's data can't be
// written by everybody, so what is to be saved starts at the user's own then.
QString startFolder(const FileQuestion& question) {
    const QFileInfo start(question.defaultPath);
    const bool isFolder = start.isDir() || question.defaultPath.endsWith('/');
    QString folder = isFolder ? start.filePath() : start.path();
    if ((question.flags & kSave) != 0 && !QFileInfo(folder).isWritable()) {
        folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    }
    return folder;
}

} // namespace

QString askFile(QWidget& window, const FileQuestion& question) {
    QWidget* const above = QApplication::activeModalWidget();
    QFileDialog dialog(above != nullptr ? above : &window, question.title, startFolder(question));
    if (!question.extension.isEmpty()) {
        dialog.setNameFilters({QStringLiteral("*.") + question.extension, QStringLiteral("*")});
        dialog.setDefaultSuffix(question.extension);
    }
    if ((question.flags & kSave) != 0) {
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setFileMode(QFileDialog::AnyFile);
        dialog.setOption(QFileDialog::DontConfirmOverwrite,
                         (question.flags & kWithoutOverwriteQuestion) != 0);
    } else {
        dialog.setAcceptMode(QFileDialog::AcceptOpen);
        dialog.setFileMode(QFileDialog::ExistingFile);
    }
    const QFileInfo start(question.defaultPath);
    if (!start.isDir() && !question.defaultPath.endsWith('/')) {
        dialog.selectFile(start.fileName());
    }
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return {};
    }
    return dialog.selectedFiles().front();
}

} // namespace orvex
