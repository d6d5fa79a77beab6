#include "InputTable.h"

// Captions and unit labels are the program's own texts; "?H : 1V" keeps its question mark.
const std::array<InputBoxInfo, kInputCount + 1> kInputBoxes = { {
        { 0, "", "", InputKind::Text, "" },
        { 1, "Job Name", "", InputKind::Text, "" },
        { 2, "Engineer", "", InputKind::Text, "" },
        { 3, "Date", "", InputKind::Text, "" },
        { 4, "Swale length, [L]", "ft", InputKind::Number, "L" },
        { 5, "Bottom width of channel, [B]", "ft", InputKind::Number, "B" },
        { 6, "Left side slope of channel, [Z1]", "?H : 1V", InputKind::Number, "Z1" },
        { 7, "Right side slope of channel, [Z2]", "?H : 1V", InputKind::Number, "Z2" },
        { 8, "Slope of channel, [Sc]", "ft/ft", InputKind::Number, "Sc" },
        { 9, "Desired treatment efficiency, [e]", "", InputKind::Number, "e" },
        { 10, "Drainage area entering channel, [A]", "acre", InputKind::Number, "A" },
        { 11, "Runoff coefficient, [C]", "", InputKind::Number, "C" },
        { 12, "Rainfall intensity, [ID]", "in/hr", InputKind::Number, "ID" },
        { 13, "Storm duration, [D]", "min", InputKind::Number, "D" },
        { 14, "Time of concentration, [Tc]", "min", InputKind::Number, "Tc" },
        { 15, "Channel flow rate, [Qp]", "cfs", InputKind::Number, "Qp" },
        { 16, "Duration of flow", "min", InputKind::Number, "" },
        { 17, "Lining Type", "", InputKind::Text, "" },
        { 18, "Permissible velocity, [Vp]", "feet per second", InputKind::Number, "Vp" },
        { 19, "Manning's roughness coefficient, [n]", "", InputKind::Number, "n" },
        { 20, "Unsaturated vertical infiltration rate, [Kvu]", "feet per day", InputKind::Number,
          "Kvu" },
        { 21, "Factor of Safety (for soil infiltration), [FSi]", "", InputKind::Number, "FSi" },
        { 22, "Soil Porosity, [f]", "", InputKind::Number, "f" },
        { 23, "Depth to water table from bottom of channel, [hb]", "ft", InputKind::Number, "hb" },
} };

const std::array<const char *, kSolutionMethodCount + 1> kSolutionMethodCaptions = {
    "",
    "Calculate required length of channel (with infiltration)",
    "Calculate efficiency of specified channel length (with infiltration)",
    "Calculate hydraulics of impervious channel with inlet",
    "Calculate hydraulics of impervious channel without inlet",
};

const std::array<const char *, kChannelFlowMethodCount + 1> kChannelFlowMethodCaptions = {
    "",
    "Calculate using runoff hydrograph",
    "Specify channel flow rate",
};

const std::array<const char *, 10> kInputSectionHeadings = {
    "",
    "Solution Method",
    "Channel Geometry",
    "Efficiency",
    "Channel Flow",
    "Runoff Hydrograph",
    "Channel Flow Rate",
    "Flow Velocity",
    "Aquifer",
    "Inlet Rating Curve",
};

const InputBoxInfo &inputBox(int index)
{
    if (index < 1 || index > kInputCount)
        return kInputBoxes[0];
    return kInputBoxes[static_cast<size_t>(index)];
}
