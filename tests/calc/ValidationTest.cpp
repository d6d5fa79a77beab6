#include "Fixtures.h"
#include "Validation.h"

#include <gtest/gtest.h>

namespace {
struct FaultCase
{
    const char *name;
    int solutionMethod;
    int channelFlowMethod;
    int box; // box to change; 0 for none
    const char *text;
    const char *message;
    int focusBox; // 0: no box gets the focus
};

const FaultCase kFaultCases[] = {
    { "no solution method", 0, 0, 0, "",
      "Solution method has not been chosen.  Choose analysis type.", 0 },
    { "no channel-flow method, method 4", 4, 0, 0, "",
      "Channel flow rate method has not been chosen.", 0 },
    { "blank length, method 2", 2, 1, 4, "   ", "Missing data.", 4 },
    { "negative length, method 2", 2, 1, 4, "-1", "Channel length must be greater than zero.", 4 },
    { "text in bottom width", 1, 1, 5, "abc", "Data is not numeric.", 5 },
    { "negative bottom width", 1, 1, 5, "-0.5",
      "Bottom width must be greater than or equal to zero.", 5 },
    { "zero left slope", 1, 1, 6, "0", "Left slope must be greater than zero.", 6 },
    { "zero efficiency, method 1", 1, 1, 9, "0", "Treatment efficiency must be greater than zero.",
      9 },
    { "zero drainage area", 3, 1, 10, "0", "Drainage area must be greater than zero.", 10 },
    { "zero channel flow", 4, 2, 15, "0", "Channel flow rate must be greater than zero.", 15 },
    { "zero permissible velocity", 4, 1, 18, "0", "Permissible velocity must be greater than zero.",
      18 },
    { "negative roughness", 4, 1, 19, "-0.01", "Roughness Coefficient must be greater than zero.",
      19 },
    { "zero infiltration rate", 1, 1, 20, "0",
      "Vertical infiltration rate must be greater than zero.", 20 },
};
} // namespace

TEST(ValidateInputData, ReportsTheFirstFaultWithItsMessageAndBox)
{
    for (const FaultCase &c : kFaultCases) {
        SCOPED_TRACE(c.name);
        SwaleProject p
                = validProject(c.solutionMethod == 0 ? 1 : c.solutionMethod, c.channelFlowMethod);
        p.solutionMethod = c.solutionMethod;
        if (c.box)
            p.inputText[static_cast<size_t>(c.box)] = c.text;
        SwaleInputData data;
        ValidationFault fault;
        EXPECT_FALSE(ValidateInputData(p, data, fault));
        EXPECT_EQ(fault.message, c.message);
        EXPECT_EQ(fault.place, c.focusBox ? FaultPlace::InputBox : FaultPlace::None);
        EXPECT_EQ(fault.input, c.focusBox);
    }
}

TEST(ValidateInputData, SkipsTheBoxesTheChosenMethodsDoNotNeed)
{
    struct Case
    {
        const char *name;
        int method;
        int flow;
        std::vector<int> blankBoxes;
    };
    const Case cases[] = {
        { "length and flow rate with method 1", 1, 1, { 4, 15, 16 } },
        { "efficiency with method 2", 2, 1, { 9 } },
        { "efficiency and soil with method 3", 3, 1, { 4, 9, 20, 21, 22, 23 } },
        { "hydrograph with given flow, method 4", 4, 2, { 4, 9, 10, 11, 12, 13, 14, 20, 23 } },
        { "job, engineer, date and lining", 4, 1, { 1, 2, 3, 17 } },
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        SwaleProject p = validProject(c.method, c.flow);
        for (int box : c.blankBoxes)
            p.inputText[static_cast<size_t>(box)] = "";
        SwaleInputData data;
        ValidationFault fault;
        EXPECT_TRUE(ValidateInputData(p, data, fault)) << fault.message;
    }
}

TEST(ValidateInputData, ChecksInTheProgramsOrder)
{
    // Both boxes 13 and 8 are wrong: the channel slope comes first.
    SwaleProject p = validProject(1);
    p.inputText[13] = "x";
    p.inputText[8] = "-1";
    SwaleInputData data;
    ValidationFault fault;
    ASSERT_FALSE(ValidateInputData(p, data, fault));
    EXPECT_EQ(fault.input, 8);
}

TEST(ValidateInputData, AcceptsZeroBottomWidthAndRoughnessInSinglePrecision)
{
    for (const char *text : { "0", "-1e-50", "0.0" }) {
        SCOPED_TRACE(text);
        SwaleProject p = validProject(4);
        p.inputText[5] = text;
        p.inputText[19] = text;
        SwaleInputData data;
        ValidationFault fault;
        EXPECT_TRUE(ValidateInputData(p, data, fault)) << fault.message;
    }
    // A strictly positive box compares in double precision: 1e-50 is above zero.
    SwaleProject p = validProject(4);
    p.inputText[6] = "1e-50";
    SwaleInputData data;
    ValidationFault fault;
    EXPECT_TRUE(ValidateInputData(p, data, fault));
    EXPECT_EQ(data.LeftSideSlope, 1e-50);
}

TEST(ValidateInputData, FillsTheRecordWithTheLeadingNumbers)
{
    SwaleProject p = validProject(2, 2);
    p.inputText[4] = " 1,500 "; // recognised, and read as 1
    p.inputText[17] = "  Bermuda grass  ";
    p.inputText[15] = "2.5e1";
    SwaleInputData data;
    ValidationFault fault;
    ASSERT_TRUE(ValidateInputData(p, data, fault)) << fault.message;
    EXPECT_EQ(data.SolutionMethod, 2);
    EXPECT_EQ(data.ChannelFlowMethod, 2);
    EXPECT_EQ(data.ChannelLength, 1.0);
    EXPECT_EQ(data.ChannelFlowRate, 25.0);
    EXPECT_EQ(data.LiningType, "Bermuda grass");
    EXPECT_EQ(data.BottomWidth, 4.0);
    EXPECT_EQ(data.SoilPorosity, 35.0);
    EXPECT_EQ(data.DrainageArea, 0.0); // channel-flow method 1's boxes are not read
    EXPECT_EQ(data.TreatmentEfficiency, 0.0); // only method 1 reads it
}

TEST(ValidateInputData, ChecksTheRatingCurveLastAndOnlyForMethod3)
{
    SwaleProject p = validProject(3);
    p.setRatingCurveCell(2, 2, "");
    SwaleInputData data;
    ValidationFault fault;
    ASSERT_FALSE(ValidateInputData(p, data, fault));
    EXPECT_EQ(fault.message, "Missing data.  (Rating curve:  Row 2, Col 2)");
    EXPECT_EQ(fault.place, FaultPlace::GridCell);
    EXPECT_EQ(fault.row, 2);
    EXPECT_EQ(fault.col, 2);

    p.inputText[19] = "abc"; // an input box fault comes before the curve
    ASSERT_FALSE(ValidateInputData(p, data, fault));
    EXPECT_EQ(fault.input, 19);

    p = validProject(4);
    p.clearRatingCurve();
    EXPECT_TRUE(ValidateInputData(p, data, fault));
}

TEST(GetSolutionMethod, GivesZeroOutsideTheOptions)
{
    SwaleProject p;
    for (int m : { -1, 0, 3, 5 }) {
        p.solutionMethod = m;
        p.channelFlowMethod = m;
        EXPECT_EQ(GetSolutionMethod(p), m == 3 ? 3 : 0);
        EXPECT_EQ(GetChannelFlowOption(p), 0);
    }
}
