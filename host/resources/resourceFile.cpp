#include "resourceFile.h"

#include <array>
#include <cstdint>
#include <stdexcept>
#include <vector>

namespace orvex {

namespace {

// The format, as rcc of Qt 5 writes it (versions 1 to 3), all numbers with the highest byte first:
//   head   "qres", version, offset of the tree, of the payloads, of the names; from version 3 on
//          also the kinds of compression in use
//   node   offset of its name, flags (2 bytes); a folder: count of children, index of the first;
//          a file: country and language (2 bytes each), offset of the payload; from version 2 on
//          also a time (8 bytes). Node 0 is the root, siblings ascend by the hash of their names
//   name   length (2 bytes), hash, characters of 2 bytes
//   payload  length, bytes; compressed by zlib they begin with the full length
enum NodeFlag : unsigned { kZlib = 1, kFolder = 2, kZstd = 4 };

constexpr std::size_t kSizeOfHead = 20;
constexpr std::uint32_t kLastVersion = 3;

class Fault : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

class ResourceFile {
public:
    explicit ResourceFile(std::string_view bytes) : m_bytes(bytes) {}

    void check() {
        readHead();
        const std::size_t root = readNode(0);
        if ((flagsOf(root) & kFolder) == 0) {
            throw Fault{"it has no folder at its root"};
        }
        m_wasReached.assign((m_bytes.size() - m_tree) / m_nodeSize, false);
        m_wasReached[0] = true;
        std::vector<std::size_t> folders{root};
        while (!folders.empty()) {
            const std::size_t folder = folders.back();
            folders.pop_back();
            checkChildren(folder, folders);
        }
    }

private:
    [[nodiscard]] std::uint64_t number(std::uint64_t at, std::size_t size, const char* what) const {
        const std::string_view part = piece(at, size, what);
        std::uint64_t value = 0;
        for (const char byte : part) {
            value = value << 8U | static_cast<unsigned char>(byte);
        }
        return value;
    }

    [[nodiscard]] std::string_view piece(std::uint64_t at, std::uint64_t size,
                                         const char* what) const {
        if (at > m_bytes.size() || size > m_bytes.size() - at) {
            throw Fault{what + std::string(" lies outside of the file")};
        }
        return m_bytes.substr(at, size);
    }

    void readHead() {
        if (m_bytes.size() < kSizeOfHead || !m_bytes.starts_with("qres")) {
            throw Fault{"it isn't a resource library"};
        }
        const std::uint64_t version = number(4, 4, "the head");
        if (version < 1 || version > kLastVersion) {
            throw Fault{"it is of version " + std::to_string(version) + ", and 1 to 3 can be read"};
        }
        m_tree = number(8, 4, "the head");
        m_payloads = number(12, 4, "the head");
        m_names = number(16, 4, "the head");
        m_nodeSize = version == 1 ? 14 : 22;
        if (version >= 3) {
            (void)number(kSizeOfHead, 4, "the head");
        }
    }

    [[nodiscard]] std::size_t readNode(std::uint64_t index) const {
        const std::uint64_t at = m_tree + index * m_nodeSize;
        (void)piece(at, m_nodeSize, "the tree");
        return at;
    }

    [[nodiscard]] unsigned flagsOf(std::size_t node) const {
        return static_cast<unsigned>(number(node + 4, 2, "the tree"));
    }

    void checkChildren(std::size_t folder, std::vector<std::size_t>& folders) {
        const std::uint64_t count = number(folder + 6, 4, "the tree");
        const std::uint64_t first = number(folder + 10, 4, "the tree");
        std::uint64_t lastHash = 0;
        for (std::uint64_t i = first; i < first + count; ++i) {
            const std::size_t node = readNode(i);
            if (m_wasReached[i]) {
                throw Fault{"an entry of it is in two folders, or in itself"};
            }
            m_wasReached[i] = true;
            const std::uint64_t hash = checkName(node);
            if (hash < lastHash) {
                throw Fault{"its entries aren't in order"};
            }
            lastHash = hash;
            if ((flagsOf(node) & kFolder) != 0) {
                folders.push_back(node);
            } else {
                checkPayload(node);
            }
        }
    }

    [[nodiscard]] std::uint64_t checkName(std::size_t node) const {
        const std::uint64_t at = m_names + number(node, 4, "the tree");
        const std::string_view name = piece(at + 6, 2 * number(at, 2, "a name"), "a name");
        bool isDots = name.size() <= 4; // as the folder itself and the one above it are called
        for (std::size_t i = 0; i < name.size(); i += 2) {
            const std::string_view character = name.substr(i, 2);
            isDots = isDots && character == std::string_view("\0.", 2);
            if (character == std::string_view("\0/", 2)) {
                throw Fault{"a name in it holds a slash"};
            }
        }
        if (isDots) {
            throw Fault{"a name in it leads to another folder"};
        }
        return number(at + 2, 4, "a name");
    }

    void checkPayload(std::size_t node) const {
        const std::uint64_t at = m_payloads + number(node + 10, 4, "the tree");
        const std::string_view payload = piece(at + 4, number(at, 4, "an entry"), "an entry");
        const unsigned flags = flagsOf(node);
        if ((flags & kZlib) != 0 && (flags & kZstd) != 0) {
            throw Fault{"an entry of it is compressed in two ways"};
        }
        const std::uint64_t size = (flags & kZlib) != 0   ? sizeByZlib(payload)
                                   : (flags & kZstd) != 0 ? sizeByZstd(payload)
                                                          : 0;
        if (size > kLargestResource) {
            throw Fault{"an entry of it claims " + std::to_string(size) + " bytes"};
        }
    }

    static std::uint64_t sizeByZlib(std::string_view payload) {
        return ResourceFile(payload).number(0, 4, "the size of an entry");
    }

    // A frame begins with its magic number and a byte that tells which fields follow: the size of
    // the window, the number of a dictionary, the full size (RFC 8878, 3.1.1).
    static std::uint64_t sizeByZstd(std::string_view payload) {
        constexpr std::string_view kMagic("\x28\xB5\x2F\xFD", 4);
        constexpr std::array<std::size_t, 4> kDictionarySizes{0, 1, 2, 4};
        if (payload.size() <= kMagic.size() || !payload.starts_with(kMagic)) {
            throw Fault{"an entry of it isn't compressed as it says"};
        }
        const auto fields = static_cast<unsigned char>(payload[kMagic.size()]);
        const bool isOneSegment = (fields & 0x20U) != 0;
        const unsigned sizeKind = fields >> 6U;
        if (sizeKind == 0 && !isOneSegment) {
            throw Fault{"a compressed entry of it doesn't say its size"};
        }
        const std::size_t at =
            kMagic.size() + 1 + (isOneSegment ? 0 : 1) + kDictionarySizes[fields & 3U];
        const std::string_view bytes =
            ResourceFile(payload).piece(at, std::size_t{1} << sizeKind, "the size of an entry");
        std::uint64_t size = sizeKind == 1 ? 256 : 0;
        for (std::size_t i = 0; i < bytes.size(); ++i) { // the lowest byte first
            size += std::uint64_t{static_cast<unsigned char>(bytes[i])} << 8U * i;
        }
        return size;
    }

    std::string_view m_bytes;
    std::uint64_t m_tree = 0;
    std::uint64_t m_payloads = 0;
    std::uint64_t m_names = 0;
    std::size_t m_nodeSize = 0;
    std::vector<bool> m_wasReached;
};

} // namespace

std::optional<std::string> findFaultOfResourceFile(std::string_view bytes) {
    try {
        ResourceFile(bytes).check();
    } catch (const Fault& fault) {
        return fault.what();
    }
    return std::nullopt;
}

} // namespace orvex
