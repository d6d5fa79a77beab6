#include "Calculate.h"
#include "Fixtures.h"
#include "OutputTable.h"

#include <gtest/gtest.h>

using Status = CalculationOutcome::Status;

// Which boxes each method fills (box 13 repeating box 3) and their seven-digit texts are the
// golden files', one example per method. A refused input is swale-calc's row
// (tests/cli/CliTest.cpp); a failure on a zero roughness is the window's (tst_frmMainPages) and
// the normal-depth traps'.
TEST(Calculate, BeyondTheRatingCurveShowsTheDepthFoundThenAnEmptyBox)
{
    SwaleProject beyond = validProject(3);
    beyond.clearRatingCurve();
    setRatingCurve(beyond, { { "0", "0" }, { "2", "0.5" } }); // 2 in, the depth is 3.7 in
    const CalculationOutcome out = Calculate(beyond);
    ASSERT_EQ(out.status, Status::Failed);
    // The depth in fifteen digits as the search found it; the root is 0.306334559101491 ft.
    EXPECT_EQ(out.failureMessages,
              (std::vector<std::string> {
                      "The normal depth of flow (0.306334559107199 ft) exceeds the rating curve "
                      "data.",
                      "" }));
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

// Method 4's captions are the page layout test's (tst_PageLayout).
TEST(OutputTable, CaptionsFollowTheChosenOptions)
{
    struct Case
    {
        int box, method, flow;
        const char *caption;
    };
    const Case cases[] = {
        { 2, 3, 1, "Treatment/interception efficiency, [e]" },
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
}
