#pragma once

#include "KdGePoint3d.h"
#include "PromptSource.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

struct KdDbStub;

namespace orvex {

class PromptWatcher;
class ScriptRecord;
class TransparentCommands;

// Finds what a pick means. Implemented by the view.
class EntityFinder {
public:
    virtual ~EntityFinder() = default;

    // The entity under the pick box at a world point; null for nothing.
    virtual KdDbStub* entityAt(const KdGePoint3d& worldPoint, int pickBoxPixels) = 0;
};

// Shows what kdedRedraw asks for. Implemented by the view.
class DisplayListener {
public:
    virtual ~DisplayListener() = default;

    virtual void showEntity(KdDbStub& entity) = 0;
    virtual void hideEntity(KdDbStub& entity) = 0;
    virtual void refresh() = 0;
    // World to display units and back, for frame 2 of conversions.
    virtual KdGePoint3d worldToDisplay(const KdGePoint3d& world) const = 0;
    virtual KdGePoint3d displayToWorld(const KdGePoint3d& display) const = 0;
    // The window on the plan, drawing units, for VIEWCTR and VIEWSIZE.
    virtual KdGePoint3d viewCenter() const = 0;
    virtual double viewHeight() const = 0;
    // What isn't finite, or no height above 0, changes nothing.
    virtual void setViewCenter(const KdGePoint3d& center) = 0;
    virtual void setViewHeight(double height) = 0;
};

// What the prompt library works with at the moment. One a process; pointers aren't owned and may
// be null: without a source every prompt is cancelled, without a finder nothing is found.
struct PromptSession {
    PromptSource* source = nullptr;
    EntityFinder* finder = nullptr;
    DisplayListener* display = nullptr;
    PromptWatcher* watcher = nullptr;
    TransparentCommands* transparent = nullptr; // null: there are none
    ScriptRecord* record = nullptr;             // of all answers; null: nobody wants it

    int pickBox = 3;       // PICKBOX, pixels to each side; not stored in the drawing
    int errorNumber = 0;   // ERRNO
    int dimzin = 8;        // DIMZIN where the drawing has none
    KdGePoint3d lastPoint; // LASTPOINT, world: what the last question for a point was answered with
    std::wstring armedKeywords;
    std::wstring lastKeyword;
    std::vector<std::wstring> completions; // go with the next question, and with it alone
    bool keepsOnEscape = false;            // the same
    bool isWithin = false;                 // a transparent command runs
    // These go with each question that a point answers; set by PreviewScope.
    PromptPreview preview;
    PromptPreviews previews;
    PromptMotion motion;

    static PromptSession& current();
};

// Has a preview shown at the questions for points that are asked while it lives.
class PreviewScope {
public:
    explicit PreviewScope(PromptPreview preview) {
        PromptSession::current().preview = std::move(preview);
    }
    explicit PreviewScope(PromptPreviews previews) {
        PromptSession::current().previews = std::move(previews);
    }
    explicit PreviewScope(PromptMotion motion) {
        PromptSession::current().motion = std::move(motion);
    }
    ~PreviewScope() {
        PromptSession::current().preview = nullptr;
        PromptSession::current().previews = nullptr;
        PromptSession::current().motion = {};
    }
    PreviewScope(const PreviewScope&) = delete;
    PreviewScope& operator=(const PreviewScope&) = delete;
};

} // namespace orvex
