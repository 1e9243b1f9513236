#include "entry.h"
#include "moduleResources.h"
#include "resourceLibrary.h"

#include <gmock/gmock.h>

namespace {

TEST(ResourceLibraryName, isMadeOfTheModulesStem) {
    const std::pair<const wchar_t*, const wchar_t*> cases[] = {
        {L"C:\\cad\\OmxMLStyle.omx", L"OmxMLStyleRes.dll"},
        {L"libOmxMLStyle.omx", L"libOmxMLStyleRes.dll"},
        {L"/usr/lib/libOmxMLStyle.omx", L"/usr/lib/libOmxMLStyleRes.dll"},
        {L"a.b\\stem", L"stemRes.dll"}, // the only "." stands before the stem
        {L"nodots", L"nodotsRes.dll"},
        {L"ends\\", L"Res.dll"},
        {L"a.om", L"a.om"},
        {L"", L""},
    };
    for (const auto& [path, name] : cases) {
        EXPECT_EQ(mledit::resourceLibraryName(path), name) << path;
    }
    EXPECT_EQ(_loadResLib(nullptr), nullptr);
}

TEST(ExtensionModule, attachesOnceTillItIsDetached) {
    CKdExtensionModule record;
    auto* const first = reinterpret_cast<HINSTANCE>(&record);
    AfxSetResourceHandle(first);
    EXPECT_TRUE(record.AttachInstance(first));
    EXPECT_EQ(record.m_defaultResourceHandle, first);

    AfxSetResourceHandle(nullptr);
    EXPECT_FALSE(record.AttachInstance(nullptr));
    EXPECT_EQ(record.m_moduleResourceHandle, first);

    record.DetachInstance();
    EXPECT_TRUE(record.AttachInstance(nullptr));
    EXPECT_EQ(record.m_moduleResourceHandle, nullptr);
}

} // namespace
