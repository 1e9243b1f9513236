#pragma once

#include <memory>

// A dialog of the module, shown modally by a command.
class ModuleDialog {
public:
    virtual ~ModuleDialog() = default;
    virtual void doModal() = 0;
    // What the palette chose: 1 to 12, else no tool.
    [[nodiscard]] virtual int toolNumber() const { return 0; }
};

std::unique_ptr<ModuleDialog> makeStyleDialog(); // MLSTYLE
std::unique_ptr<ModuleDialog> makeToolPalette(); // MLEDIT
