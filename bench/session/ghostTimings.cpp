// Times ghosts of the tools: what somebody waits for who holds the mouse still.
//
//   ghost_timings DRAWING [PICKS]
//
// Lets each tool ask for the last pick of a cycle, at random multilines of the drawing, and has a
// ghost made of PICKS places there (100 without). Prints for each tool how many ghosts there were,
// and their median and longest time in milliseconds; the first of all, which loads the module, is
// left out.

#include "BlockList.h"
#include "DatabaseCore.h"
#include "DrawingFile.h"
#include "KdDbMline.h"
#include "KdDbStub.h"
#include "ModuleLoader.h"
#include "Session.h"
#include "mlineTrack.h"
#include "textCodec.h"
#include "toolGhost.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>

namespace {

using namespace orvex;

class Timer final : public PromptSource {
public:
    Timer(Session& session, std::vector<KdDbStub*> mlines, int picks)
        : m_session(session), m_mlines(std::move(mlines)), m_picks(picks) {}

    void start(const ToolKind& tool) {
        m_tool = &tool;
        m_times.clear();
    }

    PromptAnswer ask(const PromptRequest& request) override {
        PromptAnswer answer;
        if (request.kind == PromptKind::keyword) {
            answer.kind = PromptAnswer::Kind::keyword;
            answer.keyword = m_tool->keyword;
            return answer;
        }
        if (m_session.toolWatch().isLastPick()) {
            for (int i = 0; i < m_picks; ++i) {
                time();
            }
            return answer; // a cancel
        }
        const Place place = anyPlace();
        m_first = place.mline;
        answer.kind = PromptAnswer::Kind::point;
        answer.point = place.at;
        answer.handle = place.mline->handle;
        return answer;
    }
    void print(const std::wstring& /*line*/) override {}

    void report() {
        std::sort(m_times.begin(), m_times.end());
        if (!m_times.empty()) {
            std::printf("%s %5zu %8.3f %8.3f\n", narrow(m_tool->keyword).c_str(), m_times.size(),
                        m_times[m_times.size() / 2], m_times.back());
        }
    }

private:
    struct Place {
        KdDbStub* mline = nullptr;
        KdGePoint3d at;
    };
    double chance() { return std::uniform_real_distribution<>(0.0, 1.0)(m_random); }

    Place placeOn(KdDbStub& stub) {
        const auto content =
            std::static_pointer_cast<const MlineContent>(stub.database->load(stub)->content());
        const MlineChain chain(*content);
        const MlineTrack track =
            chain.track(static_cast<unsigned>(chance() * chain.segmentCount()),
                        static_cast<unsigned>(chance() * chain.elementCount()));
        return {&stub, track.at(track.length * chance())};
    }
    Place anyPlace() {
        return placeOn(
            *m_mlines[static_cast<std::size_t>(chance() * static_cast<double>(m_mlines.size()))]);
    }

    void time() {
        const bool isOnFirst = m_tool->picks == ToolKind::Picks::twoOnOne;
        const Place place = isOnFirst ? placeOn(*m_first) : anyPlace();
        const auto start = std::chrono::steady_clock::now();
        const auto ghost = toolGhost(m_session, *place.mline, place.at);
        if (ghost && !ghost->changed.empty()) {
            for (const ToolGhost::Outcome& outcome : ghost->changed) {
                (void)appearanceOf(m_session, outcome);
            }
            const std::chrono::duration<double, std::milli> passed =
                std::chrono::steady_clock::now() - start;
            m_times.push_back(passed.count());
        }
    }

    Session& m_session;
    std::vector<KdDbStub*> m_mlines;
    int m_picks;
    std::mt19937 m_random{5};
    const ToolKind* m_tool = nullptr;
    KdDbStub* m_first = nullptr;
    std::vector<double> m_times;
};

[[noreturn]] void giveUp(const char* why) {
    std::fprintf(stderr, "ghost_timings: %s\n", why);
    std::exit(1);
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        giveUp("usage: ghost_timings DRAWING [PICKS]");
    }
    auto opened = DrawingFile::open(argv[1]);
    if (!opened) {
        giveUp("can't open the drawing");
    }
    ModuleLoader modules;
    SessionSetup setup;
    setup.drawing = std::move(*opened);
    setup.moduleFiles = {
        (std::filesystem::read_symlink("/proc/self/exe").parent_path() / "../bin/libOmxMLStyle.omx")
            .string()};
    Session session(std::move(setup), modules);
    std::vector<KdDbStub*> mlines;
    for (KdDbStub* const stub : session.database().core().blocks().modelSpace().entities) {
        if (stub->kind == ObjectKind::mline) {
            mlines.push_back(stub);
        }
    }
    if (mlines.empty()) {
        giveUp("there are no multilines");
    }
    Timer timer(session, mlines, argc > 2 ? std::atoi(argv[2]) : 100);
    session.setSource(&timer);
    constexpr int kFirstPicks = 20;
    for (const ToolKind& tool : toolKinds()) {
        timer.start(tool);
        for (int i = 0; i < kFirstPicks; ++i) {
            if (session.run(L"-MLEDIT")) {
                giveUp("the module can't be loaded");
            }
        }
        timer.report();
    }
    session.setSource(nullptr);
    return 0;
}
