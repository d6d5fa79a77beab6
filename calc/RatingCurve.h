#pragma once

#include "SwaleInputData.h"
#include "SwaleProject.h"

#include <string>

// The inlet rating curve of solution method 3: depth in inches (column 1) against discharge in
// cfs (column 2), one point per grid row from row 1.

// Data rows: rows up to the first row whose two cells are both blank.
int CountRatingCurveRows(const SwaleProject &project);

struct RatingCurveFault
{
    std::string message;
    int row = 0; // 0 when the fault has no cell (fewer than two rows)
    int col = 0;
};

// Fills `table` from the grid and checks it: at least two rows, every cell numeric, starting at
// depth 0 with discharge 0, depths then discharges strictly increasing. Returns false with the
// first fault.
bool ValidateRatingCurve(const SwaleProject &project, RatingCurveTable &table,
                         RatingCurveFault &fault);

// Discharge (cfs) at a depth in feet by linear interpolation; false, with `discharge`
// untouched, when the depth lies outside the curve (it is never extrapolated).
bool LookupRatingCurve(const RatingCurveTable &table, double depth, double &discharge);
