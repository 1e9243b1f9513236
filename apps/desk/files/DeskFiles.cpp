#include "DeskFiles.h"

#include "boxButtons.h"
#include "fileKind.h"
#include "leftBehind.h"
#include "pictureWriter.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

namespace orvex {

namespace {

constexpr int kPictureWidth = 1600; // pixels, as orvex-batch draws
constexpr int kPictureHeight = 1200;

QString drawingFilter() {
    return QObject::tr("Drawings (*.dxf *.DXF);;All files (*)");
}

QString withSuffix(const QString& path, const QString& suffix) {
    return path.isEmpty() || !QFileInfo(path).suffix().isEmpty() ? path : path + '.' + suffix;
}

// What follows a point of "plan.v2" doesn't make it a drawing's name.
QString asDrawingName(const QString& path) {
    const QLatin1String suffix(".dxf");
    return path.endsWith(suffix, Qt::CaseInsensitive) ? path : path + suffix;
}

// The suffix that a filter of the dialog begins with, as in "SVG (*.svg)".
QString suffixOf(const QString& filter) {
    return filter.section(QLatin1String("*."), 1).section(')', 0, 0);
}

} // namespace

void DeskFiles::newDrawing() {
    m_take(DrawingFile::create(), QString());
}

void DeskFiles::askAndOpen() {
    const QString path = QFileDialog::getOpenFileName(&m_window, tr("Open a drawing"),
                                                      m_settings.text(DeskSettings::kDrawingFolder),
                                                      drawingFilter());
    if (!path.isEmpty()) {
        open(path);
    }
}

void DeskFiles::open(const QString& path) {
    emit openingEnded(openFile(path));
}

bool DeskFiles::openFile(const QString& path) {
    if (const QString kind = otherThanFile(path); !kind.isEmpty()) {
        emit missing(path);
        report(tr("The drawing can't be opened."), tr("%1 is %2 and no file.").arg(path, kind));
        return false;
    }
    removeLeftBehind(QFileInfo(path).absolutePath().toStdString());
    auto opened = m_opener.open(path);
    if (!opened) {
        if (opened.failure().cause == FailureCause::interrupted) {
            emit printed(tr("The opening of %1 was cancelled.").arg(path));
        } else {
            emit missing(path);
            report(tr("The drawing can't be opened."),
                   QString::fromStdString(messageOf(opened.failure())));
        }
        return false;
    }
    std::unique_ptr<DrawingFile> file = std::move(*opened);
    m_settings.setText(DeskSettings::kDrawingFolder, QFileInfo(path).absolutePath());
    emit printed(tr("Opened %1").arg(path));
    reportWarnings(file->warnings(), path);
    m_take(std::move(file), path);
    emit used(path);
    return true;
}

bool DeskFiles::recover(const AutosavedDrawing& original, const QString& autosave) {
    auto opened = m_opener.open(autosave);
    if (!opened) {
        report(tr("The autosave can't be opened."),
               QString::fromStdString(messageOf(opened.failure())));
        return false;
    }
    m_take(std::move(*opened), QString::fromStdString(original.path));
    m_drawing.setUnsaved(original);
    emit printed(tr("Recovered %1, which isn't saved yet").arg(m_drawing.name()));
    return true;
}

void DeskFiles::reportWarnings(const std::vector<DrawingWarning>& warnings, const QString& path) {
    for (const DrawingWarning& warning : warnings) {
        emit complained(tr("Warning: %1")
                            .arg(QString::fromStdString(
                                locatedText(path.toStdString(), warning.line, warning.text))));
    }
}

bool DeskFiles::save() {
    return m_drawing.path().isEmpty() ? saveAs() : saveInto(m_drawing.path());
}

bool DeskFiles::saveAs() {
    QString start = m_drawing.path();
    if (start.isEmpty()) {
        start = QDir(m_settings.text(DeskSettings::kDrawingFolder)).filePath(tr("drawing.dxf"));
    }
    QFileDialog dialog(&m_window, tr("Save the drawing as"), QFileInfo(start).path(),
                       drawingFilter());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("dxf"));
    dialog.selectFile(QFileInfo(start).fileName());
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return false;
    }
    const QString chosen = dialog.selectedFiles().front();
    const QString path = asDrawingName(chosen);
    if (path != chosen && QFileInfo::exists(path) && !mayReplace(path)) {
        return false; // the chooser asked about another name
    }
    m_settings.setText(DeskSettings::kDrawingFolder, QFileInfo(path).absolutePath());
    return saveInto(path);
}

bool DeskFiles::mayReplace(const QString& path) {
    QMessageBox box(QMessageBox::Warning, tr("Orvex"),
                    tr("%1 exists already.").arg(QFileInfo(path).fileName()),
                    QMessageBox::Save | QMessageBox::Cancel, &m_window);
    nameButtons(box);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(tr("Do you want to replace it?"));
    box.setDefaultButton(QMessageBox::Cancel);
    return box.exec() == QMessageBox::Save;
}

// Two windows on one file would else undo each other's work without a word.
bool DeskFiles::mayOverwrite() {
    QMessageBox box(QMessageBox::Warning, tr("Orvex"),
                    tr("%1 was written by another program meanwhile.").arg(m_drawing.name()),
                    QMessageBox::Save | QMessageBox::Cancel, &m_window);
    nameButtons(box);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(tr("Saving here loses what is in it now. Save all the same?"));
    box.setDefaultButton(QMessageBox::Cancel);
    return box.exec() == QMessageBox::Save;
}

bool DeskFiles::saveInto(const QString& path) {
    const bool isOwnFile = QFileInfo(path).absoluteFilePath() == m_drawing.path();
    if (isOwnFile && m_drawing.wasWrittenElsewhere() && !mayOverwrite()) {
        return false;
    }
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const auto failure = m_drawing.save(path);
    QApplication::restoreOverrideCursor();
    if (failure) {
        report(tr("The drawing can't be saved. What was in the file before is still there."),
               QString::fromStdString(messageOf(*failure)));
        return false;
    }
    emit printed(tr("Saved into %1").arg(path));
    reportWarnings(m_drawing.session()->drawing().savingWarnings(), path);
    emit used(path);
    emit saved();
    return true;
}

void DeskFiles::exportPicture() {
    QString filter;
    const QString name = QFileInfo(m_drawing.name()).completeBaseName() + QLatin1String(".svg");
    QString path = QFileDialog::getSaveFileName(
        &m_window, tr("Export a picture"),
        QDir(m_settings.text(DeskSettings::kPictureFolder)).filePath(name),
        tr("SVG (*.svg);;PNG (*.png);;PDF (*.pdf)"), &filter);
    if (path.isEmpty()) {
        return;
    }
    path = withSuffix(path, suffixOf(filter));
    m_settings.setText(DeskSettings::kPictureFolder, QFileInfo(path).absolutePath());
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const auto failure = writePicture(m_drawing.session()->scene(), path.toStdString(),
                                      {kPictureWidth, kPictureHeight});
    QApplication::restoreOverrideCursor();
    if (failure) {
        report(tr("The picture can't be written."), QString::fromStdString(messageOf(*failure)));
    } else {
        emit printed(tr("Drawn into %1").arg(path));
    }
}

Leave DeskFiles::askLeave(bool willChange) {
    if (!willChange && !m_drawing.isChanged()) {
        return Leave::discard;
    }
    QMessageBox box(QMessageBox::Warning, tr("Orvex"),
                    tr("%1 has changes that aren't saved.").arg(m_drawing.name()),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, &m_window);
    nameButtons(box);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(tr("Do you want to save them?"));
    box.setDefaultButton(QMessageBox::Save);
    const int answer = box.exec();
    return answer == QMessageBox::Save      ? Leave::save
           : answer == QMessageBox::Discard ? Leave::discard
                                            : Leave::stay;
}

bool DeskFiles::mayLeave() {
    const Leave answer = askLeave();
    return answer == Leave::discard || (answer == Leave::save && save());
}

void DeskFiles::report(const QString& what, const QString& why) {
    emit complained(why);
    // All in one, for names of files are no markup, and the text below is always looked through for
    // some.
    QMessageBox box(QMessageBox::Critical, tr("Orvex"), what + QLatin1String("\n\n") + why,
                    QMessageBox::Ok, &m_window);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

} // namespace orvex
