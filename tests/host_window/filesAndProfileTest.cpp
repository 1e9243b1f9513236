#include "CArchive.h"
#include "CMemFile.h"
#include "CWinApp.h"
#include "ProfileStore.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>

namespace {

TEST(MemFile, whatAnArchiveStoresAnotherLoads) {
    CMemFile file;
    CArchive out(&file, CArchive::store, 4096);
    const std::array<unsigned char, 4> bytes{1, 2, 3, 4};
    EXPECT_EQ(out.Write(bytes.data(), 4), 4U);
    std::array<unsigned char, 6> target{};
    EXPECT_EQ(out.Read(target.data(), 4), 0U); // it goes one way
    out.Close();
    EXPECT_EQ(out.Write(bytes.data(), 4), 0U);
    EXPECT_EQ(file.GetLength(), 4UL);
    const std::unique_ptr<unsigned char[]> data(file.Detach());
    EXPECT_EQ(file.GetLength(), 0UL);

    CMemFile attached(data.get(), 4);
    CArchive in(&attached, CArchive::load, 4096);
    EXPECT_EQ(in.Read(target.data(), 6), 4U); // what there is
    EXPECT_EQ(target, (std::array<unsigned char, 6>{1, 2, 3, 4, 0, 0}));
    EXPECT_EQ(in.Read(target.data(), 1), 0U);
    EXPECT_EQ(in.Write(bytes.data(), 1), 0U);
    attached.SeekToBegin();
    EXPECT_EQ(attached.Write(target.data(), 6), 4U); // never beyond the caller's buffer
    EXPECT_EQ(attached.Detach(), data.get());
}

TEST(Profile, valuesReadBackAndWhatIsntOfTheirKindIsTheDefault) {
    orvex::setProfileStore(nullptr);
    CWinApp& app = *AfxGetApp();
    EXPECT_TRUE(app.WriteProfileInt(L"Settings", L"Left", -7));
    EXPECT_EQ(app.GetProfileInt(L"Settings", L"Left", -10000), -7);
    EXPECT_STREQ(app.GetProfileString(L"Settings", L"Left", L"none"), L"none");
    EXPECT_TRUE(app.WriteProfileString(L"Settings", L"File", L"/a/\x00E4.mln"));
    EXPECT_STREQ(app.GetProfileString(L"Settings", L"File"), L"/a/\x00E4.mln");
    EXPECT_EQ(app.GetProfileInt(L"Settings", L"File", 5), 5);
    EXPECT_STREQ(app.GetProfileString(nullptr, nullptr), L"");

    const std::array<unsigned char, 3> bytes{7, 0, 9};
    unsigned char* data = nullptr;
    unsigned size = 0;
    EXPECT_TRUE(app.WriteProfileBinary(L"ListCtrls", L"1046", bytes.data(), 3));
    EXPECT_TRUE(app.GetProfileBinary(L"ListCtrls", L"1046", &data, &size));
    const std::unique_ptr<unsigned char[]> owned(data);
    ASSERT_EQ(size, 3U);
    EXPECT_TRUE(std::equal(bytes.begin(), bytes.end(), data));
    EXPECT_FALSE(app.GetProfileBinary(L"ListCtrls", L"1046", nullptr, &size));
    EXPECT_TRUE(app.WriteProfileBinary(L"ListCtrls", L"1046", nullptr, 8));
    EXPECT_FALSE(app.GetProfileBinary(L"ListCtrls", L"1046", &data, &size));
    EXPECT_EQ(data, nullptr);
    EXPECT_EQ(size, 0U);
    orvex::setProfileStore(nullptr);
    EXPECT_EQ(app.GetProfileInt(L"Settings", L"Left", 1), 1); // a fresh one
}

} // namespace
