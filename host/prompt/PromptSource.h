#pragma once

#include "KdGePoint3d.h"
#include "PlanMap.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class KdDbEntity;
struct KdDbStub;

namespace orvex {

// A selection is asked for again and again until an empty answer: it takes points, handles and
// keywords.
enum class PromptKind { command, keyword, entity, selection, point, real, text };

// The entity that a point at the cursor (world) would make, not in any drawing; null for nothing.
using PromptPreview = std::function<std::unique_ptr<KdDbEntity>(const KdGePoint3d& cursor)>;

// The same of several entities.
using PromptPreviews =
    std::function<std::vector<std::unique_ptr<KdDbEntity>>(const KdGePoint3d& cursor)>;
// Entities of the drawing that a point at the cursor would move as one; the map gives nothing where
// it can't.
struct PromptMotion {
    std::vector<KdDbStub*> entities;
    std::function<std::optional<PlanMap>(const KdGePoint3d& cursor)> map;
};

// A question to the user.
struct PromptRequest {
    PromptKind kind = PromptKind::text;
    std::wstring text;
    std::vector<std::wstring> keywords;    // armed for this prompt, as the list spells them
    std::vector<std::wstring> completions; // texts that would do; others may, too
    std::optional<KdGePoint3d> base;       // world; a window draws a line from it
    // A window draws its entity instead of the line. Null where the command shows nothing; it lives
    // no longer than the question.
    PromptPreview preview;
    PromptPreviews previews; // alike
    PromptMotion motion;     // alike
    // Whoever gives up by hand keeps what was answered so far, as an empty answer does. A script's
    // cancel is a cancel all the same.
    bool keepsOnEscape = false;
    // A transparent command asks, in the middle of a question that waits.
    bool isWithin = false;
};

// The answer, before the prompt library has judged it.
struct PromptAnswer {
    enum class Kind {
        cancel,
        empty,
        keyword,
        point,
        handle,
        number,
        text,
        transparent, // a command in the middle of this one; `text` is its name
    } kind = Kind::cancel;
    std::wstring keyword; // as the list spells it
    KdGePoint3d point;    // current user coordinate system
    double number = 0.0;
    std::wstring text;
    // An entity named beside the point: found whatever lies there. 0 is a handle that names
    // nothing.
    std::optional<std::uint64_t> handle;
    std::wstring echo; // what the user typed or clicked, for the command line
};

// Who answers. Every source ends in a cancel, for ever.
class PromptSource {
public:
    virtual ~PromptSource() = default;

    virtual PromptAnswer ask(const PromptRequest& request) = 0;
    // False where nobody will take back what a tool did while it runs, so that nothing has to be
    // kept for that.
    [[nodiscard]] virtual bool mayTakeBack() const { return true; }
    // A line of text for the command line, without its line end.
    virtual void print(const std::wstring& line) = 0;
    // The last answer was understood but can't be taken, and why. A script can't go on then; others
    // show the reason, and the user tries again.
    virtual void reject(const std::wstring& reason) { print(reason); }
    // A file chosen by the user; nothing when he declines or the source can't ask.
    virtual std::optional<std::wstring> chooseFile(const std::wstring& title,
                                                   const std::wstring& defaultPath,
                                                   const std::wstring& extension, int flags);
};

// The keyword that a typed word means: in any case, in full or cut to its capitals where it is
// spelt with both. Nothing when it means none.
std::optional<std::wstring> matchKeyword(const std::vector<std::wstring>& keywords,
                                         const std::wstring& typed);

} // namespace orvex
