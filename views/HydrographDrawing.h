#pragma once

#include "SwaleInputData.h"

#include <QPolygonF>

#include <optional>

// The channel's inflow hydrograph, time in minutes and flow in cfs, with the constant rate at
// which the channel gets rid of water (infiltration Qip under methods 1 and 2, the inlet's
// discharge under method 3) and the part of the inflow below that rate: the volume the
// efficiency counts.
struct HydrographDrawing
{
    int solutionMethod = 0;
    int channelFlowMethod = 0;
    QPolygonF inflow; // Q(t) from the start to the end of the inflow
    std::optional<double> rate; // cfs; none under method 4
    QPolygonF clipped; // min(Q(t), rate) closed along the time axis; empty without a rate
    double clippedVolume = 0; // the volume the program computed: Vm, or the inlet volume, ft3
    double runoffVolume = 0; // Vr, ft3
    double peak = 0; // Qp, cfs
    double duration = 0; // base of the hydrograph, min
};

// Q(t) as the volume formulas of the solution methods integrate it. Channel-flow method 1: the
// inflow rises at Qp / Tc, holds Qp and falls at Qp / Tc over a base of D + Tc minutes (when D
// is shorter than Tc the ramps meet below Qp); method 2: Qp held for the flow duration.
QPolygonF inflowHydrograph(const SwaleInputData &record);

// The part of `hydrograph` (points in time order, starting and ending at zero flow) at or below
// `rate`, as a closed polygon along the time axis.
QPolygonF clipHydrograph(const QPolygonF &hydrograph, double rate);

// Area enclosed by a polygon (shoelace formula), in the product of its axes' units.
double polygonArea(const QPolygonF &polygon);

HydrographDrawing buildHydrographDrawing(const SwaleInputData &record);
