#include "InputTable.h"
#include "OutputTable.h"

#include <gtest/gtest.h>

#include <string>

TEST(InputTable, IndexesAndKinds)
{
    for (int i = 1; i <= kInputCount; ++i)
        EXPECT_EQ(inputBox(i).index, i);
    int textBoxes = 0;
    for (int i = 1; i <= kInputCount; ++i)
        textBoxes += inputBox(i).kind == InputKind::Text;
    EXPECT_EQ(textBoxes, 4); // job name, engineer, date, lining type
    EXPECT_STREQ(inputBox(6).unit, "?H : 1V");
    EXPECT_STREQ(inputBox(0).caption, "");
}

TEST(OutputTable, CaptionsFollowTheChosenOptions)
{
    struct Case { int box, method, flow; const char *caption; };
    const Case cases[] = {
        { 2, 3, 1, "Treatment/interception efficiency, [e]" },
        { 2, 4, 1, "Treatment efficiency, [e]" },
        { 2, 0, 0, "Treatment Efficiency, [e]" },
        { 4, 1, 2, "Channel inflow rate, [Qp]" },
        { 5, 1, 1, "Volume of runoff (treatment volume), [Vr]" },
        { 5, 2, 2, "Inflow volume (treatment volume), [Vr]" },
        { 16, 3, 1, "Potential dicharge rate at normal depth, [Qip]" },
        { 17, 2, 1, "Computed max infiltration volume, [Vm]" },
        { 12, 1, 1, "Mean veolcity, [V]" },
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
