// A style library from anywhere: list it, apply every name in it, and save into it.

#include "FindStyleName.h"
#include "KdDbDatabase.h"
#include "KdDbMlineStyle.h"
#include "KdDocument.h"
#include "styleLibraryReader.h"
#include "styleLibraryWriter.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>

#include <sys/mman.h>
#include <unistd.h>

using namespace mledit;

namespace {

void require(bool held) {
    if (!held) {
        std::abort();
    }
}

// A drawing for the line types that styles name, and a file in memory, both for the whole run.
class World {
public:
    World() { orvex::setCurrentDocument(&m_document); }
    ~World() {
        orvex::setCurrentDocument(nullptr);
        close(m_file);
    }
    World(const World&) = delete;
    World& operator=(const World&) = delete;

    std::wstring store(const std::string& bytes) const {
        require(ftruncate(m_file, 0) == 0);
        require(pwrite(m_file, bytes.data(), bytes.size(), 0) ==
                static_cast<ssize_t>(bytes.size()));
        return L"/proc/self/fd/" + std::to_wstring(m_file);
    }

private:
    KdDbDatabase m_database;
    KdDocument m_document{&m_database};
    int m_file = memfd_create("library", MFD_CLOEXEC);
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const World world;
    std::string library(reinterpret_cast<const char*>(data), size);
    std::wstring path = world.store(library);
    const auto names = listLibraryStyles(path.c_str());
    require(names.has_value());
    constexpr std::size_t kMostNames = 4; // each takes a whole reading
    KdDbMlineStyle style;
    for (std::size_t i = 0; i < std::min(names->size(), kMostNames); ++i) {
        style.initMlineStyle();
        applyLibraryStyle(path.c_str(), (*names)[i].c_str(), style);
        require(style.numElements() <= 256);
        std::wstring name = (*names)[i].text();
        FindStyleName(path.data(), name.data());
    }
    // A saved style stands in the library, whatever was there before.
    style.setName(L"fuzzed");
    const std::vector<std::string> lines = styleBlockLines(style);
    const std::string block = withStyleBlock({}, L"fuzzed", lines);
    for (int save = 0; save < 2; ++save) {
        library = withStyleBlock(library, L"fuzzed", lines);
        require(library.find(block) != std::string::npos);
    }
    return 0;
}
