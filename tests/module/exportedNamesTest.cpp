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

// As the source spells them. Weak symbols don't count: they are what the standard library's
// templates leave.
std::vector<std::string> exportedNames() {
    const auto file = orvex::testing::binDir() / "libOmxMLStyle.omx";
    std::istringstream lines(outputOf("nm -DC --defined-only '" + file.string() + "'"));
    std::vector<std::string> names;
    std::string address;
    std::string kind;
    std::string name;
    while (lines >> address >> kind && std::getline(lines >> std::ws, name)) {
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
    EXPECT_THAT(names, testing::Contains(testing::StartsWith("TKL_MlstyleBitmap(int, int,")));
    EXPECT_THAT(names, testing::Contains("FindStyleName(wchar_t*, wchar_t*)"));
    // Beside them: two texts, the two functions of the dialogs that others may call, and the
    // classes of the streams.
    const std::regex allowed("DllMain|kdrxEntryPoint|kdrxGetApiVersion|hAppModule|hResModule|"
                             "theExtensionDLL|str_[A-Za-z]+|TKL_MlstyleBitmap\\(.*|"
                             "FindStyleName\\(.*|((non-)?virtual thunk to |"
                             "(construction )?(vtable|VTT|typeinfo|typeinfo name) for )?"
                             "Vo[A-Za-z0-9]*(Stream|Buf|Mem|IO)[A-Za-z0-9]*\\b.*|"
                             // What linkers and sanitizers add.
                             "__bss_start|_edata|_end|__odr_asan.*");
    for (const std::string& name : names) {
        EXPECT_TRUE(std::regex_match(name, allowed)) << name;
    }
}

} // namespace
