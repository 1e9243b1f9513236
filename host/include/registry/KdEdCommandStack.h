#pragma once

#include "HINSTANCE.h"
#include "KdRxObject.h"

#include <string>
#include <vector>

struct KdEdCommand {
    std::wstring group;
    std::wstring globalName;
    std::wstring localName; // may be empty, more than once
    int flags = 0;
    void (*function)() = nullptr;
};

// The commands that can be typed. Names ignore case; the global name works always, the local one
// where it isn't empty.
class KdEdCommandStack : public KdRxObject {
public:
    static KdRxClass* desc();
    [[nodiscard]] KdRxClass* isA() const override;
    static KdEdCommandStack* cast(KdRxObject* object);

    // Copies the names; one that exists in the group is replaced. The last four arguments are the
    // user-interface context, a function code, a resource handle and where to write the command's
    // id, which may be null.
    Status addCommand(const wchar_t* group, const wchar_t* globalName, const wchar_t* localName,
                      int flags, void (*function)(), void* context, int code, HINSTANCE resources,
                      int* id);
    // An absent group does nothing.
    Status removeGroup(const wchar_t* group);

    // Null when there is none of that name.
    [[nodiscard]] const KdEdCommand* lookUp(const wchar_t* name) const;
    [[nodiscard]] const std::vector<KdEdCommand>& commands() const { return m_commands; }

private:
    std::vector<KdEdCommand> m_commands;
};
