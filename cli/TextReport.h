#pragma once

#include "Calculate.h"
#include "SwaleProject.h"

#include <string>

// The readable output of swale-calc.

// The job lines, the chosen options, then the result groups and rows that the Results page shows
// for those options: caption, value and unit.
std::string resultsReport(const SwaleProject &project, const CalculationOutcome &outcome);

// What the window would show for a failed validation or calculation: the message(s), and for a
// validation fault the box or rating-curve cell that would receive the focus.
std::string faultReport(const CalculationOutcome &outcome);

// One error line of the readable output: "Error: " + `message` + a line feed.
std::string errorLine(const std::string &message);
