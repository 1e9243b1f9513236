#include "kdrxRegistry.h"

#include "KdEdCommandStack.h"
#include "KdRxDictionary.h"
#include "KdRxDynamicLinker.h"
#include "LoadedModules.h"
#include "boundedCopy.h"
#include "textCodec.h"

namespace {

constexpr const wchar_t* kServices = L"ServiceDictionary";

// A service is known by its name alone.
class Service : public KdRxObject {
public:
    static KdRxClass* desc() {
        static KdRxClass description(L"KdRxService", KdRxObject::desc());
        return &description;
    }
    [[nodiscard]] KdRxClass* isA() const override { return desc(); }
};

std::unique_ptr<KdRxDictionary> makeSystemDictionary() {
    auto dictionary = std::make_unique<KdRxDictionary>();
    dictionary->atPut(L"DynamicLinker", std::make_unique<KdRxDynamicLinker>());
    dictionary->atPut(kServices, std::make_unique<KdRxDictionary>());
    dictionary->atPut(L"RVEX_REGISTERED_COMMANDS", std::make_unique<KdEdCommandStack>());
    return dictionary;
}

KdRxDictionary* services() {
    return KdRxDictionary::cast(kdrxSysRegistry()->at(kServices));
}

} // namespace

KdRxDictionary* kdrxSysRegistry() {
    static const std::unique_ptr<KdRxDictionary> dictionary = makeSystemDictionary();
    return dictionary.get();
}

bool kdrxServiceIsRegistered(const wchar_t* name) {
    const KdRxDictionary* const known = services();
    return known != nullptr && known->at(name) != nullptr;
}

KdRxObject* kdrxRegisterService(const wchar_t* name) {
    KdRxDictionary* const known = services();
    if (known == nullptr) {
        return nullptr;
    }
    known->atPut(name, std::make_unique<Service>());
    return known->at(name);
}

unsigned GetModuleFileNameW(HINSTANCE module, wchar_t* path, unsigned size) {
    if (path == nullptr || size == 0) {
        return 0;
    }
    path[0] = L'\0';
    const std::wstring file = orvex::widen(orvex::modulePath(module));
    wcscpy_s(path, size, file.c_str());
    return file.size() < size ? static_cast<unsigned>(file.size()) : size - 1;
}
