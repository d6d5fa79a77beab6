#include "SolutionMethods.h"

#include "Arithmetic.h"
#include "ChannelHydraulics.h"
#include "Inflow.h"
#include "NumberText.h"
#include "RatingCurve.h"

namespace {
constexpr double kSecondsPerDay = 86400; // ft/day to ft/s
constexpr double kSecondsPerMinute = 60;

// Soil storage below the channel, ft3: Vs = Wt L hb f / 100 (top width, not wetted perimeter;
// porosity in percent).
double soilStorage(const SwaleInputData &data, double L)
{
    return checkedFinite(data.TopWidth * L * data.WaterTableDepth * data.SoilPorosity / 100);
}

// Design infiltration rate Id = Kvu / FSi, ft/day.
double designInfiltrationRate(const SwaleInputData &data)
{
    return checkedDivide(data.InfiltrationRate, data.InfiltrationSafetyFactor);
}

// The infiltration rate (cfs) whose clipped hydrograph volume equals the required volume Vm:
// the roots of a x^2 - s x + c = 0 in x = 60 q, with a = Tc / (Qp 60), s = D + Tc, c = Vm.
// Both roots are kept in the record. When only the larger root is positive the smaller, not
// positive, root is still the one taken: the program has always chosen so.
bool infiltrationRateFromRoots(SwaleInputData &data, double &Qip)
{
    const double a = checkedDivide(data.TimeOfConcentration, data.PeakFlowRate * 60);
    const double s = data.StormDuration + data.TimeOfConcentration;
    const double c = data.MaxInfiltrationVolume;
    const double root = checkedSqrt(checkedFinite(checkedPow(s, 2.0) - 4 * a * c));
    data.LargerRoot = checkedDivide(checkedDivide(s + root, 2 * a), kSecondsPerMinute);
    data.SmallerRoot = checkedDivide(checkedDivide(s - root, 2 * a), kSecondsPerMinute);
    const double larger = data.LargerRoot;
    const double smaller = data.SmallerRoot;
    if (larger > 0) // both positive, or only the larger: MinOf gives the smaller either way
        Qip = MinOf(larger, smaller);
    else if (smaller > 0 && larger < 0)
        Qip = smaller;
    else
        return false;
    return true;
}

bool requiredLength(SwaleInputData &data, CalcContext &context)
{
    if (data.ChannelFlowMethod == 1) {
        data.RunoffDepth = checkedFinite(data.RainfallIntensity * data.RunoffCoefficient);
        data.PeakFlowRate = rationalPeakFlow(data);
    } else if (data.ChannelFlowMethod == 2) {
        data.RunoffDepth = 0;
        data.PeakFlowRate = data.ChannelFlowRate;
    } else {
        return false;
    }
    if (!SolveNormalDepth(data, context))
        return false;
    data.RunoffVolume = inflowVolume(data); // after the search, as the program always has
    data.MaxInfiltrationVolume = checkedFinite(data.RunoffVolume * data.TreatmentEfficiency / 100);
    computeHydraulicsAtNormalDepth(data);
    data.DesignInfiltrationRate = designInfiltrationRate(data);

    double Qip = 0;
    if (data.ChannelFlowMethod == 1) {
        if (!infiltrationRateFromRoots(data, Qip))
            return false;
    } else {
        Qip = checkedDivide(data.MaxInfiltrationVolume, data.FlowDuration * kSecondsPerMinute);
    }
    data.InfiltrationAtNormalDepth = Qip;
    data.EffectiveBottomArea
            = checkedDivide(Qip, checkedDivide(data.DesignInfiltrationRate, kSecondsPerDay));
    const double L1 = checkedDivide(data.EffectiveBottomArea, data.WettedPerimeter);
    const double L2 = checkedDivide(
            data.MaxInfiltrationVolume,
            checkedFinite(data.WaterTableDepth * data.TopWidth * data.SoilPorosity / 100));
    const double L = MaxOf(L1, L2); // the longer of infiltration area and soil storage
    data.ResultLength = L;
    data.ResultEfficiency = data.TreatmentEfficiency;
    data.SoilStorageVolume = soilStorage(data, L);
    return true;
}

bool efficiency(SwaleInputData &data, CalcContext &context)
{
    if (!computeInflow(data))
        return false;
    if (!SolveNormalDepth(data, context))
        return false;
    computeHydraulicsAtNormalDepth(data);
    const double L = data.ChannelLength;
    data.DesignInfiltrationRate = designInfiltrationRate(data);
    data.EffectiveBottomArea = checkedFinite(data.WettedPerimeter * L);
    data.InfiltrationAtNormalDepth = checkedFinite(
            checkedDivide(data.DesignInfiltrationRate, kSecondsPerDay) * data.EffectiveBottomArea);
    // Strictly greater: only then can the soil take the whole peak, and so all the inflow.
    if (data.InfiltrationAtNormalDepth > data.PeakFlowRate)
        data.MaxInfiltrationVolume = data.RunoffVolume;
    else
        data.MaxInfiltrationVolume = hydrographVolume(data, data.InfiltrationAtNormalDepth);
    data.SoilStorageVolume = soilStorage(data, L);
    // No cap: with a short storm and a long Tc the clipped volume can exceed Vr, e above 100.
    data.ResultEfficiency
            = checkedFinite(checkedDivide(MinOf(data.SoilStorageVolume, data.MaxInfiltrationVolume),
                                          data.RunoffVolume)
                            * 100);
    data.ResultLength = L;
    return true;
}

bool inletChannel(SwaleInputData &data, CalcContext &context)
{
    computeInflow(data);
    if (!SolveNormalDepth(data, context))
        return false;
    computeHydraulicsAtNormalDepth(data);
    double q = 0;
    if (!LookupRatingCurve(data.RatingCurve, data.NormalDepth, q)) {
        // Shown by the procedure itself; the command then shows its own, empty, failure box.
        context.shownMessages.push_back("The normal depth of flow ("
                                        + NumberToDisplayText(data.NormalDepth)
                                        + " ft) exceeds the rating curve data.");
        return false;
    }
    data.InletDischarge = q;
    // No test of q against Qp here: the clipped hydrograph is used even for a large inlet.
    data.InletVolume = hydrographVolume(data, q);
    data.ResultEfficiency = checkedFinite(checkedDivide(data.InletVolume, data.RunoffVolume) * 100);
    return true;
}

bool imperviousChannel(SwaleInputData &data, CalcContext &context)
{
    computeInflow(data);
    if (!SolveNormalDepth(data, context))
        return false;
    computeHydraulicsAtNormalDepth(data);
    data.DesignInfiltrationRate = 0;
    data.EffectiveBottomArea = 0;
    data.InfiltrationAtNormalDepth = 0;
    data.MaxInfiltrationVolume = 0;
    data.SoilStorageVolume = 0;
    data.ResultEfficiency = 0;
    return true;
}
} // namespace

bool CalculateRequiredLength(SwaleInputData &data, CalcContext &context)
{
    return runGuarded(context, [&] { return requiredLength(data, context); });
}

bool CalculateEfficiency(SwaleInputData &data, CalcContext &context)
{
    return runGuarded(context, [&] { return efficiency(data, context); });
}

bool CalculateInletChannel(SwaleInputData &data, CalcContext &context)
{
    return runGuarded(context, [&] { return inletChannel(data, context); });
}

bool CalculateImperviousChannel(SwaleInputData &data, CalcContext &context)
{
    return runGuarded(context, [&] { return imperviousChannel(data, context); });
}

bool runSolutionMethod(SwaleInputData &data, CalcContext &context)
{
    switch (data.SolutionMethod) {
    case 1:
        return CalculateRequiredLength(data, context);
    case 2:
        return CalculateEfficiency(data, context);
    case 3:
        return CalculateInletChannel(data, context);
    case 4:
        return CalculateImperviousChannel(data, context);
    default:
        return false;
    }
}
