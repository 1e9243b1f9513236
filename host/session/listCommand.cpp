// LIST: tells what multilines are.

#include "HostCommand.h"
#include "KdDbMlineStyle.h"
#include "KdDbStub.h"
#include "MlineStyleContent.h"
#include "Opened.h"
#include "commandOutput.h"
#include "findingText.h"
#include "handleText.h"
#include "hostText.h"
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
        return wideHostText("%1 (missing)", {mline.styleName});
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
    constexpr std::array kJustifications{markedText("top"), markedText("zero"),
                                         markedText("bottom")};
    const auto justification = static_cast<std::size_t>(mline.justification);
    return wideHostText(
        "multiline %1: style %2, scale %3, %4, %5, layer %6, %7 vertices, length %8",
        {widen(handleText(stub.handle)), styleNameOf(mline), widen(numberText(mline.scale)),
         justification < kJustifications.size() ? wideHostText(kJustifications[justification])
                                                : wideHostText("unknown justification"),
         mline.closed ? wideHostText("closed") : wideHostText("open"),
         mline.traits != nullptr ? mline.traits->layer : L"0",
         std::to_wstring(mline.vertices.size()), widen(numberText(lengthOf(mline)))});
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
