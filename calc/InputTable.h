#pragma once

#include "SwaleProject.h"

#include <array>

enum class InputKind { Text, Number };

// One input box of the Input Data page: its caption, its unit label ("" for none), whether it
// holds free text or a number, and the bracketed symbol of its quantity ("" for none).
struct InputBoxInfo
{
    int index;
    const char *caption;
    const char *unit;
    InputKind kind;
    const char *symbol;
};

// The 23 input boxes; [0] is a blank entry so that kInputBoxes[i] describes txtInput(i).
extern const std::array<InputBoxInfo, kInputCount + 1> kInputBoxes;

// Captions of optCalculate(1..4) and optChannelFlow(1..2); [0] unused.
extern const std::array<const char *, kSolutionMethodCount + 1> kSolutionMethodCaptions;
extern const std::array<const char *, kChannelFlowMethodCount + 1> kChannelFlowMethodCaptions;

// Section headings of the Input Data page, lblInput(1..9) in page order; [0] unused.
extern const std::array<const char *, 10> kInputSectionHeadings;

// Caption and unit of input box `index` (1 to 23); a blank entry outside that range.
const InputBoxInfo &inputBox(int index);
