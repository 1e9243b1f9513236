#include "DeskDrawing.h"

#include "KdDbDatabase.h"
#include "qtWide.h"
#include "variableText.h"

#include <QFileInfo>

#include <algorithm>

namespace orvex {

void DeskDrawing::replace(std::unique_ptr<DrawingFile> file, const QString& path) {
    m_edits.reset();
    m_session.reset(); // there is one at a time
    SessionSetup setup;
    setup.drawing = std::move(file);
    setup.source = &m_source;
    setup.hasWindow = true;
    setup.moduleFiles = m_moduleFiles;
    m_session = std::make_unique<Session>(std::move(setup), m_modules);
    m_edits = std::make_unique<ChangeFeed>(m_session->database().core());
    m_path = path.isEmpty() ? QString() : QFileInfo(path).absoluteFilePath();
    m_file = fileState();
    m_savedMark = m_session->drawing().contentMark();
    m_isRecovered = false;
}

DeskDrawing::FileState DeskDrawing::fileState() const {
    const QFileInfo file(m_path);
    return !m_path.isEmpty() && file.exists() ? FileState{file.lastModified(), file.size()}
                                              : FileState();
}

// A file that is gone can't be overwritten.
bool DeskDrawing::wasWrittenElsewhere() const {
    const FileState now = fileState();
    return now.written.isValid() && !(now == m_file);
}

QString DeskDrawing::name() const {
    return m_path.isEmpty() ? QObject::tr("Unnamed drawing") : QFileInfo(m_path).fileName();
}

bool DeskDrawing::isChanged() const {
    return m_session != nullptr &&
           (m_isRecovered || m_session->drawing().contentMark() != m_savedMark);
}

bool DeskDrawing::wasEdited() {
    return m_edits != nullptr && !m_edits->take().empty();
}

std::optional<Failure> DeskDrawing::save(const QString& path) {
    DrawingFile& drawing = m_session->drawing();
    auto failure = drawing.save(path.toStdString());
    if (!failure) {
        m_path = QFileInfo(path).absoluteFilePath();
        m_file = fileState();
        m_savedMark = drawing.contentMark();
        m_isRecovered = false;
    }
    return failure;
}

AutosavedDrawing DeskDrawing::original() const {
    const bool isThere = m_file.written.isValid();
    return {m_path.toStdString(), isThere ? m_file.written.toMSecsSinceEpoch() : -1, m_file.size};
}

void DeskDrawing::setUnsaved(const AutosavedDrawing& original) {
    m_isRecovered = true;
    m_file = original.written >= 0
                 ? FileState{QDateTime::fromMSecsSinceEpoch(original.written), original.size}
                 : FileState();
}

QString DeskDrawing::currentStyle() const {
    return m_session != nullptr ? toQt(variableText(L"CMLSTYLE").value_or(L"")) : QString();
}

} // namespace orvex
