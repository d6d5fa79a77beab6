#include "ChannelHydraulics.h"

#include "Arithmetic.h"
#include "NumberText.h"

#include <cmath>

namespace {
// Wetted length of each side per unit depth, sqrt(Z^2 + 1). They depend on the side slopes only,
// so a search works them out once. The squares go through the general power routine, as the
// side lengths always have: Z * Z differs from it in the last bit for some slopes.
struct SideLengths
{
    double S1; // left side
    double S2; // right side
};

SideLengths sideLengths(double Z1, double Z2)
{
    return { checkedSqrt(checkedPow(Z1, 2.0) + 1), checkedSqrt(checkedPow(Z2, 2.0) + 1) };
}

SectionGeometry sectionGeometry(double d, double B, double Z1, double Z2, const SideLengths &s)
{
    SectionGeometry g;
    g.Ax = checkedFinite(Z1 * 0.5 * d * d + d * B + Z2 * 0.5 * d * d);
    g.P = checkedFinite(s.S1 * d + B + s.S2 * d);
    g.Rh = checkedDivide(g.Ax, g.P);
    return g;
}
} // namespace

SectionGeometry sectionGeometry(double d, double B, double Z1, double Z2)
{
    return sectionGeometry(d, B, Z1, Z2, sideLengths(Z1, Z2));
}

double topWidth(double d, double B, double Z1, double Z2)
{
    return checkedFinite(Z1 * d + B + Z2 * d);
}

double manningDischarge(double n, double Ax, double Rh, double Sc)
{
    return checkedFinite(checkedDivide(kManningConstant, n) * Ax * checkedPow(Rh, 2.0 / 3.0)
                         * checkedSqrt(Sc));
}

namespace {
bool searchNormalDepth(SwaleInputData &data, const CalcSettings &settings, CalcContext &context)
{
    const double B = data.BottomWidth;
    const double Z1 = data.LeftSideSlope;
    const double Z2 = data.RightSideSlope;
    const double K = checkedDivide(data.PeakFlowRate * data.RoughnessCoefficient,
                                   checkedSqrt(data.ChannelSlope) * kManningConstant);

    double d = 0.5; // ft
    double lowerBound = 0.0;
    double upperBound = 0.0;
    bool upperBoundFound = false;
    const auto maxIterations = static_cast<long>(std::nearbyint(settings.NormalDepthMaxIterations));
    // Only a search that makes a trial meets the faults of the side lengths.
    const SideLengths sides = maxIterations >= 1 ? sideLengths(Z1, Z2) : SideLengths {};

    for (long i = 1; i <= maxIterations; ++i) {
        const SectionGeometry g = sectionGeometry(d, B, Z1, Z2, sides);
        data.FlowArea = g.Ax;
        data.WettedPerimeter = g.P;
        data.HydraulicRadius = g.Rh;
        const double F = checkedPow(g.Rh, 2.0 / 3.0) * g.Ax; // section factor, ft^(8/3)
        // The relative error is in percent, so a tolerance of 1E-07 stops at one billionth.
        const double err = checkedFinite(checkedDivide(F - K, K) * 100);
        if (std::fabs(err) < settings.NormalDepthTolerance) {
            data.NormalDepth = d;
            return true;
        }
        double next;
        if (err > 0) { // too deep
            next = (d + lowerBound) * 0.5;
            upperBound = d;
            upperBoundFound = true;
        } else if (upperBoundFound) {
            next = (upperBound + d) * 0.5;
            lowerBound = d;
        } else { // no upper bound yet: double the trial, 0.5, 1, 2, 4 ... ft
            lowerBound = d;
            next = d + d;
        }
        d = checkedFinite(next);
    }
    context.CalculationErrorMessage = "Unable to find Normal Depth of Flow at tolerance of "
            + NumberToDisplayText(settings.NormalDepthTolerance) + " and Maximum Iterations of "
            + NumberToDisplayText(settings.NormalDepthMaxIterations);
    return false;
}
} // namespace

bool SolveNormalDepth(SwaleInputData &data, CalcContext &context)
{
    return runGuarded(context, [&] { return searchNormalDepth(data, context.settings, context); });
}

void computeHydraulicsAtNormalDepth(SwaleInputData &data)
{
    const double d = data.NormalDepth;
    data.TopWidth = topWidth(d, data.BottomWidth, data.LeftSideSlope, data.RightSideSlope);
    data.ChannelDischarge = manningDischarge(data.RoughnessCoefficient, data.FlowArea,
                                             data.HydraulicRadius, data.ChannelSlope);
    data.MeanVelocity = checkedDivide(data.ChannelDischarge, data.FlowArea);
    data.ErosionSafetyFactor = checkedDivide(data.PermissibleVelocity, data.MeanVelocity);
}
