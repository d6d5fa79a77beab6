#pragma once

// Where the keyboard moves the focus between the controls of the Input Data and Results pages.
// Down arrow and Enter move forward, Up arrow moves backward. A solution method or channel-flow
// method of 0 means that no option of that group is chosen.

enum class MoveKey { Down, Enter, Up };

// The control that receives the focus.
struct MoveTarget
{
    enum class Kind {
        Nothing, // the focus stays where it is
        InputBox, // txtInput(index)
        SolutionMethodOption, // optCalculate(index), the chosen one
        ChannelFlowOption, // optChannelFlow(index), the chosen one
        RatingCurveGrid, // grdRatingCurve
        OutputBox, // txtOutput(index)
    };
    Kind kind = Kind::Nothing;
    int index = 0;

    bool operator==(const MoveTarget &other) const
    {
        return kind == other.kind && index == other.index;
    }
    bool operator!=(const MoveTarget &other) const { return !(*this == other); }
};

namespace KeyboardMoves {

// From input box `box` (1 to 23). A move to "the chosen option" of a group with nothing chosen
// goes nowhere. In boxes 15 and 16 Enter stays put while Down moves on.
MoveTarget fromInputBox(int box, MoveKey key, int solutionMethod, int channelFlowMethod);

// From the "<- Today" button: Down to the swale length box, Up to the date box.
MoveTarget fromTodayButton(MoveKey key);

// Enter on an option button of the solution-method group (or of the channel-flow group): the
// first box that the chosen option asks for.
MoveTarget fromSolutionMethodOption(MoveKey key, int solutionMethod);
MoveTarget fromChannelFlowOption(MoveKey key, int channelFlowMethod);

// From output box `box` (1 to 18) to the next (or previous) one that the choices show; forward
// from the last shown box comes round to the first, backward from the first goes nowhere.
MoveTarget fromOutputBox(int box, MoveKey key, int solutionMethod, int channelFlowMethod);

} // namespace KeyboardMoves
