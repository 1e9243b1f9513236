#pragma once

#include "FakeDocument.h"
#include "HINSTANCE.h"
#include "KdDbDatabase.h"
#include "KdDbMline.h"
#include "KdDbStub.h"
#include "KdDocument.h"
#include "PromptSession.h"
#include "PromptSource.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

namespace orvex::testing {

// Answers prompts from a queue, then cancels for ever; keeps what it was asked and what was
// printed.
class QueueSource : public PromptSource {
public:
    std::deque<PromptAnswer> answers;
    std::vector<std::wstring> prompts; // "text" or "text [KEYWORDS]"
    std::vector<std::wstring> lines;   // printed, without the prompts themselves
    std::function<void()> onPrompt = [] {};

    PromptAnswer ask(const PromptRequest& request) override;
    void print(const std::wstring& line) override;

private:
    std::wstring m_echo; // the prompt that the host is about to print
};

// Keeps what the display is asked for: "hide A", "show A", "refresh", A for the first entity made.
class RecordingDisplay : public DisplayListener {
public:
    std::vector<std::string> events;

    void showEntity(KdDbStub& entity) override;
    void hideEntity(KdDbStub& entity) override;
    void refresh() override { events.emplace_back("refresh"); }
    KdGePoint3d worldToDisplay(const KdGePoint3d& world) const override { return world; }
    KdGePoint3d displayToWorld(const KdGePoint3d& display) const override { return display; }
    KdGePoint3d viewCenter() const override { return {}; }
    double viewHeight() const override { return 1.0; }
    void setViewCenter(const KdGePoint3d&) override {}
    void setViewHeight(double) override {}

    std::vector<KdDbStub*> known;

private:
    std::string letterOf(const KdDbStub& entity) const;
};

// An open drawing with a view, a user who answers from a queue, and texts that read as their
// numbers ("#4004"). A pick box of 3 pixels and 0.1 units a pixel make an aperture of 0.424.
class EngineWorld : public ::testing::Test {
protected:
    EngineWorld();
    ~EngineWorld() override;

    KdDbMline* addMline(const std::vector<KdGePoint3d>& chain, const std::vector<double>& offsets,
                        bool closed = false);
    KdDbObject* addLine(); // something that is no multiline

    static PromptAnswer pick(const KdDbObject* entity, double x, double y);
    static PromptAnswer miss() { return answerOf(PromptAnswer::Kind::point); }
    static PromptAnswer keyword(const wchar_t* word);
    static PromptAnswer cancel() { return {}; }
    static PromptAnswer enter() { return answerOf(PromptAnswer::Kind::empty); }
    void answer(std::initializer_list<PromptAnswer> answers);

    static void nameOf(const KdDbObject* entity, long (&name)[2]);
    static bool isOpen(const KdDbObject* entity);
    static std::vector<double> breaks(const KdDbMline* mline, int vertex, int element);

    KdDbDatabase database;
    FakeDocument view;
    QueueSource user;
    RecordingDisplay display;
    HINSTANCE resources; // only its identity counts

private:
    static PromptAnswer answerOf(PromptAnswer::Kind kind);
    KdDbObject* adopt(std::unique_ptr<KdDbEntity> made, ObjectKind kind);

    KdDocument m_document{&database};
    KdDocument* m_documentBefore;
    PromptSession m_sessionBefore;
};

// What stands in for the module's texts and the host's error number; see hostSeams.cpp.
struct HostSeams {
    HINSTANCE resources = nullptr; // texts are found in this library alone
    int errorNumber = 0;           // of ERRNO where it isn't 0

    static HostSeams& current();
};

} // namespace orvex::testing
