// A style library from anywhere: list it, apply every name in it, and save into it.

#include "FindStyleName.h"
#include "KdDbDatabase.h"
#include "KdDbMlineStyle.h"
#include "KdDocument.h"
#include "styleLibraryReader.h"
#include "styleLibraryWriter.h"
#include "textCodec.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include <unistd.h>

namespace fs = std::filesystem;
using namespace mledit;

namespace {

// A drawing for the line types that styles name, and a file, both for the whole run.
struct World {
    KdDbDatabase database;
    KdDocument document{&database};
    fs::path path = fs::temp_directory_path() / ("library" + std::to_string(getpid()) + ".mln");

    World() { orvex::setCurrentDocument(&document); }
    ~World() {
        orvex::setCurrentDocument(nullptr);
        std::error_code error;
        fs::remove(path, error);
    }
    World(const World&) = delete;
    World& operator=(const World&) = delete;
};

void require(bool held) {
    if (!held) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static World world;
    std::ofstream(world.path, std::ios::binary)
        .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    std::wstring path = orvex::widen(world.path.string());
    const auto names = listLibraryStyles(path.c_str());
    require(names.has_value());
    constexpr std::size_t kMostNames = 20; // each takes a whole reading
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
    std::string library(reinterpret_cast<const char*>(data), size);
    for (int save = 0; save < 2; ++save) {
        library = withStyleBlock(library, L"fuzzed", lines);
        require(library.find(block) != std::string::npos);
    }
    return 0;
}
