#include "OutputTable.h"

namespace {
constexpr unsigned method(int m)
{
    return 1u << m;
}
constexpr unsigned kAllMethods = method(1) | method(2) | method(3) | method(4);
constexpr unsigned kInfiltrationMethods = method(1) | method(2);
} // namespace

// "veolcity" is the caption's own spelling. Box 13 repeats box 3 inside the hydraulics group;
// under method 3 boxes 16 and 17 show the inlet's discharge and volume (see resultValue).
const std::array<OutputBoxInfo, kOutputCount + 1> kOutputBoxes = { {
        { 0, "", "", nullptr, 0 },
        { 1, "Length of channel, [L]", "ft", &SwaleInputData::ResultLength, kInfiltrationMethods },
        { 2, "Treatment Efficiency, [e]", "", &SwaleInputData::ResultEfficiency,
          kInfiltrationMethods | method(3) },
        { 3, "Factor of safety against erosion, [FSe]", "", &SwaleInputData::ErosionSafetyFactor,
          kAllMethods },
        { 4, "Peak runoff rate, [Qp]", "cfs", &SwaleInputData::PeakFlowRate, kAllMethods },
        { 5, "Volume of runoff (treatment volume), [Vr]", "ft\u00b3", &SwaleInputData::RunoffVolume,
          kAllMethods },
        { 6, "Runoff depth, [dr]", "in", &SwaleInputData::RunoffDepth, kAllMethods },
        { 7, "Normal depth of flow, [d]", "ft", &SwaleInputData::NormalDepth, kAllMethods },
        { 8, "Top width of water surface, [Wt]", "ft", &SwaleInputData::TopWidth, kAllMethods },
        { 9, "Cross-sectional flow area, [Ax]", "ft\u00b2", &SwaleInputData::FlowArea,
          kAllMethods },
        { 10, "Wetted perimeter, [P]", "ft", &SwaleInputData::WettedPerimeter, kAllMethods },
        { 11, "Hydraulic radius, [Rh]", "ft", &SwaleInputData::HydraulicRadius, kAllMethods },
        { 12, "Mean veolcity, [V]", "fps", &SwaleInputData::MeanVelocity, kAllMethods },
        { 13, "Factor of safety against erosion, [FSe]", "", &SwaleInputData::ErosionSafetyFactor,
          kAllMethods },
        { 14, "Design infiltration rate, [Id]", "ft/day", &SwaleInputData::DesignInfiltrationRate,
          kInfiltrationMethods },
        { 15, "Effective channel bottom area, [Ab]", "ft\u00b2",
          &SwaleInputData::EffectiveBottomArea, kInfiltrationMethods },
        { 16, "Infiltration rate at normal depth, [Qip]", "cfs",
          &SwaleInputData::InfiltrationAtNormalDepth, kInfiltrationMethods | method(3) },
        { 17, "Computed max infiltration volume, [Vm]", "ft\u00b3",
          &SwaleInputData::MaxInfiltrationVolume, kInfiltrationMethods | method(3) },
        { 18, "Available soil storage volume below channel, [Vs]", "ft\u00b3",
          &SwaleInputData::SoilStorageVolume, kInfiltrationMethods },
} };

const std::array<const char *, 6> kResultGroupTitles = {
    "",
    "Summary Of Results",
    "Runoff Hydrograph Calculations",
    "Channel Geometry Calculations",
    "Protection Against Erosion",
    "Infiltration Calculations",
};

const std::array<OutputGroup, 6> kOutputGroups = { {
        { 0, 0 },
        { 1, 3 },
        { 4, 6 },
        { 7, 12 },
        { 13, 13 },
        { 14, 18 },
} };

const OutputBoxInfo &outputBox(int index)
{
    if (index < 1 || index > kOutputCount)
        return kOutputBoxes[0];
    return kOutputBoxes[static_cast<size_t>(index)];
}

bool isOutputFilled(int index, int solutionMethod)
{
    if (solutionMethod < 1 || solutionMethod > kSolutionMethodCount)
        return false;
    return (outputBox(index).methods & method(solutionMethod)) != 0;
}

bool isOutputShown(int index, int solutionMethod, int channelFlowMethod)
{
    const bool infiltration = solutionMethod == 1 || solutionMethod == 2;
    const bool efficiency = infiltration || solutionMethod == 3;
    switch (index) {
    case 1: // length of channel
        return infiltration;
    case 2: // treatment efficiency
        return efficiency;
    case 6: // runoff depth
        return channelFlowMethod == 1;
    case 14: // design infiltration rate
    case 15: // effective bottom area
    case 18: // available soil storage
        return infiltration;
    case 16: // infiltration (or inlet discharge) rate at normal depth
    case 17: // its volume
        return efficiency;
    default:
        return index >= 1 && index <= 18;
    }
}

bool isResultGroupShown(int group, int solutionMethod)
{
    if (group == 5) // infiltration or inlet discharge: nothing of it for method 4
        return solutionMethod >= 1 && solutionMethod <= 3;
    return group >= 1 && group <= 5;
}

const char *outputCaption(int index, int solutionMethod, int channelFlowMethod)
{
    const bool inlet = solutionMethod == 3;
    const bool givenFlow = channelFlowMethod == 2;
    switch (index) {
    case 2:
        if (solutionMethod == 0)
            break;
        return inlet ? "Treatment/interception efficiency, [e]" : "Treatment efficiency, [e]";
    case 4:
        if (givenFlow)
            return "Channel inflow rate, [Qp]";
        break;
    case 5:
        if (givenFlow)
            return "Inflow volume (treatment volume), [Vr]";
        break;
    case 16:
        if (inlet)
            return "Potential dicharge rate at normal depth, [Qip]"; // the caption's own spelling
        break;
    case 17:
        if (inlet)
            return "Computed max discharge volume, [Vm]";
        break;
    default:
        break;
    }
    return outputBox(index).caption;
}

const char *resultGroupTitle(int group, int solutionMethod, int channelFlowMethod)
{
    if (group == 2 && channelFlowMethod == 2)
        return "Channel Inflow Calculations";
    if (group == 5 && solutionMethod == 3)
        return "Inlet Dicharge Calculations"; // the heading's own spelling
    if (group < 1 || group > 5)
        return kResultGroupTitles[0];
    return kResultGroupTitles[static_cast<size_t>(group)];
}
