#include "HydraulicChecks.h"

#include "ChannelHydraulics.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {
struct Section
{
    const char *name;
    double Q, B, Z1, Z2;
};

// The record a solution method leaves: the normal depth of Q at slope Sc with roughness 0.035,
// and the section values there.
SwaleInputData solvedRecord(const Section &s, double Sc)
{
    SwaleInputData data;
    data.SolutionMethod = 4;
    data.PeakFlowRate = s.Q;
    data.BottomWidth = s.B;
    data.LeftSideSlope = s.Z1;
    data.RightSideSlope = s.Z2;
    data.ChannelSlope = Sc;
    data.RoughnessCoefficient = 0.035;
    data.PermissibleVelocity = 5;
    CalcContext context;
    EXPECT_TRUE(SolveNormalDepth(data, context)) << context.CalculationErrorMessage;
    computeHydraulicsAtNormalDepth(data);
    return data;
}

// The critical depth of the section, or -1 when it is refused with a reason.
double criticalDepth(const Section &s)
{
    double dc = 0;
    std::string fault;
    if (findCriticalDepth(s.Q, s.B, s.Z1, s.Z2, dc, fault))
        return dc;
    EXPECT_EQ(fault.rfind("Critical depth: ", 0), 0u) << fault;
    return -1;
}
} // namespace

// The critical depth worked out independently where one is given, and on extreme and degenerate
// sections the critical state Q2 T = g A3 recovered to 1E-9 relative, or the flow refused with a
// reason.
TEST(CriticalDepth, MatchesIndependentValuesAndSatisfiesTheCriticalState)
{
    constexpr double kRefused = -1;
    const struct
    {
        Section s;
        double expected; // ft; 0 where only the critical state is checked
        double relativeTolerance;
    } cases[] = {
        // Rectangle: dc = (q2 / g)^(1/3), q = Q / B = 10 cfs/ft; sides of 1E-6 move it by 5E-8.
        { { "nearly rectangular", 100, 10, 1E-6, 1E-6 }, 1.45897564697199, 1e-6 },
        // Triangle: Q2 2Z d = g Z3 d6, so dc = (2 Q2 / (g Z2))^(1/5).
        { { "triangle", 3, 0, 4, 4 }, 0.511280618782780, 1e-10 },
        // Trapezoids: bisection of Q2 T = g A3 in 40-digit decimals.
        { { "trapezoid B 20, Z 2", 400, 20, 2, 2 }, 2.14769602839823, 1e-10 },
        { { "asymmetric trapezoid", 25, 2, 2, 5 }, 1.01186493747876, 1e-10 },
        { { "steep-sided triangle", 10, 0, 1E-6, 1E-6 }, 0, 0 },
        { { "flat-sided triangle", 10, 0, 1E+6, 1E+6 }, 0, 0 },
        { { "one flat, one steep side", 10, 0, 1E-6, 1E+6 }, 0, 0 },
        { { "wide and flat", 10, 1000, 1E+6, 1E+6 }, 0, 0 },
        { { "tiny flow", 1E-12, 4, 3, 3 }, 0, 0 },
        { { "tiny flow in a triangle", 1E-30, 0, 3, 3 }, 0, 0 },
        { { "huge flow", 1E+12, 4, 3, 3 }, 0, 0 },
        { { "huge flow, steep triangle", 1E+30, 0, 1E-6, 1E-6 }, 0, 0 },
        { { "no flow", 0, 4, 3, 3 }, kRefused, 0 },
        { { "no width", 10, 0, 0, 0 }, kRefused, 0 },
        { { "critical depth below 1E-300 ft", 1E-300, 1E+300, 1, 1 }, kRefused, 0 },
    };
    for (const auto &[s, expected, tolerance] : cases) {
        SCOPED_TRACE(s.name);
        const double dc = criticalDepth(s);
        if (expected == kRefused) {
            EXPECT_EQ(dc, kRefused);
            continue;
        }
        ASSERT_GT(dc, 0);
        if (expected > 0) {
            EXPECT_NEAR(dc, expected, tolerance * expected);
        }
        const double A = sectionGeometry(dc, s.B, s.Z1, s.Z2).Ax;
        const double T = topWidth(dc, s.B, s.Z1, s.Z2);
        EXPECT_NEAR(s.Q * s.Q * T / (kGravity * A * A * A), 1, 1e-9);
    }
}

// At the critical slope the normal depth is the critical depth, and there Fr = 1.
TEST(HydraulicChecks, CriticalSlopeGivesBackTheCriticalDepth)
{
    const Section sections[] = {
        { "grassed trapezoid", 10, 4, 3, 3 },
        { "asymmetric trapezoid", 25, 2, 2, 5 },
        { "steep-sided narrow triangle", 0.5, 0, 0.01, 0.02 },
    };
    for (const Section &s : sections) {
        SCOPED_TRACE(s.name);
        const HydraulicChecks checks = computeHydraulicChecks(solvedRecord(s, 0.01));
        ASSERT_EQ(checks.fault, "");
        const SwaleInputData critical = solvedRecord(s, checks.criticalSlope);
        EXPECT_NEAR(critical.NormalDepth, checks.criticalDepth, 1e-8 * checks.criticalDepth);
        const HydraulicChecks atCritical = computeHydraulicChecks(critical);
        EXPECT_NEAR(atCritical.froude, 1.0, 1e-8);
        EXPECT_EQ(atCritical.regime, FlowRegime::NearCritical);
        EXPECT_NEAR(atCritical.criticalVelocity, critical.MeanVelocity,
                    1e-8 * critical.MeanVelocity);
    }
}

// d = 1 ft, B = 4, Z = 3: Ax = 7 ft2, Wt = 10 ft, P = 4 + 2 sqrt(10) ft; Q = 14 cfs, V = 2 ft/s,
// Sc = 0.01, Vp = 4 ft/s, L = 300 ft.
TEST(HydraulicChecks, MatchHandCalculation)
{
    SwaleInputData r;
    r.SolutionMethod = 2;
    r.NormalDepth = 1;
    r.BottomWidth = 4;
    r.LeftSideSlope = r.RightSideSlope = 3;
    r.ChannelSlope = 0.01;
    r.RoughnessCoefficient = 0.03;
    r.PeakFlowRate = 14;
    r.FlowArea = 7;
    r.TopWidth = 10;
    r.HydraulicRadius = 7 / (4 + 2 * std::sqrt(10.0)); // 0.677988 ft
    r.MeanVelocity = 2;
    r.PermissibleVelocity = 4;
    r.ResultLength = 300;
    const HydraulicChecks c = computeHydraulicChecks(r);
    ASSERT_EQ(c.fault, "");
    EXPECT_NEAR(c.hydraulicDepth, 0.7, 1e-12); // 7 / 10
    EXPECT_NEAR(c.froude, 0.421262732, 1e-9); // 2 / sqrt(32.2 * 0.7)
    EXPECT_EQ(c.regime, FlowRegime::Subcritical);
    EXPECT_NEAR(c.shearMean, 0.423069068, 1e-9); // 62.4 * 0.677988 * 0.01
    EXPECT_NEAR(c.shearMax, 0.624, 1e-12); // 62.4 * 1 * 0.01
    EXPECT_NEAR(c.specificEnergy, 1.062111801, 1e-9); // 1 + 4 / 64.4
    EXPECT_NEAR(c.velocityRatio, 0.5, 1e-12);
    ASSERT_TRUE(c.residenceTime.has_value());
    EXPECT_NEAR(*c.residenceTime, 2.5, 1e-12); // 300 ft / 2 ft/s = 150 s

    r.SolutionMethod = 3; // an inlet channel has no length of its own
    EXPECT_FALSE(computeHydraulicChecks(r).residenceTime.has_value());
}

TEST(HydraulicChecks, RegimeBandIncludesItsLimits)
{
    EXPECT_EQ(regimeOf(0.8599), FlowRegime::Subcritical);
    EXPECT_EQ(regimeOf(0.86), FlowRegime::NearCritical);
    EXPECT_EQ(regimeOf(1.13), FlowRegime::NearCritical);
    EXPECT_EQ(regimeOf(1.1301), FlowRegime::Supercritical);
}

// Degenerate records give values or a reason, never nan or inf.
TEST(HydraulicChecks, GiveAValueOrAReasonOnDegenerateRecords)
{
    SwaleInputData frictionless = solvedRecord({ "n = 0", 10, 4, 3, 3 }, 0.01);
    frictionless.RoughnessCoefficient = 0; // the validation lets it through
    SwaleInputData noVp = frictionless;
    noVp.PermissibleVelocity = 0;
    const struct
    {
        const char *name;
        SwaleInputData record;
        bool expectFault;
    } cases[] = {
        { "no calculation", SwaleInputData {}, true },
        { "roughness 0", frictionless, false },
        { "permissible velocity 0", noVp, true },
        { "steep narrow triangle", solvedRecord({ "", 10, 0, 1E-6, 1E-6 }, 0.01), false },
        { "flat wide sides", solvedRecord({ "", 10, 0, 1E+6, 1E+6 }, 0.01), false },
        { "tiny flow", solvedRecord({ "", 1E-9, 4, 3, 3 }, 0.01), false },
        { "huge flow", solvedRecord({ "", 1E+9, 4, 3, 3 }, 0.01), false },
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        const HydraulicChecks checks = computeHydraulicChecks(c.record);
        EXPECT_EQ(!checks.fault.empty(), c.expectFault) << checks.fault;
        for (double value : { checks.criticalDepth, checks.criticalVelocity, checks.criticalSlope,
                              checks.hydraulicDepth, checks.froude, checks.shearMean,
                              checks.shearMax, checks.specificEnergy, checks.velocityRatio })
            EXPECT_TRUE(std::isfinite(value));
    }
    EXPECT_EQ(computeHydraulicChecks(noVp).fault,
              "Velocity ratio: Arithmetic error in the calculation: division by zero");
    EXPECT_EQ(computeHydraulicChecks(frictionless).criticalSlope, 0.0);
}
