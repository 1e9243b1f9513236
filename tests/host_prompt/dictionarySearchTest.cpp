#include "dictionarySearch.h"

#include "DatabaseCore.h"
#include "PromptFixture.h"
#include "WellKnownObjects.h"
#include "kddbObjects.h"
#include "promptStatus.h"

namespace {

class DictionarySearch : public PromptFixture {};

TEST_F(DictionarySearch, leadsFromTheRootToAStyleAndNowhereElse) {
    long root[2] = {0, 0};
    ASSERT_EQ(kddbNamedObjDict(root), kPromptNormal);
    resbuf* const styles = kddbDictSearch(root, L"acad_mlinestyle", 0);
    ASSERT_NE(styles, nullptr);
    EXPECT_EQ(styles->restype, kResultObjectName);
    resbuf* const style = kddbDictSearch(styles->resval.rlname, L"Standard", 0);
    ASSERT_NE(style, nullptr);
    KdDbObjectId id;
    kddbGetObjectId(id, style->resval.rlname);
    EXPECT_EQ(id.stub(), m_database.core().wellKnown().findStyle(L"STANDARD"));
    kdutRelRb(style);
    kdutRelRb(styles);

    EXPECT_EQ(kddbDictSearch(root, L"NOSUCH", 0), nullptr);
    const long nobody[2] = {0, 0};
    EXPECT_EQ(kddbDictSearch(nobody, L"ACAD_MLINESTYLE", 0), nullptr);
    EXPECT_EQ(kddbDictSearch(nullptr, L"X", 0), nullptr);
    orvex::setCurrentDocument(nullptr);
    EXPECT_EQ(kddbNamedObjDict(root), kPromptError);
}

} // namespace
