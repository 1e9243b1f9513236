#pragma once

#include "EntityShape.h"
#include "PlacedSink.h"

namespace orvex {

// Draw the entities that are only looked at. An insert isn't among them: what it shows is its
// block's.
void paintShape(const LineShape& line, const Pen& pen, PlacedSink& sink);
void paintShape(const PolylineShape& polyline, const Pen& pen, PlacedSink& sink);
void paintShape(const ConicShape& conic, const Pen& pen, PlacedSink& sink);
void paintShape(const TextShape& text, const Pen& pen, PlacedSink& sink);
void paintShape(const SolidShape& solid, const Pen& pen, PlacedSink& sink);
void paintShape(const OutlinesShape& outlines, const Pen& pen, PlacedSink& sink);
void paintShape(const PointShape& point, const Pen& pen, PlacedSink& sink);

} // namespace orvex
