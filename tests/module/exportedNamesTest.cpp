#include "TestPaths.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <fstream>
#include <regex>

namespace {

namespace fs = std::filesystem;

// As the source spells them. Weak symbols don't count: they are what the standard library's
// templates leave.
std::vector<std::string> exportedNames() {
    const fs::path module = orvex::testing::binDir() / "libOmxMLStyle.omx";
    const fs::path list = fs::temp_directory_path() / "names.txt";
    const std::string call = "nm -DC --defined-only '" + module.string() + "' >" + list.string();
    EXPECT_EQ(std::system(call.c_str()), 0);
    std::ifstream lines(list);
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
                               "hResModule", "theExtensionDLL", "FindStyleName(wchar_t*, wchar_t*)",
                               "TKL_MlstyleBitmap(int, int, KdDbMlineStyle*)"}) {
        EXPECT_THAT(names, testing::Contains(needed));
    }
    // Beside them two texts and the classes of the streams.
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
