#include "resourceSearch.h"

#include "dataFolder.h"
#include "userLanguage.h"

#include <dlfcn.h>

#include <filesystem>

namespace orvex {

namespace {

namespace fs = std::filesystem;

std::string& chosenLanguage() {
    static std::string language;
    return language;
}

void addWithLanguages(std::vector<std::string>& folders, const std::string& folder) {
    if (folder.empty()) {
        return;
    }
    const std::string& territory = userLanguage(); // "de_AT"
    const std::string language = territory.substr(0, territory.find('_'));
    if (language != territory) {
        folders.push_back(folder + '/' + territory);
    }
    if (!language.empty()) {
        folders.push_back(folder + '/' + language);
    }
    folders.push_back(folder);
}

} // namespace

void setUserLanguage(const std::string& language) {
    chosenLanguage() = language;
}

const std::string& userLanguage() {
    return chosenLanguage();
}

std::string folderOfCode(const void* address) {
    Dl_info info{};
    if (dladdr(address, &info) == 0 || info.dli_fname == nullptr) {
        return {};
    }
    std::error_code error;
    const fs::path absolute = fs::absolute(info.dli_fname, error);
    return error ? std::string() : absolute.lexically_normal().parent_path().string();
}

std::vector<std::string> resourceFolders(const std::string& moduleFolder) {
    std::vector<std::string> folders;
    addWithLanguages(folders, moduleFolder);
    addWithLanguages(folders, hostRootFolder());
    addWithLanguages(folders, dataFolder());
    return folders;
}

std::string findInFolders(const std::vector<std::string>& folders, const std::string& name) {
    if (name.empty() || name.find('/') != std::string::npos) {
        return {};
    }
    for (const std::string& folder : folders) {
        const fs::path candidate = fs::path(folder) / name;
        std::error_code error;
        if (fs::is_regular_file(candidate, error)) {
            return candidate.lexically_normal().string();
        }
    }
    return {};
}

} // namespace orvex
