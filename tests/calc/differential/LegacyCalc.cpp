#include "LegacyCalc.h"

#include "Arithmetic.h"
#include "ChannelHydraulics.h"
#include "NumberText.h"
#include "OutputTable.h"

#include <cctype>
#include <cfloat>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace legacy {
namespace {
// The power routine as the compiler could not see through it: an exponent it cannot fold keeps
// the copy from squaring the base the way x * x would.
double checkedPow(double base, double exponent)
{
    if (base < 0.0 && std::floor(exponent) != exponent)
        raiseArithmeticFault(kNegativeSquareRootFault);
    const volatile double unknownExponent = exponent;
    return checkedFinite(std::pow(base, unknownExponent));
}

SectionGeometry sectionGeometryAt(double d, double B, double Z1, double Z2)
{
    SectionGeometry g;
    g.Ax = checkedFinite(Z1 * 0.5 * d * d + d * B + Z2 * 0.5 * d * d);
    // The squares go through the general power routine, as the side lengths always have.
    g.P = checkedFinite(checkedSqrt(checkedPow(Z1, 2.0) + 1) * d + B
                        + checkedSqrt(checkedPow(Z2, 2.0) + 1) * d);
    g.Rh = checkedDivide(g.Ax, g.P);
    return g;
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

// Advances `i` over digits; returns how many there were.
size_t skipDigits(const std::string &text, size_t &i)
{
    const size_t start = i;
    while (i < text.size() && isDigit(text[i]))
        ++i;
    return i - start;
}

// Advances `i` over an exponent ("E" or "e", optional sign, at least one digit) when one is there.
bool skipExponent(const std::string &text, size_t &i)
{
    if (i >= text.size() || (text[i] != 'E' && text[i] != 'e'))
        return false;
    size_t j = i + 1;
    if (j < text.size() && (text[j] == '+' || text[j] == '-'))
        ++j;
    if (skipDigits(text, j) == 0)
        return false;
    i = j;
    return true;
}

// The test process keeps the "C" locale, so "." is the decimal point for reading and printing.
std::string printed(const char *format, double value)
{
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, format, value);
    return buffer;
}
} // namespace

std::string trimBlanks(const std::string &text)
{
    const size_t first = text.find_first_not_of(' ');
    if (first == std::string::npos)
        return {};
    const size_t last = text.find_last_not_of(' ');
    return text.substr(first, last - first + 1);
}

bool isRecognisedNumber(const std::string &text)
{
    const std::string t = trimBlanks(text);
    size_t i = 0;
    if (i < t.size() && (t[i] == '+' || t[i] == '-'))
        ++i;
    if (i < t.size() && t[i] == '$')
        ++i;
    // Integer part: digits, with "," thousands separators allowed once a digit has been seen.
    size_t digits = skipDigits(t, i);
    while (digits > 0 && i < t.size() && (t[i] == ',' || isDigit(t[i]))) {
        ++i;
        digits += skipDigits(t, i);
    }
    if (i < t.size() && t[i] == '.') {
        ++i;
        digits += skipDigits(t, i);
    }
    if (digits == 0)
        return false;
    skipExponent(t, i);
    return i == t.size();
}

double leadingNumber(const std::string &text)
{
    const std::string t = trimBlanks(text);
    size_t i = 0;
    if (i < t.size() && (t[i] == '+' || t[i] == '-'))
        ++i;
    size_t digits = skipDigits(t, i);
    if (i < t.size() && t[i] == '.') {
        ++i;
        digits += skipDigits(t, i);
    }
    if (digits == 0)
        return 0.0;
    skipExponent(t, i);
    // strtod gives +-HUGE_VAL beyond the double range and 0 (or a subnormal) below it.
    return std::strtod(t.substr(0, i).c_str(), nullptr);
}

std::string NumberToDisplayText(float value)
{
    return printed("%.7G", static_cast<double>(value));
}

std::string AddLeadingZero(const std::string &text)
{
    const std::string t = trimBlanks(text);
    if (!t.empty() && t[0] == '.')
        return "0" + t;
    return t;
}

std::string resultText(double value)
{
    return AddLeadingZero(NumberToDisplayText(RoundToSingle(value)));
}

std::string CopyResultsToClipboard(const std::array<std::string, kOutputCount + 1> &texts)
{
    static const int kLastOfGroup[] = { 3, 6, 11, 13, 18 };
    std::string clip;
    int box = 1;
    for (int last : kLastOfGroup) {
        for (; box <= last; ++box)
            clip += texts[static_cast<size_t>(box)] + "\r\n";
        if (last != kOutputCount)
            clip += "\r\n";
    }
    return clip;
}

namespace {
bool searchNormalDepth(SwaleInputData &data, const CalcSettings &settings, CalcContext &context)
{
    const double B = data.BottomWidth;
    const double Z1 = data.LeftSideSlope;
    const double Z2 = data.RightSideSlope;
    const double K = checkedDivide(data.PeakFlowRate * data.RoughnessCoefficient,
                                   checkedSqrt(data.ChannelSlope) * kManningConstant);

    double d = 0.5; // ft
    double lowerBound = 0.0;
    double upperBound = 0.0;
    bool upperBoundFound = false;
    const auto maxIterations = static_cast<long>(std::nearbyint(settings.NormalDepthMaxIterations));

    for (long i = 1; i <= maxIterations; ++i) {
        const SectionGeometry g = sectionGeometryAt(d, B, Z1, Z2);
        data.FlowArea = g.Ax;
        data.WettedPerimeter = g.P;
        data.HydraulicRadius = g.Rh;
        const double F = checkedPow(g.Rh, 2.0 / 3.0) * g.Ax; // section factor, ft^(8/3)
        // The relative error is in percent, so a tolerance of 1E-07 stops at one billionth.
        const double err = checkedFinite(checkedDivide(F - K, K) * 100);
        if (std::fabs(err) < settings.NormalDepthTolerance) {
            data.NormalDepth = d;
            return true;
        }
        double next;
        if (err > 0) { // too deep
            next = (d + lowerBound) * 0.5;
            upperBound = d;
            upperBoundFound = true;
        } else if (upperBoundFound) {
            next = (upperBound + d) * 0.5;
            lowerBound = d;
        } else { // no upper bound yet: double the trial, 0.5, 1, 2, 4 ... ft
            lowerBound = d;
            next = d + d;
        }
        d = checkedFinite(next);
    }
    context.CalculationErrorMessage = "Unable to find Normal Depth of Flow at tolerance of "
            + ::NumberToDisplayText(settings.NormalDepthTolerance) + " and Maximum Iterations of "
            + ::NumberToDisplayText(settings.NormalDepthMaxIterations);
    return false;
}
} // namespace

bool SolveNormalDepth(SwaleInputData &data, CalcContext &context)
{
    return runGuarded(context, [&] { return searchNormalDepth(data, context.settings, context); });
}

} // namespace legacy
