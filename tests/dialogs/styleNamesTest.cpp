#include "styleNames.h"
#include "ChangeLog.h"
#include "DatabaseCore.h"
#include "DrawingFile.h"
#include "KdDbMline.h"
#include "KdDbMlineStyle.h"
#include "KdDocument.h"
#include "ObjectTable.h"
#include "TestPaths.h"
#include "kddbObjects.h"

#include <gmock/gmock.h>

using mledit::isStyleUsed;

namespace {

// A drawing with three multilines: 51 and 52 in model space, 41 in a block; styles STANDARD (2E)
// and WALL (2F).
class StyleUse : public testing::Test {
protected:
    StyleUse() : m_before(orvex::setCurrentDocument(&m_document)) {
        core().changes().beginCommand();
    }
    ~StyleUse() override { orvex::setCurrentDocument(m_before); }

    [[nodiscard]] orvex::DatabaseCore& core() const { return m_file->database().core(); }
    [[nodiscard]] KdDbStub& stub(std::uint64_t handle) const {
        return *core().objects().findHandle(handle);
    }
    [[nodiscard]] KdDbMline& mline(std::uint64_t handle) const {
        return *static_cast<KdDbMline*>(core().load(stub(handle)));
    }
    [[nodiscard]] KdDbMlineStyle& style(std::uint64_t handle) const {
        return *static_cast<KdDbMlineStyle*>(core().load(stub(handle)));
    }

    std::unique_ptr<orvex::DrawingFile> m_file = std::move(*orvex::DrawingFile::open(
        (orvex::testing::sourceDir() / "tests/host_drawing/corpus/sample.dxf").string()));
    KdDocument m_document{&m_file->database()};
    KdDocument* m_before;
};

TEST_F(StyleUse, isFoundWithoutReadingAMultiline) {
    for (const bool loaded : {false, true}) {
        for (const std::uint64_t handle : {0x41U, 0x51U, 0x52U}) {
            EXPECT_EQ(stub(handle).object != nullptr, loaded);
            const KdDbObjectId found = KdDbMline::styleOf(KdDbObjectId(&stub(handle)));
            EXPECT_EQ(stub(handle).object != nullptr, loaded);
            EXPECT_EQ(found, mline(handle).style());
        }
    }
}

TEST_F(StyleUse, goesByTheStylesOwnNameInAllBlocks) {
    EXPECT_TRUE(isStyleUsed(L"wall"));
    EXPECT_FALSE(isStyleUsed(nullptr));
    EXPECT_EQ(stub(0x51).object, nullptr);
    for (const std::uint64_t handle : {0x41U, 0x51U, 0x52U}) {
        mline(handle).setStyle(KdDbObjectId(&stub(0x2E)));
    }
    EXPECT_FALSE(isStyleUsed(L"WALL"));
    mline(0x41).setStyle(KdDbObjectId(&stub(0x2F)));
    EXPECT_TRUE(isStyleUsed(L"WALL")); // in a block definition alone

    // The key of the dictionary doesn't count.
    style(0x2F).setName(L"Other");
    EXPECT_FALSE(isStyleUsed(L"WALL"));
    EXPECT_TRUE(isStyleUsed(L"OTHER"));

    mline(0x41).erase();
    EXPECT_FALSE(isStyleUsed(L"OTHER"));
    mline(0x51).setStyle(KdDbObjectId());
    mline(0x52).erase();
    EXPECT_FALSE(isStyleUsed(L"STANDARD"));
    core().changes().endCommand();
    core().changes().undo();
    EXPECT_TRUE(isStyleUsed(L"WALL"));
    orvex::setCurrentDocument(nullptr);
    EXPECT_FALSE(isStyleUsed(L"WALL"));
}

} // namespace
