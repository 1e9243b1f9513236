#include "TestPaths.h"

#include <gmock/gmock.h>

#include <array>
#include <cstdio>
#include <regex>
#include <sstream>

namespace {

struct PipeCloser {
    void operator()(FILE* pipe) const { pclose(pipe); }
};

std::string outputOf(const std::string& command) {
    const std::unique_ptr<FILE, PipeCloser> pipe(popen(command.c_str(), "r"));
    std::string output;
    std::array<char, 4096> buffer{};
    for (std::size_t count = 1; count > 0;) {
        count = std::fread(buffer.data(), 1, buffer.size(), pipe.get());
        output.append(buffer.data(), count);
    }
    return output;
}

// Weak symbols don't count: they are what the standard library's templates leave.
std::vector<std::string> exportedNames() {
    const auto file = orvex::testing::binDir() / "libOmxMLStyle.omx";
    std::istringstream lines(outputOf("nm -D --defined-only '" + file.string() + "'"));
    std::vector<std::string> names;
    std::string address;
    std::string kind;
    std::string name;
    while (lines >> address >> kind >> name) {
        if (kind != "W" && kind != "V" && kind != "u") {
            names.push_back(name);
        }
    }
    return names;
}

TEST(ExportedNames, areThoseOfTheInterfaceAndNoOthers) {
    const std::vector<std::string> names = exportedNames();
    for (const char* needed : {"DllMain", "kdrxEntryPoint", "kdrxGetApiVersion", "hAppModule",
                               "hResModule", "theExtensionDLL"}) {
        EXPECT_THAT(names, testing::Contains(needed));
    }
    // Beside them: two texts, the two functions of the dialogs that others may call, and the
    // classes of the streams.
    const std::regex allowed("DllMain|kdrxEntryPoint|kdrxGetApiVersion|hAppModule|hResModule|"
                             "theExtensionDLL|str_[A-Za-z]+|_Z\\d+TKL_MlstyleBitmap.*|"
                             "_Z\\d+FindStyleName.*|_ZN?K?\\d*Vo[A-Za-z0-9]*(Stream|Buf)\\w*|"
                             "_ZN?K?\\d*Vo\\w*|_ZT[VISh]\\w*|__odr_asan\\w*|_init|_fini");
    for (const std::string& name : names) {
        EXPECT_TRUE(std::regex_match(name, allowed)) << name;
    }
}

} // namespace
