#pragma once

#include "SwaleInputData.h"

#include <QPointF>
#include <QPolygonF>

#include <optional>

// The channel's rating curves: discharge and mean velocity against depth by Manning's equation,
// from the dry channel to half as deep again as the normal depth, with the design point and,
// under method 3, the inlet's own rating curve. Depths in ft, discharges in cfs, velocities in
// ft/s.
struct RatingDrawing
{
    double maxDepth = 0; // ft, at least 1.5 d
    QPolygonF discharge; // (depth, Q)
    QPolygonF velocity; // (depth, V)
    double permissibleVelocity = 0; // Vp
    QPointF designPoint; // (d, Qp)
    QPolygonF inlet; // (depth, discharge) of the inlet, its depths turned from inches to feet
    std::optional<QPointF> inletAtDepth; // (d, inlet discharge) under method 3
};

// Samples of the curves; the normal depth is always one of them, so that the discharge curve
// passes through the design point. Uses the core's section geometry and Manning's equation,
// which raise the core's arithmetic fault on a degenerate channel: build it under runGuarded.
RatingDrawing buildRatingDrawing(const SwaleInputData &record);

// The inlet's rating curve in feet, cut off at `maxDepth` (by interpolation) so that a long
// table does not squeeze the channel's curves.
QPolygonF inletCurveInFeet(const RatingCurveTable &table, double maxDepth);

// Linear interpolation along a polyline whose x grows; nullopt outside it.
std::optional<double> interpolate(const QPolygonF &curve, double x);
