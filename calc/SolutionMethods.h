#pragma once

#include "CalcContext.h"
#include "SwaleInputData.h"

// The four solution procedures. Each reads a record filled by validation, fills its computed
// fields and returns true; on failure it returns false with the reason in
// context.CalculationErrorMessage (possibly empty, as the program has always done) and any
// message it showed itself in context.shownMessages.

// Method 1: the channel length that infiltrates the desired share of the treatment volume.
[[nodiscard]] bool CalculateRequiredLength(SwaleInputData &data, CalcContext &context);
// Method 2: the treatment efficiency that a given channel length achieves.
[[nodiscard]] bool CalculateEfficiency(SwaleInputData &data, CalcContext &context);
// Method 3: an impervious channel discharging into an inlet with a rating curve.
[[nodiscard]] bool CalculateInletChannel(SwaleInputData &data, CalcContext &context);
// Method 4: an impervious channel without an inlet: hydraulics and erosion only.
[[nodiscard]] bool CalculateImperviousChannel(SwaleInputData &data, CalcContext &context);

// Runs the procedure of data.SolutionMethod; false for a method outside 1 to 4.
[[nodiscard]] bool runSolutionMethod(SwaleInputData &data, CalcContext &context);
