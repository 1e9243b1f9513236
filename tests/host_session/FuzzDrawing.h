#pragma once

#include "BlockList.h"
#include "DatabaseCore.h"
#include "DrawingFile.h"
#include "FuzzBytes.h"
#include "KdDbDictionary.h"
#include "KdDbMline.h"
#include "KdDbMlineStyle.h"
#include "MlineContent.h"
#include "WellKnownObjects.h"
#include "breakLists.h"
#include "geometry.h"
#include "kddbObjects.h"
#include "mlineTrack.h"
#include "newMline.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace orvex::testing {

inline constexpr const wchar_t* kFuzzStyles[] = {L"STANDARD", L"ONE", L"THREE", L"SLANTED",
                                                 L"TWICE"};

// Those of model space that aren't erased.
inline std::vector<KdDbStub*> mlinesOf(DatabaseCore& core) {
    std::vector<KdDbStub*> mlines = core.blocks().modelSpace().entities;
    std::erase_if(mlines, [](const KdDbStub* stub) {
        return stub->erased || stub->kind != ObjectKind::mline;
    });
    return mlines;
}

// An empty drawing with the styles.
inline std::string drawingWithStyles() {
    const std::unique_ptr<DrawingFile> file = DrawingFile::create();
    DatabaseCore& core = file->database().core();
    auto* const styles =
        dynamic_cast<KdDbDictionary*>(core.open(*core.wellKnown().styleDictionary, true));
    const std::vector<double> offsets[] = {{}, {0}, {1, 0, -1}, {2, -1}, {0.5, 0.5, -3}};
    for (std::size_t i = 1; i < std::size(offsets); ++i) {
        auto style = std::make_unique<KdDbMlineStyle>();
        style->setName(kFuzzStyles[i]);
        for (int k = 0; const double offset : offsets[i]) {
            style->addElement(k, offset, {}, {}, false);
            ++k;
        }
        style->setStartAngle(i == 3 ? 1.0 : kPi / 2);
        style->setEndAngle(i == 3 ? 2.0 : kPi / 2);
        style->setStartRoundCap(i == 2);
        style->setEndSquareCap(i > 1);
        style->setShowMiters(i > 2);
        style->setFilled(i > 3);
        KdDbObjectId id;
        styles->setAt(kFuzzStyles[i], style.release(), id);
    }
    core.closeAll();
    return file->bytes();
}

// Distances at which stretches end and begin; anything where they are to be spoilt.
inline VoVector<double> fuzzList(FuzzBytes& bytes, const MlineTrack& track, double position,
                                 bool isSpoilt) {
    std::vector<double> list;
    for (unsigned gaps = bytes.next() % 8; gaps > 5; --gaps) {
        list.push_back(bytes.next() / 256.0 * track.length);
        list.push_back(bytes.next() / 256.0 * track.length);
    }
    if (!isSpoilt) {
        std::ranges::sort(list);
        list.insert(list.begin(), 0.0);
    }
    list.insert(list.begin(), position);
    return toParameters(list);
}

// Cuts gaps.
inline void fuzzLists(FuzzBytes& bytes, MlineContent& mline, bool isSpoilt) {
    const MlineContent whole = mline;
    const MlineChain chain(whole);
    for (unsigned v = 0; v < chain.segmentCount(); ++v) {
        VoVector<KdMLSegment> record = whole.lists.nested(v);
        for (unsigned e = 0; e < whole.elementCount(); ++e) {
            record[static_cast<int>(e)].m_lineParams =
                fuzzList(bytes, chain.track(v, e), chain.line(v, e).front(), isSpoilt);
        }
        mline.lists.setNested(v, record);
    }
}

inline MlineContent fuzzMline(FuzzBytes& bytes, const MlineSettings& settings, bool isSpoilt) {
    constexpr KdGeVector3d kNormals[] = {
        {0, 0, 1}, {0, 0, 1}, {0, 0, 1}, {0, 0, -1}, {0.6, 0, 0.8}};
    MlineContent mline;
    mline.scale = settings.scale;
    mline.justification = settings.justification;
    mline.normal = bytes.oneOf(kNormals);
    const unsigned shape = bytes.next();
    mline.closed = shape % 4 == 3;
    const PlaneAxes axes = arbitraryAxes(mline.normal);
    std::vector<KdGePoint3d> points;
    for (unsigned i = 0; i < 2 + mline.closed + shape / 4 % 4; ++i) {
        const double x = bytes.coordinate();
        const double y = bytes.coordinate();
        points.push_back(mline.normal.x == 0.0 ? KdGePoint3d{x, y, 0.0}
                                               : KdGePoint3d() + axes.x * x + axes.y * y);
    }
    const NewChain chain = makeNewChain(points, mline.closed, mline.normal, settings);
    mline.vertices = chain.vertices;
    for (unsigned v = 0; v < chain.vertices.size(); ++v) {
        VoVector<KdMLSegment> record;
        for (const double position : chain.elementPositions[v]) {
            KdMLSegment element;
            element.m_lineParams = toParameters(std::vector<double>{position, 0.0});
            record.append(element);
        }
        mline.lists.appendVertex();
        mline.lists.setNested(v, record);
    }
    fuzzLists(bytes, mline, isSpoilt);
    return mline;
}

// The bytes of a drawing with up to four multilines.
inline std::string fuzzDrawing(FuzzBytes& bytes, bool isSpoilt) {
    static const std::string styles = drawingWithStyles();
    constexpr double kScales[] = {1, 1, 2, -1, 0.5, 4};
    const auto file = std::move(*DrawingFile::openBytes(styles));
    DatabaseCore& core = file->database().core();
    for (unsigned count = bytes.next() % 4; count < 4; ++count) {
        KdDbStub& style = *core.wellKnown().findStyle(bytes.oneOf(kFuzzStyles));
        MlineSettings settings = settingsOf(dynamic_cast<KdDbMlineStyle&>(*core.load(style)));
        settings.scale = bytes.oneOf(kScales);
        settings.justification = static_cast<int>(bytes.next() % 3);
        auto content = std::make_shared<MlineContent>(fuzzMline(bytes, settings, isSpoilt));
        content->style = KdDbObjectId(&style);
        auto mline = std::make_unique<KdDbMline>();
        mline->setContent(content);
        BlockEntities& model = core.blocks().modelSpace();
        core.blocks().appendEntity(model,
                                   core.adopt(std::move(mline), ObjectKind::mline, model.record));
    }
    return file->bytes();
}

} // namespace orvex::testing
