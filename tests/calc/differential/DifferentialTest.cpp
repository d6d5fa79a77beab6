// The fast number reading, display and normal-depth search against the frozen copy of the
// previous code, over generated projects: every text, fault, message and record field must be
// what it was. `calc_differential_tests --count N` sets the number of projects (scripts/
// differential.sh runs 100,000); `--all-floats` compares the display of every float in the range
// the fast formatter handles itself.

#include "Arithmetic.h"
#include "Calculate.h"
#include "ChannelHydraulics.h"
#include "Inflow.h"
#include "LegacyCalc.h"
#include "NumberText.h"
#include "OutputTable.h"
#include "ProjectGenerator.h"
#include "Results.h"
#include "Validation.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {
long g_projectCount = 3000;
bool g_allFloats = false;
constexpr uint64_t kSeed = 20261123;

uint64_t bitsOf(double value)
{
    uint64_t bits;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

// Records the first few differences; counts them all.
struct Differences
{
    long count = 0;
    std::string firstFew;

    void add(const std::string &where, const std::string &what)
    {
        if (++count <= 10)
            firstFew += where + ": " + what + "\n";
    }
    void compareText(const std::string &where, const std::string &now, const std::string &before)
    {
        if (now != before)
            add(where, "\"" + now + "\" was \"" + before + "\"");
    }
    void compareBits(const std::string &where, double now, double before)
    {
        if (bitsOf(now) != bitsOf(before))
            add(where, ::NumberToDisplayText(now) + " was " + ::NumberToDisplayText(before));
    }
};

void compareReading(const std::string &text, Differences &diff)
{
    const std::string where = "reading \"" + text + "\"";
    const bool recognised = legacy::isRecognisedNumber(text);
    const double value = legacy::leadingNumber(text);
    const NumberReading reading = readNumberText(text);
    const NumberReading::Kind kind = legacy::trimBlanks(text).empty() ? NumberReading::Kind::Blank
            : recognised                                              ? NumberReading::Kind::Number
                         : NumberReading::Kind::NotNumeric;
    if (reading.kind != kind)
        diff.add(where, "another kind of text");
    if (kind == NumberReading::Kind::Number)
        diff.compareBits(where, reading.value, value);
    if (isRecognisedNumber(text) != recognised)
        diff.add(where, "recognised differently");
    diff.compareBits(where + " leading number", leadingNumber(text), value);
    diff.compareText(where + " trimmed", trimBlanks(text), legacy::trimBlanks(text));
    diff.compareText(where + " with leading zero", AddLeadingZero(text),
                     legacy::AddLeadingZero(text));
}

void compareDisplay(float value, Differences &diff)
{
    diff.compareText("display", NumberToDisplayText(value), legacy::NumberToDisplayText(value));
}

// The search on the validated channel, as each solution method starts it.
void compareSearch(const SwaleProject &project, const CalcSettings &settings,
                   const CalculationOutcome &outcome, Differences &diff)
{
    SwaleInputData data;
    ValidationFault fault;
    if (!ValidateInputData(project, data, fault))
        return;
    try {
        computeInflow(data); // the inflow each method works out before its search
    } catch (const ArithmeticFault &) {
        return; // the method fails before its search (method 1 may still search: not compared)
    }
    SwaleInputData before = data;
    CalcContext now;
    CalcContext then;
    now.settings = then.settings = settings;
    const bool found = SolveNormalDepth(data, now);
    if (found != legacy::SolveNormalDepth(before, then))
        diff.add("search", found ? "found a depth" : "found no depth");
    diff.compareText("search message", now.CalculationErrorMessage, then.CalculationErrorMessage);
    diff.compareBits("NormalDepth", data.NormalDepth, before.NormalDepth);
    diff.compareBits("FlowArea", data.FlowArea, before.FlowArea);
    diff.compareBits("WettedPerimeter", data.WettedPerimeter, before.WettedPerimeter);
    diff.compareBits("HydraulicRadius", data.HydraulicRadius, before.HydraulicRadius);
    if (!found
        && outcome.failureMessages != std::vector<std::string> { then.CalculationErrorMessage })
        diff.add("failure messages", "not the search's message");
    if (outcome.status == CalculationOutcome::Status::Ok) {
        const SwaleInputData &record = outcome.record;
        diff.compareBits("record NormalDepth", record.NormalDepth, before.NormalDepth);
        diff.compareBits("record FlowArea", record.FlowArea, before.FlowArea);
        diff.compareBits("record WettedPerimeter", record.WettedPerimeter, before.WettedPerimeter);
        diff.compareBits("record HydraulicRadius", record.HydraulicRadius, before.HydraulicRadius);
    }
}

// Every value the record took from an input box is the box's number as it was read before.
void compareRecordInputs(const SwaleProject &project, const SwaleInputData &record,
                         Differences &diff)
{
    using D = SwaleInputData;
    static const std::pair<int, double D::*> kFields[] = {
        { 4, &D::ChannelLength },
        { 5, &D::BottomWidth },
        { 6, &D::LeftSideSlope },
        { 7, &D::RightSideSlope },
        { 8, &D::ChannelSlope },
        { 9, &D::TreatmentEfficiency },
        { 10, &D::DrainageArea },
        { 11, &D::RunoffCoefficient },
        { 12, &D::RainfallIntensity },
        { 13, &D::StormDuration },
        { 14, &D::TimeOfConcentration },
        { 15, &D::ChannelFlowRate },
        { 16, &D::FlowDuration },
        { 18, &D::PermissibleVelocity },
        { 19, &D::RoughnessCoefficient },
        { 20, &D::InfiltrationRate },
        { 21, &D::InfiltrationSafetyFactor },
        { 22, &D::SoilPorosity },
        { 23, &D::WaterTableDepth },
    };
    for (const auto &[box, field] : kFields) {
        if (bitsOf(record.*field) != 0) // +0: a box the method does not read
            diff.compareBits("input box " + std::to_string(box), record.*field,
                             legacy::leadingNumber(project.inputText[static_cast<size_t>(box)]));
    }
    diff.compareText("LiningType", record.LiningType, legacy::trimBlanks(project.inputText[17]));
}

void compareResults(const CalculationOutcome &outcome, Differences &diff)
{
    const SwaleInputData &record = outcome.record;
    for (int box = 1; box <= kOutputCount; ++box) {
        const std::string before = isOutputFilled(box, record.SolutionMethod)
                ? legacy::resultText(resultValue(record, box))
                : std::string();
        diff.compareText("output box " + std::to_string(box),
                         outcome.results[static_cast<size_t>(box)], before);
    }
    diff.compareText("clipboard", outcome.clipboardText,
                     legacy::CopyResultsToClipboard(outcome.results));
}

CalculationOutcome::Status compareProject(const SwaleProject &project, const CalcSettings &settings,
                                          Differences &diff)
{
    for (int box = 4; box <= kInputCount; ++box)
        compareReading(project.inputText[static_cast<size_t>(box)], diff);
    for (const auto &row : project.ratingCurve) {
        compareReading(row[0], diff);
        compareReading(row[1], diff);
    }
    const CalculationOutcome outcome = Calculate(project, settings);
    compareSearch(project, settings, outcome, diff);
    if (outcome.status == CalculationOutcome::Status::Ok) {
        compareRecordInputs(project, outcome.record, diff);
        compareResults(outcome, diff);
    }
    return outcome.status;
}

TEST(Differential, GeneratedProjectsCalculateAsBefore)
{
    ProjectGenerator generator(kSeed);
    Differences diff;
    long outcomes[3] = {};
    for (long i = 0; i < g_projectCount; ++i) {
        const SwaleProject project = generator.nextProject();
        const CalcSettings settings = generator.nextSettings();
        const long before = diff.count;
        ++outcomes[static_cast<int>(compareProject(project, settings, diff))];
        for (int k = 0; k < 16; ++k)
            compareDisplay(generator.nextFloatBits(), diff);
        if (diff.count > before && before < 10)
            diff.firstFew += "  in project " + std::to_string(i) + "\n";
    }
    std::printf("%ld projects: %ld results, %ld refused, %ld failed; %ld differences\n",
                g_projectCount, outcomes[0], outcomes[1], outcomes[2], diff.count);
    EXPECT_EQ(diff.count, 0) << diff.firstFew;
    // The generator must reach every kind of outcome, or the comparison proves little.
    EXPECT_GT(outcomes[0], g_projectCount / 10);
    EXPECT_GT(outcomes[1], g_projectCount / 10);
    EXPECT_GT(outcomes[2], g_projectCount / 100);
}

TEST(Differential, EveryFloatOfTheFastRangeDisplaysAsBefore)
{
    if (!g_allFloats)
        GTEST_SKIP() << "run with --all-floats (scripts/differential.sh does)";
    Differences diff;
    long compared = 0;
    // 2^-18 to 2^41 covers the fast formatter's range with a binade to spare at each end.
    const uint32_t first = (127u - 18u) << 23;
    const uint32_t last = (127u + 41u) << 23;
    for (uint32_t bits = first; bits < last; ++bits) {
        for (uint32_t sign : { 0u, 0x80000000u }) {
            const uint32_t b = bits | sign;
            float value;
            std::memcpy(&value, &b, sizeof value);
            compareDisplay(value, diff);
            ++compared;
        }
    }
    compareDisplay(0.0f, diff);
    compareDisplay(-0.0f, diff);
    std::printf("%ld floats compared; %ld differences\n", compared + 2, diff.count);
    EXPECT_EQ(diff.count, 0) << diff.firstFew;
}
} // namespace

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--count") == 0 && i + 1 < argc)
            g_projectCount = std::atol(argv[++i]);
        else if (std::strcmp(argv[i], "--all-floats") == 0)
            g_allFloats = true;
    }
    return RUN_ALL_TESTS();
}
