#pragma once

#include "SwaleInputData.h"
#include "SwaleProject.h"

#include <array>
#include <string>

// The value that output box `index` (1 to 18) shows from the record; boxes 16 and 17 show the
// inlet's discharge and volume under solution method 3.
double resultValue(const SwaleInputData &data, int index);

// Display text of a result: single precision first, then the number-to-text routine, then the
// leading zero.
std::string resultText(double value);

// The texts WriteResults puts in txtOutput(1..18) for the record's solution method: a value in
// each box the method fills, "" in the others. Returns false, writing nothing, when a value is
// too large for single precision to display.
bool resultTexts(const SwaleInputData &data, std::array<std::string, kOutputCount + 1> &texts);

// The clipboard text of the results: each box's text and CR LF, groups 1-3, 4-6, 7-11, 12-13 and
// 14-18, with an empty line after each group but the last.
std::string CopyResultsToClipboard(const std::array<std::string, kOutputCount + 1> &texts);
