#pragma once

#include "ScriptSource.h"
#include "Session.h"

#include <gtest/gtest.h>

#include <string>

namespace orvex::testing {

// Plays all commands of a script on a session; each has to come to its end.
inline void playOn(Session& session, const std::string& text) {
    ScriptSource script(text, [](const std::wstring&) {});
    session.setSource(&script);
    while (!script.atEnd()) {
        const std::wstring name = session.askCommand();
        if (!name.empty()) {
            EXPECT_FALSE(session.run(name)) << text;
        }
    }
    EXPECT_FALSE(script.failure()) << messageOf(*script.failure());
    session.setSource(nullptr);
}

} // namespace orvex::testing
