#include "NumberText.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>

TEST(NumberRecognition, AcceptsTheNumbersOfTheInputBoxes)
{
    struct Case
    {
        const char *text;
        bool recognised;
    };
    const Case cases[] = {
        { "0", true },      { "  12.5  ", true }, { "-1", true },    { "+3", true },
        { "1,500", true },  { "1,500.25", true }, { "$12", true },   { "-$3.5", true },
        { ".035", true },   { "5.", true },       { "2.5e3", true }, { "1E-07", true },
        { "7e+2", true },   { "abc", false },     { "", false },     { "   ", false },
        { ".", false },     { "-", false },       { "1e", false },   { "1.2.3", false },
        { ",5", false },    { "5 5", false },     { "$-3", false },  { "e5", false },
        { "12abc", false }, { "1e5.5", false },   { "\t1", false },
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(isRecognisedNumber(c.text), c.recognised);
    }
}

TEST(NumberRecognition, LeadingNumberStopsAtTheFirstCharacterThatCannotContinue)
{
    struct Case
    {
        const char *text;
        double value;
    };
    const Case cases[] = {
        { "1,500", 1 },    { "2.5e3", 2500 },  { " 7 ", 7 },       { "5.", 5 },
        { ".035", 0.035 }, { "-.5", -0.5 },    { "+4", 4 },        { "1e", 1 },
        { "1e+", 1 },      { "3x", 3 },        { "$5", 0 },        { "abc", 0 },
        { "", 0 },         { "1E-07", 1e-07 }, { "12.5.6", 12.5 }, { "-0", 0 },
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_DOUBLE_EQ(leadingNumber(c.text), c.value);
    }
    EXPECT_TRUE(std::isinf(leadingNumber("1e999")));
}

TEST(NumberRecognition, IgnoresTheUsersLocale)
{
    // A German desktop writes "0,5"; the boxes keep the en-US rules regardless.
    if (!std::setlocale(LC_ALL, "de_DE.UTF-8"))
        std::setlocale(LC_NUMERIC, "C.UTF-8");
    EXPECT_DOUBLE_EQ(leadingNumber("0.5"), 0.5);
    EXPECT_EQ(NumberToDisplayText(0.5f), "0.5");
    std::setlocale(LC_ALL, "C");
}

TEST(NumberDisplay, FormatsSinglesWithSevenDigitsAndDoublesWithFifteen)
{
    struct Case
    {
        float value;
        const char *text;
    };
    const Case singles[] = {
        { 0.5f, "0.5" },
        { -0.25f, "-0.25" },
        { 0.0f, "0" },
        { 1234567.0f, "1234567" },
        { 12345678.0f, "1.234568E+07" },
        { 1e-07f, "1E-07" },
        { 10000.0f, "10000" },
        { 0.1f, "0.1" },
        { 1.0f / 3.0f, "0.3333333" },
    };
    for (const Case &c : singles) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(NumberToDisplayText(c.value), c.text);
    }
    EXPECT_EQ(NumberToDisplayText(1E-07), "1E-07");
    EXPECT_EQ(NumberToDisplayText(10000.0), "10000");
    EXPECT_EQ(NumberToDisplayText(0.596913984589019), "0.596913984589019");
    EXPECT_EQ(NumberToDisplayText(int32_t(-42)), "-42");
}

TEST(NumberDisplay, AddLeadingZeroMendsOnlyALeadingPeriod)
{
    EXPECT_EQ(AddLeadingZero(".5"), "0.5");
    EXPECT_EQ(AddLeadingZero("  .25 "), "0.25");
    EXPECT_EQ(AddLeadingZero("-.5"), "-.5"); // deliberately left as it is
    EXPECT_EQ(AddLeadingZero("12"), "12");
    EXPECT_EQ(AddLeadingZero(""), "");
}

TEST(NumberDisplay, RoundToSingleRoundsToNearestAndOverflowsToInfinity)
{
    EXPECT_EQ(RoundToSingle(1e-50), 0.0f);
    EXPECT_NE(RoundToSingle(0.0001), 0.0f);
    EXPECT_TRUE(std::isinf(RoundToSingle(1e39)));
    EXPECT_TRUE(std::isinf(RoundToSingle(-1e300)));
}
