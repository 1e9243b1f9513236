#include "hostFolders.h"

#include "dataFolder.h"
#include "resourceSearch.h"
#include "textCodec.h"

#include <cstdlib>
#include <filesystem>

namespace orvex {

namespace {

namespace fs = std::filesystem;

std::string findDataFolder() {
    // Any function of the host will do to find the host's library.
    std::string library = folderOfCode(reinterpret_cast<const void*>(&dataFolder));
    std::error_code error;
    const fs::path installed = fs::path(library) / "../../share/orvex";
    if (!fs::is_directory(fs::path(library) / "Support", error) &&
        fs::is_directory(installed, error)) {
        return installed.lexically_normal().string();
    }
    return library;
}

} // namespace

std::string dataFolder() {
    static const std::string folder = findDataFolder();
    return folder;
}

std::string hostRootFolder() {
    const char* const root = std::getenv("ORVEX_ROOT");
    if (root == nullptr || *root == '\0') {
        return dataFolder();
    }
    std::string folder = root;
    while (folder.size() > 1 && folder.back() == '/') {
        folder.pop_back();
    }
    return folder;
}

std::wstring rootFolder() {
    const std::wstring folder = widen(hostRootFolder());
    return folder.ends_with(L'/') ? folder : folder + L'/';
}

std::wstring findSupportFile(const std::wstring& name) {
    return widen(
        findInFolders({hostRootFolder() + "/Support", dataFolder() + "/Support"}, narrow(name)));
}

} // namespace orvex

const wchar_t* KdDbHostApplicationServices::rootFolder() const {
    static std::wstring folder;
    folder = orvex::rootFolder();
    return folder.c_str();
}

KdDbHostApplicationServices* kddbHostApplicationServices() {
    static KdDbHostApplicationServices services;
    return &services;
}
