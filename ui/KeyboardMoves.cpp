#include "KeyboardMoves.h"

#include "PageRules.h"

namespace KeyboardMoves {
namespace {

constexpr int kLastInputBox = 23;
constexpr int kLastOutputBox = 18;

MoveTarget inputBox(int index)
{
    return { MoveTarget::Kind::InputBox, index };
}

MoveTarget chosenSolutionMethod(int solutionMethod)
{
    if (solutionMethod == 0)
        return {};
    return { MoveTarget::Kind::SolutionMethodOption, solutionMethod };
}

MoveTarget chosenChannelFlow(int channelFlowMethod)
{
    if (channelFlowMethod == 0)
        return {};
    return { MoveTarget::Kind::ChannelFlowOption, channelFlowMethod };
}

MoveTarget forwardFromInputBox(int box, int solutionMethod, int channelFlowMethod)
{
    switch (box) {
    case 3:
        return chosenSolutionMethod(solutionMethod);
    case 8:
        return solutionMethod == 1 ? inputBox(9) : chosenChannelFlow(channelFlowMethod);
    case 9:
        return chosenChannelFlow(channelFlowMethod);
    case 14: // the last hydrograph box skips the two flow-rate boxes
    case 16:
        return inputBox(17);
    case 19:
        if (solutionMethod == 1 || solutionMethod == 2)
            return inputBox(20);
        if (solutionMethod == 3)
            return { MoveTarget::Kind::RatingCurveGrid, 0 };
        return inputBox(1);
    case kLastInputBox:
        return inputBox(1);
    default:
        return inputBox(box + 1);
    }
}

MoveTarget backwardFromInputBox(int box, int solutionMethod, int channelFlowMethod)
{
    switch (box) {
    case 1:
        return {};
    case 4:
        return chosenSolutionMethod(solutionMethod);
    case 5:
        return solutionMethod == 2 ? inputBox(4) : chosenSolutionMethod(solutionMethod);
    case 10:
    case 15:
        return chosenChannelFlow(channelFlowMethod);
    case 17:
        if (channelFlowMethod == 1)
            return inputBox(14);
        if (channelFlowMethod == 2)
            return inputBox(16);
        return {};
    default:
        return inputBox(box - 1);
    }
}

// The output boxes that the choices show, from `box` in steps of `step`; 0 when none is left.
int nextShownOutputBox(int box, int step, int solutionMethod, int channelFlowMethod)
{
    for (int i = box + step; i >= 1 && i <= kLastOutputBox; i += step) {
        if (PageRules::isOutputBoxShown(i, solutionMethod, channelFlowMethod))
            return i;
    }
    return 0;
}

} // namespace

MoveTarget fromInputBox(int box, MoveKey key, int solutionMethod, int channelFlowMethod)
{
    if (box < 1 || box > kLastInputBox)
        return {};
    // The flow-rate boxes keep the caret on Enter; only Down leaves them.
    if (key == MoveKey::Enter && (box == 15 || box == 16))
        return {};
    if (key == MoveKey::Up)
        return backwardFromInputBox(box, solutionMethod, channelFlowMethod);
    return forwardFromInputBox(box, solutionMethod, channelFlowMethod);
}

MoveTarget fromTodayButton(MoveKey key)
{
    switch (key) {
    case MoveKey::Down:
        return inputBox(4);
    case MoveKey::Up:
        return inputBox(3);
    case MoveKey::Enter:
        break;
    }
    return {};
}

MoveTarget fromSolutionMethodOption(MoveKey key, int solutionMethod)
{
    if (key != MoveKey::Enter || solutionMethod == 0)
        return {};
    // Method 2 starts with the swale length; the others with the bottom width.
    return inputBox(solutionMethod == 2 ? 4 : 5);
}

MoveTarget fromChannelFlowOption(MoveKey key, int channelFlowMethod)
{
    if (key != MoveKey::Enter || channelFlowMethod == 0)
        return {};
    return inputBox(channelFlowMethod == 1 ? 10 : 15);
}

MoveTarget fromOutputBox(int box, MoveKey key, int solutionMethod, int channelFlowMethod)
{
    if (box < 1 || box > kLastOutputBox)
        return {};
    int target = 0;
    if (key == MoveKey::Up) {
        target = nextShownOutputBox(box, -1, solutionMethod, channelFlowMethod);
    } else {
        target = nextShownOutputBox(box, 1, solutionMethod, channelFlowMethod);
        if (target == 0)
            target = nextShownOutputBox(0, 1, solutionMethod, channelFlowMethod);
    }
    if (target == 0)
        return {};
    return { MoveTarget::Kind::OutputBox, target };
}

} // namespace KeyboardMoves
