#include "PageRules.h"

#include "OutputTable.h"

namespace PageRules {
namespace {

// Methods 1 and 2 let water soak into the channel bed and need the soil below it.
bool withInfiltration(int solutionMethod)
{
    return solutionMethod == 1 || solutionMethod == 2;
}

} // namespace

bool isInputBoxShown(int index, int solutionMethod, int channelFlowMethod)
{
    if (index == 4) // the swale length is given only when its efficiency is asked for
        return solutionMethod == 2;
    if (index == 9) // the desired efficiency is given only when the length is asked for
        return solutionMethod == 1;
    if (index >= 10 && index <= 14)
        return channelFlowMethod == 1;
    if (index == 15 || index == 16)
        return channelFlowMethod == 2;
    if (index >= 20 && index <= 23)
        return withInfiltration(solutionMethod);
    return index >= 1 && index <= 23;
}

bool isInputSectionShown(int section, int solutionMethod, int channelFlowMethod)
{
    switch (section) {
    case 3: // Efficiency
        return solutionMethod == 1;
    case 5: // Runoff Hydrograph
        return channelFlowMethod == 1;
    case 6: // Channel Flow Rate
        return channelFlowMethod == 2;
    case 8: // Aquifer
        return withInfiltration(solutionMethod);
    case 9: // Inlet Rating Curve
        return isRatingCurveShown(solutionMethod);
    default:
        return section >= 1 && section <= 9;
    }
}

bool isRatingCurveShown(int solutionMethod)
{
    return solutionMethod == 3 || solutionMethod == 4;
}

bool isOutputBoxShown(int index, int solutionMethod, int channelFlowMethod)
{
    return isOutputShown(index, solutionMethod, channelFlowMethod);
}

bool isOutputHeadingShown(int group, int solutionMethod)
{
    return isResultGroupShown(group, solutionMethod);
}

} // namespace PageRules
