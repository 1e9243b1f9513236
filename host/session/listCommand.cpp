// LIST: tells what multilines are.

#include "HostCommand.h"
#include "KdDbMlineStyle.h"
#include "KdDbStub.h"
#include "MlineStyleContent.h"
#include "Opened.h"
#include "commandOutput.h"
#include "findingText.h"
#include "handleText.h"
#include "kddbObjects.h"
#include "mlineEdits.h"
#include "mlineTrack.h"
#include "selection.h"
#include "textCodec.h"

#include <array>

namespace orvex {

namespace {

std::wstring styleNameOf(const MlineContent& mline) {
    const Opened<KdDbMlineStyle> style(mline.style, kForRead);
    if (!style) {
        return mline.styleName + L" (missing)";
    }
    return style->values().name;
}

double lengthOf(const MlineContent& mline) {
    const MlineChain chain(mline);
    double length = 0.0;
    for (unsigned s = 0; s < chain.segmentCount(); ++s) {
        length += (chain.vertex(chain.next(s)).position - chain.vertex(s).position).length();
    }
    return length;
}

std::wstring textOf(const KdDbStub& stub, const MlineContent& mline) {
    constexpr std::array kJustifications{L"top", L"zero", L"bottom"};
    const auto justification = static_cast<std::size_t>(mline.justification);
    return L"multiline " + widen(handleText(stub.handle)) + L": style " + styleNameOf(mline) +
           L", scale " + widen(numberText(mline.scale)) + L", " +
           (justification < kJustifications.size() ? kJustifications[justification]
                                                   : L"unknown justification") +
           L", " + (mline.closed ? L"closed" : L"open") + L", layer " +
           (mline.traits != nullptr ? mline.traits->layer : L"0") + L", " +
           std::to_wstring(mline.vertices.size()) + L" vertices, length " +
           widen(numberText(lengthOf(mline)));
}

} // namespace

void listCommand(Session& session) {
    const std::optional<Selection> selection = askSelection(session, SelectionKind::mlines);
    if (!selection) {
        return;
    }
    for (KdDbStub* const stub : selection->entities) {
        if (const auto content = contentOf(*stub)) {
            kdutPrintf(L"%ls", textOf(*stub, *content).c_str());
        }
    }
}

} // namespace orvex
