#include "pickScale.h"

#include "KdDbStub.h"
#include "PromptSession.h"
#include "Session.h"
#include "clickedPoint.h"
#include "hostText.h"
#include "matchPick.h"
#include "mlineEdits.h"
#include "qtWide.h"
#include "userFrame.h"

#include <QLocale>

#include <numbers>
#include <optional>

namespace orvex {

namespace {

constexpr int kHeightDigits = 9; // more than any pick needs

// What a pick comes to.
struct PickOutcome {
    KdDbStub* found = nullptr;
    std::optional<PickMatch> line; // that a tool takes it for

    friend bool operator==(const PickOutcome&, const PickOutcome&) = default;
};

PickOutcome outcomeIn(const PlanView& view, Session& session, const KdGePoint3d& world,
                      KdDbStub* named) {
    const double reach = PromptSession::current().pickBox * view.unitsPerPixel();
    PickOutcome outcome{named, {}};
    if (named == nullptr) {
        outcome.found = session.scene().pick({world.x, world.y}, reach);
    }
    const ToolWatch& watch = session.toolWatch();
    const bool isTools = watch.stage() != ToolWatch::Stage::none && watch.tool() != nullptr;
    if (const auto content =
            isTools && outcome.found != nullptr ? contentOf(*outcome.found) : nullptr) {
        outcome.line =
            matchPick(*content, world, reach * std::numbers::sqrt2, watch.tool()->matchesGaps);
    }
    return outcome;
}

} // namespace

QStringList measureAsSeen(Session& session, const PromptRequest& request,
                          const KdGePoint3d& userPoint, KdDbStub* named) {
    const PlanView& seen = session.view();
    PlanView& measured = session.pickView();
    const KdGePoint3d world = userToWorld(userPoint);
    if (seen.unitsPerPixel() == measured.unitsPerPixel() ||
        outcomeIn(seen, session, world, named) == outcomeIn(measured, session, world, named)) {
        return {};
    }
    const KdGePoint3d center = clickedPoint(seen.center().x, seen.center().y, seen.unitsPerPixel());
    const QString height =
        QString::number(seen.unitsPerPixel() * measured.height(), 'g', kHeightDigits);
    const KdGePoint3d middle = userToWorld(center);
    measured.setView({middle.x, middle.y}, QLocale::c().toDouble(height));
    const QStringList lines{QStringLiteral("'ZOOM"), QStringLiteral("Center"),
                            toQt(pointText(center)), height};
    QStringList shown{toQt(request.text).trimmed() + ' ' + lines.front()};
    const QStringList questions{toQt(wideHostText("Extents or Center: ")),
                                toQt(wideHostText("Center point: ")),
                                toQt(wideHostText("Height of the view: "))};
    for (int i = 0; i < lines.size(); ++i) {
        session.record().line(toWide(lines[i]));
        if (i > 0) {
            shown << questions[i - 1] + lines[i];
        }
    }
    return shown;
}

} // namespace orvex
