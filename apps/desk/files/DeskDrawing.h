#pragma once

#include "AutosaveStore.h"
#include "ChangeFeed.h"
#include "DrawingFile.h"
#include "ModuleLoader.h"
#include "Session.h"

#include <QString>

#include <QDateTime>
#include <cstddef>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace orvex {

// The drawing in the window: its session, its file, and whether it differs from that.
class DeskDrawing {
public:
    // `modules` and `source` outlive it.
    DeskDrawing(ModuleLoader& modules, PromptSource& source, std::vector<std::string> moduleFiles)
        : m_modules(modules), m_source(source), m_moduleFiles(std::move(moduleFiles)) {}

    // Lets the drawing go that was there, with its session. An empty path: it has no file yet.
    void replace(std::unique_ptr<DrawingFile> file, const QString& path);

    [[nodiscard]] Session* session() const { return m_session.get(); } // null before `replace`
    [[nodiscard]] const QString& path() const { return m_path; }       // absolute
    [[nodiscard]] QString name() const;                                // for a title

    // True when a save would write something else than the drawing was opened or saved with; an
    // edit taken back leaves no difference.
    [[nodiscard]] bool isChanged() const;

    // True when an object was edited since the last call.
    [[nodiscard]] bool wasEdited();

    // True when somebody else wrote its file since it was opened or saved here.
    [[nodiscard]] bool wasWrittenElsewhere() const;
    std::optional<Failure> save(const QString& path);

    // For an autosave, and for the drawing that was opened from one: it differs from its file,
    // which may have been written elsewhere since.
    [[nodiscard]] AutosavedDrawing original() const;
    void setUnsaved(const AutosavedDrawing& original);

    [[nodiscard]] QString currentStyle() const;

private:
    // What distinguishes one state of a file from another; the same where there is no file.
    struct FileState {
        QDateTime written;
        qint64 size = 0;
        friend bool operator==(const FileState&, const FileState&) = default;
    };
    [[nodiscard]] FileState fileState() const;

    ModuleLoader& m_modules;
    PromptSource& m_source;
    std::vector<std::string> m_moduleFiles;
    std::unique_ptr<Session> m_session;
    std::unique_ptr<ChangeFeed> m_edits;
    QString m_path;
    FileState m_file; // as it was opened or saved
    std::size_t m_savedMark = 0;
    bool m_isRecovered = false; // and not saved since
};

} // namespace orvex
