#include "commandOutput.h"

#include "PromptSession.h"
#include "PromptWatcher.h"
#include "promptExchange.h"
#include "promptStatus.h"
#include "wideFormat.h"

#include <cstdarg>

namespace orvex {

void printLines(const std::wstring& text) {
    PromptSource* const source = PromptSession::current().source;
    if (source == nullptr) {
        return;
    }
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find(L'\n', start), text.size());
        if (end > start) {
            source->print(text.substr(start, end - start));
        }
        start = end + 1;
    }
}

} // namespace orvex

int kdutPrintf(const wchar_t* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    const std::wstring text = orvex::formatWide(format, arguments);
    va_end(arguments);
    orvex::printLines(text);
    if (orvex::PromptWatcher* const watcher = orvex::PromptSession::current().watcher) {
        watcher->printed(text);
    }
    return kPromptNormal;
}
