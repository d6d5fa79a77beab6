#include "Fixtures.h"
#include "SolutionMethods.h"
#include "Validation.h"

#include <gtest/gtest.h>

#include <algorithm>

// Every method stopping with the search's message when the search fails is the differential
// test's (generated projects with search settings that stop early).
//
// Expected values come from an independent evaluation of the formulas at 30 digits (Manning's
// equation solved by a secant search) for the fixture swale: B 4 ft, 3:1 sides, Sc 0.01,
// n 0.03, A 2 ac, C 0.5, ID 3 in/hr (Qp 3 cfs), D 60 min, Tc 10 min, Kvu 2 ft/day, FSi 2,
// f 35 percent, hb 3 ft.

namespace {
SwaleInputData validated(const SwaleProject &project)
{
    SwaleInputData data;
    ValidationFault fault;
    EXPECT_TRUE(ValidateInputData(project, data, fault)) << fault.message;
    return data;
}

// The record after a solution method ran on the project; the method must succeed.
SwaleInputData solved(const SwaleProject &project, bool (*method)(SwaleInputData &, CalcContext &))
{
    SwaleInputData data = validated(project);
    CalcContext context;
    EXPECT_TRUE(method(data, context)) << context.CalculationErrorMessage;
    return data;
}
} // namespace

TEST(CalculateEfficiency, MatchesTheIndependentEvaluation)
{
    const SwaleInputData data = solved(validProject(2), CalculateEfficiency);
    EXPECT_NEAR(data.NormalDepth, 0.306334559101491, 3e-9); // ft, at 3 cfs
    EXPECT_NEAR(data.TopWidth, 5.83800735460895, 1e-7);
    EXPECT_NEAR(data.ErosionSafetyFactor, 2.51143470451, 1e-8);
    EXPECT_DOUBLE_EQ(data.DesignInfiltrationRate, 1.0);
    EXPECT_NEAR(data.EffectiveBottomArea, 2374.97194623, 1e-5);
    EXPECT_NEAR(data.InfiltrationAtNormalDepth, 0.0274881012295, 1e-10);
    EXPECT_NEAR(data.MaxInfiltrationVolume, 115.298906022, 1e-6);
    EXPECT_NEAR(data.SoilStorageVolume, 2451.96308894, 1e-5);
    EXPECT_NEAR(data.ResultEfficiency, 1.06758246317, 1e-8);
    EXPECT_EQ(data.ResultLength, 400.0);
}

TEST(CalculateEfficiency, LimitsByPeakOrSoilStorageWithoutCapping)
{
    const struct
    {
        const char *name;
        const char *L, *Kvu, *hb, *D, *Tc;
        bool above100;
    } cases[] = {
        { "soil takes the whole peak: Vm = Vr", "400", "2000", "3", "60", "10", false },
        { "soil storage limits: e = Vs / Vr", "400", "2000", "0.01", "60", "10", false },
        // q below Qp on a hydrograph whose ramps outlast the storm
        { "short storm, long Tc: above 100 percent", "400", "30", "30", "5", "60", true },
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        SwaleProject p = validProject(2);
        p.inputText[4] = c.L;
        p.inputText[20] = c.Kvu;
        p.inputText[23] = c.hb;
        p.inputText[13] = c.D;
        p.inputText[14] = c.Tc;
        const SwaleInputData data = solved(p, CalculateEfficiency);
        if (data.InfiltrationAtNormalDepth > data.PeakFlowRate) {
            EXPECT_EQ(data.MaxInfiltrationVolume, data.RunoffVolume);
        }
        const double limiting = std::min(data.SoilStorageVolume, data.MaxInfiltrationVolume);
        EXPECT_NEAR(data.ResultEfficiency, limiting / data.RunoffVolume * 100, 1e-9);
        EXPECT_TRUE(!c.above100 || data.ResultEfficiency > 100.0) << data.ResultEfficiency;
    }
}

TEST(CalculateRequiredLength, MatchesTheIndependentEvaluation)
{
    const SwaleInputData data = solved(validProject(1), CalculateRequiredLength);
    EXPECT_NEAR(data.LargerRoot, 18.6884064384, 1e-8);
    EXPECT_NEAR(data.SmallerRoot, 2.31159356163, 1e-9);
    EXPECT_NEAR(data.InfiltrationAtNormalDepth, 2.31159356163, 1e-9);
    EXPECT_DOUBLE_EQ(data.MaxInfiltrationVolume, 10800 * 0.8);
    EXPECT_NEAR(data.EffectiveBottomArea, 199721.683725, 1e-3);
    EXPECT_NEAR(data.ResultLength, 33637.733539, 1e-4); // infiltration area governs
    EXPECT_NEAR(data.SoilStorageVolume, 206196.202583, 1e-3);
    EXPECT_EQ(data.ResultEfficiency, 80.0); // the desired efficiency, unchanged
    EXPECT_DOUBLE_EQ(data.RunoffDepth, 1.5);
}

TEST(CalculateRequiredLength, UnderGivenFlowTheAreaOrTheSoilStorageSetsTheLength)
{
    // Qp 4 cfs for 30 min: Vr 7200 ft3, Vm 5760 ft3, Qip = 5760 / 1800 = 3.2 cfs.
    SwaleProject p = validProject(1, 2);
    const SwaleInputData data = solved(p, CalculateRequiredLength);
    EXPECT_NEAR(data.NormalDepth, 0.360409589943, 1e-9);
    EXPECT_DOUBLE_EQ(data.InfiltrationAtNormalDepth, 3.2);
    EXPECT_NEAR(data.ResultLength, 44029.4712812, 1e-4);
    EXPECT_EQ(data.RunoffDepth, 0.0);
    EXPECT_EQ(data.LargerRoot, 0.0); // no roots under a given flow

    // Fast soil needs little area, but a shallow water table: soil storage sets the length.
    p.inputText[20] = "500";
    p.inputText[23] = "0.05";
    const SwaleInputData near = solved(p, CalculateRequiredLength);
    const double L2 = near.MaxInfiltrationVolume / (0.05 * near.TopWidth * 35 / 100);
    EXPECT_NEAR(near.ResultLength, L2, 1e-9 * L2);
    EXPECT_NEAR(near.SoilStorageVolume, near.MaxInfiltrationVolume, 1e-6);
}

TEST(CalculateRequiredLength, ANegativeDiscriminantIsAnArithmeticFault)
{
    // Asking the hydrograph for five times its own volume has no real infiltration rate.
    SwaleProject p = validProject(1);
    p.inputText[9] = "500";
    SwaleInputData data = validated(p);
    CalcContext context;
    EXPECT_FALSE(CalculateRequiredLength(data, context));
    EXPECT_EQ(context.CalculationErrorMessage,
              "Arithmetic error in the calculation: square root of a negative number");
}

TEST(CalculateInletChannel, InterpolatesTheRatingCurveAtTheNormalDepth)
{
    const SwaleInputData data = solved(validProject(3), CalculateInletChannel);
    EXPECT_NEAR(data.InletDischarge, 2.06334559101, 1e-9);
    EXPECT_NEAR(data.InletVolume, 7814.57247667, 1e-5);
    EXPECT_NEAR(data.ResultEfficiency, 72.3571525618, 1e-8);
    EXPECT_EQ(data.InfiltrationAtNormalDepth, 0.0);
}

TEST(CalculateInletChannel, UsesTheClippedHydrographEvenAboveThePeak)
{
    // An inlet that takes 10 cfs at 12 in while the peak is 3 cfs: q > Qp is not tested.
    SwaleProject p = validProject(3);
    p.clearRatingCurve();
    setRatingCurve(p, { { "0", "0" }, { "1", "50" }, { "12", "60" } });
    const SwaleInputData data = solved(p, CalculateInletChannel);
    const double q = data.InletDischarge;
    EXPECT_GT(q, data.PeakFlowRate);
    EXPECT_NEAR(data.InletVolume, q * (70 - q * 10 / 3) * 60, 1e-6);
}
