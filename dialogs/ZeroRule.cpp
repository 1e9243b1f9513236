#include "ZeroRule.h"

#include "promptStatus.h"
#include "systemVariables.h"

namespace {

constexpr const wchar_t* kName = L"DIMZIN";

} // namespace

ZeroRule::ZeroRule(short rule) : m_wasRead(kdedGetVar(kName, &m_before) == kPromptNormal) {
    resbuf value;
    value.restype = kResultShort;
    value.resval.rint = rule;
    kdedSetVar(kName, &value);
}

ZeroRule::~ZeroRule() {
    if (m_wasRead) {
        kdedSetVar(kName, &m_before);
    }
}
