// Two ways a faster normal-depth search goes wrong while looking right on the examples.

#include "ChannelHydraulics.h"
#include "LegacyCalc.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {
// A grassed channel, 2 ft bottom, 1 percent slope, n = 0.03, carrying 10 cfs.
SwaleInputData channel(double Z, double n)
{
    SwaleInputData data;
    data.PeakFlowRate = 10;
    data.BottomWidth = 2;
    data.LeftSideSlope = Z;
    data.RightSideSlope = Z;
    data.ChannelSlope = 0.01;
    data.RoughnessCoefficient = n;
    return data;
}

// sqrt(Z^2 + 1) with the square taken by the power routine, or by a plain product.
double sideLength(double Z)
{
    const volatile double two = 2.0; // an exponent the compiler cannot see
    return std::sqrt(std::pow(Z, two) + 1);
}
double squaredSideLength(double Z)
{
    return std::sqrt(Z * Z + 1);
}

TEST(NormalDepthTraps, SideLengthsSquareThroughThePowerRoutine)
{
    // Slopes for which pow(Z, 2.0) and Z * Z differ in the last bit (found by a scan of the
    // slopes typed with three decimals), enough to move the wetted perimeter at the depth found.
    const double kSlopes[] = { 9.072, 13.543, 17.341 };
    for (double Z : kSlopes) {
        SCOPED_TRACE(Z);
        SwaleInputData data = channel(Z, 0.03);
        CalcContext context;
        ASSERT_TRUE(SolveNormalDepth(data, context));
        const double d = data.NormalDepth;
        const double P = sideLength(Z) * d + 2 + sideLength(Z) * d;
        ASSERT_NE(P, squaredSideLength(Z) * d + 2 + squaredSideLength(Z) * d)
                << "the row no longer tells the two squares apart";
        EXPECT_EQ(data.WettedPerimeter, P);
        EXPECT_EQ(sectionGeometry(d, 2, Z, Z).P, P);
    }
}

TEST(NormalDepthTraps, TheRelativeErrorsSignDecidesEvenForANegativeTarget)
{
    // Validation rounds a roughness to single precision before its sign test, so -1E-50 passes
    // and the target section factor K is negative. The relative error (F - K) / K is then
    // negative at every depth: the trial keeps doubling until the area overflows. A search that
    // asked F > K would halve the trial instead and end elsewhere.
    struct Row
    {
        const char *name;
        double n;
        const char *message;
    };
    const Row kRows[] = {
        { "roughness -1E-50", -1E-50, "Arithmetic error in the calculation: overflow" },
        { "roughness -1E-300", -1E-300, "Arithmetic error in the calculation: overflow" },
        { "roughness 0", 0, "Arithmetic error in the calculation: division by zero" },
    };
    for (const Row &row : kRows) {
        SCOPED_TRACE(row.name);
        SwaleInputData data = channel(3, row.n);
        SwaleInputData before = data;
        CalcContext context;
        CalcContext legacyContext;
        EXPECT_FALSE(SolveNormalDepth(data, context));
        EXPECT_FALSE(legacy::SolveNormalDepth(before, legacyContext));
        EXPECT_EQ(context.CalculationErrorMessage, row.message);
        EXPECT_EQ(legacyContext.CalculationErrorMessage, row.message);
    }
}
} // namespace
