#pragma once

#include "Failure.h"
#include "KdGePoint3d.h"
#include "MlineContent.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class KdDbEntity;
struct KdDbStub;

namespace orvex {

// What commands that change multilines share: their questions, and what they tell.

using MlineEdit = std::function<Result<MlineContent>(const MlineContent&)>;

// Changes each, and tells those that the edit refuses, which stay as they are; at last how many of
// how many by `done`: "%1 of %2 multilines moved."
void editEach(const std::vector<KdDbStub*>& mlines, const MlineEdit& edit, const std::string& done);

// "multiline 2F left as it is: why"
void tellRefusal(const KdDbStub& mline, const std::string& why);

// "2 of 3 multilines moved."
void tellCount(std::size_t count, std::size_t all, const std::string& done);

// A new entity in the block of `original`, drawn last.
KdDbStub& addEntity(const KdDbStub& original, std::unique_ptr<KdDbEntity> entity);
KdDbStub& addMline(const KdDbStub& original, MlineContent content);

struct PickedMline {
    KdDbStub* stub = nullptr;
    std::shared_ptr<const MlineContent> content;
    KdGePoint3d place; // world
};
// Nothing for a cancel, and where there is no multiline to change, which is told.
std::optional<PickedMline> pickMline(const wchar_t* prompt);
// Whether the last pick found nothing that could be used; otherwise the user wants no more.
bool hasMissed();

// A multiline that may be changed, by its handle or by a pick.
struct NamedMline {
    KdDbStub* stub = nullptr;
    std::shared_ptr<const MlineContent> content; // never null
    std::optional<KdGePoint3d> place;            // world; nothing where a handle named it
};
// Nothing for a cancel, and where there is none, which is told.
std::optional<NamedMline> askMlineToChange(const wchar_t* prompt);

// A whole number from 0 on; nothing when the user gives up. `isEmpty` may be null and tells an
// empty answer.
std::optional<unsigned> askIndex(const wchar_t* prompt, bool* isEmpty = nullptr);

// A multiline that is part of no drawing, for a preview.
std::unique_ptr<KdDbEntity> freeMline(MlineContent content);

// "2 gaps no longer fit into their segments."; nothing for none.
void tellLostGaps(std::size_t count);

// In world coordinates; a window draws a line from `base`. Nothing for an empty line or a cancel.
std::optional<KdGePoint3d> askPoint(const wchar_t* prompt,
                                    const std::optional<KdGePoint3d>& base = std::nullopt);

} // namespace orvex
