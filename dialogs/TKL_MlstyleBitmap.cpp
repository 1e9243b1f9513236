#include "TKL_MlstyleBitmap.h"

#include "KdDbDatabase.h"
#include "KdDbDictionary.h"
#include "KdDbLayerTable.h"
#include "KdDbMline.h"
#include "KdDbMlineStyle.h"
#include "KdDocument.h"
#include "kddbObjects.h"
#include "styleSample.h"
#include "systemVariables.h"

#include <memory>
#include <optional>

using namespace mledit;

namespace {

resbuf readVariable(const wchar_t* name) {
    resbuf value;
    kdedGetVar(name, &value);
    return value;
}

void setReal(const wchar_t* name, double number) {
    resbuf value;
    value.restype = kResultReal;
    value.resval.rreal = number;
    kdedSetVar(name, &value);
}

void setShort(const wchar_t* name, short number) {
    resbuf value;
    value.restype = kResultShort;
    value.resval.rint = number;
    kdedSetVar(name, &value);
}

void setPoint(const wchar_t* name, double x, double y, double z) {
    resbuf value;
    value.restype = kResultPoint;
    value.resval = {.rpoint = {x, y, z}};
    kdedSetVar(name, &value);
}

// The colour of the open drawing's current layer; nothing without one.
std::optional<KdCmColor> currentLayerColor() {
    const KdDocument* const document = curDoc();
    KdDbLayerTableRecord* layer = nullptr;
    if (document != nullptr && document->database() != nullptr) {
        kddbOpenObject(layer, document->database()->clayer(), kForRead);
    }
    if (layer == nullptr) {
        return std::nullopt;
    }
    const KdCmColor color = layer->color();
    layer->close();
    return color;
}

// A database without a current layer will do, one whose layer can't be opened won't.
bool colorCurrentLayer(const KdDbDatabase& database, const KdCmColor& color) {
    const KdDbObjectId id = database.clayer();
    if (id.isNull()) {
        return true;
    }
    KdDbLayerTableRecord* layer = nullptr;
    kddbOpenObject(layer, id, kForRead);
    if (layer == nullptr) {
        return false;
    }
    layer->setColor(color);
    layer->close();
    return true;
}

void prepareView() {
    for (const wchar_t* const name : {L"TILEMODE", L"CVPORT"}) {
        setShort(name, readVariable(name).resval.rint);
    }
    const double half = readVariable(L"VIEWSIZE").resval.rreal / 2.0;
    setReal(L"LTSCALE", 50.0);
    setPoint(L"EXTMIN", 0.0, 0.0, 0.0);
    setPoint(L"EXTMAX", 0.0, 0.0, 0.0);
    setPoint(L"VIEWCTR", half, half, 0.0);
    setReal(L"VIEWTWIST", 0.0);
    setShort(L"VIEWMODE", 0);
    setPoint(L"VIEWDIR", 0.0, 0.0, 1.0);
    setPoint(L"UCSXDIR", 1.0, 0.0, 0.0);
    setPoint(L"UCSYDIR", 0.0, 1.0, 0.0);
    setPoint(L"UCSORG", 0.0, 0.0, 0.0);
}

// A copy of the style in the database, which keeps it open; null where it has no styles.
KdDbObjectId addCopy(const KdDbDatabase& database, const KdDbMlineStyle& style) {
    KdDbObjectId id;
    KdDbDictionary* dictionary = nullptr;
    database.getMLStyleDictionary(dictionary, kForWrite);
    if (dictionary == nullptr) {
        return id;
    }
    auto copy = std::make_unique<KdDbMlineStyle>(style);
    dictionary->setAt(style.name(), copy.get(), id);
    if (!id.isNull()) {
        static_cast<void>(copy.release()); // the database's now
    }
    dictionary->close();
    return id;
}

std::vector<double> offsetsOf(const KdDbMlineStyle& style) {
    std::vector<double> offsets(static_cast<std::size_t>(style.numElements()));
    for (std::size_t i = 0; i < offsets.size(); ++i) {
        KdCmColor color;
        KdDbObjectId linetype;
        style.getElementAt(static_cast<int>(i), offsets[i], color, linetype);
    }
    return offsets;
}

} // namespace

void* TKL_MlstyleBitmap(int width, int height, KdDbMlineStyle* style) {
    constexpr int kTop = 0;
    constexpr std::uint16_t kWhite = 7;
    if (style == nullptr) {
        return nullptr;
    }
    KdDbDatabase database(true, false);
    database.setMeasurement(readVariable(L"MEASUREMENT").resval.rint);
    const std::optional<KdCmColor> color = currentLayerColor();
    if (!color || !colorCurrentLayer(database, *color)) {
        return nullptr;
    }
    prepareView();
    const KdDbObjectId styleId = addCopy(database, *style);
    if (styleId.isNull()) {
        return nullptr;
    }
    const StyleSample sample =
        makeStyleSample(width, scaledOffsets(offsetsOf(*style), height),
                        {.startAngle = style->startAngle(), .endAngle = style->endAngle()});
    KdDbMline mline;
    mline.setDatabaseDefaults(&database);
    mline.setStyle(styleId);
    mline.setScale(1.0);
    mline.setColorIndex(kWhite, true);
    mline.setJustification(kTop);
    for (const KdGePoint3d& vertex : sample.vertices) {
        mline.appendSeg(vertex);
    }
    readVariable(L"TILEMODE");
    readVariable(L"CVPORT");
    return nullptr; // nobody has drawn a picture of it
}
