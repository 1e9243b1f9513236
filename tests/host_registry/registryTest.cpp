#include "kdrxRegistry.h"

#include "KdEdCommandStack.h"
#include "KdRxDictionary.h"
#include "KdRxDynamicLinker.h"
#include "LoadedModules.h"

#include <gmock/gmock.h>

namespace {

TEST(SystemRegistry, givesAServiceAwayWhenItIsRemoved) {
    EXPECT_FALSE(kdrxServiceIsRegistered(L"TestService"));
    KdRxObject* const service = kdrxRegisterService(L"TestService");
    ASSERT_NE(service, nullptr);
    EXPECT_TRUE(kdrxServiceIsRegistered(L"TestService"));

    auto* const services = KdRxDictionary::cast(kdrxSysRegistry()->at(L"ServiceDictionary"));
    const std::unique_ptr<KdRxObject> removed(services->remove(L"TestService"));
    EXPECT_EQ(removed.get(), service);
    EXPECT_FALSE(kdrxServiceIsRegistered(L"TestService"));
    EXPECT_EQ(services->remove(L"TestService"), nullptr);
}

TEST(ModuleFileName, isTerminatedAlsoWhenItIsCut) {
    const HINSTANCE module = orvex::addModuleHandle("/lib/module.omx");
    wchar_t path[32];
    EXPECT_EQ(GetModuleFileNameW(module, path, 32), 15U);
    EXPECT_STREQ(path, L"/lib/module.omx");
    EXPECT_EQ(GetModuleFileNameW(module, path, 5), 4U);
    EXPECT_STREQ(path, L"/lib");

    orvex::dropModuleHandle(module);
    EXPECT_EQ(GetModuleFileNameW(module, path, 32), 0U);
    EXPECT_STREQ(path, L"");
    EXPECT_EQ(GetModuleFileNameW(nullptr, path, 32), 0U);
}

} // namespace
