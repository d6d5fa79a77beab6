// Extreme numbers in every box, and properties that hold over thousands of random designs.
#include "Calculate.h"
#include "ChannelHydraulics.h"
#include "InputTable.h"
#include "OutputTable.h"
#include "ProjectFixtures.h"
#include "SolutionMethods.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <random>
#include <sstream>

namespace {

std::string lower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

// A result text is a finite number as the display writes it, never "nan", "inf" or junk.
bool isFiniteNumberText(const std::string &text)
{
    if (text.empty() || lower(text).find("inf") != std::string::npos
        || lower(text).find("nan") != std::string::npos)
        return false;
    char *end = nullptr;
    const double value = std::strtod(text.c_str(), &end);
    return *end == '\0' && std::isfinite(value);
}

// Values at and beyond single precision's range, vanishingly small, and a negative zero.
const char *const kExtremes[] = { "1E+300", "1E-300", "1E+38", "3.4E+38", "3.5E+38", "-0" };

} // namespace

// Every numeric box at every extreme, under every method and flow option: the command either
// refuses the input, fails with a message, or shows finite numbers in exactly its boxes.
TEST(Robustness, ExtremeNumbersNeverReachTheBoxesAsNanOrInf)
{
    int outcomes[3] = { 0, 0, 0 };
    for (int method = 1; method <= kSolutionMethodCount; ++method) {
        for (int flow = 1; flow <= kChannelFlowMethodCount; ++flow) {
            for (int box = 1; box <= kInputCount; ++box) {
                if (inputBox(box).kind != InputKind::Number)
                    continue;
                for (const char *extreme : kExtremes) {
                    SwaleProject project = validProject(method, flow);
                    project.inputText[static_cast<size_t>(box)] = extreme;
                    const CalculationOutcome outcome = Calculate(project);
                    const std::string where = "method " + std::to_string(method) + ", flow "
                            + std::to_string(flow) + ", box " + std::to_string(box) + " = "
                            + extreme;
                    ++outcomes[static_cast<int>(outcome.status)];
                    switch (outcome.status) {
                    case CalculationOutcome::Status::Ok:
                        for (int out = 1; out <= kOutputCount; ++out) {
                            const std::string &text = outcome.results[static_cast<size_t>(out)];
                            if (isOutputFilled(out, method))
                                EXPECT_TRUE(isFiniteNumberText(text)) << where << ": " << text;
                            else
                                EXPECT_EQ(text, "") << where;
                        }
                        break;
                    case CalculationOutcome::Status::Invalid:
                        EXPECT_FALSE(outcome.fault.message.empty()) << where;
                        break;
                    case CalculationOutcome::Status::Failed:
                        ASSERT_FALSE(outcome.failureMessages.empty()) << where;
                        EXPECT_FALSE(outcome.failureMessages.front().empty()) << where;
                        for (const std::string &message : outcome.failureMessages)
                            EXPECT_EQ(lower(message).find("nan"), std::string::npos) << where;
                        break;
                    }
                }
            }
        }
    }
    // The table reaches all three outcomes, so none of the branches above is idle.
    RecordProperty("ok", outcomes[0]);
    RecordProperty("invalid", outcomes[1]);
    RecordProperty("failed", outcomes[2]);
    EXPECT_GT(outcomes[0], 0);
    EXPECT_GT(outcomes[1], 0);
    EXPECT_GT(outcomes[2], 0);
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

std::string describe(const SwaleInputData &d)
{
    std::ostringstream text;
    text.precision(17);
    text << "B " << d.BottomWidth << ", Z1 " << d.LeftSideSlope << ", Z2 " << d.RightSideSlope
         << ", Sc " << d.ChannelSlope << ", n " << d.RoughnessCoefficient << ", Qp "
         << d.ChannelFlowRate << ", duration " << d.FlowDuration << ", Kvu " << d.InfiltrationRate
         << ", FSi " << d.InfiltrationSafetyFactor << ", f " << d.SoilPorosity << ", hb "
         << d.WaterTableDepth << ", e " << d.TreatmentEfficiency;
    return text.str();
}

constexpr unsigned kSeed = 20261122;
constexpr int kDesigns = 4000;

} // namespace

// Manning's equation recovers the flow at the depth found. The search stops when the section
// factor is within 1E-07 percent of its target, and the flow is proportional to the section
// factor, so the flow is within one billionth of the peak (plus rounding).
TEST(Robustness, NormalDepthSatisfiesManningsEquation)
{
    std::mt19937 random(kSeed);
    for (int i = 0; i < kDesigns; ++i) {
        SwaleInputData data = randomDesign(random);
        data.PeakFlowRate = data.ChannelFlowRate;
        CalcContext context;
        ASSERT_TRUE(SolveNormalDepth(data, context)) << "seed " << kSeed << ": " << describe(data);
        const SectionGeometry g = sectionGeometry(data.NormalDepth, data.BottomWidth,
                                                  data.LeftSideSlope, data.RightSideSlope);
        const double Q = manningDischarge(data.RoughnessCoefficient, g.Ax, g.Rh, data.ChannelSlope);
        EXPECT_NEAR(Q / data.PeakFlowRate, 1.0, 1.1e-9)
                << "seed " << kSeed << ": " << describe(data);
    }
}

// The efficiency of the length that method 1 asks for is the efficiency it was asked for, as
// long as infiltration, not the soil's storage, sets that length and the soil cannot take the
// whole peak (then the efficiency is capped by the runoff volume instead).
TEST(Robustness, EfficiencyOfTheRequiredLengthIsTheDesiredOne)
{
    std::mt19937 random(kSeed);
    int compared = 0;
    for (int i = 0; i < kDesigns; ++i) {
        SwaleInputData required = randomDesign(random);
        SwaleInputData given = required;
        CalcContext context;
        ASSERT_TRUE(CalculateRequiredLength(required, context)) << describe(required);
        const double storageLength = required.MaxInfiltrationVolume
                / (required.WaterTableDepth * required.TopWidth * required.SoilPorosity / 100);
        const bool infiltrationGoverns = required.ResultLength > storageLength * (1 + 1e-12);
        if (!infiltrationGoverns || required.InfiltrationAtNormalDepth >= required.PeakFlowRate)
            continue;
        given.ChannelLength = required.ResultLength;
        ASSERT_TRUE(CalculateEfficiency(given, context)) << describe(given);
        EXPECT_NEAR(given.ResultEfficiency, required.TreatmentEfficiency,
                    1e-9 * required.TreatmentEfficiency)
                << "seed " << kSeed << ": " << describe(required);
        ++compared;
    }
    EXPECT_GT(compared, kDesigns / 10); // the property was really exercised
    RecordProperty("compared", compared);
}

// The same inputs give the same texts, byte for byte, however often they are calculated.
TEST(Robustness, ResultsDoNotChangeBetweenTwoCalculations)
{
    std::mt19937 random(kSeed);
    for (int i = 0; i < kDesigns / 4; ++i) {
        const SwaleInputData design = randomDesign(random);
        const int method = 1 + i % kSolutionMethodCount;
        SwaleProject project = validProject(method, 1 + (i / 4) % 2);
        const double values[] = { design.BottomWidth, design.LeftSideSlope, design.ChannelSlope,
                                  design.RoughnessCoefficient, design.ChannelFlowRate };
        const int boxes[] = { 5, 6, 8, 19, 15 };
        for (size_t k = 0; k < std::size(boxes); ++k)
            project.inputText[static_cast<size_t>(boxes[k])] = std::to_string(values[k]);
        const CalculationOutcome first = Calculate(project);
        const CalculationOutcome second = Calculate(project);
        EXPECT_EQ(first.status, second.status);
        EXPECT_EQ(first.results, second.results);
        EXPECT_EQ(first.clipboardText, second.clipboardText);
        EXPECT_EQ(first.failureMessages, second.failureMessages);
    }
}
