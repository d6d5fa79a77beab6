#include "HydraulicChecks.h"

#include "Arithmetic.h"
#include "ChannelHydraulics.h"

#include <cmath>

namespace {
// Depths searched for the critical state, ft. In logarithms every term below stays finite over
// the whole range for side slopes from 1E-6 to 1E+6, so the bracket never meets an overflow.
constexpr double kSmallestDepth = 1E-300;
constexpr double kLargestDepth = 1E+300;
// Width of the final bracket in log(d): a relative error of 1E-12 in the depth.
constexpr double kLogTolerance = 1E-12;

// log(A3 / T) - log(Q2 / g) at depth exp(x): negative below the critical depth, positive above.
// A3 / T grows with the depth (its derivative is A2 (3 - A Zs / T2) > 0 since A <= T d), so the
// root is unique. A = d (B + Zs d / 2), T = B + Zs d, with Zs = Z1 + Z2.
double criticalStateExcess(double x, double B, double Zs, double logTarget)
{
    const double d = std::exp(x);
    const double logA = x + std::log(B + Zs * d * 0.5);
    const double logT = std::log(B + Zs * d);
    return 3 * logA - logT - logTarget;
}

// The checks proper; every step goes through the checked arithmetic, so a fault leaves by an
// ArithmeticFault. `step` names the quantity being computed, for the fault's text.
void computeChecks(const SwaleInputData &r, HydraulicChecks &c, const char *&step)
{
    const double Q = r.PeakFlowRate; // cfs
    const double d = r.NormalDepth; // ft
    const double V = r.MeanVelocity; // ft/s
    const double B = r.BottomWidth, Z1 = r.LeftSideSlope, Z2 = r.RightSideSlope;

    step = "Critical velocity";
    const SectionGeometry critical = sectionGeometry(c.criticalDepth, B, Z1, Z2);
    c.criticalVelocity = checkedDivide(Q, critical.Ax);
    step = "Critical slope";
    // Manning's equation solved for the slope at the critical section.
    const double root
            = checkedDivide(Q * r.RoughnessCoefficient,
                            kManningConstant * critical.Ax * checkedPow(critical.Rh, 2.0 / 3.0));
    c.criticalSlope = checkedFinite(root * root);
    step = "Hydraulic depth";
    c.hydraulicDepth = checkedDivide(r.FlowArea, r.TopWidth);
    step = "Froude number";
    c.froude = checkedDivide(V, checkedSqrt(kGravity * c.hydraulicDepth));
    c.regime = regimeOf(c.froude);
    step = "Boundary shear";
    c.shearMean = checkedFinite(kUnitWeightOfWater * r.HydraulicRadius * r.ChannelSlope);
    c.shearMax = checkedFinite(kUnitWeightOfWater * d * r.ChannelSlope);
    step = "Specific energy";
    c.specificEnergy = checkedFinite(d + checkedDivide(V * V, 2 * kGravity));
    step = "Velocity ratio";
    c.velocityRatio = checkedDivide(V, r.PermissibleVelocity);
    if (r.SolutionMethod == 1 || r.SolutionMethod == 2) {
        step = "Residence time";
        c.residenceTime = checkedDivide(r.ResultLength, V) / 60; // s to min
    }
}
} // namespace

const char *regimeName(FlowRegime regime)
{
    switch (regime) {
    case FlowRegime::Subcritical:
        return "subcritical";
    case FlowRegime::NearCritical:
        return "near-critical";
    case FlowRegime::Supercritical:
        break;
    }
    return "supercritical";
}

FlowRegime regimeOf(double froude)
{
    if (froude < kNearCriticalFroudeLow)
        return FlowRegime::Subcritical;
    if (froude > kNearCriticalFroudeHigh)
        return FlowRegime::Supercritical;
    return FlowRegime::NearCritical;
}

bool findCriticalDepth(double Q, double B, double Z1, double Z2, double &dc, std::string &fault)
{
    const double Zs = Z1 + Z2;
    if (!(Q > 0) || !(B >= 0) || !(Zs >= 0) || !(B + Zs > 0) || !std::isfinite(Q + B + Zs)) {
        fault = "Critical depth: the flow must be above zero and the section must have a width.";
        return false;
    }
    const double logTarget = 2 * std::log(Q) - std::log(kGravity); // log(Q2 / g)
    double lo = std::log(kSmallestDepth);
    double hi = std::log(kLargestDepth);
    if (!(criticalStateExcess(lo, B, Zs, logTarget) < 0
          && criticalStateExcess(hi, B, Zs, logTarget) > 0)) {
        fault = "Critical depth: no depth from 1E-300 to 1E+300 ft carries the flow at the "
                "critical state.";
        return false;
    }
    // About 55 halvings of the 1400-wide bracket reach the tolerance.
    while (hi - lo > kLogTolerance) {
        const double mid = 0.5 * (lo + hi);
        if (criticalStateExcess(mid, B, Zs, logTarget) < 0)
            lo = mid;
        else
            hi = mid;
    }
    dc = std::exp(0.5 * (lo + hi));
    return true;
}

HydraulicChecks computeHydraulicChecks(const SwaleInputData &record)
{
    HydraulicChecks checks;
    if (!(record.NormalDepth > 0) || !(record.FlowArea > 0) || !(record.MeanVelocity > 0)) {
        checks.fault = "The hydraulic checks need the results of a successful calculation.";
        return checks;
    }
    if (!findCriticalDepth(record.PeakFlowRate, record.BottomWidth, record.LeftSideSlope,
                           record.RightSideSlope, checks.criticalDepth, checks.fault)) {
        checks.criticalDepth = 0;
        return checks;
    }
    const char *step = "";
    CalcContext context; // the core's one home for arithmetic faults reports through it
    if (!runGuarded(context, [&] {
            computeChecks(record, checks, step);
            return true;
        })) {
        checks = HydraulicChecks {};
        checks.fault = std::string(step) + ": " + context.CalculationErrorMessage;
    }
    return checks;
}
