#include "Validation.h"

#include "NumberText.h"
#include "RatingCurve.h"
#include "UserTexts.h"

namespace {
// How a box's value is compared with zero. Bottom width and roughness may be zero, and they are
// compared after rounding to single precision; every other box must be strictly positive.
enum class Bound { Positive, NonNegativeSingle };

struct NumericCheck
{
    int box;
    double SwaleInputData::*field;
    const char *message;
    Bound bound;
};

bool fail(ValidationFault &fault, const std::string &message, FaultPlace place, int input = 0)
{
    fault = ValidationFault();
    fault.message = message;
    fault.place = place;
    fault.input = input;
    return false;
}

// Reads one numeric box: "Missing data." when blank, "Data is not numeric." when it does not
// read as a number, the box's own message when the value is out of range; else stores it.
bool readNumber(const SwaleProject &project, const NumericCheck &check, SwaleInputData &data,
                ValidationFault &fault)
{
    const NumberReading reading = readNumberText(project.inputText[static_cast<size_t>(check.box)]);
    if (reading.kind == NumberReading::Kind::Blank)
        return fail(fault, kMissingDataMessage, FaultPlace::InputBox, check.box);
    if (reading.kind == NumberReading::Kind::NotNumeric)
        return fail(fault, kNotNumericMessage, FaultPlace::InputBox, check.box);
    const double value = reading.value;
    const bool inRange = check.bound == Bound::Positive ? value > 0 : RoundToSingle(value) >= 0;
    if (!inRange)
        return fail(fault, check.message, FaultPlace::InputBox, check.box);
    data.*check.field = value;
    return true;
}

bool readNumbers(const SwaleProject &project, std::initializer_list<NumericCheck> checks,
                 SwaleInputData &data, ValidationFault &fault)
{
    for (const NumericCheck &check : checks) {
        if (!readNumber(project, check, data, fault))
            return false;
    }
    return true;
}

using D = SwaleInputData;
constexpr Bound kPositive = Bound::Positive;

bool readChannelAndFlow(const SwaleProject &project, SwaleInputData &data, ValidationFault &fault)
{
    if (data.SolutionMethod == 2
        && !readNumbers(project,
                        { { 4, &D::ChannelLength, "Channel length must be greater than zero.",
                            kPositive } },
                        data, fault))
        return false;
    if (!readNumbers(
                project,
                { { 5, &D::BottomWidth, "Bottom width must be greater than or equal to zero.",
                    Bound::NonNegativeSingle },
                  { 6, &D::LeftSideSlope, "Left slope must be greater than zero.", kPositive },
                  { 7, &D::RightSideSlope, "Right slope must be greater than zero.", kPositive },
                  { 8, &D::ChannelSlope, "Slope of channel must be greater than zero.",
                    kPositive } },
                data, fault))
        return false;
    if (data.SolutionMethod == 1
        && !readNumbers(project,
                        { { 9, &D::TreatmentEfficiency,
                            "Treatment efficiency must be greater than zero.", kPositive } },
                        data, fault))
        return false;
    if (data.ChannelFlowMethod == 1)
        return readNumbers(
                project,
                { { 10, &D::DrainageArea, "Drainage area must be greater than zero.", kPositive },
                  { 11, &D::RunoffCoefficient, "Runoff coefficient must be greater than zero.",
                    kPositive },
                  { 12, &D::RainfallIntensity, "Rainfall intensity must be greater than zero.",
                    kPositive },
                  { 13, &D::StormDuration, "Storm duration must be greater than zero.", kPositive },
                  { 14, &D::TimeOfConcentration, "Time of concentration must be greater than zero.",
                    kPositive } },
                data, fault);
    return readNumbers(
            project,
            { { 15, &D::ChannelFlowRate, "Channel flow rate must be greater than zero.",
                kPositive },
              { 16, &D::FlowDuration, "Duration of flow must be greater than zero.", kPositive } },
            data, fault);
}

bool readLiningAndSoil(const SwaleProject &project, SwaleInputData &data, ValidationFault &fault)
{
    data.LiningType = trimBlanks(project.inputText[17]);
    // The test admits a roughness of 0, although the message asks for more than zero.
    if (!readNumbers(project,
                     { { 18, &D::PermissibleVelocity,
                         "Permissible velocity must be greater than zero.", kPositive },
                       { 19, &D::RoughnessCoefficient,
                         "Roughness Coefficient must be greater than zero.",
                         Bound::NonNegativeSingle } },
                     data, fault))
        return false;
    if (data.SolutionMethod != 1 && data.SolutionMethod != 2)
        return true;
    return readNumbers(
            project,
            { { 20, &D::InfiltrationRate, "Vertical infiltration rate must be greater than zero.",
                kPositive },
              { 21, &D::InfiltrationSafetyFactor, "Factor of safety must be greater than zero.",
                kPositive },
              { 22, &D::SoilPorosity, "Soil porosity must be greater than zero.", kPositive },
              { 23, &D::WaterTableDepth, "Depth to water table must be greater than zero.",
                kPositive } },
            data, fault);
}
} // namespace

int GetSolutionMethod(const SwaleProject &project)
{
    const int m = project.solutionMethod;
    return m >= 1 && m <= kSolutionMethodCount ? m : 0;
}

int GetChannelFlowOption(const SwaleProject &project)
{
    const int m = project.channelFlowMethod;
    return m >= 1 && m <= kChannelFlowMethodCount ? m : 0;
}

bool ValidateInputData(const SwaleProject &project, SwaleInputData &data, ValidationFault &fault)
{
    data.SolutionMethod = static_cast<int16_t>(GetSolutionMethod(project));
    if (data.SolutionMethod == 0)
        return fail(fault, "Solution method has not been chosen.  Choose analysis type.",
                    FaultPlace::None);
    data.ChannelFlowMethod = static_cast<int16_t>(GetChannelFlowOption(project));
    if (data.ChannelFlowMethod == 0)
        return fail(fault, "Channel flow rate method has not been chosen.", FaultPlace::None);
    if (!readChannelAndFlow(project, data, fault) || !readLiningAndSoil(project, data, fault))
        return false;
    if (data.SolutionMethod == 3) {
        RatingCurveFault curveFault;
        if (!ValidateRatingCurve(project, data.RatingCurve, curveFault)) {
            fault = ValidationFault();
            fault.message = curveFault.message;
            fault.place = curveFault.row > 0 ? FaultPlace::GridCell : FaultPlace::None;
            fault.row = curveFault.row;
            fault.col = curveFault.col;
            return false;
        }
    }
    return true;
}
