#pragma once

#include <functional>

namespace orvex {

class CommandRunner;
class DeskFiles;
class DeskPrompts;

// The way from one drawing to another, or out of the program: first the question about changes,
// while a running command waits, and only when the drawing may go the command ends.
class DeskLeave {
public:
    // All outlive it.
    DeskLeave(DeskFiles& files, CommandRunner& runner, DeskPrompts& prompts)
        : m_files(files), m_runner(runner), m_prompts(prompts) {}

    // Does it once the drawing may go and nothing runs; never where the user wants to stay.
    void then(std::function<void()> go);

private:
    DeskFiles& m_files;
    CommandRunner& m_runner;
    DeskPrompts& m_prompts;
};

} // namespace orvex
