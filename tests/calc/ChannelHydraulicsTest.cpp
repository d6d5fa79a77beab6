#include "ChannelHydraulics.h"

#include <gtest/gtest.h>

#include <cmath>

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

// The search's trials, stopping rule, messages and arithmetic faults are held to the frozen copy
// by the differential test; Manning's equation recovering the flow, by RobustnessTest.
TEST(SolveNormalDepth, MatchesAnIndependentSolution)
{
    const struct
    {
        const char *name;
        double Qp, B, Z1, Z2, Sc, n;
        double expectedDepth; // ft, root of Manning's equation by a secant search at 30 digits
    } cases[] = {
        { "grassed roadside swale", 10, 4, 3, 3, 0.01, 0.03, 0.596913984589019 },
        { "triangular (zero bottom)", 3, 0, 4, 4, 0.005, 0.035, 0.711574506370548 },
        { "unequal side slopes", 25, 2, 2, 5, 0.02, 0.045, 1.15635355599216 },
        { "large flow, flat slope", 2000, 10, 3, 3, 0.001, 0.024, 9.18989245483963 },
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        SwaleInputData data;
        data.PeakFlowRate = c.Qp;
        data.BottomWidth = c.B;
        data.LeftSideSlope = c.Z1;
        data.RightSideSlope = c.Z2;
        data.ChannelSlope = c.Sc;
        data.RoughnessCoefficient = c.n;
        CalcContext context;
        ASSERT_TRUE(SolveNormalDepth(data, context)) << context.CalculationErrorMessage;
        EXPECT_NEAR(data.NormalDepth, c.expectedDepth, 1e-9 * c.expectedDepth);
    }
}
