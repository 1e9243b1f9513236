// Plays files through a fuzzer's entry without the fuzzer, so that its corpus is an ordinary test
// in every build.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

std::vector<std::filesystem::path> filesBelow(const std::filesystem::path& root) {
    if (!std::filesystem::is_directory(root)) {
        return {root};
    }
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
        if (entry.is_regular_file()) {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

bool play(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        std::fprintf(stderr, "cannot read %s\n", file.c_str());
        return false;
    }
    const std::vector<char> bytes{std::istreambuf_iterator<char>(stream),
                                  std::istreambuf_iterator<char>()};
    // Named beforehand: a crash leaves this line as the last one.
    std::printf("%s (%zu bytes)\n", file.c_str(), bytes.size());
    std::fflush(stdout);
    // An exact copy on the heap, so that a sanitizer sees a read past the end; the vector may be
    // larger.
    std::vector<std::uint8_t> input(bytes.begin(), bytes.end());
    input.shrink_to_fit();
    LLVMFuzzerTestOneInput(input.data(), input.size());
    return true;
}

} // namespace

int main(int argc, char** argv) try {
    std::size_t played = 0;
    for (int i = 1; i < argc; ++i) {
        for (const auto& file : filesBelow(argv[i])) {
            if (!play(file)) {
                return 1;
            }
            ++played;
        }
    }
    std::printf("%zu files played\n", played);
    return played > 0 ? 0 : 1;
} catch (const std::exception& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return 1;
}
