#pragma once

#include "KdDbDatabase.h"
#include "KdDocument.h"
#include "PromptSession.h"
#include "ScriptSource.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

// An empty drawing that is open, and a script that answers.
class PromptFixture : public testing::Test {
protected:
    PromptFixture() { orvex::setCurrentDocument(&m_document); }
    ~PromptFixture() override {
        orvex::setCurrentDocument(nullptr);
        orvex::PromptSession::current() = orvex::PromptSession();
    }
    orvex::ScriptSource& play(const std::string& script) {
        m_script = std::make_unique<orvex::ScriptSource>(
            script, [this](const std::wstring& line) { m_printed.push_back(line); });
        orvex::PromptSession::current().source = m_script.get();
        return *m_script;
    }

    KdDbDatabase m_database;
    KdDocument m_document{&m_database};
    std::unique_ptr<orvex::ScriptSource> m_script;
    std::vector<std::wstring> m_printed;
};
