// A drawing that was opened and saved is the same file, whatever is in it.

#include "ChangeLog.h"
#include "DatabaseCore.h"
#include "DrawingConversion.h"
#include "ObjectTable.h"
#include "sampleDrawing.h"

#include <gtest/gtest.h>

namespace {

using namespace orvex;
using namespace orvex::testing;

// Opens everything there is, for reading and for writing, and looks at every shape.
void touchAll(DrawingFile& file) {
    DatabaseCore& core = file.database().core();
    core.changes().beginCommand();
    for (KdDbStub& stub : core.objects().stubs()) {
        if (core.open(stub, true) != nullptr) {
            core.aboutToChange(stub);
        }
        if (stub.kind == ObjectKind::entity) {
            static_cast<void>(core.objects().source()->shapeOf(stub));
        }
    }
    core.changes().endCommand();
}

void expectIdentity(const std::string& bytes, const std::string& what) {
    const auto file = openDrawing(bytes);
    ASSERT_TRUE(sameText(file->bytes(), bytes)) << what;
    touchAll(*file);
    ASSERT_TRUE(sameText(file->bytes(), bytes)) << what << ", with everything touched";
}

TEST(Identity, holdsForFilesOfAnyForm) {
    const std::string sample = sampleDrawing();
    const std::string returns = withReturns(sample);
    const struct {
        const char* what;
        std::string bytes;
    } files[] = {
        {"nothing at all", ""},
        {"as it is", sample},
        {"CR LF", returns},
        {"mixed line ends",
         returns.substr(0, returns.find("  0\r\nLINE")) + sample.substr(sample.find("  0\nLINE"))},
        {"byte-order mark", "\xEF\xBB\xBF" + sample},
        {"bytes after EOF", sample + std::string("junk\0\nmore", 10)},
        {"no line end at the end", sample.substr(0, sample.size() - 1)},
        {"no EOF", sample.substr(0, sample.find("  0\nEOF"))},
        {"codes padded in odd ways", replaced(sample, "\n  8\nWalls", "\n\t  8 \nWalls")},
        {"comments inside a multiline",
         replaced(sample, "  8\nWalls\n 62", "999\nseen\n  8\nWalls\n 62")},
        {"zero bytes in a value", replaced(sample, "of another", std::string("of\0another", 10))},
        {"entities alone",
         dxf("0 SECTION\n2 ENTITIES\n0 LINE\n10 1\n20 2\n11 3\n21 4\n0 ENDSEC\n0 EOF\n")},
        {"records outside of sections", dxf("0 LINE\n10 1\n0 MLINE\n72 1\n0 EOF\n")},
        {"sections and tables left open", dxf("0 SECTION\n2 TABLES\n0 TABLE\n2 LAYER\n0 LAYER\n2 "
                                              "A\n0 SECTION\n2 BLOCKS\n0 BLOCK\n2 X\n0 LINE\n")},
    };
    for (const auto& file : files) {
        expectIdentity(file.bytes, file.what);
    }
}

TEST(Identity, holdsForTheNewDrawing) {
    const auto file = DrawingFile::create();
    EXPECT_TRUE(file->warnings().empty());
    expectIdentity(file->bytes(), "new drawing");
}

TEST(Identity, holdsForHugeCountsWithoutMemoryForThem) {
    for (const char* const count : {"2147483647", "65535", "99999999999999999999"}) {
        for (const char* const code :
             {" 72\n     3", " 73\n     2", " 74\n     4", " 75\n     2"}) {
            const std::string key(code);
            const std::string damaged = replaced(sampleDrawing(), key, key.substr(0, 4) + count);
            expectIdentity(damaged, key + count);
            EXPECT_NE(warningsOf(damaged).find("contradicts"), std::string::npos) << key;
        }
    }
}

TEST(Identity, isNotLostByProgressAndCancelledByIt) {
    std::string large = "  0\nSECTION\n  2\nENTITIES\n";
    while (large.size() < (std::size_t{10} << 20U)) {
        large += "  0\nLINE\n 10\n1.0\n 20\n2.0\n 11\n3.0\n 21\n4.0\n";
    }
    for (const std::string& bytes : {large, convertBytes(large, DrawingForm::binary)->bytes}) {
        std::vector<double> told;
        auto opened = DrawingFile::openBytes(bytes, [&](double part) {
            told.push_back(part);
            return true;
        });
        ASSERT_TRUE(opened);
        EXPECT_TRUE((*opened)->bytes() == bytes);
        ASSERT_GE(told.size(), 2U);
        EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
        EXPECT_GT(told.front(), 0.0);
        EXPECT_LT(told.back(), 1.0);
    }

    for (const double patience : {0.0, 0.5, 0.9}) { // while records are cut, and while read
        auto cancelled =
            DrawingFile::openBytes(large, [patience](double part) { return part < patience; });
        ASSERT_FALSE(cancelled) << patience;
        EXPECT_EQ(cancelled.failure().cause, FailureCause::interrupted);
    }
}

} // namespace
