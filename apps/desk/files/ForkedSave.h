#pragma once

#include "Failure.h"

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>
#include <QString>

#include <functional>
#include <memory>

namespace orvex {

// Saves in a child process, which sees everything as it was at the fork: the window goes on at
// once, whatever is edited meanwhile, and what the save costs or spoils isn't the desk's. A save
// that was begun comes to its end although the desk dies.
class ForkedSave final : public QObject {
    Q_OBJECT

public:
    using Work = std::function<std::optional<Failure>()>;

    explicit ForkedSave(QObject* parent) : QObject(parent) {}
    ~ForkedSave() override { stop(); }

    // Not while one runs. The work makes files for the user alone, uses no Qt, and keeps of all
    // descriptors that of `lock`.
    void begin(const Work& work, int lock);
    [[nodiscard]] bool isRunning() const { return m_process > 0; }
    // Ends it at once, whatever is missing then.
    void stop();

signals:
    void ended(const QString& fault); // empty when all is saved

private:
    void readAnswer();
    void end(const QString& fault);
    void forgetNotifier();

    int m_process = 0;
    int m_answer = -1; // a pipe's end, from which comes what the child has to say
    QByteArray m_told;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace orvex
