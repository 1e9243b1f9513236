#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

struct KdDbStub;

namespace orvex {

class Session;

enum class SelectionKind { entities, mlines };

// What the user selected, each once, in drawing order; what lies elsewhere than in model space
// last.
struct Selection {
    std::vector<KdDbStub*> entities;
    bool isEmptyAnswer = false; // nothing was selected, and nothing was tried
};

// Asks until an empty line; what is selected by hand already is taken without a question, and the
// command line shows what a script would have to answer. Leaves
// out what lies on locked layers and, for multilines, all else, and tells how many that were; an
// empty selection is told, too, unless `emptyMeansAll`. Nothing for a cancel.
std::optional<Selection> askSelection(Session& session, SelectionKind kind,
                                      bool emptyMeansAll = false);

// All that is seen of model space, as if it had been selected.
Selection selectAll(Session& session, SelectionKind kind);

// What is seen of a style, or on a layer; nothing where the drawing has none of that name, which
// ignores case.
std::optional<std::vector<KdDbStub*>> seenOfStyle(Session& session, const std::wstring& name);
std::optional<std::vector<KdDbStub*>> seenOnLayer(Session& session, const std::wstring& name);

} // namespace orvex
