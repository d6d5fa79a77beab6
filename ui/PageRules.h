#pragma once

// Which items of the Input Data and Results pages the current choices show. A solution method
// or channel-flow method of 0 means that no option of that group is chosen. Hidden items take
// no room on their page.
namespace PageRules {

// Input box `index` (1 to 23).
bool isInputBoxShown(int index, int solutionMethod, int channelFlowMethod);
// Section `section` (1 to 9) of the Input Data page: its heading lblInput(section) and, for
// sections 2 and 5, the option group under it.
bool isInputSectionShown(int section, int solutionMethod, int channelFlowMethod);
// The rating-curve grid and its heading: methods 3 and 4. Choosing method 4 hides the grid and
// the layout that runs right after shows it again, so both impervious methods keep it in view.
bool isRatingCurveShown(int solutionMethod);

// Output box `index` (1 to 18).
bool isOutputBoxShown(int index, int solutionMethod, int channelFlowMethod);
// Result group heading lblOutput(group) (1 to 5).
bool isOutputHeadingShown(int group, int solutionMethod);

} // namespace PageRules
