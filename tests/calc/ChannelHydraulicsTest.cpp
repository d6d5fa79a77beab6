#include "ChannelHydraulics.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {
struct NormalDepthCase
{
    const char *name;
    double Qp, B, Z1, Z2, Sc, n;
    double expectedDepth; // ft, root of Manning's equation by a secant search at 30 digits
};

const NormalDepthCase kCases[] = {
    { "grassed roadside swale", 10, 4, 3, 3, 0.01, 0.03, 0.596913984589019 },
    { "triangular (zero bottom)", 3, 0, 4, 4, 0.005, 0.035, 0.711574506370548 },
    { "unequal side slopes", 25, 2, 2, 5, 0.02, 0.045, 1.15635355599216 },
    { "large flow, flat slope", 2000, 10, 3, 3, 0.001, 0.024, 9.18989245483963 },
};

SwaleInputData record(const NormalDepthCase &c)
{
    SwaleInputData data;
    data.PeakFlowRate = c.Qp;
    data.BottomWidth = c.B;
    data.LeftSideSlope = c.Z1;
    data.RightSideSlope = c.Z2;
    data.ChannelSlope = c.Sc;
    data.RoughnessCoefficient = c.n;
    data.PermissibleVelocity = 5;
    return data;
}
} // namespace

TEST(SectionGeometry, MatchesHandCalculation)
{
    // d = 2 ft, B = 4, Z1 = 3, Z2 = 5: Ax = 3*2 + 8 + 5*2 = 24 ft2;
    // P = 2 sqrt(10) + 4 + 2 sqrt(26) = 20.52255... ft; Wt = 6 + 4 + 10 = 20 ft.
    const SectionGeometry g = sectionGeometry(2, 4, 3, 5);
    EXPECT_DOUBLE_EQ(g.Ax, 24.0);
    EXPECT_NEAR(g.P, 2 * std::sqrt(10.0) + 4 + 2 * std::sqrt(26.0), 1e-12);
    EXPECT_NEAR(g.Rh, 24.0 / g.P, 1e-12);
    EXPECT_DOUBLE_EQ(topWidth(2, 4, 3, 5), 20.0);
    // Triangle: B = 0, Z = 1, d = 1: Ax = 1, P = 2 sqrt(2).
    const SectionGeometry t = sectionGeometry(1, 0, 1, 1);
    EXPECT_DOUBLE_EQ(t.Ax, 1.0);
    EXPECT_NEAR(t.P, 2 * std::sqrt(2.0), 1e-15);
}

TEST(SolveNormalDepth, MatchesAnIndependentSolutionAndRecoversTheFlow)
{
    for (const NormalDepthCase &c : kCases) {
        SCOPED_TRACE(c.name);
        SwaleInputData data = record(c);
        CalcContext context;
        ASSERT_TRUE(SolveNormalDepth(data, context)) << context.CalculationErrorMessage;
        EXPECT_NEAR(data.NormalDepth, c.expectedDepth, 1e-9 * c.expectedDepth);
        const SectionGeometry g = sectionGeometry(data.NormalDepth, c.B, c.Z1, c.Z2);
        EXPECT_NEAR(manningDischarge(c.n, g.Ax, g.Rh, c.Sc), c.Qp, 1e-9 * c.Qp);
    }
}

TEST(SolveNormalDepth, ConvergesOnTheFirstTrialAtHalfAFoot)
{
    NormalDepthCase c = kCases[0];
    const SectionGeometry g = sectionGeometry(0.5, c.B, c.Z1, c.Z2);
    c.Qp = manningDischarge(c.n, g.Ax, g.Rh, c.Sc);
    SwaleInputData data = record(c);
    CalcContext context;
    context.settings.NormalDepthMaxIterations = 1; // a second trial would fail
    ASSERT_TRUE(SolveNormalDepth(data, context));
    EXPECT_EQ(data.NormalDepth, 0.5);
}

TEST(SolveNormalDepth, ReportsNonConvergenceWithTheSettingsAsText)
{
    SwaleInputData data = record(kCases[0]);
    CalcContext context;
    context.settings.NormalDepthMaxIterations = 10;
    EXPECT_FALSE(SolveNormalDepth(data, context));
    EXPECT_EQ(context.CalculationErrorMessage,
              "Unable to find Normal Depth of Flow at tolerance of 1E-07 and Maximum Iterations of "
              "10");
    EXPECT_EQ(data.NormalDepth, 0.0); // left as it was
    EXPECT_GT(data.FlowArea, 0.0); // the last trial's section
}

// Zero and tiny negative roughness are rows of NormalDepthTrapsTest.
TEST(SolveNormalDepth, TurnsArithmeticFaultsIntoMessages)
{
    SwaleInputData data = record(kCases[0]);
    data.PeakFlowRate = 1e308 * 10; // beyond the double range
    CalcContext context;
    EXPECT_FALSE(SolveNormalDepth(data, context));
    EXPECT_EQ(context.CalculationErrorMessage, "Arithmetic error in the calculation: overflow");
}

TEST(ErosionCheck, ReportsVelocityAndSafetyFactorAtNormalDepth)
{
    SwaleInputData data = record(kCases[0]);
    CalcContext context;
    ASSERT_TRUE(SolveNormalDepth(data, context));
    computeHydraulicsAtNormalDepth(data);
    EXPECT_NEAR(data.ChannelDischarge, 10, 1e-8);
    EXPECT_NEAR(data.MeanVelocity, 10 / data.FlowArea, 1e-9);
    EXPECT_NEAR(data.ErosionSafetyFactor, 5 / data.MeanVelocity, 1e-9);
    EXPECT_NEAR(data.TopWidth, 4 + 6 * 0.596913984589019, 1e-8);

    data.PermissibleVelocity = 1; // below the velocity: reported as it is
    computeHydraulicsAtNormalDepth(data);
    EXPECT_LT(data.ErosionSafetyFactor, 1.0);
}
