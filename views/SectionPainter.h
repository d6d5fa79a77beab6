#pragma once

#include "SectionDrawing.h"

#include <QRectF>

class QPainter;

// The scale of the cross-section in a drawing of `size`: the area left for the section once
// the title, the dimension lines and the axes have their room.
SectionScale sectionScaleIn(const QRectF &rect, const SectionDrawing &section);

// Paints the cross-section into `rect` (units of the drawing: points or pixels): soil, water,
// the water table and soil storage zone, the critical depth, dimension lines for B, d and Wt,
// axes in feet and the vertical exaggeration when there is one.
void paintSection(QPainter &painter, const QRectF &rect, const SectionDrawing &section);
