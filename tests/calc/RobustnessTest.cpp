// Extreme numbers in every box, and properties that hold over thousands of random designs.
#include "Calculate.h"
#include "ChannelHydraulics.h"
#include "InputTable.h"
#include "OutputTable.h"
#include "Fixtures.h"
#include "NumberTexts.h"
#include "SolutionMethods.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

// Values at and beyond single precision's range, vanishingly small, and a negative zero.
const char *const kExtremes[] = { "1E+300", "1E-300", "1E+38", "3.4E+38", "3.5E+38", "-0" };

} // namespace

// Every numeric box at every extreme, under every method and flow option: the command either
// refuses the input, fails with a message, or shows finite numbers in exactly its boxes.
TEST(Robustness, ExtremeNumbersNeverReachTheBoxesAsNanOrInf)
{
    int outcomes[3] = {}; // results, refusals, failures
    for (int method = 1; method <= kSolutionMethodCount; ++method) {
        for (int flow = 1; flow <= kChannelFlowMethodCount; ++flow) {
            for (int box = 1; box <= kInputCount; ++box) {
                if (inputBox(box).kind != InputKind::Number)
                    continue;
                for (const char *extreme : kExtremes) {
                    SCOPED_TRACE(testing::Message() << "method " << method << ", flow " << flow
                                                    << ", box " << box << " = " << extreme);
                    SwaleProject project = validProject(method, flow);
                    project.inputText[static_cast<size_t>(box)] = extreme;
                    const CalculationOutcome outcome = Calculate(project);
                    ++outcomes[static_cast<int>(outcome.status)];
                    switch (outcome.status) {
                    case CalculationOutcome::Status::Ok:
                        for (int out = 1; out <= kOutputCount; ++out) {
                            const std::string &text = outcome.results[static_cast<size_t>(out)];
                            EXPECT_TRUE(isOutputFilled(out, method) ? isFiniteNumberText(text)
                                                                    : text.empty())
                                    << text;
                        }
                        break;
                    case CalculationOutcome::Status::Invalid:
                        EXPECT_FALSE(outcome.fault.message.empty());
                        break;
                    case CalculationOutcome::Status::Failed:
                        ASSERT_FALSE(outcome.failureMessages.empty());
                        EXPECT_FALSE(outcome.failureMessages.front().empty());
                        for (const std::string &message : outcome.failureMessages)
                            EXPECT_FALSE(holdsNanOrInfWord(message)) << message;
                        break;
                    }
                }
            }
        }
    }
    // The table reaches all three outcomes, so none of the branches above is idle.
    EXPECT_TRUE(outcomes[0] > 0 && outcomes[1] > 0 && outcomes[2] > 0);
}

namespace {

// A random swale an engineer might design, with a specified channel flow.
SwaleInputData randomDesign(std::mt19937 &random)
{
    auto pick = [&random](double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random);
    };
    SwaleInputData data;
    data.ChannelFlowMethod = 2;
    data.BottomWidth = pick(0.5, 20);
    data.LeftSideSlope = pick(0, 6);
    data.RightSideSlope = pick(0, 6);
    data.ChannelSlope = pick(0.001, 0.1);
    data.RoughnessCoefficient = pick(0.012, 0.1);
    data.ChannelFlowRate = pick(0.1, 200);
    data.FlowDuration = pick(5, 240);
    data.PermissibleVelocity = pick(1, 8);
    data.InfiltrationRate = pick(0.1, 10);
    data.InfiltrationSafetyFactor = pick(1, 5);
    data.SoilPorosity = pick(20, 50);
    data.WaterTableDepth = pick(1, 20);
    data.TreatmentEfficiency = pick(5, 95);
    return data;
}

constexpr unsigned kSeed = 20261122;
constexpr int kDesigns = 4000;

} // namespace

// Two properties over random designs. Manning's equation recovers the flow at the depth found:
// the search stops when the section factor is within 1E-07 percent of its target, and the flow
// is proportional to the section factor, so the flow is within one billionth of the peak (plus
// rounding). And the efficiency of the length that method 1 asks for is the efficiency it was
// asked for, as long as infiltration, not the soil's storage, sets that length and the soil
// cannot take the whole peak (then the efficiency is capped by the runoff volume instead).
TEST(Robustness, NormalDepthSatisfiesManningsEquationAndMethod2InvertsMethod1)
{
    std::mt19937 random(kSeed);
    int compared = 0;
    for (int i = 0; i < kDesigns; ++i) {
        SCOPED_TRACE(testing::Message() << "seed " << kSeed << ", design " << i);
        SwaleInputData required = randomDesign(random);
        SwaleInputData given = required;
        CalcContext context;
        ASSERT_TRUE(CalculateRequiredLength(required, context));
        const SectionGeometry g = sectionGeometry(required.NormalDepth, required.BottomWidth,
                                                  required.LeftSideSlope, required.RightSideSlope);
        const double Q = manningDischarge(required.RoughnessCoefficient, g.Ax, g.Rh,
                                          required.ChannelSlope);
        EXPECT_NEAR(Q / required.PeakFlowRate, 1.0, 1.1e-9);

        const double storageLength = required.MaxInfiltrationVolume
                / (required.WaterTableDepth * required.TopWidth * required.SoilPorosity / 100);
        const bool infiltrationGoverns = required.ResultLength > storageLength * (1 + 1e-12);
        if (!infiltrationGoverns || required.InfiltrationAtNormalDepth >= required.PeakFlowRate)
            continue;
        given.ChannelLength = required.ResultLength;
        ASSERT_TRUE(CalculateEfficiency(given, context));
        EXPECT_NEAR(given.ResultEfficiency, required.TreatmentEfficiency,
                    1e-9 * required.TreatmentEfficiency);
        ++compared;
    }
    EXPECT_GT(compared, kDesigns / 10); // the inversion was really exercised
}
