#pragma once

#include "AutosaveStore.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <optional>

class QMainWindow;

namespace orvex {

class CommandRunner;
class DeskDrawing;
class DeskFiles;
class DeskLeave;
class DeskPrompts;
class DeskSettings;
class ForkedSave;

// Keeps what isn't saved in the user's state folder: after a pause without input, and in steady
// work now and then. It goes when the drawing is saved or left in order, so that what is found
// there at a start is of a desk that died, and is offered.
class AutosaveDesk final : public QObject {
    Q_OBJECT

public:
    // All outlive it. Where they lie: see autosaveFolder.
    AutosaveDesk(QMainWindow& window, DeskDrawing& drawing, DeskFiles& files, DeskLeave& leave,
                 CommandRunner& runner, DeskPrompts& prompts, DeskSettings& settings);
    ~AutosaveDesk() override;

    // Another drawing is in the window, or none is any more, or it is saved.
    void drop();
    // Asks what is to become of dead desks' autosaves; false where there are none.
    bool offer();
    void offerOrSayNone();
    // Asks for the pause.
    void askPause();

signals:
    void complained(const QString& line);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override; // of the application

private:
    void noteEdits();
    void restartPause();
    void save();
    void saveEnded(const QString& fault);
    void recover(AutosaveEntry entry);
    [[nodiscard]] int pause() const; // seconds; 0 for never

    QMainWindow& m_window;
    DeskDrawing& m_drawing;
    DeskFiles& m_files;
    DeskLeave& m_leave;
    DeskSettings& m_settings;
    ForkedSave* m_save;
    QTimer m_pause;
    QElapsedTimer m_sinceEdit; // valid: something may be edited that no autosave has
    std::optional<AutosaveEntry> m_entry;
    bool m_isFaultTold = false;
};

} // namespace orvex
