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
#include "Results.h"
#include "Validation.h"

#include <gtest/gtest.h>

#include <cctype>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>

namespace {
// Numbers at the edges of the double and single ranges, ties of the seventh digit, and texts
// that only just are (or are not) numbers.
const char *const kExtremeTexts[] = {
    "1E-50",
    "-1E-50",
    "1e308",
    "1.7976931348623157e308",
    "1e309",
    "-1e309",
    "4.9e-324",
    "1e-320",
    "2.2250738585072014e-308",
    "0",
    "-0",
    "0.0",
    "+0",
    "1E-07",
    "3.4028235e38",
    "3.4028236e38",
    "123456789012345678901234567890",
    "0.000000000000000000000000000001",
    "9999999.5",
    "12345675",
    "1.0000005",
    "1e-45",
    "7e-46",
    "1E+15",
    "1e-400",
    "1e400",
    "0.30000000000000004441",
    "65536.00390625",
    "1e22",
    "1e23",
    "-1e-7",
    "1e-5",
    "1e12",
};
const char *const kOddTexts[] = {
    "",      "   ",      "abc",           "1.2.3",   "1e",  "--1",
    "$-3",   "1 000",    "\t1",           ",5",      "1,",  "5,,0",
    "e5",    "\xc2\xbd", "0x10",          "inf",     "nan", "1e+",
    "+.5",   "-.5e-3",   "0000.0001",     ".",       "-",   "+",
    "$",     "$.5",      "1,234,567.891", "-$1,000", "5.",  "1e5.5",
    "12abc", "1,500",    "  +$0.75  ",    "1d5",
};
const char *const kTexts[]
        = { "", "Roadside swale", "  blanks  ", "\xc3\x9cml\xc3\xa4ut \xc2\xbd", "a,b\"c" };

// Plausible range of each numeric input box 4..23 (lower, upper); box 17 is the lining's text.
const double kRanges[20][2] = {
    { 10, 2000 },  { 0, 20 },    { 0.5, 10 },   { 0.5, 10 }, { 0.0005, 0.1 },
    { 10, 100 },   { 0.1, 50 },  { 0.1, 0.95 }, { 0.5, 10 }, { 5, 120 },
    { 5, 60 },     { 0.1, 500 }, { 5, 240 },    { 0, 0 },    { 1, 10 },
    { 0.01, 0.1 }, { 0.1, 10 },  { 1, 5 },      { 10, 50 },  { 0.5, 20 },
};

template<size_t N>
const char *pick(const char *const (&texts)[N], uint64_t r)
{
    return texts[r % N];
}

std::string withThousandsSeparators(const std::string &text)
{
    const size_t point = text.find_first_of(".eE");
    const size_t end = point == std::string::npos ? text.size() : point;
    std::string out = text.substr(0, end);
    for (size_t i = end; i > 3 && std::isdigit(static_cast<unsigned char>(out[i - 4])) != 0; i -= 3)
        out.insert(i - 3, ",");
    return out + text.substr(end);
}

// Seeded projects for the differential test: every solution method and both channel-flow
// methods, with plausible channels in varied spellings ("1,500", "$3", " +.5 ", "2.5E1"),
// extreme numbers (1E-50, 1E308, subnormals, beyond the double range), odd texts, rating curves
// that are too short, out of order or too low for the normal depth, and search settings that
// stop the search early.
class ProjectGenerator
{
public:
    explicit ProjectGenerator(uint64_t seed)
        : m_random(seed)
    { }

    SwaleProject nextProject()
    {
        SwaleProject project;
        project.solutionMethod
                = below(25) == 0 ? static_cast<int>(below(6)) : 1 + static_cast<int>(below(4));
        project.channelFlowMethod
                = below(25) == 0 ? static_cast<int>(below(4)) : 1 + static_cast<int>(below(2));
        const bool unusual = below(5) < 2; // two projects in five carry extreme or odd numbers
        for (int box = 1; box <= kInputCount; ++box) {
            std::string &text = project.inputText[static_cast<size_t>(box)];
            if (box <= 3 || box == 17)
                text = pick(kTexts, m_random());
            else
                text = numberText(kRanges[box - 4][0], kRanges[box - 4][1],
                                  unusual && below(6) == 0);
        }
        fillRatingCurve(project);
        return project;
    }

    CalcSettings nextSettings()
    {
        CalcSettings settings;
        if (below(20) != 0)
            return settings;
        const double iterations[] = { 0, 1, 2.5, 5, 30 };
        const double tolerances[] = { 1E-07, 0, 1E-03, 10 };
        settings.NormalDepthMaxIterations = iterations[below(5)];
        settings.NormalDepthTolerance = tolerances[below(4)];
        return settings;
    }

    // A float of any bit pattern: subnormals, infinities and NaNs included.
    float nextFloatBits()
    {
        const auto bits = static_cast<uint32_t>(m_random());
        float value;
        std::memcpy(&value, &bits, sizeof value);
        return value;
    }

private:
    uint64_t below(uint64_t n) { return m_random() % n; }

    double uniform(double low, double high)
    {
        return low + (high - low) * static_cast<double>(m_random() >> 11) * 0x1p-53;
    }

    // A value of the box's range in one of the spellings an engineer types.
    std::string plausibleText(double low, double high)
    {
        const double value = below(4) == 0 ? std::round(uniform(low, high)) : uniform(low, high);
        char buffer[64];
        switch (below(5)) {
        case 0:
            std::snprintf(buffer, sizeof buffer, "%.*f", static_cast<int>(2 + below(7)), value);
            break;
        case 1:
            std::snprintf(buffer, sizeof buffer, "%g", value);
            break;
        case 2:
            std::snprintf(buffer, sizeof buffer, "%.17g", value);
            break;
        case 3:
            std::snprintf(buffer, sizeof buffer, below(2) ? "%.3e" : "%E", value);
            break;
        default:
            std::snprintf(buffer, sizeof buffer, "%.9g", value);
            break;
        }
        std::string text = buffer;
        // Mostly plain; a "$" (whose leading number is 0) seldom, or few projects would pass.
        const uint64_t spelling = below(60);
        if (spelling < 3)
            return "  " + text + " ";
        if (spelling < 6)
            return "+" + text;
        if (spelling < 9)
            return withThousandsSeparators(text);
        if (spelling < 10)
            return "$" + text;
        if (spelling < 13 && text.rfind("0.", 0) == 0)
            return text.substr(1);
        return text;
    }

    std::string numberText(double low, double high, bool unusual)
    {
        if (!unusual || below(3) == 0)
            return plausibleText(low, high);
        switch (below(3)) {
        case 0:
            return pick(kExtremeTexts, m_random());
        case 1:
            return pick(kOddTexts, m_random());
        default:
            return "-" + plausibleText(low, high);
        }
    }

    // Depths in inches from 0 and discharges from 0, both rising; now and then a row short, a
    // cell odd or a pair out of order.
    void fillRatingCurve(SwaleProject &project)
    {
        const int rows = static_cast<int>(below(7));
        double depth = 0;
        double discharge = 0;
        for (int r = 1; r <= rows; ++r) {
            char d[32];
            char q[32];
            std::snprintf(d, sizeof d, "%.4g", depth);
            std::snprintf(q, sizeof q, "%.4g", discharge);
            project.setRatingCurveCell(r, 1, d);
            project.setRatingCurveCell(r, 2, q);
            depth += uniform(0.5, 12) * (below(20) == 0 ? -1 : 1);
            discharge += uniform(0.1, 40) * (below(20) == 0 ? -1 : 1);
        }
        if (rows > 0 && below(8) == 0)
            project.setRatingCurveCell(static_cast<int>(below(static_cast<uint64_t>(rows))) + 1,
                                       static_cast<int>(below(2)) + 1, pick(kOddTexts, m_random()));
    }

    std::mt19937_64 m_random;
};

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
