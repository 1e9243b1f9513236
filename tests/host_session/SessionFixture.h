#pragma once

#include "BlockList.h"
#include "DatabaseCore.h"
#include "KdDbDatabase.h"
#include "KdDbMline.h"
#include "ModuleLoader.h"
#include "ScriptSource.h"
#include "Session.h"
#include "TestPaths.h"
#include "kddbObjects.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

// A session over a new drawing, answered by scripts.
class SessionFixture : public testing::Test {
protected:
    SessionFixture() { open(orvex::DrawingFile::create()); }

    void open(std::unique_ptr<orvex::DrawingFile> drawing, bool hasWindow = false) {
        m_session.reset();
        orvex::SessionSetup setup;
        setup.drawing = std::move(drawing);
        setup.hasWindow = hasWindow;
        setup.moduleFiles = {"/nowhere/module.omx",
                             (orvex::testing::binDir() / "libOmxMLStyle.omx").string()};
        m_session = std::make_unique<orvex::Session>(std::move(setup), m_modules);
    }

    // Plays all commands of a script; the last command's failure.
    std::optional<orvex::Failure> play(const std::string& script) {
        m_script = std::make_unique<orvex::ScriptSource>(
            script, [this](const std::wstring& line) { m_printed.push_back(line); });
        m_session->setSource(m_script.get());
        std::optional<orvex::Failure> failure;
        while (!m_script->atEnd()) {
            const std::wstring name = m_session->askCommand();
            if (!name.empty()) {
                failure = m_session->run(name);
            }
        }
        return failure;
    }

    [[nodiscard]] orvex::DatabaseCore& core() { return m_session->database().core(); }

    // The multilines of model space.
    [[nodiscard]] std::vector<KdDbMline*> mlines() {
        std::vector<KdDbMline*> found;
        for (KdDbStub* const stub : core().blocks().modelSpace().entities) {
            KdDbMline* mline = nullptr;
            kddbOpenObject(mline, KdDbObjectId(stub), kForRead);
            if (mline != nullptr) {
                found.push_back(mline);
                mline->close();
            }
        }
        return found;
    }

    orvex::ModuleLoader m_modules;
    std::unique_ptr<orvex::ScriptSource> m_script;
    std::vector<std::wstring> m_printed;
    std::unique_ptr<orvex::Session> m_session;
};
