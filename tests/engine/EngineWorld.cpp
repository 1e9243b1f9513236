#include "EngineWorld.h"

#include "BlockList.h"
#include "DatabaseCore.h"
#include "MlineBuilder.h"
#include "kddbObjects.h"
#include "parameterLists.h"

#include <algorithm>

namespace orvex::testing {

PromptAnswer QueueSource::ask(const PromptRequest& request) {
    std::wstring text = request.text;
    m_echo = text;
    for (const std::wstring& word : request.keywords) {
        text += L" [" + word + L"]";
    }
    prompts.push_back(text);
    onPrompt();
    if (answers.empty()) {
        return {};
    }
    PromptAnswer answer = answers.front();
    answers.pop_front();
    return answer;
}

void QueueSource::print(const std::wstring& line) {
    if (!m_echo.empty() && line.starts_with(m_echo)) {
        m_echo.clear();
    } else {
        lines.push_back(line);
    }
}

void RecordingDisplay::showEntity(KdDbStub& entity) {
    events.push_back("show " + letterOf(entity));
}

void RecordingDisplay::hideEntity(KdDbStub& entity) {
    events.push_back("hide " + letterOf(entity));
}

std::string RecordingDisplay::letterOf(const KdDbStub& entity) const {
    const auto found = std::find(known.begin(), known.end(), &entity);
    return found == known.end() ? "?"
                                : std::string(1, static_cast<char>('A' + (found - known.begin())));
}

namespace {

char theLibrary = 0;

} // namespace

EngineWorld::EngineWorld()
    : resources(reinterpret_cast<HINSTANCE>(&theLibrary)),
      m_documentBefore(setCurrentDocument(&m_document)), m_sessionBefore(PromptSession::current()) {
    PromptSession& session = PromptSession::current();
    session = PromptSession();
    session.source = &user;
    session.display = &display;
    HostSeams::current() = {.resources = resources, .errorNumber = 0};
}

EngineWorld::~EngineWorld() {
    PromptSession::current() = m_sessionBefore;
    setCurrentDocument(m_documentBefore);
}

KdDbMline* EngineWorld::addMline(const std::vector<KdGePoint3d>& chain,
                                 const std::vector<double>& offsets, bool closed) {
    auto made = std::make_unique<KdDbMline>();
    KdDbMline* const mline = made.get();
    buildMline(*mline, chain, offsets, closed);
    mline->setStyle(database.cmlstyle());
    adopt(std::move(made), ObjectKind::mline);
    return mline;
}

KdDbObject* EngineWorld::addLine() {
    return adopt(std::make_unique<KdDbEntity>(), ObjectKind::entity);
}

KdDbObject* EngineWorld::adopt(std::unique_ptr<KdDbEntity> made, ObjectKind kind) {
    KdDbObject* const entity = made.get();
    DatabaseCore& core = database.core();
    KdDbStub& stub = core.adopt(std::move(made), kind, nullptr);
    core.blocks().appendEntity(core.blocks().modelSpace(), stub);
    display.known.push_back(&stub);
    return entity;
}

PromptAnswer EngineWorld::answerOf(PromptAnswer::Kind kind) {
    PromptAnswer answer;
    answer.kind = kind;
    return answer;
}

PromptAnswer EngineWorld::pick(const KdDbObject* entity, double x, double y) {
    PromptAnswer answer = answerOf(PromptAnswer::Kind::point);
    answer.point = {x, y, 0.0};
    answer.handle = entity->objectId().stub()->handle;
    return answer;
}

PromptAnswer EngineWorld::keyword(const wchar_t* word) {
    PromptAnswer answer = answerOf(PromptAnswer::Kind::keyword);
    answer.keyword = word;
    return answer;
}

void EngineWorld::answer(std::initializer_list<PromptAnswer> answers) {
    user.answers.assign(answers);
    user.prompts.clear();
    user.lines.clear();
    display.events.clear();
}

void EngineWorld::nameOf(const KdDbObject* entity, long (&name)[2]) {
    kddbGetEntityName(name, entity->objectId());
}

bool EngineWorld::isOpen(const KdDbObject* entity) {
    const KdDbStub& stub = *entity->objectId().stub();
    return stub.openForRead + stub.openForWrite > 0;
}

std::vector<double> EngineWorld::breaks(const KdDbMline* mline, int vertex, int element) {
    return mledit::lineList(mline, vertex, element);
}

} // namespace orvex::testing
