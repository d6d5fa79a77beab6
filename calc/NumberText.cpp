#include "NumberText.h"

#include <cctype>
#include <cfloat>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <locale.h>

namespace {
// The boxes follow the en-US rules whatever the user's locale: "." is the decimal point.
// Reading and printing run under the "C" locale of this thread for the duration of one call.
class CLocaleScope
{
public:
    CLocaleScope()
        : m_previous(uselocale(cLocale()))
    { }
    ~CLocaleScope() { uselocale(m_previous); }
    CLocaleScope(const CLocaleScope &) = delete;
    CLocaleScope &operator=(const CLocaleScope &) = delete;

private:
    static locale_t cLocale()
    {
        static const locale_t locale = newlocale(LC_ALL_MASK, "C", static_cast<locale_t>(0));
        return locale;
    }
    locale_t m_previous;
};

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

std::string printed(const char *format, double value)
{
    CLocaleScope scope;
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, format, value);
    return buffer;
}

// Length of the leading number of the trimmed text `t`; 0 when it has no digits.
size_t leadingNumberLength(const std::string &t)
{
    size_t i = 0;
    if (i < t.size() && (t[i] == '+' || t[i] == '-'))
        ++i;
    size_t digits = skipDigits(t, i);
    if (i < t.size() && t[i] == '.') {
        ++i;
        digits += skipDigits(t, i);
    }
    if (digits == 0)
        return 0;
    skipExponent(t, i);
    return i;
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
    const size_t length = leadingNumberLength(t);
    if (length == 0)
        return 0.0;
    CLocaleScope scope;
    // strtod gives +-HUGE_VAL beyond the double range and 0 (or a subnormal) below it.
    return std::strtod(t.substr(0, length).c_str(), nullptr);
}

bool isReadInPart(const std::string &text)
{
    const std::string t = trimBlanks(text);
    return isRecognisedNumber(t) && leadingNumberLength(t) < t.size();
}

float RoundToSingle(double value)
{
    // Beyond FLT_MAX plus half a unit in the last place the nearest single is infinity; the
    // explicit test keeps the conversion defined for every double.
    constexpr double kSingleOverflow = 3.4028235677973366e38; // 2^128 - 2^103
    if (value >= kSingleOverflow)
        return HUGE_VALF;
    if (value <= -kSingleOverflow)
        return -HUGE_VALF;
    return static_cast<float>(value);
}

std::string NumberToDisplayText(float value)
{
    return printed("%.7G", static_cast<double>(value));
}

std::string NumberToDisplayText(double value)
{
    return printed("%.15G", value);
}

std::string NumberToDisplayText(int32_t value)
{
    return std::to_string(value);
}

std::string AddLeadingZero(const std::string &text)
{
    const std::string t = trimBlanks(text);
    if (!t.empty() && t[0] == '.')
        return "0" + t;
    return t;
}
