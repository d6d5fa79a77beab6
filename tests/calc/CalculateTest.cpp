#include "Calculate.h"
#include "ProjectFixtures.h"
#include "Results.h"

#include <gtest/gtest.h>

using Status = CalculationOutcome::Status;

TEST(Calculate, FillsTheBoxesOfEachMethod)
{
    // Which boxes hold a value under each method (1 = filled).
    const char *filled[] = {
        "",
        "111111111111111111",
        "111111111111111111",
        "011111111111100110",
        "001111111111100000",
    };
    for (int method = 1; method <= 4; ++method) {
        SCOPED_TRACE(method);
        const CalculationOutcome out = Calculate(validProject(method));
        ASSERT_EQ(out.status, Status::Ok) << (out.failureMessages.empty() ? out.fault.message : out.failureMessages[0]);
        for (int box = 1; box <= kOutputCount; ++box) {
            SCOPED_TRACE(box);
            EXPECT_EQ(!out.results[static_cast<size_t>(box)].empty(), filled[method][box - 1] == '1');
        }
        EXPECT_EQ(out.results[13], out.results[3]);
    }
}

TEST(Calculate, ShowsSevenDigitsWithALeadingZero)
{
    const CalculationOutcome out = Calculate(validProject(2));
    ASSERT_EQ(out.status, Status::Ok);
    EXPECT_EQ(out.results[1], "400");
    EXPECT_EQ(out.results[4], "3");
    EXPECT_EQ(out.results[5], "10800");
    EXPECT_EQ(out.results[6], "1.5");
    EXPECT_EQ(out.results[7], "0.3063346");
    EXPECT_EQ(out.results[14], "1");
    EXPECT_EQ(out.results[16], "0.0274881");
}

TEST(Calculate, PutsTheResultsOnTheClipboardInFiveGroups)
{
    const CalculationOutcome out = Calculate(validProject(4));
    ASSERT_EQ(out.status, Status::Ok);
    const auto &r = out.results;
    const std::string expected = "\r\n\r\n" + r[3] + "\r\n\r\n" + r[4] + "\r\n" + r[5] + "\r\n"
            + r[6] + "\r\n\r\n" + r[7] + "\r\n" + r[8] + "\r\n" + r[9] + "\r\n" + r[10] + "\r\n"
            + r[11] + "\r\n\r\n" + r[12] + "\r\n" + r[13] + "\r\n\r\n\r\n\r\n\r\n\r\n\r\n";
    EXPECT_EQ(out.clipboardText, expected);
}

TEST(Calculate, ReportsValidationFaultsAndFailuresInTheWindowsOrder)
{
    SwaleProject invalid = validProject(1);
    invalid.inputText[12] = "abc";
    CalculationOutcome out = Calculate(invalid);
    EXPECT_EQ(out.status, Status::Invalid);
    EXPECT_EQ(out.fault.input, 12);
    EXPECT_EQ(out.fault.message, "Data is not numeric.");

    SwaleProject beyond = validProject(3);
    beyond.clearRatingCurve();
    setRatingCurve(beyond, { { "0", "0" }, { "1", "0.5" } });
    out = Calculate(beyond);
    ASSERT_EQ(out.status, Status::Failed);
    ASSERT_EQ(out.failureMessages.size(), 2u); // the depth message, then the empty box
    EXPECT_EQ(out.failureMessages[1], "");

    SwaleProject rough = validProject(4);
    rough.inputText[19] = "0";
    out = Calculate(rough);
    ASSERT_EQ(out.status, Status::Failed);
    EXPECT_EQ(out.failureMessages,
              std::vector<std::string> { "Arithmetic error in the calculation: division by zero" });

    CalcSettings few;
    few.NormalDepthMaxIterations = 2;
    out = Calculate(validProject(1), few);
    ASSERT_EQ(out.status, Status::Failed);
    EXPECT_EQ(out.failureMessages.size(), 1u);
}

TEST(Calculate, RefusesAResultTooLargeForSinglePrecision)
{
    SwaleProject huge = validProject(4);
    huge.inputText[10] = "1e30";
    huge.inputText[12] = "1e10"; // Qp = 5E+39 cfs: finite, but no single holds it
    const CalculationOutcome out = Calculate(huge);
    ASSERT_EQ(out.status, Status::Failed);
    EXPECT_EQ(out.failureMessages,
              std::vector<std::string> { "Arithmetic error in the calculation: overflow" });
    for (const std::string &text : out.results)
        EXPECT_EQ(text, "");
}

TEST(Calculate, GivesTheSameTextsTwice)
{
    for (int method = 1; method <= 4; ++method) {
        const SwaleProject p = validProject(method, 2);
        EXPECT_EQ(Calculate(p).results, Calculate(p).results);
    }
}

TEST(Results, TextsMendALeadingPeriodOnly)
{
    EXPECT_EQ(resultText(0.5), "0.5");
    EXPECT_EQ(resultText(-0.25), "-0.25");
    EXPECT_EQ(resultText(12345678), "1.234568E+07");
    EXPECT_EQ(resultText(0.1), "0.1");
}
