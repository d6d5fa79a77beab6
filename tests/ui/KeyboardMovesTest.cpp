#include "KeyboardMoves.h"

#include <gtest/gtest.h>

#include <ostream>
#include <vector>

// How GoogleTest names a target in a failure message: "box(17)", "optCalculate(2)".
void PrintTo(const MoveTarget &target, std::ostream *out)
{
    static const char *const kNames[]
            = { "nothing", "box", "optCalculate", "optChannelFlow", "grid", "output" };
    *out << kNames[static_cast<int>(target.kind)] << "(" << target.index << ")";
}

namespace {

using Kind = MoveTarget::Kind;

const auto box = [](int index) { return MoveTarget { Kind::InputBox, index }; };
const auto method = [](int index) { return MoveTarget { Kind::SolutionMethodOption, index }; };
const auto flow = [](int index) { return MoveTarget { Kind::ChannelFlowOption, index }; };
const auto output = [](int index) { return MoveTarget { Kind::OutputBox, index }; };
const MoveTarget kNothing {};
const MoveTarget kGrid { Kind::RatingCurveGrid, 0 };

// One row of a movement table for given choices: where Down, Enter and Up lead.
struct MoveCase
{
    const char *name;
    int from, solutionMethod, channelFlowMethod;
    MoveTarget down, enter, up;
};

using MoveFunction
        = MoveTarget (*)(int box, MoveKey key, int solutionMethod, int channelFlowMethod);

void expectMoves(const std::vector<MoveCase> &rows, MoveFunction move)
{
    for (const MoveCase &row : rows) {
        SCOPED_TRACE(row.name);
        const int chosenMethod = row.solutionMethod;
        const int chosenFlow = row.channelFlowMethod;
        EXPECT_EQ(move(row.from, MoveKey::Down, chosenMethod, chosenFlow), row.down);
        EXPECT_EQ(move(row.from, MoveKey::Enter, chosenMethod, chosenFlow), row.enter);
        EXPECT_EQ(move(row.from, MoveKey::Up, chosenMethod, chosenFlow), row.up);
    }
}

const std::vector<MoveCase> kInputMoves = {
    { "job name: nothing above", 1, 1, 1, box(2), box(2), kNothing },
    { "engineer", 2, 1, 1, box(3), box(3), box(1) },
    { "date to the chosen method", 3, 3, 1, method(3), method(3), box(2) },
    { "date with no method chosen", 3, 0, 1, kNothing, kNothing, box(2) },
    { "length back to the chosen method", 4, 2, 1, box(5), box(5), method(2) },
    { "bottom width back to length (method 2)", 5, 2, 1, box(6), box(6), box(4) },
    { "bottom width back to the method (method 1)", 5, 1, 1, box(6), box(6), method(1) },
    { "channel slope to efficiency (method 1)", 8, 1, 2, box(9), box(9), box(7) },
    { "channel slope to the chosen flow (method 2)", 8, 2, 2, flow(2), flow(2), box(7) },
    { "channel slope with no flow chosen", 8, 3, 0, kNothing, kNothing, box(7) },
    { "efficiency to the chosen flow", 9, 1, 1, flow(1), flow(1), box(8) },
    { "drainage area back to the chosen flow", 10, 1, 1, box(11), box(11), flow(1) },
    { "time of concentration skips the flow-rate boxes", 14, 1, 1, box(17), box(17), box(13) },
    { "flow rate: Enter stays, Down moves", 15, 1, 2, box(16), kNothing, flow(2) },
    { "flow duration: Enter stays, Down moves", 16, 1, 2, box(17), kNothing, box(15) },
    { "lining back to the hydrograph", 17, 1, 1, box(18), box(18), box(14) },
    { "lining back to the flow rate", 17, 1, 2, box(18), box(18), box(16) },
    { "lining with no flow chosen", 17, 1, 0, box(18), box(18), kNothing },
    { "roughness to the aquifer (method 1)", 19, 1, 1, box(20), box(20), box(18) },
    { "roughness to the grid (method 3)", 19, 3, 1, kGrid, kGrid, box(18) },
    { "roughness round to the job name (method 4)", 19, 4, 1, box(1), box(1), box(18) },
    { "water table round to the job name", 23, 1, 1, box(1), box(1), box(22) },
};

TEST(KeyboardMoves, InputBoxesFollowTheTable)
{
    expectMoves(kInputMoves, &KeyboardMoves::fromInputBox);
}

TEST(KeyboardMoves, BoxesOutsideTheTableGoNowhere)
{
    for (int from : { 0, 24, -1 })
        EXPECT_EQ(KeyboardMoves::fromInputBox(from, MoveKey::Down, 1, 1), kNothing) << from;
}

TEST(KeyboardMoves, TodayButtonAnswersDownAndUp)
{
    EXPECT_EQ(KeyboardMoves::fromTodayButton(MoveKey::Down), box(4));
    EXPECT_EQ(KeyboardMoves::fromTodayButton(MoveKey::Up), box(3));
    EXPECT_EQ(KeyboardMoves::fromTodayButton(MoveKey::Enter), kNothing);
}

TEST(KeyboardMoves, EnterOnAnOptionGoesToTheFirstBoxOfTheChosenMode)
{
    const struct
    {
        int chosen;
        MoveTarget expected;
    } methodRows[]
            = { { 1, box(5) }, { 2, box(4) }, { 3, box(5) }, { 4, box(5) }, { 0, kNothing } };
    for (const auto &row : methodRows) {
        EXPECT_EQ(KeyboardMoves::fromSolutionMethodOption(MoveKey::Enter, row.chosen), row.expected)
                << "method " << row.chosen;
    }
    EXPECT_EQ(KeyboardMoves::fromChannelFlowOption(MoveKey::Enter, 1), box(10));
    EXPECT_EQ(KeyboardMoves::fromChannelFlowOption(MoveKey::Enter, 2), box(15));
    EXPECT_EQ(KeyboardMoves::fromChannelFlowOption(MoveKey::Enter, 0), kNothing);
    // The arrow keys stay with the option group, which moves between its own buttons.
    EXPECT_EQ(KeyboardMoves::fromSolutionMethodOption(MoveKey::Down, 2), kNothing);
    EXPECT_EQ(KeyboardMoves::fromChannelFlowOption(MoveKey::Up, 1), kNothing);
}

// Enter moves as Down does among the output boxes.
const std::vector<MoveCase> kOutputMoves = {
    { "first box: nothing above", 1, 1, 1, output(2), output(2), kNothing },
    { "middle box", 7, 1, 1, output(8), output(8), output(6) },
    { "runoff depth hidden for a given flow rate", 5, 1, 2, output(7), output(7), output(4) },
    { "back over the hidden runoff depth", 7, 1, 2, output(8), output(8), output(5) },
    { "last box round to the first", 18, 1, 1, output(1), output(1), output(17) },
    { "method 4 starts at box 3", 3, 4, 1, output(4), output(4), kNothing },
    { "method 4 ends at box 13, round to box 3", 13, 4, 1, output(3), output(3), output(12) },
    { "method 3 skips the infiltration boxes", 13, 3, 1, output(16), output(16), output(12) },
    { "method 3 round from box 17 to box 2", 17, 3, 1, output(2), output(2), output(16) },
};

TEST(KeyboardMoves, OutputBoxesMoveAmongTheShownOnes)
{
    expectMoves(kOutputMoves, &KeyboardMoves::fromOutputBox);
}

} // namespace
