#pragma once

#include "Status.h"

#include <string>

// A report that can be given to the crash recorder. Reports never stop anything.
class VoException {
public:
    virtual ~VoException() = default;
    [[nodiscard]] virtual std::wstring message() const = 0;
};

// A bad access, in words.
class VoExceptionWithMsg : public VoException {
public:
    VoExceptionWithMsg(const char* fileText, int line, const wchar_t* message);

    [[nodiscard]] std::wstring message() const override { return m_message; }
    [[nodiscard]] const std::string& fileText() const { return m_fileText; }
    [[nodiscard]] int line() const { return m_line; }

private:
    std::string m_fileText;
    int m_line;
    std::wstring m_message;
};

// A failure that has a number of the host's.
class VoErrorStatus : public VoException {
public:
    explicit VoErrorStatus(int status) : m_status(status) {}

    [[nodiscard]] std::wstring message() const override;
    [[nodiscard]] int status() const { return m_status; }

private:
    int m_status;
};

// Takes reports of bad accesses. Keeps a bounded number of them, so that a loop over bad indices
// costs no memory without end; never throws, never ends the process.
class CrashRecorder {
public:
    virtual ~CrashRecorder() = default;

    // Copies what it needs: the caller destroys the report at once.
    virtual void take(const VoException& report) noexcept = 0;
};

// The recorder in use; null when reports aren't wanted.
CrashRecorder* rvexGetCrashRecorder();

namespace orvex {

// Gives the process another recorder (null for none) and returns the one before. Not owned.
CrashRecorder* setCrashRecorder(CrashRecorder* recorder);

// Reports a bad access where there is a recorder.
void reportBadAccess(const wchar_t* message) noexcept;

} // namespace orvex
