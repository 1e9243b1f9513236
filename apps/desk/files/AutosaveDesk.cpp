#include "AutosaveDesk.h"

#include "CommandRunner.h"
#include "DeskDrawing.h"
#include "DeskFiles.h"
#include "DeskLeave.h"
#include "DeskPrompts.h"
#include "DeskSettings.h"
#include "ForkedSave.h"
#include "RecoverDialog.h"

#include <QApplication>
#include <QEvent>
#include <QInputDialog>
#include <QMainWindow>
#include <QStatusBar>

#include <algorithm>
#include <memory>

namespace orvex {

namespace {

constexpr int kUsualPause = 60;    // seconds
constexpr int kMostPause = 3600;   // seconds
constexpr int kPausesOfWork = 5;   // after which one doesn't wait for a pause any more
constexpr int kMillisecond = 1000; // to a second

bool isInput(QEvent::Type type) {
    return type == QEvent::KeyPress || type == QEvent::MouseButtonPress ||
           type == QEvent::MouseMove || type == QEvent::Wheel;
}

} // namespace

AutosaveDesk::AutosaveDesk(QMainWindow& window, DeskDrawing& drawing, DeskFiles& files,
                           DeskLeave& leave, CommandRunner& runner, DeskPrompts& prompts,
                           DeskSettings& settings)
    : QObject(&window), m_window(window), m_drawing(drawing), m_files(files), m_leave(leave),
      m_settings(settings), m_save(new ForkedSave(this)) {
    m_pause.setSingleShot(true);
    connect(&m_pause, &QTimer::timeout, this, &AutosaveDesk::save);
    connect(m_save, &ForkedSave::ended, this, &AutosaveDesk::saveEnded);
    connect(&runner, &CommandRunner::commandEnded, this, &AutosaveDesk::noteEdits);
    connect(&prompts, &DeskPrompts::asked, this, &AutosaveDesk::noteEdits);
    connect(&files, &DeskFiles::saved, this, &AutosaveDesk::drop);
    qApp->installEventFilter(this);
}

// A desk that ends in order has dropped what it kept.
AutosaveDesk::~AutosaveDesk() = default;

int AutosaveDesk::pause() const {
    return std::clamp(m_settings.integer(DeskSettings::kAutosave, kUsualPause), 0, kMostPause);
}

bool AutosaveDesk::eventFilter(QObject* watched, QEvent* event) {
    if (m_pause.isActive() && isInput(event->type())) {
        m_pause.start();
    }
    return QObject::eventFilter(watched, event);
}

void AutosaveDesk::restartPause() {
    if (pause() > 0) {
        m_pause.start(pause() * kMillisecond);
    }
}

// An edit may have been made; whether there is anything to keep is asked when it is kept.
void AutosaveDesk::noteEdits() {
    if (pause() == 0) {
        return;
    }
    if (!m_sinceEdit.isValid()) {
        m_sinceEdit.start();
    } else if (m_sinceEdit.hasExpired(qint64{pause()} * kPausesOfWork * kMillisecond)) {
        QTimer::singleShot(0, this, &AutosaveDesk::save);
    }
    restartPause();
}

void AutosaveDesk::save() {
    if (!m_sinceEdit.isValid() || !m_window.isWindowModified()) {
        m_sinceEdit.invalidate();
        return;
    }
    if (m_save->isRunning()) {
        restartPause(); // what was edited since it began has its turn later
        return;
    }
    if (!m_entry) {
        auto made = AutosaveEntry::make(autosaveFolder());
        if (!made) {
            return saveEnded(QString::fromStdString(messageOf(made.failure())));
        }
        m_entry.emplace(std::move(*made));
    }
    m_sinceEdit.invalidate();
    m_save->begin(
        [this, original = m_drawing.original()]() -> std::optional<Failure> {
            if (auto failure = m_entry->writeOriginal(original)) {
                return failure;
            }
            return m_drawing.session()->drawing().save(m_entry->drawingFile());
        },
        m_entry->lock());
}

// Told once, since it will go on like that, and again after it went well.
void AutosaveDesk::saveEnded(const QString& fault) {
    if (!fault.isEmpty() && !m_isFaultTold) {
        const QString line = tr("No autosave: %1").arg(fault);
        m_window.statusBar()->showMessage(line);
        emit complained(line);
    }
    m_isFaultTold = !fault.isEmpty();
    if (m_isFaultTold && !m_sinceEdit.isValid()) {
        m_sinceEdit.start(); // the next pause tries again
        restartPause();
    }
}

void AutosaveDesk::drop() {
    m_save->stop();
    m_pause.stop();
    m_sinceEdit.invalidate();
    if (m_entry) {
        m_entry->drop();
        m_entry.reset();
    }
}

bool AutosaveDesk::offer() {
    std::vector<AutosaveEntry> entries = claimAutosaves(autosaveFolder());
    if (entries.empty()) {
        return false;
    }
    RecoverDialog dialog(entries, &m_window);
    if (dialog.exec() == QDialog::Accepted && dialog.chosen() >= 0) {
        recover(std::move(entries[static_cast<std::size_t>(dialog.chosen())]));
    }
    return true;
}

void AutosaveDesk::offerOrSayNone() {
    if (!offer()) {
        emit complained(tr("There is nothing to recover."));
    }
}

// It stays where it is, as this desk's, until the drawing is saved or left.
void AutosaveDesk::recover(AutosaveEntry entry) {
    const auto held = std::make_shared<AutosaveEntry>(std::move(entry));
    m_leave.then([this, held] {
        const QString autosave = QString::fromStdString(held->drawingFile());
        if (m_files.recover(held->readOriginal(), autosave)) {
            m_entry.emplace(std::move(*held));
            m_window.setWindowModified(true);
        }
    });
}

void AutosaveDesk::askPause() {
    bool isChosen = false;
    const int seconds = QInputDialog::getInt(
        &m_window, tr("Autosave"),
        tr("Seconds without input after which unsaved work is kept; 0 for never:"), pause(), 0,
        kMostPause, 1, &isChosen);
    if (isChosen) {
        m_settings.setInteger(DeskSettings::kAutosave, seconds);
        if (seconds == 0) {
            drop();
        } else {
            noteEdits();
        }
    }
}

} // namespace orvex
