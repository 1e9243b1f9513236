// MLINE: asks for the chain of a new multiline, and for its settings at the first prompt.

#include "DatabaseCore.h"
#include "HostCommand.h"
#include "KdDbMline.h"
#include "KdDbMlineImp.h"
#include "KdDbMlineStyle.h"
#include "KdDbSystemInternals.h"
#include "KdMLSegment.h"
#include "Session.h"
#include "commandLine.h"
#include "coordinateFrames.h"
#include "kddbObjects.h"
#include "mlineChain.h"
#include "promptLibrary.h"
#include "promptStatus.h"
#include "systemVariables.h"
#include "variableText.h"

#include <optional>
#include <string_view>

namespace orvex {

namespace {

constexpr std::size_t kFewestForClosing = 3;

// Asks for a text and gives it to a variable; an empty answer keeps the value.
void askSetting(const wchar_t* variable, const std::wstring& question) {
    const std::wstring prompt = question + L" <" + variableText(variable).value_or(L"") + L">: ";
    wchar_t text[kPromptTextSize] = L"";
    if (kdedGetString(prompt.c_str(), text) != kPromptNormal) {
        return;
    }
    if (const auto refusal = setVariableText(variable, text)) {
        rejectAnswer(*refusal);
    }
}

void askScale() {
    const std::wstring prompt = L"Scale <" + variableText(L"CMLSCALE").value_or(L"") + L">: ";
    double scale = 0.0;
    if (kdedGetReal(prompt.c_str(), &scale) == kPromptNormal) {
        resbuf value;
        value.restype = kResultReal;
        value.resval.rreal = scale;
        kdedSetVar(L"CMLSCALE", &value);
    }
}

void askJustification() {
    wchar_t keyword[kPromptTextSize] = L"";
    kdedInitGet(0, L"Top Zero Bottom");
    if (kdedGetKword(L"Justification [Top/Zero/Bottom]: ", keyword) != kPromptNormal) {
        return;
    }
    const std::wstring_view chosen = keyword;
    setVariableText(L"CMLJUST", chosen == L"Top" ? L"0" : chosen == L"Zero" ? L"1" : L"2");
}

void askSettings() {
    wchar_t keyword[kPromptTextSize] = L"";
    kdedGetInput(keyword);
    const std::wstring_view chosen = keyword;
    if (chosen == L"Justification") {
        askJustification();
    } else if (chosen == L"Scale") {
        askScale();
    } else {
        askSetting(L"CMLSTYLE", L"Style name");
    }
}

struct Chain {
    std::vector<KdGePoint3d> points; // user coordinates
    bool closed = false;
};

KdGePoint3d pointOf(const double* xyz) {
    return {xyz[0], xyz[1], xyz[2]};
}

bool askStart(Chain& chain) {
    for (;;) {
        double point[3] = {0.0, 0.0, 0.0};
        kdedInitGet(0, L"Justification Scale STyle");
        switch (kdedGetPoint(nullptr, L"Start point or [Justification/Scale/STyle]: ", point)) {
        case kPromptNormal:
            chain.points.push_back(pointOf(point));
            return true;
        case kPromptKeyword:
            askSettings();
            break;
        default:
            return false;
        }
    }
}

// Nothing when the user gives up.
std::optional<Chain> askChain() {
    Chain chain;
    if (!askStart(chain)) {
        return std::nullopt;
    }
    for (;;) {
        const bool mayClose = chain.points.size() >= kFewestForClosing;
        kdedInitGet(0, mayClose ? L"Close" : nullptr);
        const KdGePoint3d& last = chain.points.back();
        const double base[3] = {last.x, last.y, last.z};
        double point[3] = {0.0, 0.0, 0.0};
        switch (
            kdedGetPoint(base, mayClose ? L"Next point or [Close]: " : L"Next point: ", point)) {
        case kPromptNormal:
            // A multiline is flat: it stays on the level of its start.
            point[2] = chain.points.front().z;
            chain.points.push_back(pointOf(point));
            break;
        case kPromptKeyword:
            chain.closed = true;
            return chain;
        case kPromptNone:
            return chain;
        default:
            return std::nullopt;
        }
    }
}

KdGePoint3d userToWorld(const KdGePoint3d& point, int displacement) {
    resbuf user;
    user.restype = kResultShort;
    user.resval.rint = 1;
    resbuf world;
    world.restype = kResultShort;
    double place[3] = {point.x, point.y, point.z};
    kdedTrans(place, &user, &world, displacement, place);
    return pointOf(place);
}

MlineSettings currentSettings(const DatabaseCore& core, KdDbObjectId styleId) {
    MlineSettings settings;
    settings.scale = core.variables().real("CMLSCALE");
    settings.justification = core.variables().integerWithin("CMLJUST", 0, 2, 0);
    KdDbMlineStyle* style = nullptr;
    kddbOpenObject(style, styleId, kForRead);
    if (style == nullptr) {
        return settings;
    }
    settings.startAngle = style->startAngle();
    settings.endAngle = style->endAngle();
    for (int i = 0; i < style->numElements(); ++i) {
        double offset = 0.0;
        KdCmColor color;
        KdDbObjectId linetype;
        style->getElementAt(i, offset, color, linetype);
        settings.offsets.push_back(offset);
    }
    style->close();
    return settings;
}

// One unbroken stretch of each element from this vertex on.
VoVector<KdMLSegment> unbroken(const std::vector<double>& positions) {
    VoVector<KdMLSegment> record;
    for (const double position : positions) {
        KdMLSegment element;
        element.m_lineParams.append(position);
        element.m_lineParams.append(0.0);
        record.append(element);
    }
    return record;
}

void fillChain(KdDbMline& mline, const MlineChain& chain) {
    KdArray<KdGeVector3d> axes;
    KdArray<KdGeVector3d> miters;
    for (const ChainVertex& vertex : chain.vertices) {
        mline.appendSeg(vertex.position);
        axes.append(vertex.axis);
        miters.append(vertex.miter);
    }
    KdDbMlineImp& imp = *KdDbSystemInternals::getImpObject(&mline);
    imp.appendSeg(axes, true);
    imp.appendSeg(miters, false);
    for (int i = 0; i < mline.numVertices(); ++i) {
        VoVector<KdMLSegment> record = unbroken(chain.elementPositions[static_cast<unsigned>(i)]);
        KdArray<void*> parameters;
        parameters.append(&record);
        mline.setParametersAt(i, parameters);
    }
}

} // namespace

void mlineCommand(Session& session) {
    const std::optional<Chain> asked = askChain();
    if (!asked) {
        return;
    }
    KdDbDatabase& database = session.database();
    DatabaseCore& core = database.core();
    const KdDbObjectId style = database.cmlstyle();
    const MlineSettings settings = currentSettings(core, style);
    const KdGePoint3d up = userToWorld({0.0, 0.0, 1.0}, 1);
    const KdGeVector3d normal{up.x, up.y, up.z};
    std::vector<KdGePoint3d> points;
    for (const KdGePoint3d& point : asked->points) {
        points.push_back(userToWorld(point, 0));
    }
    const MlineChain chain = makeMlineChain(points, asked->closed, normal, settings);
    if (settings.offsets.empty()) {
        kdutPrintf(L"The current style has no elements to draw.");
    }
    if (chain.vertices.empty() || settings.offsets.empty()) {
        return;
    }
    auto mline = std::make_unique<KdDbMline>();
    mline->setDatabaseDefaults(&database);
    mline->setStyle(style);
    mline->setScale(settings.scale);
    mline->setJustification(settings.justification);
    mline->setNormal(normal);
    fillChain(*mline, chain);
    mline->setClosedMline(asked->closed && chain.vertices.size() >= kFewestForClosing);
    BlockEntities& space = core.modelSpace();
    KdDbStub& stub = core.adopt(std::move(mline), ObjectKind::mline, space.record);
    core.appendEntity(space, stub);
}

} // namespace orvex
