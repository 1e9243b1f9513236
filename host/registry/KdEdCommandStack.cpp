#include "KdEdCommandStack.h"

#include "textCodec.h"

#include <algorithm>

namespace {

std::wstring orEmpty(const wchar_t* text) {
    return text != nullptr ? text : L"";
}

} // namespace

KdRxClass* KdEdCommandStack::desc() {
    static KdRxClass description(L"KdEdCommandStack", KdRxObject::desc());
    return &description;
}

KdRxClass* KdEdCommandStack::isA() const {
    return desc();
}

KdEdCommandStack* KdEdCommandStack::cast(KdRxObject* object) {
    return object != nullptr && object->isKindOf(desc()) ? static_cast<KdEdCommandStack*>(object)
                                                         : nullptr;
}

Status KdEdCommandStack::addCommand(const wchar_t* group, const wchar_t* globalName,
                                    const wchar_t* localName, int flags, void (*function)(),
                                    void* /*context*/, int /*code*/, HINSTANCE /*resources*/,
                                    int* id) {
    const std::wstring name = orEmpty(globalName);
    if (name.empty() || function == nullptr) {
        return Status::invalidInput;
    }
    KdEdCommand command{orEmpty(group), name, orEmpty(localName), flags, function};
    const auto same = std::find_if(m_commands.begin(), m_commands.end(), [&](const auto& each) {
        return orvex::equalWithoutCase(each.group, command.group) &&
               orvex::equalWithoutCase(each.globalName, name);
    });
    const auto place = same != m_commands.end() ? same : m_commands.insert(same, KdEdCommand());
    *place = std::move(command);
    if (id != nullptr) {
        *id = static_cast<int>(place - m_commands.begin());
    }
    return Status::done;
}

Status KdEdCommandStack::removeGroup(const wchar_t* group) {
    const auto removed = std::erase_if(m_commands, [&](const KdEdCommand& each) {
        return orvex::equalWithoutCase(each.group, orEmpty(group));
    });
    return removed > 0 ? Status::done : Status::notFound;
}

const KdEdCommand* KdEdCommandStack::lookUp(const wchar_t* name) const {
    const std::wstring wanted = orEmpty(name);
    if (wanted.empty()) {
        return nullptr;
    }
    // A translated name must not hide a command's own name.
    for (const auto member : {&KdEdCommand::globalName, &KdEdCommand::localName}) {
        for (const KdEdCommand& each : m_commands) {
            if (orvex::equalWithoutCase(each.*member, wanted)) {
                return &each;
            }
        }
    }
    return nullptr;
}
