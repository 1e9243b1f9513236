#pragma once

#include "DeskDrawing.h"
#include "DeskSettings.h"
#include "DrawingOpener.h"

#include <QObject>

#include <functional>

namespace orvex {

// What a user wants to become of changes that no file holds.
enum class Leave { stay, save, discard };

// What the menu File does with the drawing in the window: asks for names, asks about changes,
// opens, saves, reports what went wrong.
class DeskFiles final : public QObject {
    Q_OBJECT

public:
    // Is given each drawing that takes the place of the one before; no path for a new one.
    using Taker = std::function<void(std::unique_ptr<DrawingFile>, const QString& path)>;

    // All of these outlive it.
    DeskFiles(QWidget& window, DeskDrawing& drawing, DeskSettings& settings, Taker take)
        : m_window(window), m_drawing(drawing), m_settings(settings), m_take(std::move(take)),
          m_opener(window) {}

    // These let the drawing go; whether it may has been asked.
    void newDrawing();
    void askAndOpen();
    void open(const QString& path);
    // Opens an autosave as an unsaved state of its drawing; false when it can't be read.
    bool recover(const AutosavedDrawing& original, const QString& autosave);
    bool save(); // false when it isn't saved
    bool saveAs();
    void exportPicture();

    // Asks about changes that no file holds, or that are about to be made. Where there are none,
    // nobody is asked: discard.
    [[nodiscard]] Leave askLeave(bool willChange = false);
    // The same, with the save. True when the drawing may go.
    [[nodiscard]] bool mayLeave();

    [[nodiscard]] DrawingOpener& opener() { return m_opener; }

signals:
    void used(const QString& path);    // opened or saved
    void missing(const QString& path); // can't be opened
    void printed(const QString& line);
    void complained(const QString& line);
    void saved();
    // A drawing was opened, or wasn't.
    void openingEnded(bool isOpen);

private:
    bool saveInto(const QString& path);
    bool mayOverwrite();
    bool mayReplace(const QString& path);
    bool openFile(const QString& path);
    void reportWarnings(const std::vector<DrawingWarning>& warnings, const QString& path);
    void report(const QString& what, const QString& why);

    QWidget& m_window;
    DeskDrawing& m_drawing;
    DeskSettings& m_settings;
    Taker m_take;
    DrawingOpener m_opener;
};

} // namespace orvex
