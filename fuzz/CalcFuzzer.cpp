// Feeds arbitrary projects to Calculate: the first two bytes choose the two option groups (none
// chosen, each button, and an index beyond the buttons), the following lines fill the 23 input
// boxes and then the rating-curve rows ("depth,discharge"). Whatever the input, the command must
// finish; every result box of the method is filled with a plain number and the others are
// empty; no result holds "nan" or "inf" in any case, nor does a message as a word of its own;
// a refusal says why and where; and a second run on the same project, or on the same texts
// with blanks around them, gives the same outcome.

#include "Calculate.h"
#include "FuzzScratch.h"
#include "NumberText.h"
#include "NumberTexts.h"
#include "OutputTable.h"

#include <cstdint>
#include <string>

namespace {
constexpr int kMaxRatingRows = 60;

void expectNumberText(const std::string &text, const char *what)
{
    if (holdsNanOrInf(text))
        invariantBroken(std::string(what) + " \"" + text + "\" is not displayable");
}

void expectMessageText(const std::string &text, const char *what)
{
    if (holdsNanOrInfWord(text))
        invariantBroken(std::string(what) + " \"" + text + "\" is not displayable");
}

SwaleProject projectFrom(const uint8_t *data, size_t size)
{
    SwaleProject project;
    if (size < 2)
        return project;
    project.solutionMethod = data[0] % (kSolutionMethodCount + 2);
    project.channelFlowMethod = data[1] % (kChannelFlowMethodCount + 2);
    const std::string text(reinterpret_cast<const char *>(data + 2), size - 2);
    size_t start = 0;
    int line = 0;
    while (start <= text.size() && line < kInputCount + kMaxRatingRows) {
        size_t end = text.find('\n', start);
        if (end == std::string::npos)
            end = text.size();
        const std::string value = text.substr(start, end - start);
        ++line;
        if (line <= kInputCount) {
            project.inputText[static_cast<size_t>(line)] = value;
        } else {
            const size_t comma = value.find(',');
            const int row = line - kInputCount;
            project.setRatingCurveCell(row, 1, value.substr(0, comma));
            project.setRatingCurveCell(row, 2,
                                       comma == std::string::npos ? "" : value.substr(comma + 1));
        }
        start = end + 1;
    }
    return project;
}

void checkResults(const SwaleProject &project, const CalculationOutcome &outcome)
{
    for (int i = 1; i <= kOutputCount; ++i) {
        const std::string &text = outcome.results[static_cast<size_t>(i)];
        if (!isOutputFilled(i, project.solutionMethod)) {
            if (!text.empty())
                invariantBroken("output " + std::to_string(i) + " is filled under this method");
            continue;
        }
        expectNumberText(text, "output");
        if (!isRecognisedNumber(text))
            invariantBroken("output " + std::to_string(i) + " \"" + text + "\" is no number");
    }
    expectNumberText(outcome.clipboardText, "clipboard text");
}

void checkFault(const ValidationFault &fault)
{
    if (fault.message.empty())
        invariantBroken("a validation fault without a message");
    expectMessageText(fault.message, "validation message");
    if (fault.place == FaultPlace::InputBox && (fault.input < 1 || fault.input > kInputCount))
        invariantBroken("a validation fault in input box " + std::to_string(fault.input));
    if (fault.place == FaultPlace::GridCell && (fault.row < 1 || fault.col < 1 || fault.col > 2))
        invariantBroken("a validation fault in grid cell " + std::to_string(fault.row) + ","
                        + std::to_string(fault.col));
}

SwaleProject withBlanksAround(SwaleProject project)
{
    for (std::string &text : project.inputText)
        text = " " + text + "  ";
    for (auto &row : project.ratingCurve) {
        for (std::string &cell : row)
            cell = "  " + cell + " ";
    }
    return project;
}

bool sameOutcome(const CalculationOutcome &a, const CalculationOutcome &b)
{
    return a.status == b.status && a.results == b.results && a.clipboardText == b.clipboardText
            && a.fault.message == b.fault.message && a.fault.place == b.fault.place
            && a.fault.input == b.fault.input && a.fault.row == b.fault.row
            && a.fault.col == b.fault.col && a.failureMessages == b.failureMessages;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const SwaleProject project = projectFrom(data, size);
    const CalculationOutcome outcome = Calculate(project);
    switch (outcome.status) {
    case CalculationOutcome::Status::Ok:
        checkResults(project, outcome);
        break;
    case CalculationOutcome::Status::Invalid:
        checkFault(outcome.fault);
        break;
    case CalculationOutcome::Status::Failed:
        // Beyond the rating curve the depth message is followed by an empty one.
        if (outcome.failureMessages.empty() || outcome.failureMessages.front().empty())
            invariantBroken("a failed calculation without its message");
        for (const std::string &message : outcome.failureMessages)
            expectMessageText(message, "failure message");
        break;
    }
    if (!sameOutcome(outcome, Calculate(project)))
        invariantBroken("a second run gives another outcome");
    // Boxes and cells are read trimmed of blanks: blanks typed around every text change nothing.
    if (!sameOutcome(outcome, Calculate(withBlanksAround(project))))
        invariantBroken("blanks around the texts change the outcome");
    return 0;
}
