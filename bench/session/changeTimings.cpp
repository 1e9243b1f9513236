// Times changes of a drawing by selection, inside one process.
//
//   change_timings DRAWING MOVE RESTYLE OUTPUT
//
// Plays the script MOVE, which selects by a window and moves, as a hand does once the drawing is
// shown; then drags a vertex of a multiline through 200 places and makes what is shown of it; then
// plays RESTYLE and saves to OUTPUT. Prints seconds and then the processor's: of the first script,
// of one place, of the second script, of the save.

#include "DrawingFile.h"
#include "KdDbEntity.h"
#include "KdDbMline.h"
#include "ModuleLoader.h"
#include "mlineEdits.h"
#include "phases.h"
#include "vertexEdits.h"

#include <ctime>

namespace {

using namespace orvex::bench;

struct Cost {
    double seconds = 0.0;
    double processor = 0.0; // the same on a machine that does nothing else
};

template <class Act>
Cost costOf(Act act) {
    const std::clock_t begin = std::clock();
    Cost cost;
    cost.seconds = secondsOf(act);
    cost.processor = static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
    return cost;
}

// What the commands say of how many multilines they changed.
void printCounts(const std::wstring& line) {
    if (line.find(L" of ") != std::wstring::npos) {
        std::fprintf(stderr, "%ls\n", line.c_str());
    }
}

// What a window does for each move of the mouse while a vertex is in hand.
Cost costOfGhost(orvex::Session& session) {
    constexpr int kPlaces = 200;
    KdDbStub* const stub = session.scene().allSeen().front();
    const auto content = orvex::contentOf(*stub);
    const auto style = content != nullptr ? orvex::styleLayoutOf(*content) : std::nullopt;
    if (!style) {
        giveUp("the first entity isn't a multiline with a style");
    }
    const KdGePoint3d end = content->vertices.back().position;
    const Cost cost = costOf([&] {
        for (int i = 1; i <= kPlaces; ++i) {
            auto edit = orvex::withVertexMoved(*content, *style,
                                               static_cast<unsigned>(content->vertices.size()) - 1,
                                               end + KdGeVector3d{1.0 * i, 0.5 * i, 0.0});
            if (!edit) {
                giveUp(edit.failure().text);
            }
            KdDbMline ghost;
            ghost.setContent(std::make_shared<orvex::MlineContent>(std::move(edit->mline)));
            if (session.scene().appearanceOf(ghost).strokes.empty()) {
                giveUp("nothing to be shown");
            }
        }
    });
    return {cost.seconds / kPlaces, cost.processor / kPlaces};
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 5) {
        giveUp("usage: change_timings DRAWING MOVE RESTYLE OUTPUT");
    }
    auto opened = orvex::DrawingFile::open(argv[1]);
    if (!opened) {
        giveUp("can't open the drawing");
    }
    orvex::ModuleLoader modules;
    orvex::SessionSetup setup;
    setup.drawing = std::move(*opened);
    orvex::Session session(std::move(setup), modules);
    (void)session.view(); // the drawing is shown

    const Cost move = costOf([&] { play(session, argv[2], printCounts); });
    const Cost ghost = costOfGhost(session);
    const Cost restyle = costOf([&] { play(session, argv[3], printCounts); });
    const Cost save = costOf([&] {
        if (session.drawing().save(argv[4])) {
            giveUp("can't save");
        }
    });
    for (const Cost& cost : {move, ghost, restyle, save}) {
        std::printf("%.9f %.9f\n", cost.seconds, cost.processor);
    }
    return 0;
}
