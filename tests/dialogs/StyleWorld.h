#pragma once

#include "CWinApp.h"
#include "DrawingFile.h"
#include "KdDbDatabase.h"
#include "KdDbDictionary.h"
#include "KdDbMlineStyle.h"
#include "ModuleLoader.h"
#include "ProfileStore.h"
#include "PromptSource.h"
#include "ScriptSource.h"
#include "Session.h"
#include "kddbObjects.h"

#include <QRect>

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>

namespace orvex::testing {

// A user who cancels every prompt, and chooses one file.
class FileChooser final : public PromptSource {
public:
    PromptAnswer ask(const PromptRequest& /*request*/) override { return {}; }
    void print(const std::wstring& /*line*/) override {}
    std::optional<std::wstring> chooseFile(const std::wstring& title, const std::wstring& start,
                                           const std::wstring& extension, int flags) override {
        asked = title + L"|" + start + L"|" + extension + L"|" + std::to_wstring(flags);
        return choice;
    }

    std::optional<std::wstring> choice;
    std::wstring asked; // what the chooser was given last
};

// An open drawing with the style STANDARD, and an empty profile.
class StyleWorld : public ::testing::Test {
protected:
    StyleWorld() : m_session(setup(), m_modules) { setProfileStore(nullptr); }

    [[nodiscard]] KdDbObjectId dictionaryId() const { return dictionary(kForRead).objectId(); }

    [[nodiscard]] KdDbObjectId styleId(const wchar_t* name) const {
        KdDbObjectId id;
        (void)dictionary(kForRead).getAt(name, id);
        return id;
    }

    // Null when there is none.
    [[nodiscard]] const KdDbMlineStyle* style(const wchar_t* name) const {
        KdDbMlineStyle* found = nullptr;
        kddbOpenObject(found, styleId(name), kForRead);
        return found;
    }

    // As a fresh one, with that description.
    void addStyle(const wchar_t* name, const wchar_t* description = L"") {
        auto made = std::make_unique<KdDbMlineStyle>();
        made->initMlineStyle();
        made->setName(name);
        made->setDescription(description);
        KdDbObjectId id;
        (void)dictionary(kForWrite).setAt(name, made.get(), id);
        made.release()->close();
    }

    void play(const std::string& text) {
        ScriptSource script(text, [](const std::wstring&) {});
        m_session.setSource(&script);
        EXPECT_FALSE(m_session.run(m_session.askCommand()));
        EXPECT_FALSE(script.failure());
        m_session.setSource(&m_chooser);
    }

    // Draws a multiline in that style.
    void use(const std::string& name) { play("MLINE\nST\n" + name + "\n0,0\n10,0\n\n"); }
    void makeCurrent(const std::string& name) { play("SETVAR\nCMLSTYLE\n" + name + "\n"); }

    static int setting(const std::wstring& key) {
        return AfxGetApp()->GetProfileInt(L"Settings", key.c_str(), -10000);
    }

    // A position for a dialog to open at.
    static QRect storePosition(const std::wstring& prefix) {
        const std::pair<const wchar_t*, int> sides[] = {
            {L"Left", 140}, {L"Top", 110}, {L"Right", 590}, {L"Bottom", 430}};
        for (const auto& [side, value] : sides) {
            AfxGetApp()->WriteProfileInt(L"Settings", (prefix + side).c_str(), value);
        }
        return {140, 110, 450, 320};
    }

    FileChooser m_chooser;

private:
    SessionSetup setup() {
        SessionSetup setup;
        setup.drawing = DrawingFile::create();
        setup.source = &m_chooser;
        setup.hasWindow = true;
        return setup;
    }

    // Left open: nobody minds.
    [[nodiscard]] KdDbDictionary& dictionary(int mode) const {
        KdDbDictionary* found = nullptr;
        (void)const_cast<Session&>(m_session).database().getMLStyleDictionary(found, mode);
        return *found;
    }

    ModuleLoader m_modules;
    Session m_session;
};

} // namespace orvex::testing
