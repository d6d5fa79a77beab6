#include "Inflow.h"

#include <gtest/gtest.h>

#include <cmath>

// The peak flow, runoff volume and runoff depth of both channel-flow methods are checked through
// the solution methods' independent evaluations (SolutionMethodsTest).
TEST(Inflow, HydrographVolumeClipsTheTrapezoidAtTheRate)
{
    SwaleInputData data;
    data.ChannelFlowMethod = 1;
    data.PeakFlowRate = 3;
    data.StormDuration = 60;
    data.TimeOfConcentration = 10;
    // At q = Qp the clipped area is the whole hydrograph: Qp D 60.
    EXPECT_DOUBLE_EQ(hydrographVolume(data, 3), 10800.0);
    // At q = 1.5: 1.5 (70 - 1.5 * 10 / 3) 60 = 5850 ft3.
    EXPECT_DOUBLE_EQ(hydrographVolume(data, 1.5), 5850.0);
    data.ChannelFlowMethod = 2;
    data.FlowDuration = 30;
    EXPECT_DOUBLE_EQ(hydrographVolume(data, 2), 3600.0);
}

TEST(Inflow, MinOfAndMaxOfGiveTheSecondOnATie)
{
    EXPECT_EQ(MinOf(1, 2), 1);
    EXPECT_EQ(MaxOf(2, 1), 2);
    // -0.0 == 0.0: the tie returns b, which the sign shows.
    EXPECT_TRUE(std::signbit(MinOf(0.0, -0.0)));
    EXPECT_TRUE(std::signbit(MaxOf(0.0, -0.0)));
    EXPECT_FALSE(std::signbit(MinOf(-0.0, 0.0)));
}
