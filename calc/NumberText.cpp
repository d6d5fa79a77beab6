#include "NumberText.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <locale.h>

namespace {
// The boxes follow the en-US rules whatever the user's locale: "." is the decimal point.
// Where the C library reads or prints a number, it runs under the "C" locale of this thread for
// the duration of one call.
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
size_t skipDigits(std::string_view text, size_t &i)
{
    const size_t start = i;
    while (i < text.size() && isDigit(text[i]))
        ++i;
    return i - start;
}

// Advances `i` over an exponent ("E" or "e", optional sign, at least one digit) when one is there.
bool skipExponent(std::string_view text, size_t &i)
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

std::string_view trimmedView(std::string_view text)
{
    const size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    const size_t last = text.find_last_not_of(' ');
    return text.substr(first, last - first + 1);
}

// Plain decimals without an exponent ("0.035", "-12.5", "1500"), the usual input, are read in
// place: when the digits make a whole number below 2^53 and there are at most 22 after the
// point, that number and the power of ten are exact doubles, so one division rounds the value
// correctly, exactly as strtod rounds it (Clinger's fast path). False for any other text.
bool plainDecimalValue(std::string_view number, double &value)
{
    static constexpr double kExactPowersOfTen[]
            = { 1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22 };
    size_t i = 0;
    const bool negative = !number.empty() && number[0] == '-';
    if (!number.empty() && (number[0] == '-' || number[0] == '+'))
        ++i;
    uint64_t whole = 0;
    int digits = 0;
    int fractionDigits = 0;
    bool point = false;
    for (; i < number.size(); ++i) {
        const char c = number[i];
        if (c == '.' && !point) {
            point = true;
            continue;
        }
        if (!isDigit(c) || digits == 19) // an exponent, or more digits than 64 bits hold
            return false;
        whole = whole * 10 + static_cast<uint64_t>(c - '0');
        ++digits;
        fractionDigits += point ? 1 : 0;
    }
    if (digits == 0 || whole > (uint64_t(1) << 53) || fractionDigits > 22)
        return false;
    value = static_cast<double>(whole) / kExactPowersOfTen[fractionDigits];
    if (negative)
        value = -value;
    return true;
}

// The value of a well-formed decimal number (sign, digits, fraction, exponent), rounded to
// nearest as strtod rounds it. Plain decimals are read in place; std::from_chars decides almost
// every other text without a copy or a locale; a text it does not read to the end, or a value
// beyond the double range (strtod then gives +-HUGE_VAL, or 0 or a subnormal below it), goes to
// strtod itself.
double decimalValue(std::string_view number)
{
    double value = 0.0;
    if (plainDecimalValue(number, value))
        return value;
    std::string_view unsigned_ = number;
    if (!unsigned_.empty() && unsigned_.front() == '+') // from_chars takes no plus sign
        unsigned_.remove_prefix(1);
    const char *last = unsigned_.data() + unsigned_.size();
    const std::from_chars_result read = std::from_chars(unsigned_.data(), last, value);
    if (read.ec == std::errc() && read.ptr == last)
        return value;
    CLocaleScope scope;
    return std::strtod(std::string(number).c_str(), nullptr);
}

// Length of the leading number at the start of a trimmed text; 0 when it has no digits.
size_t leadingNumberLength(std::string_view t)
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

struct NumberScan
{
    bool recognised = false;
    std::string_view leading; // the leading number's text; empty when it has no digits
};

// Recognises a trimmed text and finds its leading number in the same pass. In a recognised text
// the leading number is the whole text, unless a "$" comes first (no leading digits: 0) or a ","
// separator ends it after the first group of digits.
NumberScan scanNumber(std::string_view t)
{
    NumberScan scan;
    size_t i = 0;
    if (i < t.size() && (t[i] == '+' || t[i] == '-'))
        ++i;
    const bool dollar = i < t.size() && t[i] == '$';
    if (dollar)
        ++i;
    // Integer part: digits, with "," thousands separators allowed once a digit has been seen.
    size_t digits = skipDigits(t, i);
    size_t firstSeparator = std::string_view::npos;
    while (digits > 0 && i < t.size() && (t[i] == ',' || isDigit(t[i]))) {
        if (t[i] == ',' && firstSeparator == std::string_view::npos)
            firstSeparator = i;
        ++i;
        digits += skipDigits(t, i);
    }
    if (i < t.size() && t[i] == '.') {
        ++i;
        digits += skipDigits(t, i);
    }
    if (digits == 0)
        return scan;
    skipExponent(t, i);
    scan.recognised = i == t.size();
    if (scan.recognised && !dollar)
        scan.leading = t.substr(0, firstSeparator);
    return scan;
}

std::string printed(const char *format, double value)
{
    CLocaleScope scope;
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, format, value);
    return buffer;
}

// 10^0 to 10^12, exact.
constexpr uint64_t kPowersOfTen[]
        = { 1,        10,        100,        1000,        10000,        100000,       1000000,
            10000000, 100000000, 1000000000, 10000000000, 100000000000, 1000000000000 };

// The seven significant digits "%.7G" prints, as an integer from 1000000 to 9999999, and the
// decimal exponent of the first digit.
struct SevenDigits
{
    uint32_t digits;
    int exponent;
};

// The seven digits of a positive float, rounded to nearest with ties to even on the float's
// exact binary value, as printf rounds. The float is m 2^e with m below 2^24; within the range
// taken here, m 10^k and m 2^e fit a 64-bit integer, so the rounding is exact integer
// arithmetic. Every float of the range, both signs, is compared with printf by
// scripts/differential.sh; outside the range the caller falls back to printf.
bool sevenSignificantDigits(float magnitude, SevenDigits &out)
{
    uint32_t bits = 0;
    std::memcpy(&bits, &magnitude, sizeof bits);
    const int biased = static_cast<int>(bits >> 23);
    constexpr int kBias = 127;
    if (biased < kBias - 17 || biased >= kBias + 40) // 2^-17 (7.6E-06) up to 2^40 (1.1E+12)
        return false;
    const uint64_t m = (bits & 0x7FFFFFu) | 0x800000u;
    const int e = biased - kBias - 23;
    int X = ((e + 23) * 1233) >> 12; // floor(log10 2^(e + 23)): the exponent or one below it
    for (int attempt = 0; attempt < 3; ++attempt) {
        const int k = 6 - X; // value 10^k = q + rem / den
        if (k > 12)
            return false;
        uint64_t q, rem, den;
        if (k >= 0 && e < 0) {
            const uint64_t n = m * kPowersOfTen[k];
            den = uint64_t(1) << -e;
            q = n >> -e;
            rem = n & (den - 1);
        } else if (k >= 0) {
            q = (m * kPowersOfTen[k]) << e;
            rem = 0;
            den = 1;
        } else {
            const uint64_t n = m << e; // a value of 10^7 or more is an integer: e >= 0
            den = kPowersOfTen[-k];
            q = n / den;
            rem = n % den;
        }
        if (q >= 10000000) {
            ++X;
            continue;
        }
        if (q < 1000000) {
            --X;
            continue;
        }
        const uint64_t rest = den - rem;
        if (rem > rest || (rem == rest && (q & 1) != 0))
            ++q;
        if (q == 10000000) { // 9999999.5 rounds up to the next power of ten
            q = 1000000;
            ++X;
        }
        out = { static_cast<uint32_t>(q), X };
        return true;
    }
    return false;
}

// "%.7G" layout of seven digits: plain notation for exponents -4 to 6, else d.ddddddE+XX;
// trailing zeros and a bare decimal point are dropped.
std::string sevenDigitText(bool negative, const SevenDigits &s)
{
    char digits[7];
    uint32_t n = s.digits;
    for (int i = 6; i >= 0; --i) {
        digits[i] = static_cast<char>('0' + n % 10);
        n /= 10;
    }
    int count = 7;
    while (count > 1 && digits[count - 1] == '0')
        --count;

    char buffer[24];
    char *p = buffer;
    if (negative)
        *p++ = '-';
    const int X = s.exponent;
    if (X >= 0 && X < 7) {
        for (int i = 0; i <= X; ++i)
            *p++ = i < count ? digits[i] : '0';
        if (count > X + 1)
            *p++ = '.';
        for (int i = X + 1; i < count; ++i)
            *p++ = digits[i];
    } else if (X < 0 && X >= -4) {
        *p++ = '0';
        *p++ = '.';
        for (int i = 0; i < -X - 1; ++i)
            *p++ = '0';
        for (int i = 0; i < count; ++i)
            *p++ = digits[i];
    } else {
        *p++ = digits[0];
        if (count > 1)
            *p++ = '.';
        for (int i = 1; i < count; ++i)
            *p++ = digits[i];
        const int a = X < 0 ? -X : X; // at most 12 within the range of sevenSignificantDigits
        *p++ = 'E';
        *p++ = X < 0 ? '-' : '+';
        *p++ = static_cast<char>('0' + a / 10);
        *p++ = static_cast<char>('0' + a % 10);
    }
    return std::string(buffer, p);
}
} // namespace

std::string trimBlanks(const std::string &text)
{
    return std::string(trimmedView(text));
}

bool isBlank(std::string_view text)
{
    return text.find_first_not_of(' ') == std::string_view::npos;
}

NumberReading readNumberText(std::string_view text)
{
    NumberReading reading;
    const std::string_view t = trimmedView(text);
    if (t.empty())
        return reading;
    const NumberScan scan = scanNumber(t);
    if (!scan.recognised) {
        reading.kind = NumberReading::Kind::NotNumeric;
        return reading;
    }
    reading.kind = NumberReading::Kind::Number;
    reading.value = scan.leading.empty() ? 0.0 : decimalValue(scan.leading);
    return reading;
}

bool isRecognisedNumber(const std::string &text)
{
    return scanNumber(trimmedView(text)).recognised;
}

double leadingNumber(const std::string &text)
{
    const std::string_view t = trimmedView(text);
    const size_t length = leadingNumberLength(t);
    return length == 0 ? 0.0 : decimalValue(t.substr(0, length));
}

std::optional<double> recognisedNumberValue(const std::string &text)
{
    const std::string_view t = trimmedView(text);
    if (!scanNumber(t).recognised)
        return std::nullopt;
    std::string number;
    for (char c : t) {
        if (c != ',' && c != '$')
            number += c;
    }
    return decimalValue(number);
}

bool isReadInPart(const std::string &text)
{
    const std::string_view t = trimmedView(text);
    const NumberScan scan = scanNumber(t);
    return scan.recognised && scan.leading.size() < t.size();
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
    if (value == 0.0f)
        return std::signbit(value) ? "-0" : "0";
    SevenDigits s;
    if (sevenSignificantDigits(std::fabs(value), s))
        return sevenDigitText(std::signbit(value), s);
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

std::string AddLeadingZero(std::string text)
{
    const std::string_view t = trimmedView(text);
    if (t.size() != text.size()) // blanks to trim: rare, the display routine writes none
        text = std::string(t);
    if (!text.empty() && text[0] == '.')
        text.insert(0, 1, '0');
    return text;
}
