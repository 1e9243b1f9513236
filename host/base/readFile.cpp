#include "readFile.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orvex {

namespace {

// Has memory that is going to be filled come in large pages: taking it in small ones takes as long
// as reading the file. Advice only, so nothing is lost where it isn't followed.
void wantLargePages(char* memory, std::size_t size) {
    constexpr std::uintptr_t kSmallPage = 4096; // or some multiple, which then refuses
    const auto begin = (reinterpret_cast<std::uintptr_t>(memory) + kSmallPage - 1) & -kSmallPage;
    const auto end = (reinterpret_cast<std::uintptr_t>(memory) + size) & -kSmallPage;
    if (begin < end) {
        madvise(memory + (begin - reinterpret_cast<std::uintptr_t>(memory)), end - begin,
                MADV_HUGEPAGE);
    }
}

// An open descriptor, closed at the end unless it is standard input.
class InputFile {
public:
    InputFile(const std::string& name, int descriptor) : m_name(name), m_descriptor(descriptor) {}
    ~InputFile() {
        if (m_descriptor > STDIN_FILENO) {
            close(m_descriptor);
        }
    }
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    [[nodiscard]] Result<std::string> readRegular(const Progress& progress,
                                                  std::uint64_t largest) const {
        struct stat status {};
        if (m_descriptor < 0 || fstat(m_descriptor, &status) != 0) {
            return failure(std::strerror(errno));
        }
        if (S_ISDIR(status.st_mode)) {
            return failure(std::strerror(EISDIR));
        }
        if (!S_ISREG(status.st_mode)) {
            return failure("Not a regular file");
        }
        return readAll(static_cast<std::size_t>(status.st_size), progress, largest);
    }

    // `size` is what it should be: some files of the system have none and hold bytes.
    [[nodiscard]] Result<std::string> readAll(std::size_t size, const Progress& progress,
                                              std::uint64_t largest) const {
        constexpr std::size_t kSmallestPiece = 4096;
        constexpr std::size_t kLargestPiece = std::size_t{1} << 20U;
        if (size > largest) {
            return failure(std::strerror(EFBIG));
        }
        std::string bytes;
        bytes.reserve(size + kSmallestPiece); // with room to see its end
        wantLargePages(bytes.data(), bytes.capacity());
        for (std::size_t filled = 0;;) {
            // Not more than what is left: clearing memory takes as long as reading.
            const std::size_t left = size == 0 ? filled : size - std::min(size, filled);
            const std::size_t piece = std::clamp(left, kSmallestPiece, kLargestPiece);
            bytes.resize(filled + piece);
            const ssize_t got = readPiece(bytes.data() + filled, piece);
            if (got < 0) {
                return failure(std::strerror(errno));
            }
            filled += static_cast<std::size_t>(got);
            bytes.resize(filled);
            if (filled > largest) {
                return failure(std::strerror(EFBIG));
            }
            if (got == 0) {
                return bytes;
            }
            const double part =
                size == 0 ? 0.0
                          : std::min(1.0, static_cast<double>(filled) / static_cast<double>(size));
            if (progress && !progress(part)) {
                return Failure{FailureCause::interrupted, m_name, 0, "interrupted"};
            }
        }
    }

private:
    ssize_t readPiece(char* target, std::size_t size) const {
        ssize_t got = 0;
        do {
            got = ::read(m_descriptor, target, size);
        } while (got < 0 && errno == EINTR);
        return got;
    }

    [[nodiscard]] Failure failure(std::string text) const {
        return {FailureCause::unreadableInput, m_name, 0, std::move(text)};
    }

    const std::string& m_name;
    int m_descriptor;
};

} // namespace

Result<std::string> readRegularFile(const std::string& path, const Progress& progress,
                                    std::uint64_t largest) {
    // Not blocking: else the opening of a pipe waits for its writer.
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    return InputFile(path, descriptor).readRegular(progress, largest);
}

Result<std::string> readStandardInput() {
    static const std::string name = "standard input";
    return InputFile(name, STDIN_FILENO).readAll(0, {}, std::numeric_limits<std::uint64_t>::max());
}

} // namespace orvex
