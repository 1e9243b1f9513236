#pragma once

#include <QString>

struct KdDbStub;

namespace orvex {

// An entity in a few words for the status bar: style, layer, width and handle of a multiline.
QString hoverText(KdDbStub& entity);

} // namespace orvex
