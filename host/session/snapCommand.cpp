#include "HostCommand.h"
#include "Session.h"
#include "blanks.h"
#include "hostText.h"
#include "promptLibrary.h"
#include "promptStatus.h"
#include "snapWords.h"
#include "textCodec.h"

namespace orvex {

// In a window: the switch and the modes of its snap.
void snapCommand(Session& session) {
    SnapMemory& memory = session.snapMemory();
    const std::wstring now = memory.isOn ? snapWordsOf(memory.modes) : L"OFF";
    wchar_t text[kPromptTextSize] = L"";
    if (kdedGetString(wideHostText("Snap modes, ALL, ON or OFF <%1>: ", {now}).c_str(), text) !=
        kPromptNormal) {
        return;
    }
    const std::wstring wide = foldCase(text);
    const std::wstring words(trimBlanks(wide));
    if (words.empty()) {
        return;
    }
    if (words == L"ON" || words == L"OFF") {
        memory.isOn = words == L"ON";
    } else if (const auto modes = snapModesOf(words)) {
        memory.isOn = true;
        memory.modes = *modes;
    } else {
        rejectAnswer(wideHostText("the snap modes are %1", {snapWordsOf(SnapModes::all())}));
        return;
    }
    if (memory.changed) {
        memory.changed();
    }
}

} // namespace orvex
