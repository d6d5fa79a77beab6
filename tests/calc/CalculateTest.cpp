#include "Calculate.h"
#include "Fixtures.h"
#include "OutputTable.h"
#include "Results.h"

#include <gtest/gtest.h>

using Status = CalculationOutcome::Status;

TEST(Calculate, FillsTheBoxesOfEachMethod)
{
    // Which boxes hold a value under each method (1 = filled).
    const char *filled[] = {
        "", "111111111111111111", "111111111111111111", "011111111111100110", "001111111111100000",
    };
    for (int method = 1; method <= 4; ++method) {
        SCOPED_TRACE(method);
        const CalculationOutcome out = Calculate(validProject(method));
        ASSERT_EQ(out.status, Status::Ok)
                << (out.failureMessages.empty() ? out.fault.message : out.failureMessages[0]);
        for (int box = 1; box <= kOutputCount; ++box) {
            SCOPED_TRACE(box);
            EXPECT_EQ(!out.results[static_cast<size_t>(box)].empty(),
                      filled[method][box - 1] == '1');
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

TEST(OutputTable, CaptionsFollowTheChosenOptions)
{
    struct Case
    {
        int box, method, flow;
        const char *caption;
    };
    const Case cases[] = {
        { 2, 3, 1, "Treatment/interception efficiency, [e]" },
        { 2, 4, 1, "Treatment efficiency, [e]" },
        { 2, 0, 0, "Treatment Efficiency, [e]" },
        { 4, 1, 2, "Channel inflow rate, [Qp]" },
        { 5, 1, 1, "Volume of runoff (treatment volume), [Vr]" },
        { 5, 2, 2, "Inflow volume (treatment volume), [Vr]" },
        { 16, 3, 1, "Potential dicharge rate at normal depth, [Qip]" },
        { 17, 2, 1, "Computed max infiltration volume, [Vm]" },
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.caption);
        EXPECT_STREQ(outputCaption(c.box, c.method, c.flow), c.caption);
    }
    EXPECT_STREQ(resultGroupTitle(2, 1, 2), "Channel Inflow Calculations");
    EXPECT_STREQ(resultGroupTitle(5, 3, 1), "Inlet Dicharge Calculations");
    EXPECT_STREQ(resultGroupTitle(5, 4, 1), "Infiltration Calculations");
}

TEST(OutputTable, GroupsCoverEveryBoxOnce)
{
    int next = 1;
    for (int g = 1; g <= 5; ++g) {
        EXPECT_EQ(kOutputGroups[static_cast<size_t>(g)].first, next);
        next = kOutputGroups[static_cast<size_t>(g)].last + 1;
    }
    EXPECT_EQ(next, kOutputCount + 1);
    EXPECT_FALSE(isOutputFilled(1, 0));
    EXPECT_FALSE(isOutputFilled(1, 5));
}
