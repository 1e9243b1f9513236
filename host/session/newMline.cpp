#include "newMline.h"

#include "DatabaseCore.h"
#include "KdDbDatabase.h"
#include "KdDbMline.h"
#include "KdDbMlineImp.h"
#include "KdDbMlineStyle.h"
#include "KdDbSystemInternals.h"
#include "KdMLSegment.h"
#include "Opened.h"

namespace orvex {

namespace {

constexpr std::size_t kFewestForClosing = 3;

MlineSettings currentSettings(KdDbDatabase& database) {
    MlineSettings settings;
    if (const Opened<KdDbMlineStyle> style(database.cmlstyle(), kForRead); style) {
        settings = settingsOf(*style);
    }
    const HeaderVariables& variables = database.core().variables();
    settings.scale = variables.real("CMLSCALE");
    settings.justification = variables.integerWithin("CMLJUST", 0, 2, 0);
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

} // namespace

MlineSettings settingsOf(const KdDbMlineStyle& style) {
    MlineSettings settings;
    settings.startAngle = style.startAngle();
    settings.endAngle = style.endAngle();
    for (int i = 0; i < style.numElements(); ++i) {
        double offset = 0.0;
        KdCmColor color;
        KdDbObjectId linetype;
        style.getElementAt(i, offset, color, linetype);
        settings.offsets.push_back(offset);
    }
    return settings;
}

void fillChain(KdDbMline& mline, const NewChain& chain) {
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

bool hasCurrentElements(KdDbDatabase& database) {
    return !currentSettings(database).offsets.empty();
}

std::unique_ptr<KdDbMline> newMline(KdDbDatabase& database, const std::vector<KdGePoint3d>& points,
                                    bool closed, const KdGeVector3d& normal) {
    const MlineSettings settings = currentSettings(database);
    const NewChain chain = makeNewChain(points, closed, normal, settings);
    if (chain.vertices.empty() || settings.offsets.empty()) {
        return nullptr;
    }
    auto mline = std::make_unique<KdDbMline>();
    mline->setDatabaseDefaults(&database);
    mline->setStyle(database.cmlstyle());
    mline->setScale(settings.scale);
    mline->setJustification(settings.justification);
    mline->setNormal(normal);
    fillChain(*mline, chain);
    mline->setClosedMline(closed && chain.vertices.size() >= kFewestForClosing);
    return mline;
}

} // namespace orvex
