#pragma once

#include "HydrographDrawing.h"
#include "RatingDrawing.h"

#include <QChart>
#include <QRectF>
#include <QSizeF>

#include <functional>
#include <memory>

class QPainter;

// The inflow hydrograph as a chart: Q(t), the constant rate at which the channel takes water
// in, and the part of the inflow below it shaded and named with its volume against Vr.
std::unique_ptr<QChart> makeHydrographChart(const HydrographDrawing &hydrograph);

// Discharge (left axis) and mean velocity (right axis) against depth, the permissible velocity,
// the design point and, under method 3, the inlet's rating curve with its point at d.
std::unique_ptr<QChart> makeRatingChart(const RatingDrawing &rating);

// Writes the volume of the shaded part into the hydrograph chart, over the shaded area (or just
// above it when the band is too thin). Needs the chart laid out.
void labelClippedVolume(QChart &chart, const HydrographDrawing &hydrograph);

// Writes d and Qp beside the design point, and the inlet's discharge beside its point at d.
void labelRatingPoints(QChart &chart, const RatingDrawing &rating);

// Lays `chart` out at `logicalSize` (the units its fonts are sized in), lets `annotate` place
// texts that need the laid-out plot, and paints it into `target`, as vector graphics on a
// vector device.
void renderChart(QPainter &painter, const QRectF &target, const QSizeF &logicalSize,
                 std::unique_ptr<QChart> chart, const std::function<void(QChart &)> &annotate = {});
