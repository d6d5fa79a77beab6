#pragma once

#include "HydrographDrawing.h"
#include "RatingDrawing.h"

#include <QChart>
#include <QRectF>
#include <QSizeF>

#include <memory>

class QPainter;

// The inflow hydrograph as a chart: Q(t), the constant rate at which the channel takes water
// in, and the part of the inflow below it shaded and named with its volume against Vr.
std::unique_ptr<QChart> makeHydrographChart(const HydrographDrawing &hydrograph);

// Discharge (left axis) and mean velocity (right axis) against depth, the permissible velocity,
// the design point and, under method 3, the inlet's rating curve with its point at d.
std::unique_ptr<QChart> makeRatingChart(const RatingDrawing &rating);

// Lays `chart` out at `logicalSize` (the units its fonts are sized in) and paints it into
// `target`, as vector graphics on a vector device.
void renderChart(QPainter &painter, const QRectF &target, const QSizeF &logicalSize,
                 std::unique_ptr<QChart> chart);
