#include "Fixtures.h"
#include "Validation.h"

#include <gtest/gtest.h>

namespace {
// One row per message: the box changed (0 for none), its text, and the box given the focus.
struct FaultCase
{
    const char *name;
    int solutionMethod;
    int channelFlowMethod;
    int box;
    const char *text;
    const char *message;
    int focusBox; // 0: no box gets the focus
};

const FaultCase kFaultCases[] = {
    { "solution method beyond the options", 5, 1, 0, "",
      "Solution method has not been chosen.  Choose analysis type.", 0 },
    { "channel-flow method beyond the options", 4, 3, 0, "",
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
        SwaleProject p = validProject(c.solutionMethod, c.channelFlowMethod);
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

TEST(ValidateInputData, AcceptsWhatTheChosenMethodsAllow)
{
    struct Case
    {
        const char *name;
        int method;
        int flow;
        std::vector<std::pair<int, const char *>> boxes; // box and its text
    };
    const Case cases[] = {
        // Boxes the chosen methods do not read may stay blank.
        { "length and flow rate with method 1", 1, 1, { { 4, "" }, { 15, "" }, { 16, "" } } },
        { "efficiency with method 2", 2, 1, { { 9, "" } } },
        { "efficiency and soil with method 3",
          3,
          1,
          { { 4, "" }, { 9, "" }, { 20, "" }, { 21, "" }, { 22, "" }, { 23, "" } } },
        { "hydrograph with given flow, method 4",
          4,
          2,
          { { 9, "" }, { 10, "" }, { 11, "" }, { 12, "" }, { 13, "" }, { 14, "" }, { 23, "" } } },
        { "job, engineer, date and lining", 4, 1, { { 1, "" }, { 2, "" }, { 3, "" }, { 17, "" } } },
        // Bottom width and roughness compare in single precision, where -1E-50 is zero; a strictly
        // positive box compares in double precision, where 1E-50 is above zero.
        { "zero bottom width and roughness", 4, 1, { { 5, "0.0" }, { 19, "0" } } },
        { "tiny negative bottom width and roughness", 4, 1, { { 5, "-1e-50" }, { 19, "-1e-50" } } },
        { "tiny left slope", 4, 1, { { 6, "1e-50" } } },
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        SwaleProject p = validProject(c.method, c.flow);
        for (const auto &[box, text] : c.boxes)
            p.inputText[static_cast<size_t>(box)] = text;
        SwaleInputData data;
        ValidationFault fault;
        EXPECT_TRUE(ValidateInputData(p, data, fault)) << fault.message;
    }
}

// The boxes in the program's order (the channel slope, box 8, before the storm duration, box
// 13), then the rating curve, which only method 3 reads.
TEST(ValidateInputData, ChecksInTheProgramsOrder)
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

    p.inputText[13] = "x";
    p.inputText[8] = "-1";
    ASSERT_FALSE(ValidateInputData(p, data, fault));
    EXPECT_EQ(fault.input, 8);

    p = validProject(4);
    p.clearRatingCurve();
    EXPECT_TRUE(ValidateInputData(p, data, fault));
}
