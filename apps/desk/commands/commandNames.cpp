#include "commandNames.h"

#include "HostCommand.h"
#include "KdEdCommandStack.h"
#include "KdRxDictionary.h"
#include "kdrxRegistry.h"
#include "qtWide.h"

namespace orvex {

QStringList commandNames() {
    QStringList names = toQt(hostCommandNames());
    if (const auto* const stack =
            KdEdCommandStack::cast(kdrxSysRegistry()->at(L"RVEX_REGISTERED_COMMANDS"))) {
        for (const KdEdCommand& command : stack->commands()) {
            names << toQt(command.globalName);
            if (!command.localName.empty()) {
                names << toQt(command.localName);
            }
        }
    }
    names.sort();
    names.removeDuplicates();
    return names;
}

} // namespace orvex
