#pragma once

#include "CalcContext.h"
#include "SwaleInputData.h"
#include "SwaleProject.h"

#include <array>
#include <string>

// A frozen copy of how the calculation core read and displayed numbers, and searched for the
// normal depth, before these were made fast. The differential test holds the fast versions to
// these, text for text and bit for bit. Do not change this copy.
namespace legacy {

std::string trimBlanks(const std::string &text);
bool isRecognisedNumber(const std::string &text);
double leadingNumber(const std::string &text);
std::string NumberToDisplayText(float value);
std::string AddLeadingZero(const std::string &text);

// The text of an output box: single precision, "%.7G", the leading zero.
std::string resultText(double value);
std::string CopyResultsToClipboard(const std::array<std::string, kOutputCount + 1> &texts);

// The normal-depth search with the side lengths worked out at every trial.
bool SolveNormalDepth(SwaleInputData &data, CalcContext &context);

} // namespace legacy
