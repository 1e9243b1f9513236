// A build without dialogs: in place of one a line on the command line says so.

#include "dialogs.h"

#include "CStdStr.h"
#include "commandLine.h"

namespace {

class NoDialog final : public ModuleDialog {
public:
    void doModal() override {
        constexpr unsigned kNoDialogsText = 4016;
        CStdStr<wchar_t> text;
        text.LoadStringW(kNoDialogsText);
        kdutPrintf(L"%ls", text.c_str());
    }
};

} // namespace

std::unique_ptr<ModuleDialog> makeStyleDialog() {
    return std::make_unique<NoDialog>();
}

std::unique_ptr<ModuleDialog> makeToolPalette() {
    return std::make_unique<NoDialog>();
}
