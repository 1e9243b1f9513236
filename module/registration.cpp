#include "registration.h"

#include "KdEdCommandStack.h"
#include "KdRxDictionary.h"
#include "commands.h"
#include "kdrxRegistry.h"
#include "moduleResources.h"
#include "textNumbers.h"

#include <memory>

namespace {

constexpr const wchar_t* kService = L"VoMLStyleApps";
constexpr const wchar_t* kGroup = L"ORVEX_VOMLSTYLEGROUP";
constexpr int kCommandFlags = 2;
constexpr int kNoFunctionCode = -1;

struct CommandRow {
    const wchar_t* globalName;
    unsigned localName; // a text
    void (*function)();
};

constexpr CommandRow kCommands[] = {
    {L"MLSTYLE", mledit::texts::kStyleCommand, cmd_vomlstyle},
    {L"MLEDIT", mledit::texts::kPaletteCommand, cmd_vomledit},
    {L"-MLEDIT", mledit::texts::kKeywordCommand, cmd_vomleditcli},
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
