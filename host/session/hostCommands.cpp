#include "HostCommand.h"
#include "PromptSession.h"
#include "PromptSource.h"
#include "textCodec.h"

#include <array>

namespace orvex {

const HostCommand* findHostCommand(const std::wstring& name) {
    static constexpr std::array kCommands = {
        HostCommand{L"MLINE", mlineCommand},
        HostCommand{L"SETVAR", setVariableCommand},
        HostCommand{L"ZOOM", zoomCommand},
    };
    const std::wstring folded = foldCase(name);
    for (const HostCommand& command : kCommands) {
        if (folded == command.name) {
            return &command;
        }
    }
    return nullptr;
}

void rejectAnswer(const std::wstring& reason) {
    if (PromptSource* const source = PromptSession::current().source) {
        source->reject(reason);
    }
}

} // namespace orvex
