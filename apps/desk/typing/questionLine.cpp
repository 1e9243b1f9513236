#include "questionLine.h"

#include "PromptSource.h"
#include "qtWide.h"

namespace orvex {

CommandLine::Question questionLine(const PromptRequest& request, const QString& tool,
                                   const QPalette& palette) {
    CommandLine::Question question;
    question.text = tool + toQt(request.text).trimmed();
    question.keywords = keywordButtons(request, palette);
    question.completions = toQt(request.keywords) + toQt(request.completions);
    const bool isText = request.kind == PromptKind::text;
    const bool isPick = request.kind == PromptKind::entity || request.kind == PromptKind::selection;
    question.blank = isText   ? BlankKey::types
                     : isPick ? BlankKey::entersUnlessXy
                              : BlankKey::enters;
    question.takesLengths = request.kind == PromptKind::point;
    question.takesPoints = question.takesLengths || isPick;
    return question;
}

} // namespace orvex
