#include "SweepSymbols.h"

#include "InputTable.h"
#include "OutputTable.h"

namespace {
constexpr int kDurationBox = 16;
constexpr int kRepeatedSafetyFactorBox = 13; // box 13 repeats box 3 inside its group

// The bracketed symbol at the end of a caption: "Runoff depth, [dr]" gives "dr".
std::string bracketedSymbol(const std::string &caption)
{
    const size_t open = caption.rfind('[');
    const size_t close = caption.rfind(']');
    if (open == std::string::npos || close == std::string::npos || close < open)
        return {};
    return caption.substr(open + 1, close - open - 1);
}
} // namespace

std::string inputSymbol(int box)
{
    const InputBoxInfo &info = inputBox(box);
    if (info.kind != InputKind::Number)
        return {};
    if (box == kDurationBox)
        return "duration";
    return info.symbol;
}

int inputBoxOfSymbol(const std::string &symbol)
{
    if (symbol.empty())
        return 0;
    for (int box = 1; box <= kInputCount; ++box) {
        if (inputSymbol(box) == symbol)
            return box;
    }
    return 0;
}

std::string inputSymbolList()
{
    std::string list;
    for (int box = 1; box <= kInputCount; ++box) {
        const std::string symbol = inputSymbol(box);
        if (!symbol.empty())
            list += (list.empty() ? "" : " ") + symbol;
    }
    return list;
}

std::string inputCaptionWithSymbol(int box)
{
    if (box == kDurationBox)
        return std::string(inputBox(box).caption) + ", [duration]";
    return inputBox(box).caption;
}

bool isInputUsed(int box, int solutionMethod, int channelFlowMethod)
{
    if (inputBox(box).kind != InputKind::Number)
        return false;
    if (box == 4) // the length is given only when its efficiency is asked for
        return solutionMethod == 2;
    if (box == 9) // the efficiency is given only when the length is asked for
        return solutionMethod == 1;
    if (box >= 10 && box <= 14)
        return channelFlowMethod == 1;
    if (box == 15 || box == kDurationBox)
        return channelFlowMethod == 2;
    if (box >= 20) // the soil below the bed matters only where water soaks in
        return solutionMethod == 1 || solutionMethod == 2;
    return solutionMethod >= 1 && solutionMethod <= kSolutionMethodCount;
}

// The hydraulic checks as columns, in the order and with the texts of their display lines; a
// record whose checks could not be computed shows them empty.
static void appendCheckColumns(std::vector<ResultColumn> &columns, int solutionMethod)
{
    HydraulicChecks sample;
    sample.residenceTime = 0.0;
    const std::vector<CheckLine> lines = hydraulicCheckLines(sample);
    for (size_t i = 0; i < lines.size(); ++i) {
        const CheckLine &line = lines[i];
        if (line.key == std::string("residence_time") && solutionMethod > 2)
            continue;
        const std::string caption
                = line.symbol.empty() ? line.quantity : line.quantity + ", " + line.symbol;
        columns.push_back({ line.key, caption, line.unit,
                            [i](const CalculationOutcome &, const std::vector<CheckLine> &shown) {
                                return i < shown.size() ? shown[i].value : std::string();
                            },
                            true });
    }
}

std::vector<ResultColumn> resultColumns(int solutionMethod, int channelFlowMethod)
{
    std::vector<ResultColumn> columns;
    for (int box = 1; box <= kOutputCount; ++box) {
        if (box == kRepeatedSafetyFactorBox || !isOutputFilled(box, solutionMethod))
            continue;
        const std::string caption = outputCaption(box, solutionMethod, channelFlowMethod);
        columns.push_back(
                { bracketedSymbol(caption), caption, outputBox(box).unit,
                  [box](const CalculationOutcome &outcome, const std::vector<CheckLine> &) {
                      return outcome.results[static_cast<size_t>(box)];
                  } });
    }
    appendCheckColumns(columns, solutionMethod);
    return columns;
}

std::string resultSymbolList()
{
    std::string list;
    for (int box = 1; box <= kOutputCount; ++box) {
        if (box != kRepeatedSafetyFactorBox)
            list += (list.empty() ? "" : " ") + bracketedSymbol(outputBox(box).caption);
    }
    for (const CheckLine &line : hydraulicCheckLines(HydraulicChecks()))
        list += std::string(" ") + line.key;
    return list;
}
