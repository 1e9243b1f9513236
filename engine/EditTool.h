#pragma once

#include "Tool.h"

class CMlineEdit;
struct CMlineSegment;

namespace mledit {

// How a tool's own work ended, and with it the cycle.
enum class StepOutcome {
    done,           // the display is refreshed, the cycle can be taken back
    noCrossing,     // a message is printed, no refresh, nothing can be taken back any more
    failedSilently, // as noCrossing without the message
};

// What one editing tool does differently from the others in the cycle that they share.
struct EditTool {
    // Which first pick is accepted; any other repeats the prompt.
    enum class FirstPick { multiline, anyEntity };
    enum class SecondPick { none, multiline, sameEntity };
    enum class Closes { both, first, neither };
    using Initialise = void (CMlineEdit::*)(CMlineSegment*, long*, CMlineSegment*);
    using Step = StepOutcome (*)(CMlineEdit& run);

    struct Prompts {
        unsigned firstWithUndo = 0; // numbers of the texts
        unsigned first = 0;
        unsigned second = 0;
    };

    Prompts prompts;
    FirstPick firstPick = FirstPick::multiline;
    SecondPick secondPick = SecondPick::multiline;
    bool refusesClosedFirst = false;
    bool refusesClosedSecond = false;
    int undoCopies = 1;      // 1: of the first entity; 2: of both
    bool hidesFirst = false; // before an undo copy is written back
    bool hidesSecond = false;
    Closes closesAtExit = Closes::both;
    Initialise initialise = nullptr; // fills a record from a pick
    // The tool's own work; none: the tool runs nothing. Both entities are open for write (one
    // entity picked twice is open once), their records filled, the undo copies made.
    Step step = nullptr;
};

const EditTool& editTool(Tool tool);

} // namespace mledit
