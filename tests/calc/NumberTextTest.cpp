#include "NumberText.h"

#include <gtest/gtest.h>

#include <clocale>

// The grammar of the boxes (what is recognised as a number, and the value of its leading number,
// the trimming and AddLeadingZero) and the display of single-precision values are held to the
// frozen copy of the previous code by the differential test, over generated spellings, odd texts
// and every float of the fast range; number_text_fuzzer holds them to a regular expression and
// strtod (make fuzz).
TEST(NumberRecognition, IgnoresTheUsersLocale)
{
    // A German desktop writes "0,5"; the boxes keep the en-US rules regardless.
    if (!std::setlocale(LC_ALL, "de_DE.UTF-8"))
        std::setlocale(LC_NUMERIC, "C.UTF-8");
    EXPECT_DOUBLE_EQ(leadingNumber("0.5"), 0.5);
    EXPECT_EQ(NumberToDisplayText(0.5f), "0.5");
    std::setlocale(LC_ALL, "C");
}

// Doubles (fifteen digits) and integers are shown in the search's and the rating curve's
// messages, which the differential test, CalculateTest and RatingCurveTest compare whole.
TEST(NumberDisplay, FormatsSinglesWithSevenDigits)
{
    struct Case
    {
        float value;
        const char *text;
    };
    const Case singles[] = {
        { -0.25f, "-0.25" },       { 0.0f, "0" },
        { 1234567.0f, "1234567" }, { 12345678.0f, "1.234568E+07" },
        { 1e-07f, "1E-07" },       { 1.0f / 3.0f, "0.3333333" },
    };
    for (const Case &c : singles) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(NumberToDisplayText(c.value), c.text);
    }
}
