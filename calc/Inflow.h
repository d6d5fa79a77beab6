#pragma once

#include "SwaleInputData.h"

// The channel's design inflow: its peak rate [Qp] (the flow of the normal-depth search) and its
// volume [Vr], the treatment volume. Channel-flow method 1 takes them from the rational method
// (a trapezoidal hydrograph rising over Tc, holding Qp, falling over Tc; base D + Tc minutes);
// method 2 from a given flow held for a given duration (a rectangular hydrograph).

// Qp = A C ID, with the acre-in/hr to cfs factor taken as exactly 1.
double rationalPeakFlow(const SwaleInputData &data);

// Fills PeakFlowRate, RunoffVolume and RunoffDepth for the record's channel-flow method.
// dr = ID C under method 1 (the depth of one hour of rain at the design intensity, not times
// the duration) and 0 under method 2. Returns false for a method other than 1 or 2.
bool computeInflow(SwaleInputData &data);

// The treatment volume Vr of the record's channel-flow method at its PeakFlowRate, ft3.
double inflowVolume(const SwaleInputData &data);

// Volume the channel takes in at a constant rate q (cfs) during the inflow, ft3: under method 1
// the area under the trapezoidal hydrograph clipped at q, q ((D + Tc) - q Tc / Qp) 60; under
// method 2, q times the flow duration.
double hydrographVolume(const SwaleInputData &data, double q);

// a if a < b, else b; ties give b.
double MinOf(double a, double b);
// a if a > b, else b; ties give b.
double MaxOf(double a, double b);
