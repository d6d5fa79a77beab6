// Feeds arbitrary texts to number recognition and the leading-number parse, and the first eight
// bytes as a double to the rounding to single precision and the display texts. The checks:
// - recognition agrees with a regular expression of the accepted form;
// - the leading number is never NaN, ignores leading blanks and anything after the number, and
//   changes sign with a "-" put in front;
// - a recognised text without "," or "$" is read whole and gives the same value as strtod;
// - rounding to single precision is the nearest float, infinity beyond the float range;
// - a display text reads back (recognised, no "nan"/"inf") to the value within its digits.

#include "FuzzScratch.h"
#include "NumberText.h"
#include "NumberTexts.h"

#include <cfloat>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <regex>
#include <string>

namespace {
// std::regex recurses per character; longer texts are checked by the other rules only.
constexpr size_t kRegexLimit = 200;

bool sameValue(double a, double b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

bool recognisedByPattern(const std::string &text)
{
    static const std::regex pattern("^ *[+-]?\\$?([0-9][0-9,]*)?(\\.[0-9]*)?([eE][+-]?[0-9]+)? *$");
    std::smatch match;
    if (!std::regex_match(text, match, pattern))
        return false;
    const std::string mantissa = match[1].str() + match[2].str();
    return mantissa.find_first_of("0123456789") != std::string::npos;
}

void checkRecognition(const std::string &text)
{
    const bool recognised = isRecognisedNumber(text);
    if (text.size() <= kRegexLimit && recognised != recognisedByPattern(text))
        invariantBroken("recognition of \"" + text + "\" disagrees with the pattern");
    const std::string trimmed = trimBlanks(text);
    if (!recognised || trimmed.find_first_of(",$") != std::string::npos)
        return;
    char *end = nullptr;
    const double whole = std::strtod(trimmed.c_str(), &end);
    if (end != trimmed.c_str() + trimmed.size())
        invariantBroken("a recognised number is not read whole: \"" + text + "\"");
    if (!sameValue(leadingNumber(text), whole))
        invariantBroken("the leading number of a recognised number differs: \"" + text + "\"");
}

void checkLeadingNumber(const std::string &text)
{
    const double value = leadingNumber(text);
    if (std::isnan(value))
        invariantBroken("the leading number of \"" + text + "\" is NaN");
    if (!sameValue(leadingNumber(" " + text), value))
        invariantBroken("a leading blank changes the number of \"" + text + "\"");
    if (!sameValue(leadingNumber(text + "x"), value))
        invariantBroken("text after the number changes the number of \"" + text + "\"");
    const std::string trimmed = trimBlanks(text);
    if (!trimmed.empty()
        && (std::isdigit(static_cast<unsigned char>(trimmed[0])) || trimmed[0] == '.')
        && !sameValue(leadingNumber("-" + trimmed), -value))
        invariantBroken("a minus sign does not negate \"" + text + "\"");
    if (!sameValue(leadingNumber(AddLeadingZero(text)), value))
        invariantBroken("a leading zero changes the number of \"" + text + "\"");
}

// The display text of a finite value reads back to it within `relative` of its size.
void checkDisplayText(const std::string &text, double value, double relative)
{
    if (holdsNanOrInf(text) || !isRecognisedNumber(text) || AddLeadingZero(text) != text)
        invariantBroken("display text \"" + text + "\" is not a plain number");
    const double back = leadingNumber(text);
    // Rounded to its digits, a value next to the largest double reads back as infinity.
    if (std::isinf(back) && std::fabs(value) * (1 + relative) > DBL_MAX)
        return;
    if (std::fabs(back - value) > relative * std::fabs(value))
        invariantBroken("display text \"" + text + "\" is too far from its value");
}

// RoundToSingle keeps the sign and stays finite or overflows as the value does; both display
// texts read back close to what they show.
void checkRounding(double value)
{
    if (!std::isfinite(value))
        return;
    const float rounded = RoundToSingle(value);
    if (std::signbit(rounded) != std::signbit(value))
        invariantBroken("RoundToSingle(" + NumberToDisplayText(value) + ") changed the sign");
    checkDisplayText(NumberToDisplayText(value), value, 1e-14); // 15 digits
    if (std::isfinite(rounded))
        checkDisplayText(NumberToDisplayText(rounded), rounded, 1e-6); // 7 digits
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::string text(reinterpret_cast<const char *>(data), size);
    checkRecognition(text);
    checkLeadingNumber(text);

    uint8_t bits[sizeof(double)] = {};
    std::memcpy(bits, data, size < sizeof bits ? size : sizeof bits);
    double value;
    std::memcpy(&value, bits, sizeof value);
    checkRounding(value);
    checkRounding(leadingNumber(text));
    return 0;
}
