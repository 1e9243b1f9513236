#include "registration.h"

#include "KdEdCommandStack.h"
#include "KdRxDictionary.h"
#include "LoadLocalCmdStr.h"
#include "commandFunctions.h"
#include "kdrxRegistry.h"

#include <memory>

namespace {

constexpr const wchar_t* kService = L"VoMLStyleApps";
constexpr const wchar_t* kGroup = L"ORVEX_VOMLSTYLEGROUP";
constexpr int kCommandFlags = 2;
constexpr int kNoFunctionCode = -1;

struct CommandRow {
    const wchar_t* globalName;
    unsigned localName; // number of the text
    void (*function)();
};

constexpr CommandRow kCommands[] = {
    {L"MLSTYLE", 4013, cmd_vomlstyle},
    {L"MLEDIT", 4014, cmd_vomledit},
    {L"-MLEDIT", 4015, cmd_vomleditcli},
};

KdEdCommandStack* commandStack() {
    return KdEdCommandStack::cast(kdrxSysRegistry()->at(L"RVEX_REGISTERED_COMMANDS"));
}

} // namespace

void initApp() {
    if (!kdrxServiceIsRegistered(kService)) {
        kdrxRegisterService(kService);
    }
    for (const CommandRow& row : kCommands) {
        if (KdEdCommandStack* const stack = commandStack()) {
            stack->addCommand(kGroup, row.globalName, LoadLocalCmdStr(row.localName), kCommandFlags,
                              row.function, nullptr, kNoFunctionCode, nullptr, nullptr);
        }
    }
}

void unloadApp() {
    if (kdrxServiceIsRegistered(kService)) {
        if (auto* const services =
                KdRxDictionary::cast(kdrxSysRegistry()->at(L"ServiceDictionary"))) {
            // Removing hands the object over.
            const std::unique_ptr<KdRxObject> service(services->remove(kService));
        }
    }
    if (KdEdCommandStack* const stack = commandStack()) {
        stack->removeGroup(kGroup);
    }
}
