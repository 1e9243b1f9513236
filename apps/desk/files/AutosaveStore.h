#pragma once

#include "Failure.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvex {

// What an autosave is of.
struct AutosavedDrawing {
    std::string path;          // of the drawing's file, absolute, UTF-8; empty when it has none
    std::int64_t written = -1; // when that file was last written, as far as the desk knew, in
                               // milliseconds since 1970; -1 for never
    std::int64_t size = 0;     // and its bytes
};

// One autosave: three files of one name in the folder of autosaves, all for the user alone:
// "desk-abcdefgh.lock", locked as long as a desk holds it (the system lets a dead one's locks go),
// ".of", what it is of, and ".dxf", the drawing, once there is one.
class AutosaveEntry {
public:
    // Makes the folder where it isn't there. Fails with unwritableOutput.
    static Result<AutosaveEntry> make(const std::string& folder);
    // Takes one over whose desk is gone; none where a desk lives, or the files aren't the user's.
    static std::optional<AutosaveEntry> claim(const std::string& folder, const std::string& name);

    AutosaveEntry(AutosaveEntry&& other) noexcept;
    AutosaveEntry& operator=(AutosaveEntry&& other) noexcept;
    // Lets it go: an autosave stays for the next desk, an entry without one vanishes.
    ~AutosaveEntry();

    // For a process that writes the drawing: the caller sees to it that what it makes is for the
    // user alone.
    [[nodiscard]] std::optional<Failure> writeOriginal(const AutosavedDrawing& original) const;
    [[nodiscard]] AutosavedDrawing readOriginal() const;
    [[nodiscard]] std::string drawingFile() const { return fileWith(".dxf"); }
    [[nodiscard]] bool hasDrawing() const;
    [[nodiscard]] std::int64_t savedAt() const; // milliseconds since 1970
    [[nodiscard]] int lock() const { return m_lock; }

    // Removes the autosave; the entry may be written again.
    void drop() const;

private:
    AutosaveEntry(std::string stem, int lock) : m_stem(std::move(stem)), m_lock(lock) {}
    [[nodiscard]] std::string fileWith(const char* ending) const { return m_stem + ending; }
    void release();

    std::string m_stem; // of its files, with the folder
    int m_lock = -1;    // descriptor
};

// $XDG_STATE_HOME/orvex/autosave, else ~/.local/state/orvex/autosave; empty without a home.
std::string autosaveFolder();

// All autosaves whose desks are gone, the latest first, held for the caller. Removes what dead
// desks left without a drawing; other files in the folder are left alone.
std::vector<AutosaveEntry> claimAutosaves(const std::string& folder);

} // namespace orvex
