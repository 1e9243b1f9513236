#pragma once

#include "PromptSource.h"
#include "answerFromText.h"

#include <QObject>
#include <QStringList>
#include <QWidget>

#include <functional>
#include <optional>

class QEventLoop;

namespace orvex {

// Answers prompts by hand. A question runs an event loop of its own, so that the window lives on,
// until somebody types, clicks or cancels.
class DeskPrompts final : public QObject, public PromptSource {
    Q_OBJECT

public:
    // File choosers stand over `window`, which outlives this.
    explicit DeskPrompts(QWidget& window) : m_window(window) {}

    PromptAnswer ask(const PromptRequest& request) override;
    void print(const std::wstring& line) override;
    void reject(const std::wstring& reason) override;
    std::optional<std::wstring> chooseFile(const std::wstring& title,
                                           const std::wstring& defaultPath,
                                           const std::wstring& extension, int flags) override;

    // What is asked at the moment; null when nothing is.
    [[nodiscard]] const PromptRequest* request() const;

    // Where a bare length that answers a question for a point leads, in the user's coordinate
    // system.
    using LengthReader = std::function<PointReading(const PromptRequest& request, double length)>;
    void setLengthReader(LengthReader reader) { m_lengths = std::move(reader); }
    // What a typed text is to a question.
    [[nodiscard]] TextReading read(const PromptRequest& request, const QString& typed) const;

    // Lines that answer the next questions as if they were typed.
    void answerAhead(QStringList lines) { m_ahead = std::move(lines); }

    // All of these do nothing while nothing is asked.

    // Text that fits the question is the answer; about any other the user is told.
    void answerText(const QString& typed);
    // A click at a point of the current user coordinate system, where a point or a pick is asked.
    void answerPoint(const KdGePoint3d& point);
    // Lines as if they were typed one by one, at this question and those that follow.
    void answerLines(QStringList lines);
    // Keeps what the question says is kept, as an empty line does.
    void cancel();

    // The same for this question and all that follow, until `allow`.
    void cancelAll();
    void allow() { m_cancelsAll = false; }

signals:
    void asked(); // `request` says what
    void answered();
    void printed(const QString& line);
    // A typed coordinate is broken at the character with this index; the user was notified.
    void broken(const QString& typed, int place);
    void complained(const QString& line);
    void toolChosen(const QString& keyword); // where the module asked which one

private:
    PromptAnswer answerTo(const PromptRequest& request);
    // Nothing for text that fits no question; the user is notified.
    std::optional<PromptAnswer> understand(const PromptRequest& request, const QString& typed);
    void finish(PromptAnswer answer);

    QWidget& m_window;
    const PromptRequest* m_request = nullptr;
    QEventLoop* m_loop = nullptr;
    PromptAnswer m_answer;
    QStringList m_ahead;
    LengthReader m_lengths;
    bool m_cancelsAll = false;
};

} // namespace orvex
