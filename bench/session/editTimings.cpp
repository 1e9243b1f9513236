// Times edits and a save inside one process, where a run of the whole program would drown them in
// the time of opening.
//
//   edit_timings DRAWING FIRST MORE CYCLES OUTPUT
//
// Plays the script FIRST, which pays for the index of what is drawn, then MORE, which holds CYCLES
// cuts, saves to OUTPUT, and writes and flushes the same bytes once more beside it. Prints seconds:
// of the first script, of one further cut, of the save, and of the plain write.

#include "DrawingFile.h"
#include "ModuleLoader.h"
#include "phases.h"

#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

namespace {

using namespace orvex::bench;

void writeAndFlush(const std::string& path, const std::string& bytes) {
    const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    std::size_t done = 0;
    while (file >= 0 && done < bytes.size()) {
        const ssize_t written = ::write(file, bytes.data() + done, bytes.size() - done);
        if (written <= 0) {
            break;
        }
        done += static_cast<std::size_t>(written);
    }
    if (done < bytes.size() || fsync(file) != 0) {
        giveUp("can't write " + path);
    }
    close(file);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 6) {
        giveUp("usage: edit_timings DRAWING FIRST MORE CYCLES OUTPUT");
    }
    const std::string output = argv[5];
    auto opened = orvex::DrawingFile::open(argv[1]);
    if (!opened) {
        giveUp("can't open the drawing");
    }
    orvex::ModuleLoader modules;
    orvex::SessionSetup setup;
    setup.drawing = std::move(*opened);
    setup.moduleFiles = {
        (std::filesystem::read_symlink("/proc/self/exe").parent_path() / "../bin/libOmxMLStyle.omx")
            .string()};
    orvex::Session session(std::move(setup), modules);

    const double first = secondsOf([&] { play(session, argv[2]); });
    const double more = secondsOf([&] { play(session, argv[3]); });
    const double save = secondsOf([&] {
        if (session.drawing().save(output)) {
            giveUp("can't save to " + output);
        }
    });
    const std::string bytes = contentOf(output);
    const std::string beside = output + ".plain";
    std::filesystem::remove(output);
    const double plain = secondsOf([&] { writeAndFlush(beside, bytes); });
    std::filesystem::remove(beside);
    std::printf("%.9f %.9f %.9f %.9f\n", first, more / std::atof(argv[4]), save, plain);
    return 0;
}
