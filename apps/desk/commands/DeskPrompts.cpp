#include "DeskPrompts.h"

#include "blanks.h"
#include "clickedPoint.h"
#include "editTools.h"
#include "fileQuestion.h"
#include "qtWide.h"
#include "typedAnswer.h"
#include "userFrame.h"

#include <QEventLoop>
#include <QLocale>

#include <utility>

namespace orvex {

namespace {

PromptAnswer cancelled() {
    PromptAnswer answer;
    answer.echo = kCancelText;
    return answer;
}

PromptAnswer givenUp(const PromptRequest& request) {
    PromptAnswer answer = cancelled();
    if (request.keepsOnEscape) {
        answer.kind = PromptAnswer::Kind::empty;
        answer.echo.clear();
    }
    return answer;
}

} // namespace

const PromptRequest* DeskPrompts::request() const {
    return m_loop != nullptr ? m_request : nullptr;
}

PromptAnswer DeskPrompts::ask(const PromptRequest& request) {
    PromptAnswer answer = answerTo(request);
    if (answer.kind == PromptAnswer::Kind::keyword && isToolQuestion(request)) {
        emit toolChosen(toQt(answer.keyword));
    }
    return answer;
}

PromptAnswer DeskPrompts::answerTo(const PromptRequest& request) {
    // Within a question nobody can ask another one.
    if (m_cancelsAll || m_loop != nullptr) {
        return givenUp(request);
    }
    if (!m_ahead.isEmpty()) {
        if (const auto answer = understand(request, m_ahead.takeFirst())) {
            return *answer;
        }
        m_ahead.clear(); // the rest was meant for another question
    }
    QEventLoop loop;
    m_answer = cancelled(); // also when the program ends meanwhile
    m_request = &request;
    m_loop = &loop;
    emit asked();
    loop.exec();
    m_loop = nullptr;
    m_request = nullptr;
    emit answered();
    return std::move(m_answer);
}

void DeskPrompts::print(const std::wstring& line) {
    emit printed(toQt(line));
}

// A script's failure goes on after the place of its line; here it stands alone.
void DeskPrompts::reject(const std::wstring& reason) {
    QString line = toQt(reason);
    if (!line.isEmpty()) {
        line[0] = line[0].toUpper();
    }
    emit complained(line);
}

std::optional<std::wstring> DeskPrompts::chooseFile(const std::wstring& title,
                                                    const std::wstring& defaultPath,
                                                    const std::wstring& extension, int flags) {
    const QString path =
        askFile(m_window, {toQt(title), toQt(defaultPath), toQt(extension), flags});
    return path.isEmpty() ? std::nullopt : std::optional(toWide(path));
}

TextReading DeskPrompts::read(const PromptRequest& request, const QString& typed) const {
    const std::wstring wide = toWide(typed);
    const std::wstring text(trimBlanks(wide));
    TextReading reading = answerFromText(request, text);
    if (auto* const answer = std::get_if<PromptAnswer>(&reading)) {
        answer->echo = text;
        return reading;
    }
    const bool isOther = std::holds_alternative<std::monostate>(reading);
    const auto length =
        isOther && m_lengths && request.kind == PromptKind::point ? parseReal(text) : std::nullopt;
    if (!length) {
        return reading;
    }
    PointReading point = m_lengths(request, *length);
    if (auto* const broken = std::get_if<BrokenPoint>(&point)) {
        return std::move(*broken);
    }
    PromptAnswer answer;
    answer.kind = PromptAnswer::Kind::point;
    answer.point = std::get<TypedPoint>(point).point;
    answer.echo = pointText(answer.point); // where the mouse was is in no script
    return answer;
}

std::optional<PromptAnswer> DeskPrompts::understand(const PromptRequest& request,
                                                    const QString& typed) {
    TextReading reading = read(request, typed);
    if (auto* const answer = std::get_if<PromptAnswer>(&reading)) {
        return std::move(*answer);
    }
    const std::wstring wide = toWide(typed);
    const std::wstring text(trimBlanks(wide));
    print(std::wstring(trimBlanks(request.text)) + L' ' + text);
    reject(complaintAbout(request, text, reading));
    if (const auto* const wrong = std::get_if<BrokenPoint>(&reading)) {
        emit broken(toQt(text), static_cast<int>(wrong->place));
    }
    return std::nullopt;
}

void DeskPrompts::answerText(const QString& typed) {
    if (m_loop == nullptr) {
        return;
    }
    if (auto answer = understand(*m_request, typed)) {
        finish(std::move(*answer));
    } else {
        m_ahead.clear();
    }
}

void DeskPrompts::answerPoint(const KdGePoint3d& point) {
    if (m_loop != nullptr && m_request->kind == PromptKind::real && m_request->base) {
        // An angle: that of the way from the base to the point.
        answerText(QLocale::c().toString(userDegrees(*m_request->base, userToWorld(point)), 'g',
                                         QLocale::FloatingPointShortest));
        return;
    }
    const bool wantsPoint = m_loop != nullptr && (m_request->kind == PromptKind::entity ||
                                                  m_request->kind == PromptKind::point);
    if (!wantsPoint) {
        return;
    }
    PromptAnswer answer;
    answer.kind = PromptAnswer::Kind::point;
    answer.point = point;
    answer.echo = pointText(answer.point);
    finish(std::move(answer));
}

void DeskPrompts::answerLines(QStringList lines) {
    if (m_loop != nullptr && !lines.isEmpty()) {
        const QString first = lines.takeFirst();
        m_ahead = std::move(lines);
        answerText(first);
    }
}

void DeskPrompts::cancel() {
    m_ahead.clear();
    if (m_loop != nullptr) {
        finish(givenUp(*m_request));
    }
}

void DeskPrompts::cancelAll() {
    m_cancelsAll = true;
    cancel();
}

void DeskPrompts::finish(PromptAnswer answer) {
    m_answer = std::move(answer);
    m_loop->quit();
}

} // namespace orvex
