#pragma once

#include "SwaleInputData.h"
#include "SwaleProject.h"

#include <array>

// One output box of the Results page: caption (the one shown at start-up), unit, the record
// field it shows, and the solution methods under which it is filled (bit m set for method m).
struct OutputBoxInfo
{
    int index;
    const char *caption;
    const char *unit;
    double SwaleInputData::*field;
    unsigned methods;
};

// The 18 output boxes; [0] is a blank entry so that kOutputBoxes[i] describes txtOutput(i).
extern const std::array<OutputBoxInfo, kOutputCount + 1> kOutputBoxes;

// Result group headings lblOutput(1..5), as shown at start-up; [0] unused. Headings 2 and 5
// depend on the chosen options: see resultGroupTitle.
extern const std::array<const char *, 6> kResultGroupTitles;

// First and last output box of each result group 1..5; [0] unused.
struct OutputGroup
{
    int first;
    int last;
};
extern const std::array<OutputGroup, 6> kOutputGroups;

const OutputBoxInfo &outputBox(int index);

// True when output box `index` receives a value under `solutionMethod` (else it is left empty).
bool isOutputFilled(int index, int solutionMethod);

// True when the Results page shows output box `index` (1 to 18) for the chosen options; the
// others take no room there, and the command-line report leaves them out too.
bool isOutputShown(int index, int solutionMethod, int channelFlowMethod);
// True when the Results page shows the heading of result group `group` (1 to 5).
bool isResultGroupShown(int group, int solutionMethod);

// Caption of output box `index` for the chosen options: boxes 2, 4, 5, 16 and 17 change with the
// solution method or the channel-flow method. A method of 0 (none chosen) keeps the caption of
// the table.
const char *outputCaption(int index, int solutionMethod, int channelFlowMethod);

// Heading of result group `group` (1 to 5) for the chosen options.
const char *resultGroupTitle(int group, int solutionMethod, int channelFlowMethod);
