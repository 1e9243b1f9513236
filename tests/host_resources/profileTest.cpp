#include "applicationProfile.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>

namespace {

using orvex::ApplicationProfile;

// The user's own settings stay out of it: Qt asks for this folder at its first use of settings.
class Profile : public testing::Test {
protected:
    static void SetUpTestSuite() {
        s_folder = std::filesystem::temp_directory_path() / "orvexProfileTest";
        std::filesystem::remove_all(s_folder);
        setenv("XDG_CONFIG_HOME", s_folder.c_str(), 1);
    }
    static void TearDownTestSuite() { std::filesystem::remove_all(s_folder); }
    inline static std::filesystem::path s_folder;
};

TEST_F(Profile, keepsIntegersTextsAndBytesBySectionAndKey) {
    ApplicationProfile& profile = ApplicationProfile::instance();
    profile.setInteger(L"Settings", L"Left", -10000);
    profile.setText(L"Settings", L"MlstyleFile", L"/plans/W\u00E4nde, @alt/100.mln");
    profile.setBytes(L"ListCtrls", L"1046", {0, 255, 10, 61});

    EXPECT_EQ(profile.integer(L"Settings", L"Left", 5), -10000);
    EXPECT_EQ(profile.text(L"Settings", L"MlstyleFile", L""), L"/plans/W\u00E4nde, @alt/100.mln");
    EXPECT_THAT(profile.bytes(L"ListCtrls", L"1046"), testing::ElementsAre(0, 255, 10, 61));
}

TEST_F(Profile, readsAMissingKeyOrAnotherKindAsTheDefault) {
    ApplicationProfile& profile = ApplicationProfile::instance();
    profile.setText(L"Settings", L"Name", L"text");
    EXPECT_EQ(profile.integer(L"Settings", L"Nothing", 7), 7);
    EXPECT_EQ(profile.integer(L"Settings", L"Name", 7), 7);
    EXPECT_EQ(profile.text(L"Settings", L"Nothing", L"none"), L"none");
    EXPECT_THAT(profile.bytes(L"Settings", L"Name"), testing::IsEmpty());
}

} // namespace
