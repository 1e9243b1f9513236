#pragma once

#include <QStringList>

struct KdGePoint3d;
struct KdDbStub;

namespace orvex {

class Session;
struct PromptRequest;

// A window's user zooms by wheel and keys, of which no script knows. So commands measure picks in
// the view that a script has, and only where a click at a point of the current user coordinate
// system would come to something else there than what is seen, that view gets the scale of the
// window first. This is done here; what comes back are the lines of it, as they stand in the
// history: none where nothing had to be done. `named`: the entity that the pick names; null for
// what lies there.
QStringList measureAsSeen(Session& session, const PromptRequest& request,
                          const KdGePoint3d& userPoint, KdDbStub* named);

} // namespace orvex
