#pragma once

#include "Failure.h"
#include "JoinReport.h"
#include "JoinScript.h"
#include "MlineContent.h"
#include "ScratchSession.h"
#include "checkJoint.h"
#include "planJoins.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

class KdDbMline;

namespace orvex {

// A whole plan joined: first looked at, then played over copies by the module's own tool, then
// given to the drawing. Only giveBack() touches it.
class JoinRun {
public:
    // Plans; what would be joined shows in places().
    JoinRun(Session& session, std::vector<KdDbStub*> mlines, const JoinOptions& options);

    // After play() with what became of each.
    [[nodiscard]] const std::vector<JoinPlace>& places() const { return m_plan.places; }
    [[nodiscard]] const std::vector<JoinWall>& walls() const { return m_walls; }
    [[nodiscard]] JoinReport report() const {
        return {m_plan.places, m_walls, m_mlines, m_isPlayed, m_options};
    }

    // Plays all that is planned. A joint that doesn't come out right leaves its walls as they
    // were. Fails only where the module can't be loaded.
    [[nodiscard]] std::optional<Failure> play();

    // What play() did, as a script that does the same to the drawing.
    [[nodiscard]] std::string script() const;
    // Has the drawing be what the script would make of it. Within a command.
    void giveBack();

private:
    using Content = std::shared_ptr<const MlineContent>;

    [[nodiscard]] KdDbMline& copyOf(unsigned wall);
    [[nodiscard]] Content contentOf(unsigned wall);
    void setContent(unsigned wall, MlineContent content);
    void restore(unsigned wall, const Content& content);

    std::optional<Failure> playOnce();
    bool tryPlace(unsigned index, unsigned attempt, JoinScript& script);
    bool playPlace(unsigned index, JoinScript& script);
    bool playSteps(const JoinPlace& place, const JoinSteps& steps, JoinScript& script);
    bool moveEnds(const JoinSteps& steps, JoinScript& script);
    bool useTool(const JoinSteps& steps, JoinScript& script);
    bool layRight(unsigned wall, const JoinWall& before, JoinScript& script);
    bool settle(const JoinPlace& place, const JoinPair& before, JoinScript& script);
    void setView(double height);
    void setAperture(double aperture, JoinScript& script);
    [[nodiscard]] JoinPair pairOf(const JoinPlace& place) const;
    bool leaveWhatIsNotRight();
    void startAgain();

    Session& m_session;
    JoinOptions m_options;
    std::vector<KdDbStub*> m_mlines;
    std::vector<JoinWall> m_walls; // as they are now
    JoinPlan m_plan;
    std::vector<JoinPlace> m_planned; // places as planned
    ScratchSession m_scratch;
    std::vector<Content> m_originals; // of walls that were played on, else null
    JoinScript m_script;
    bool m_isPlayed = false;
    double m_viewHeight = 0.0; // 0: not set yet
    std::optional<Failure> m_failure;
};

} // namespace orvex
