#pragma once

#include "FuzzDrawing.h"
#include "HostCommand.h"
#include "PromptSource.h"
#include "Session.h"
#include "mlineEdits.h"

#include <string>

namespace orvex::testing {

// Chooses commands and answers that fit them, most of the time.
class FuzzAnswers final : public PromptSource {
public:
    FuzzAnswers(FuzzBytes& bytes, Session& session) : m_bytes(bytes), m_session(session) {}

    std::wstring command() {
        static const std::vector<std::wstring> names = hostCommandNames();
        const unsigned byte = m_bytes.next();
        return byte < 100   ? L"-MLEDIT"
               : byte < 120 ? L"U"
               : byte < 140 ? L"REDO"
                            : names[byte % names.size()];
    }
    // A command begins.
    void begin() { m_asked = 0; }

    PromptAnswer ask(const PromptRequest& request) override {
        using enum PromptAnswer::Kind;
        constexpr unsigned kMostAnswers = 200;
        PromptAnswer answer;
        if (m_bytes.isAtEnd() || ++m_asked > kMostAnswers) {
            return answer;
        }
        const unsigned way = m_bytes.next();
        const bool needsKeyword = request.kind == PromptKind::keyword;
        if (!request.keywords.empty() && way < (needsKeyword ? 240 : 70)) {
            answer.kind = keyword;
            answer.keyword = m_bytes.oneOf(request.keywords);
        } else if (way < 100 || way == 255 || needsKeyword) {
            answer.kind = way == 255 ? cancel : empty;
        } else if (request.kind == PromptKind::real) {
            answer.kind = number;
            answer.number = m_bytes.oneOf(kNumbers);
        } else if (request.kind == PromptKind::text) {
            answer.kind = text;
            answer.text = m_bytes.oneOf(kTexts);
        } else {
            giveEntity(request.kind, way, answer);
        }
        return answer;
    }
    void print(const std::wstring&) override {}

private:
    static constexpr double kNumbers[] = {0,  0,  1,  1,   2,    2,   3,     5,      10,
                                          15, 90, -1, 0.5, 45.5, 1e9, 1e300, -1e-300};
    static constexpr const wchar_t* kTexts[] = {
        L"STANDARD", L"ONE",     L"THREE",    L"SLANTED", L"TWICE",  L"0", L"1",       L"2", L"?",
        L"CMLSCALE", L"CMLJUST", L"CMLSTYLE", L"PICKBOX", L"CLAYER", L"",  L"nonsense"};

    void giveEntity(PromptKind kind, unsigned way, PromptAnswer& answer) {
        answer.kind = PromptAnswer::Kind::point;
        const std::vector<KdDbStub*> mlines = mlinesOf(m_session.database().core());
        if (mlines.empty() || way < 120) {
            answer.point = {m_bytes.coordinate(), m_bytes.coordinate(), 0.0};
            return;
        }
        KdDbStub& stub = *m_bytes.oneOf(mlines);
        const auto mline = contentOf(stub);
        if (mline != nullptr && !mline->vertices.empty()) {
            answer.point = placeOn(*mline);
        }
        if (kind != PromptKind::point && way > 140) {
            answer.handle = stub.handle;
        }
        if (kind == PromptKind::selection && way > 180) {
            answer.kind = PromptAnswer::Kind::handle;
        }
    }

    // On a line of it.
    KdGePoint3d placeOn(const MlineContent& mline) {
        constexpr double kParts[] = {0, 0.02, 0.1, 0.25, 0.5, 0.75, 0.9, 0.98, 1, 1.1};
        const auto count = static_cast<unsigned>(mline.vertices.size());
        const unsigned segment = m_bytes.next() % count;
        const unsigned element = m_bytes.next();
        const auto end = [&](unsigned v) {
            const unsigned elements = mline.lists.elementCount(v);
            const auto list =
                elements > 0 ? mline.lists.line(v, element % elements) : std::span<const double>();
            return mline.vertices[v].position +
                   mline.vertices[v].miter * (list.empty() ? 0.0 : list.front());
        };
        const KdGePoint3d from = end(segment);
        return from + (end((segment + 1) % count) - from) * m_bytes.oneOf(kParts);
    }

    FuzzBytes& m_bytes;
    Session& m_session;
    unsigned m_asked = 0;
};

} // namespace orvex::testing
