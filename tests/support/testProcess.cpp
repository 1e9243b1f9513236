// Linked into every test program: a test gets surroundings of its own before it begins. Each test
// runs in a process of its own and several at a time, so what one writes must not meet another, nor
// the settings of whoever runs it.

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

namespace {

class Surroundings {
public:
    Surroundings() {
        std::string folder = (std::filesystem::temp_directory_path() / "orvexTestXXXXXX").string();
        if (mkdtemp(folder.data()) == nullptr) {
            std::perror(folder.c_str());
            std::abort();
        }
        m_folder = folder;
        m_owner = getpid();
        setenv("TMPDIR", folder.c_str(), 1);
        // The cache folder stays the user's: fontconfig would search all fonts anew each time.
        setenv("XDG_CONFIG_HOME", folder.c_str(), 1);
        setenv("XDG_DATA_HOME", folder.c_str(), 1);
        setenv("XDG_STATE_HOME", folder.c_str(), 1);
        setenv("XDG_RUNTIME_DIR", folder.c_str(), 1);
        unsetenv("ORVEX_ROOT");
        // No test depends on the screen it happens to run on; one that wants a screen says which.
        setenv("QT_QPA_PLATFORM", "offscreen", 0);
    }

    ~Surroundings() {
        // A process that a test forked leaves the folder to the test.
        if (getpid() == m_owner) {
            std::error_code ignored;
            std::filesystem::remove_all(m_folder, ignored);
        }
    }

    Surroundings(const Surroundings&) = delete;
    Surroundings& operator=(const Surroundings&) = delete;

private:
    std::filesystem::path m_folder;
    pid_t m_owner = 0;
};

const Surroundings kSurroundings;

} // namespace
