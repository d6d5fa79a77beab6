#include "ProjectGenerator.h"

#include <cctype>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <vector>

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
} // namespace

double ProjectGenerator::uniform(double low, double high)
{
    return low + (high - low) * static_cast<double>(m_random() >> 11) * 0x1p-53;
}

// A value of the box's range in one of the spellings an engineer types.
std::string ProjectGenerator::plausibleText(double low, double high)
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

std::string ProjectGenerator::numberText(double low, double high, bool unusual)
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
void ProjectGenerator::fillRatingCurve(SwaleProject &project)
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

SwaleProject ProjectGenerator::nextProject()
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
            text = numberText(kRanges[box - 4][0], kRanges[box - 4][1], unusual && below(6) == 0);
    }
    fillRatingCurve(project);
    return project;
}

CalcSettings ProjectGenerator::nextSettings()
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

float ProjectGenerator::nextFloatBits()
{
    const auto bits = static_cast<uint32_t>(m_random());
    float value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}
