#include "crashRecorder.h"

#include "BoundedCrashRecorder.h"

#include <exception>
#include <utility>

namespace {

CrashRecorder*& installedRecorder() {
    // Never destroyed: objects that go at the very end of the process may still report.
    static auto* const standard = new orvex::BoundedCrashRecorder;
    static CrashRecorder* recorder = standard;
    return recorder;
}

} // namespace

VoExceptionWithMsg::VoExceptionWithMsg(const char* fileText, int line, const wchar_t* message)
    : m_fileText(fileText != nullptr ? fileText : ""), m_line(line),
      m_message(message != nullptr ? message : L"") {}

std::wstring VoErrorStatus::message() const {
    return L"Error status " + std::to_wstring(m_status);
}

CrashRecorder* rvexGetCrashRecorder() {
    return installedRecorder();
}

namespace orvex {

CrashRecorder* setCrashRecorder(CrashRecorder* recorder) {
    return std::exchange(installedRecorder(), recorder);
}

void reportBadAccess(const wchar_t* message) noexcept {
    try {
        if (CrashRecorder* const recorder = rvexGetCrashRecorder()) {
            // Reports name no source file: two quotation marks stand for it, and line 0.
            recorder->take(VoExceptionWithMsg("\"\"", 0, message));
        }
    } catch (const std::exception&) {
        // Out of memory for the words: the access goes on as if nobody listened.
    }
}

} // namespace orvex
