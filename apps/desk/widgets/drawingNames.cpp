#include "drawingNames.h"

#include "KdDbDatabase.h"
#include "layerChoices.h"
#include "nameQuestions.h"
#include "qtWide.h"

namespace orvex {

QStringList styleNames(KdDbDatabase& database) {
    QStringList names;
    for (const std::wstring& name : styleNames(database.core())) {
        names << toQt(name);
    }
    return names;
}

QStringList layerNames(KdDbDatabase& database) {
    QStringList names;
    for (const LayerChoice& layer : layerChoices(database)) {
        names << layer.name;
    }
    return names;
}

} // namespace orvex
