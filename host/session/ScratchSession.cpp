#include "ScratchSession.h"

#include "BlockList.h"
#include "ChangeLog.h"
#include "CommandStateGuard.h"
#include "DatabaseCore.h"
#include "KdDbMline.h"
#include "KdDbMlineStyle.h"
#include "MlineContent.h"
#include "ModuleLoader.h"
#include "ObjectTable.h"
#include "Scene.h"
#include "Session.h"
#include "WellKnownObjects.h"
#include "hostText.h"
#include "textCodec.h"

#include <exception>
#include <new>

namespace orvex {

namespace {

KdDbMline* mlineAt(KdDbStub& stub) {
    return stub.erased ? nullptr : dynamic_cast<KdDbMline*>(stub.database->load(stub));
}

const MlineContent* contentOf(const std::shared_ptr<const ObjectContent>& content) {
    return dynamic_cast<const MlineContent*>(content.get());
}

// A command in a database of copies: what it left open is closed and all changes are one step.
class ScratchBracket {
public:
    ScratchBracket(DatabaseCore& core, ModuleLoader& modules) : m_core(core), m_use(modules) {
        m_core.changes().beginCommand();
    }
    ~ScratchBracket() {
        try {
            m_core.changes().endCommand();
        } catch (const std::bad_alloc&) { // NOLINT(bugprone-empty-catch)
            // The command has failed already, mostly for the same reason.
        }
    }
    ScratchBracket(const ScratchBracket&) = delete;
    ScratchBracket& operator=(const ScratchBracket&) = delete;

    void end() { m_core.changes().endCommand(); }

private:
    DatabaseCore& m_core;
    ModuleLoader::Use m_use;
};

} // namespace

ScratchSession::ScratchSession(Session& session)
    : m_session(session), m_database(false, true), m_document(&m_database) {
    for (const auto& [name, value] : session.database().core().variables().all()) {
        m_database.core().loadVariable(name, value);
    }
    m_prompts.display = &m_view;
    m_prompts.finder = this;
}

ScratchSession::~ScratchSession() = default;

KdDbObjectId ScratchSession::copyOfStyle(KdDbObjectId style) {
    if (!style.isValid()) {
        return {};
    }
    const auto [place, isNew] = m_copies.try_emplace(style.stub(), nullptr);
    if (isNew) {
        KdDbStub& original = *style.stub();
        const auto* const object =
            dynamic_cast<const KdDbMlineStyle*>(original.database->load(original));
        if (object != nullptr) {
            KdDbStub& stub =
                core().objects().addStub(ObjectKind::mlineStyle, original.handle, kNoRecord,
                                         core().wellKnown().styleDictionary);
            stub.hold(std::make_unique<KdDbMlineStyle>(*object));
            place->second = &stub;
        }
    }
    return KdDbObjectId(place->second);
}

KdDbMline* ScratchSession::copy(KdDbStub& original) {
    if (const auto found = m_copies.find(&original); found != m_copies.end()) {
        return mlineAt(*found->second);
    }
    const KdDbMline* const mline = mlineAt(original);
    if (mline == nullptr) {
        return nullptr;
    }
    auto content = std::make_shared<MlineContent>(*contentOf(mline->content()));
    content->style = copyOfStyle(content->style);
    auto object = std::make_unique<KdDbMline>();
    object->setTraits(mline->traits());
    object->setContent(std::move(content));
    KdDbStub& stub =
        core().objects().addStub(ObjectKind::mline, original.handle, kNoRecord, nullptr);
    stub.hold(std::move(object));
    core().blocks().modelSpace().entities.push_back(&stub);
    m_copies.emplace(&original, &stub);
    return mlineAt(stub);
}

std::shared_ptr<const MlineContent> ScratchSession::outcome(KdDbStub& original) {
    const auto found = m_copies.find(&original);
    const KdDbMline* const mline = mlineAt(original);
    if (found == m_copies.end() || mline == nullptr) {
        return nullptr;
    }
    const auto copied = mlineAt(*found->second)->content();
    const MlineContent& now = *contentOf(copied);
    auto content = std::make_shared<MlineContent>(*contentOf(mline->content()));
    content->vertices = now.vertices;
    content->lists = now.lists;
    content->closed = now.closed;
    content->startCapsSuppressed = now.startCapsSuppressed;
    content->endCapsSuppressed = now.endCapsSuppressed;
    return content;
}

void ScratchSession::giveBack(KdDbStub& original) {
    const auto content = outcome(original);
    KdDbMline* const mline = mlineAt(original);
    if (content != nullptr && !content->equals(*mline->content())) {
        mline->setContent(content);
    }
}

bool ScratchSession::undo() {
    return core().changes().undo();
}

KdDbStub* ScratchSession::entityAt(const KdGePoint3d& worldPoint, int pickBoxPixels) {
    if (m_scene == nullptr) {
        m_scene = std::make_unique<Scene>(m_database);
        m_scene->setUnitsPerPixel([this] { return view().unitsPerPixel(); });
    }
    return m_scene->entityAt(worldPoint, pickBoxPixels);
}

std::optional<Failure> ScratchSession::run(const std::wstring& command, PromptSource& source) {
    const auto function = m_session.findModuleCommand(command);
    if (!function) {
        return function.failure();
    }
    const CommandStateGuard guard;
    PromptSession& prompts = PromptSession::current();
    prompts = m_prompts;
    prompts.source = &source;
    setCurrentDocument(&m_document);
    setActiveDocContext(&m_view);
    std::optional<Failure> failure;
    try {
        ScratchBracket bracket(core(), m_session.modules());
        (*function)();
        bracket.end();
    } catch (const std::bad_alloc&) {
        failure = Failure{FailureCause::unplayableScript, {}, 0, hostText("not enough memory")};
    } catch (const std::exception& error) {
        failure =
            Failure{FailureCause::programFault,
                    {},
                    0,
                    hostText("the command '%1' failed", {narrow(command)}) + ": " + error.what()};
    }
    m_prompts.pickBox = prompts.pickBox;
    return failure;
}

} // namespace orvex
