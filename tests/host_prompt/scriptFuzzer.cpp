#include "ScriptSource.h"

#include <cstdlib>
#include <iterator>

namespace {

using orvex::PromptKind;

constexpr PromptKind kKinds[] = {
    PromptKind::command, PromptKind::keyword, PromptKind::entity, PromptKind::selection,
    PromptKind::point,   PromptKind::real,    PromptKind::text,
};

void playTo(PromptKind kind, std::string_view text) {
    orvex::ScriptSource script(text, [](const std::wstring&) {});
    orvex::PromptRequest request;
    request.kind = kind;
    request.keywords = {L"CC", L"STyle"};
    std::size_t answers = 0;
    while (!script.atEnd()) {
        (void)script.ask(request);
        if (++answers > text.size() + 1) {
            std::abort();
        }
    }
    if (script.ask(request).kind != orvex::PromptAnswer::Kind::cancel) {
        std::abort();
    }
}

} // namespace

// Any bytes are asked for all kinds of answers, many of them for one kind; the script has to end.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t kFew = 64;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    if (size <= kFew) {
        for (const PromptKind kind : kKinds) {
            playTo(kind, text);
        }
    } else {
        playTo(kKinds[data[size - 1] % std::size(kKinds)], text);
    }
    (void)orvex::ScriptSource::firstLineThatIsNoUtf8(text);
    return 0;
}
