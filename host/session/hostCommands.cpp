#include "HostCommand.h"
#include "PromptSession.h"
#include "PromptSource.h"
#include "ScriptRecord.h"
#include "textCodec.h"

#include <array>

namespace orvex {

namespace {

constexpr std::array kCommands = {
    HostCommand{L"COPY", copyCommand},
    HostCommand{L"ERASE", eraseCommand},
    HostCommand{L"MIRROR", mirrorCommand},
    HostCommand{L"MLAUDIT", auditCommand},
    HostCommand{L"MLCHANGE", changeCommand},
    HostCommand{L"MLRESTYLE", restyleCommand},
    HostCommand{L"MLBREAK", breakCommand},
    HostCommand{L"MLCONNECT", connectCommand},
    HostCommand{L"LIST", listCommand},
    HostCommand{L"EXTEND", extendCommand},
    HostCommand{L"TRIM", trimCommand},
    HostCommand{L"MLEND", moveEndCommand},
    HostCommand{L"MLEXPLODE", explodeCommand},
    HostCommand{L"MLINE", mlineCommand},
    HostCommand{L"MLJOIN", joinCommand},
    HostCommand{L"MLLAY", layRightCommand},
    HostCommand{L"MLSTOPS", elementBreaksCommand},
    HostCommand{L"MOVE", moveCommand},
    HostCommand{L"REVERSE", reverseCommand},
    HostCommand{L"STRETCH", stretchCommand},
    HostCommand{L"ROTATE", rotateCommand},
    HostCommand{L"MLSTYLEINUSE", styleInUseCommand},
    HostCommand{L"MLVERTEX", vertexCommand},
    HostCommand{L"SETVAR", setVariableCommand},
    HostCommand{L"SNAP", snapCommand},
    HostCommand{L"ZOOM", zoomCommand},
};

} // namespace

std::vector<std::wstring> hostCommandNames() {
    std::vector<std::wstring> names{L"U", L"REDO"}; // which stand outside of what brackets commands
    for (const HostCommand& command : kCommands) {
        names.emplace_back(command.name);
    }
    return names;
}

const HostCommand* findHostCommand(const std::wstring& name) {
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
    if (ScriptRecord* const record = PromptSession::current().record) {
        record->refuseLast();
    }
}

} // namespace orvex
