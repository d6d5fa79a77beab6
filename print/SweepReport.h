#pragma once

#include "ReportContent.h"
#include "Sweep.h"

// The design explorer's page of the report: what was swept, and one result at evenly chosen
// points of the sweep (the reason in place of the value where a point has none), with the
// solve-for-target outcome when there is one. Printed after the results, on a page of its own
// when it fits on one.
ReportSection sweepReportSection(const SweepResult &sweep, int resultColumn,
                                 const SolveOutcome *solved);

constexpr int kSweepReportRows = 30; // points printed at most
