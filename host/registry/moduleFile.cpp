#include "moduleFile.h"

#include "hostText.h"

#include <elf.h>

#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>

namespace orvex {

namespace {

template <class Header>
bool readAt(std::ifstream& file, std::uint64_t offset, Header& header) {
    file.seekg(static_cast<std::streamoff>(offset));
    return static_cast<bool>(file.read(reinterpret_cast<char*>(&header), sizeof header));
}

// Whether a part of the file lies in it, by its own figures, which may be any.
bool holds(std::uint64_t fileSize, std::uint64_t offset, std::uint64_t size) {
    return offset <= fileSize && size <= fileSize - offset;
}

bool holdsSegments(std::ifstream& file, std::uint64_t fileSize, const Elf64_Ehdr& header) {
    for (unsigned i = 0; i < header.e_phnum; ++i) {
        const std::uint64_t offset = header.e_phoff + std::uint64_t{i} * sizeof(Elf64_Phdr);
        Elf64_Phdr segment;
        if (!holds(fileSize, offset, sizeof segment) || !readAt(file, offset, segment) ||
            !holds(fileSize, segment.p_offset, segment.p_filesz)) {
            return false;
        }
    }
    return true;
}

} // namespace

std::optional<std::string> findFaultOfModuleFile(const std::string& path) {
    std::error_code error;
    if (!std::filesystem::exists(path, error)) {
        return std::nullopt; // the loader says it in the user's language
    }
    if (!std::filesystem::is_regular_file(path, error)) {
        return hostText("it isn't a regular file");
    }
    const std::uint64_t fileSize = std::filesystem::file_size(path, error);
    std::ifstream file(path, std::ios::binary);
    if (error || !file) {
        return std::nullopt;
    }
    Elf64_Ehdr header{};
    if (!readAt(file, 0, header)) {
        return hostText("it is too short for a module");
    }
    const bool isElf = std::memcmp(header.e_ident, ELFMAG, SELFMAG) == 0 &&
                       header.e_ident[EI_CLASS] == ELFCLASS64 &&
                       header.e_phentsize == sizeof(Elf64_Phdr);
    if (!isElf) {
        return std::nullopt;
    }
    const std::uint64_t sections = std::uint64_t{header.e_shnum} * header.e_shentsize;
    if (!holds(fileSize, header.e_shoff, sections) || !holdsSegments(file, fileSize, header)) {
        return hostText("the file is cut short");
    }
    return std::nullopt;
}

} // namespace orvex
