// Edits small drawings by all commands. The input draws a few multilines and then chooses commands
// and answers. After each command counts match, what had no finding of the audit has none, undo
// gives back the bytes, and what is saved reads as it is in memory.

#include "ChangeLog.h"
#include "DrawingConversion.h"
#include "FuzzAnswers.h"
#include "FuzzDrawing.h"
#include "ModuleLoader.h"
#include "ObjectTable.h"
#include "Session.h"
#include "TestPaths.h"
#include "auditMline.h"
#include "chainMiter.h"
#include "mlineEdits.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <utility>

namespace {

using namespace orvex;
using namespace orvex::testing;

void require(bool holds, const char* what, const std::wstring& command) {
    if (!holds) {
        std::fprintf(stderr, "not so after %ls: %s\n", command.c_str(), what);
        std::abort();
    }
}

// Loaded once: what a module keeps from one drawing to the next is tried as well. Never unloaded:
// the registry may be gone when statics end.
ModuleLoader& modules() {
    static ModuleLoader& loader = *std::make_unique<ModuleLoader>().release();
    return loader;
}

std::unique_ptr<Session> openSession(const std::string& bytes) {
    auto drawing = DrawingFile::openBytes(bytes);
    require(drawing.hasValue(), "the drawing opens", L"saving");
    SessionSetup setup;
    setup.drawing = std::move(*drawing);
    setup.moduleFiles = {(orvex::testing::binDir() / "libOmxMLStyle.omx").string()};
    return std::make_unique<Session>(std::move(setup), modules());
}

// The largest number in it; infinite where one has no form in the file.
double extentOf(const MlineContent& mline) {
    double most = std::abs(mline.scale);
    const auto see = [&most](double value) {
        most = std::isfinite(value) ? std::max(most, std::abs(value)) : HUGE_VAL;
    };
    for (unsigned v = 0; v < mline.vertices.size(); ++v) {
        const ChainVertex& vertex = mline.vertices[v];
        for (const KdGeVector3d& each :
             {vertex.position - KdGePoint3d(), vertex.axis, vertex.miter}) {
            see(each.x);
            see(each.y);
            see(each.z);
        }
        for (unsigned e = 0; e < mline.lists.elementCount(v); ++e) {
            for (const double value : mline.lists.line(v, e)) {
                see(value);
            }
        }
    }
    return most;
}

bool hasMatchingCounts(const MlineContent& mline) {
    bool good = mline.lists.vertexCount() == mline.vertices.size();
    for (unsigned v = 0; v < mline.lists.vertexCount(); ++v) {
        good = good && mline.lists.elementCount(v) == mline.elementCount();
    }
    return good;
}

// Far away it can't be asked whether a multiline is sound, nor of what was cut off one that is.
bool isFar(const MlineContent& mline) {
    constexpr double kFar = 1e7;
    return extentOf(mline) > kFar;
}

// Whether it contradicts neither its style nor itself.
bool isSound(const MlineContent& mline) {
    const auto style = styleLayoutOf(mline);
    return auditMline(mline, style ? &*style : nullptr).empty();
}

bool isNearAndSound(const MlineContent& mline) {
    return !isFar(mline) && isSound(mline);
}

bool isFarOrSound(const MlineContent& mline) {
    return isFar(mline) || isSound(mline);
}

// What a joint draws beyond its segment the audit lets pass at an end without caps alone: REVERSE
// makes a start of it, MLCHANGE may bring the caps.
bool staysOnSegments(const MlineContent& mline) {
    for (unsigned v = 0; v < mline.lists.vertexCount(); ++v) {
        for (unsigned e = 0; e < mline.lists.elementCount(v); ++e) {
            const auto line = mline.lists.line(v, e);
            if (line.size() > 1 && line[1] < 0.0) {
                return false;
            }
        }
    }
    MlineContent withCaps = mline;
    withCaps.endCapsSuppressed = false;
    return isSound(withCaps);
}

// Where a chain turns straight back its elements lie on the wrong side of one of both segments; a
// part that ends there has them where they were.
bool neverTurnsBack(const MlineContent& mline) {
    for (std::size_t v = 0; v < mline.vertices.size(); ++v) {
        const ChainVertex& before = mline.vertices[v == 0 ? mline.vertices.size() - 1 : v - 1];
        if (turnsStraightBack(before.axis, mline.vertices[v].axis, mline.normal)) {
            return false;
        }
    }
    return true;
}

std::wstring styleName(const MlineContent& mline) {
    KdDbMlineStyle* style = nullptr;
    kddbOpenObject(style, mline.style, kForRead);
    if (style == nullptr) {
        return mline.styleName;
    }
    style->close();
    return style->name();
}

bool areAlike(const MlineContent& a, const MlineContent& b) {
    return a.scale == b.scale && a.justification == b.justification && a.flags() == b.flags() &&
           a.normal == b.normal && a.vertices == b.vertices && a.lists == b.lists &&
           styleName(a) == styleName(b);
}

// A run of commands on one drawing.
class Run {
public:
    Run(const std::string& drawing, FuzzBytes& bytes)
        : m_bytes(bytes), m_session(openSession(drawing)), m_answers(bytes, *m_session),
          m_now(drawing) {
        m_session->setSource(&m_answers);
        require(m_now == m_session->drawing().bytes(), "it is saved as it came", L"opening");
    }

    void play() {
        constexpr int kMostCommands = 30;
        constexpr std::size_t kMostBytes = 1 << 20; // COPY of all, again and again, has no end
        for (int i = 0; i < kMostCommands && m_now.size() < kMostBytes && !m_bytes.isAtEnd(); ++i) {
            step(m_answers.command());
        }
        const std::string end = m_now;
        std::size_t steps = 0;
        for (; !m_before.empty(); ++steps) {
            step(L"U");
        }
        for (; steps > 0; --steps) {
            step(L"REDO");
        }
        require(m_now == end, "all brought again, it is as before", L"REDO");
    }

private:
    [[nodiscard]] ChangeLog& changes() { return m_session->database().core().changes(); }

    template <class Predicate>
    bool holdsForAll(Predicate predicate) {
        const auto mlines = testing::mlinesOf(m_session->database().core());
        return std::all_of(mlines.begin(), mlines.end(), [&](KdDbStub* stub) {
            const auto content = contentOf(*stub);
            return content != nullptr && predicate(*content);
        });
    }

    void step(const std::wstring& command) {
        const bool turns = command == L"REVERSE" || command == L"MLCHANGE";
        const bool wereSound = holdsForAll(isNearAndSound) &&
                               (!turns || holdsForAll(staysOnSegments)) &&
                               (command != L"MLBREAK" || holdsForAll(neverTurnsBack));
        const std::size_t depth = changes().undoDepth();
        m_answers.begin();
        const auto failure = m_session->run(command);
        require(!failure || failure->cause == FailureCause::unplayableScript,
                failure ? failure->text.c_str() : "", command);
        const std::string before = std::exchange(m_now, m_session->drawing().bytes());
        if (changes().undoDepth() > depth) {
            m_before.push_back(before);
            if (command != L"REDO") {
                checkUndo(command);
            }
        } else if (changes().undoDepth() < depth) {
            require(command == L"U" && m_now == m_before.back(), "it is as before", command);
            m_before.pop_back();
        } else {
            require(m_now == before, "without a step nothing has changed", command);
        }
        if (m_now != before) {
            checkContents(command);
            require(holdsForAll(hasMatchingCounts), "counts match", command);
            checkShape(command, wereSound);
        }
    }

    // An audit asks for lists that ascend, among much else. The tools don't care for all of it, and
    // MLSTOPS sets what it is told.
    void checkShape(const std::wstring& command, bool wereSound) {
        const bool isFree = command == L"-MLEDIT" || command == L"MLJOIN" ||
                            command == L"MLSTOPS" || command == L"U" || command == L"REDO";
        require(!wereSound || isFree || holdsForAll(isFarOrSound), "what was sound is sound",
                command);
    }

    void checkUndo(const std::wstring& command) {
        (void)m_session->run(L"U");
        require(m_session->drawing().bytes() == m_before.back(), "undone, it is as before",
                command);
        (void)m_session->run(L"REDO");
        require(m_session->drawing().bytes() == m_now, "done again, it is the same", command);
    }

    void checkContents(const std::wstring& command) {
        const auto saved = DrawingFile::openBytes(m_now);
        require(saved.hasValue(), "what is saved opens", command);
        require((*saved)->bytes() == m_now, "what is saved is saved again", command);
        std::size_t mlines = 0;
        for (KdDbStub* const stub : testing::mlinesOf(m_session->database().core())) {
            const auto content = contentOf(*stub);
            require(content != nullptr, "each multiline can be read", command);
            KdDbStub* const again = (*saved)->database().core().objects().findHandle(stub->handle);
            const auto read = again != nullptr ? contentOf(*again) : nullptr;
            require(std::isinf(extentOf(*content)) ||
                        (read != nullptr && areAlike(*content, *read)),
                    "what is saved reads as it is", command);
            ++mlines;
        }
        require(testing::mlinesOf((*saved)->database().core()).size() == mlines,
                "as many multilines are saved", command);
    }

    FuzzBytes& m_bytes;
    std::unique_ptr<Session> m_session;
    FuzzAnswers m_answers;
    std::string m_now;
    std::vector<std::string> m_before; // each step that can be taken back
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzBytes bytes({data, size});
    const unsigned form = bytes.next();
    const bool isSpoilt = form % 8 == 7;
    std::string drawing = testing::fuzzDrawing(bytes, isSpoilt);
    if (form % 4 == 2) {
        drawing = convertBytes(drawing, DrawingForm::binary)->bytes;
    }
    Run(drawing, bytes).play();
    return 0;
}
