#pragma once

#include <QStringList>

class KdDbDatabase;

namespace orvex {

// What there is in a drawing, in its order.
QStringList styleNames(KdDbDatabase& database);
QStringList layerNames(KdDbDatabase& database);

} // namespace orvex
