#include "ScriptSource.h"

#include <cstdlib>

// Any bytes are asked for all kinds of answers; the script has to end.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using orvex::PromptKind;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    for (const PromptKind kind :
         {PromptKind::command, PromptKind::keyword, PromptKind::entity, PromptKind::selection,
          PromptKind::point, PromptKind::real, PromptKind::text}) {
        orvex::ScriptSource script(text, [](const std::wstring&) {});
        orvex::PromptRequest request;
        request.kind = kind;
        request.keywords = {L"CC", L"STyle"};
        std::size_t answers = 0;
        while (!script.atEnd()) {
            (void)script.ask(request);
            if (++answers > size + 1) {
                std::abort();
            }
        }
        if (script.ask(request).kind != orvex::PromptAnswer::Kind::cancel) {
            std::abort();
        }
    }
    (void)orvex::ScriptSource::firstLineThatIsNoUtf8(text);
    return 0;
}
