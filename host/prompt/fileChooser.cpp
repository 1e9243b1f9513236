#include "fileChooser.h"

#include "PromptSession.h"
#include "PromptSource.h"
#include "hostHeap.h"
#include "promptStatus.h"

namespace orvex {

std::optional<std::wstring> PromptSource::chooseFile(const std::wstring& /*title*/,
                                                     const std::wstring& /*defaultPath*/,
                                                     const std::wstring& /*extension*/,
                                                     int /*flags*/) {
    return std::nullopt;
}

} // namespace orvex

int kdedGetFileD(const wchar_t* title, const wchar_t* defaultPath, const wchar_t* extension,
                 int flags, resbuf* result) {
    orvex::PromptSource* const source = orvex::PromptSession::current().source;
    if (source == nullptr || result == nullptr) {
        return kPromptError;
    }
    const auto orEmpty = [](const wchar_t* text) {
        return std::wstring(text != nullptr ? text : L"");
    };
    const std::optional<std::wstring> path =
        source->chooseFile(orEmpty(title), orEmpty(defaultPath), orEmpty(extension), flags);
    if (!path || path->empty()) {
        return kPromptCancelled;
    }
    wchar_t* copy = nullptr;
    if (kdutNewString(path->c_str(), copy) != Status::done) {
        return kPromptError;
    }
    result->restype = kResultText;
    result->resval.rstring = copy;
    return kPromptNormal;
}
