// The verb join: a plan, its joints, a result.

#include "AtomicFile.h"
#include "ChangeLog.h"
#include "DatabaseCore.h"
#include "JoinRun.h"
#include "ModuleLoader.h"
#include "Session.h"
#include "batchFiles.h"
#include "joinMlines.h"
#include "moduleFiles.h"
#include "printJoin.h"
#include "textCodec.h"
#include "verbs.h"

#include <cstdio>
#include <filesystem>

namespace orvex {

namespace {

bool isSameFile(const std::string& a, const std::string& b) {
    std::error_code ignored;
    return a == b || std::filesystem::equivalent(a, b, ignored);
}

// The script goes to standard output, and all else that is printed to standard error.
bool printsScript(const JoinCall& call) {
    return call.saveScript == "-";
}

// A script in a drawing's place would be the drawing's end.
std::optional<Failure> checkScriptName(const JoinCall& call) {
    const bool isDrawing =
        call.saveScript && (isSameFile(*call.saveScript, call.drawing) ||
                            (call.output && isSameFile(*call.saveScript, *call.output)));
    return isDrawing ? std::optional(Failure{FailureCause::wrongCall, *call.saveScript, 0,
                                             "the script can't be saved over a drawing"})
                     : std::nullopt;
}

// Prints which of the named layers take no part.
Result<std::vector<KdDbStub*>> chosenMlines(Session& session, const JoinCall& call) {
    std::vector<std::wstring> layers;
    for (const std::string& layer : call.layers) {
        layers.push_back(widen(layer));
    }
    JoinMlines found = mlinesToJoin(session.database().core(), layers);
    if (!found.unknownLayers.empty()) {
        return Failure{FailureCause::wrongCall, call.drawing, 0,
                       "there is no layer '" + narrow(found.unknownLayers.front()) + "'"};
    }
    for (const std::wstring& layer : found.withheldLayers) {
        complain(call.drawing + ": warning: the layer '" + narrow(layer) +
                 "' is off, frozen or locked and takes no part");
    }
    return std::move(found.mlines);
}

std::optional<Failure> saveScript(AtomicFile& file, const std::string& text) {
    if (auto failure = file.open()) {
        return failure;
    }
    return file.write(text);
}

// Both files or none.
std::optional<Failure> saveResults(Session& session, JoinRun& join, const JoinCall& call) {
    std::optional<AtomicFile> script;
    if (call.saveScript && !printsScript(call)) {
        script.emplace(*call.saveScript);
        if (auto failure = saveScript(*script, join.script())) {
            return failure;
        }
    }
    if (call.output) {
        DatabaseCore& core = session.database().core();
        core.changes().beginCommand();
        join.giveBack();
        core.changes().endCommand();
        if (auto failure = session.drawing().save(*call.output)) {
            return failure;
        }
    }
    return script ? script->commit() : std::nullopt;
}

} // namespace

std::optional<Failure> joinDrawing(const JoinCall& call) {
    if (auto failure = checkScriptName(call)) {
        return failure;
    }
    auto drawing = openDrawing(call.drawing);
    if (!drawing) {
        return drawing.failure();
    }
    ModuleLoader modules;
    SessionSetup setup;
    setup.drawing = std::move(*drawing);
    setup.moduleFiles = moduleFiles(call.module);
    Session session(std::move(setup), modules);
    auto mlines = chosenMlines(session, call);
    if (!mlines) {
        return mlines.failure();
    }
    JoinRun join(session, std::move(*mlines), call.options);
    if (auto failure =
            withMemory(FailureCause::unplayableScript, call.drawing, [&] { return join.play(); })) {
        return failure;
    }
    printJoin(join, call.asJson, printsScript(call) ? stderr : stdout);
    if (printsScript(call)) {
        const std::string script = join.script();
        std::fwrite(script.data(), 1, script.size(), stdout);
    }
    // Before the save: a call that can't print what it did leaves nothing behind.
    if (auto failure = flushOutput()) {
        return failure;
    }
    return withMemory(FailureCause::unwritableOutput, call.output.value_or(""),
                      [&] { return saveResults(session, join, call); });
}

} // namespace orvex
