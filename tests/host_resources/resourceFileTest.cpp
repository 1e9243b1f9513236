#include "resourceFile.h"

#include "TestPaths.h"
#include "readFile.h"

#include <QDirIterator>
#include <QFile>
#include <QResource>

#include <gmock/gmock.h>

#include <random>
#include <sys/mman.h>
#include <unistd.h>

namespace orvex {
namespace {

// Bytes in front of memory that can't be read, so that a reader that leaves them is caught.
class GuardedBytes {
public:
    explicit GuardedBytes(const std::string& bytes) {
        const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
        const std::size_t room = (bytes.size() + page - 1) / page * page;
        m_size = room + page;
        m_memory = static_cast<char*>(
            mmap(nullptr, m_size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
        mprotect(m_memory + room, page, PROT_NONE);
        m_begin =
            std::copy(bytes.begin(), bytes.end(), m_memory + room - bytes.size()) - bytes.size();
    }
    ~GuardedBytes() { munmap(m_memory, m_size); }
    GuardedBytes(const GuardedBytes&) = delete;
    GuardedBytes& operator=(const GuardedBytes&) = delete;

    [[nodiscard]] const uchar* begin() const { return reinterpret_cast<const uchar*>(m_begin); }

private:
    char* m_memory = nullptr;
    char* m_begin = nullptr;
    std::size_t m_size = 0;
};

// Everything in it through Qt; how many files that are.
int readByQt(const std::string& bytes) {
    const QString root = QStringLiteral("/mutated");
    const GuardedBytes guarded(bytes);
    if (!QResource::registerResource(guarded.begin(), root)) {
        return 0;
    }
    int files = 0;
    for (QDirIterator each(':' + root, QDirIterator::Subdirectories); each.hasNext();) {
        QFile file(each.next());
        if (file.open(QIODevice::ReadOnly)) {
            file.readAll();
            ++files;
        }
    }
    EXPECT_TRUE(QResource::unregisterResource(guarded.begin(), root));
    return files;
}

class Mutation {
public:
    void apply(std::string& bytes) {
        for (std::size_t i = below(3) + 1; i > 0 && bytes.size() > 8; --i) {
            // Head and tree, at the two ends, are what a reader follows.
            const std::size_t reach =
                below(2) == 0 ? std::min<std::size_t>(bytes.size(), 300) : bytes.size();
            const std::size_t at = below(2) == 0 ? below(reach) : bytes.size() - 1 - below(reach);
            switch (below(4)) {
            case 0:
                bytes[at] = static_cast<char>(below(256));
                break;
            case 1:
                bytes[at] = static_cast<char>(bytes[at] ^ (1 << below(8)));
                break;
            case 2:
                bytes.replace(at, 4, below(2) == 0 ? "\x7f\xff\xff\xff" : "\xff\xff\xff\xff", 4);
                break;
            default:
                if (below(8) == 0) {
                    bytes.resize(at);
                } else {
                    bytes.replace(at, 4, bytes, below(reach), 4);
                }
            }
        }
    }

private:
    std::size_t below(std::size_t end) {
        return std::uniform_int_distribution<std::size_t>(0, end - 1)(m_random);
    }
    static std::mt19937 m_random; // goes on from run to run of --gtest_repeat
};

std::mt19937 Mutation::m_random{17};

TEST(ResourceFile, isReadByQtOnlyWhereItIsSound) {
    for (const char* name : {"bin/OmxMLStyleRes.dll", "bin/ORVEXRes.dll", "bin/ORVEXHelp.dll",
                             "tests/hostResourcesTest.dll"}) {
        const auto bytes = readRegularFile((testing::binDir().parent_path() / name).string());
        ASSERT_TRUE(bytes) << name;
        EXPECT_EQ(findFaultOfResourceFile(*bytes), std::nullopt) << name;
        const int files = readByQt(*bytes);
        int sound = 0;
        constexpr int kMutations = 400;
        for (int i = 0; i < kMutations; ++i) {
            std::string mutated = *bytes;
            Mutation().apply(mutated);
            if (!findFaultOfResourceFile(mutated)) {
                ++sound;
                EXPECT_LE(readByQt(mutated), files) << name;
            }
        }
        EXPECT_THAT(sound, ::testing::AllOf(::testing::Gt(0), ::testing::Lt(kMutations))) << name;
    }
}

std::string number(std::uint32_t value, int size = 4) {
    std::string bytes;
    for (int i = size - 1; i >= 0; --i) {
        bytes += static_cast<char>(value >> 8 * i);
    }
    return bytes;
}

// A library of version 1 with a folder "f" in its root, and what else is asked for.
struct Made {
    std::uint32_t children = 1;
    std::uint32_t flagsOfRoot = 2;
    std::uint32_t flags = 2;
    std::uint32_t childrenInside = 0;
    std::uint32_t firstInside = 2;
    std::uint32_t payloadAt = 0;
    std::string payload = {};
    char16_t letter = 'f';

    [[nodiscard]] std::string bytes() const {
        const std::string names = number(1, 2) + number('f') + number(letter, 2);
        const std::string payloads = number(static_cast<std::uint32_t>(payload.size())) + payload;
        const auto tree = static_cast<std::uint32_t>(20 + names.size() + payloads.size());
        const std::string rest = flags == 2 ? number(childrenInside) + number(firstInside)
                                            : number(0) + number(payloadAt);
        return "qres" + number(1) + number(tree) +
               number(20 + static_cast<std::uint32_t>(names.size())) + number(20) + names +
               payloads + number(0) + number(flagsOfRoot, 2) + number(children) + number(1) +
               number(0) + number(flags, 2) + rest;
    }
};

TEST(ResourceFile, isRefusedWithItsFault) {
    const std::string zstd("\x28\xB5\x2F\xFD", 4);
    const struct {
        Made made;
        std::optional<std::string> fault;
    } cases[] = {
        {{}, std::nullopt},
        {{.flagsOfRoot = 0}, "it has no folder at its root"},
        {{.children = 2}, "the tree lies outside of the file"},
        {{.children = 0xFFFFFFFF}, "the tree lies outside of the file"},
        {{.childrenInside = 1, .firstInside = 0}, "an entry of it is in two folders, or in itself"},
        {{.childrenInside = 1, .firstInside = 1}, "an entry of it is in two folders, or in itself"},
        {{.letter = '.'}, "a name in it leads to another folder"},
        {{.letter = '/'}, "a name in it holds a slash"},
        {{.letter = u'\u2E2F'}, std::nullopt}, // the bytes of both
        {{.flags = 0, .payload = "abc"}, std::nullopt},
        {{.flags = 0, .payloadAt = 0xFFFFFFFF, .payload = "abc"},
         "an entry lies outside of the file"},
        {{.flags = 1, .payload = "abc"}, "the size of an entry lies outside of the file"},
        {{.flags = 1, .payload = number(64 << 20)}, std::nullopt},
        {{.flags = 1, .payload = number((64 << 20) + 1)}, "an entry of it claims 67108865 bytes"},
        {{.flags = 5, .payload = number(1)}, "an entry of it is compressed in two ways"},
        {{.flags = 4, .payload = number(1) + "abc"}, "an entry of it isn't compressed as it says"},
        {{.flags = 4, .payload = zstd + '\x04'}, "a compressed entry of it doesn't say its size"},
        {{.flags = 4, .payload = zstd + '\x60' + std::string(2, '\0')}, std::nullopt},
        {{.flags = 4, .payload = zstd + "\x80w" + std::string("\0\0\0\x10", 4)},
         "an entry of it claims 268435456 bytes"},
        {{.flags = 4, .payload = zstd + "\xC0w1234567"},
         "the size of an entry lies outside of the file"},
    };
    for (const auto& [made, fault] : cases) {
        EXPECT_EQ(findFaultOfResourceFile(made.bytes()), fault);
    }
    EXPECT_EQ(findFaultOfResourceFile("qres"), "it isn't a resource library");
    std::string later = Made().bytes();
    later[7] = 9;
    EXPECT_EQ(findFaultOfResourceFile(later), "it is of version 9, and 1 to 3 can be read");
    // Siblings in another order than a search expects wouldn't be found.
    std::string twice = Made{.children = 2}.bytes();
    twice += twice.substr(twice.size() - 14);
    EXPECT_EQ(findFaultOfResourceFile(twice), std::nullopt);
}

} // namespace
} // namespace orvex
