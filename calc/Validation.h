#pragma once

#include "Calculate.h"
#include "SwaleInputData.h"
#include "SwaleProject.h"

// The chosen optCalculate button, 1 to 4; 0 when none is chosen.
int GetSolutionMethod(const SwaleProject &project);
// The chosen optChannelFlow button, 1 or 2; 0 when none is chosen.
int GetChannelFlowOption(const SwaleProject &project);

// Checks the boxes the chosen methods need, in the program's fixed order, and fills the record
// from them. Stops at the first fault: returns false with its message and the place for the
// focus (an input box, a rating-curve cell, or none). Shows nothing itself.
bool ValidateInputData(const SwaleProject &project, SwaleInputData &data, ValidationFault &fault);
