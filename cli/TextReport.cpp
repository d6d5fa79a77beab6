#include "TextReport.h"

#include "HydraulicCheckLines.h"
#include "InputTable.h"
#include "NumberText.h"
#include "OutputTable.h"
#include "UserTexts.h"

namespace {
constexpr size_t kCaptionWidth = 52;
constexpr size_t kValueWidth = 14;

// Characters of UTF-8 `text` (the symbols of the checks, such as τ, take two bytes).
size_t characterCount(const std::string &text)
{
    size_t count = 0;
    for (const char c : text)
        count += (static_cast<unsigned char>(c) & 0xC0) != 0x80;
    return count;
}

std::string padRight(std::string text, size_t width, char fill)
{
    const size_t length = characterCount(text);
    if (length < width)
        text.append(width - length, fill);
    return text;
}

std::string padLeft(const std::string &text, size_t width)
{
    return text.size() < width ? std::string(width - text.size(), ' ') + text : text;
}

const char *optionCaption(int index, const char *const *captions, int count)
{
    return index >= 1 && index <= count ? captions[index] : "(not chosen)";
}

std::string headerLines(const SwaleProject &project)
{
    std::string out;
    for (int box = 1; box <= 3; ++box) {
        out += padRight(std::string(inputBox(box).caption) + ":", 18, ' ')
                + project.inputText[static_cast<size_t>(box)] + "\n";
    }
    out += padRight("Solution method:", 18, ' ')
            + optionCaption(project.solutionMethod, kSolutionMethodCaptions.data(),
                            kSolutionMethodCount)
            + "\n";
    out += padRight("Channel flow:", 18, ' ')
            + optionCaption(project.channelFlowMethod, kChannelFlowMethodCaptions.data(),
                            kChannelFlowMethodCount)
            + "\n";
    return out;
}

std::string resultLine(const SwaleProject &project, const CalculationOutcome &outcome, int box)
{
    const std::string caption
            = outputCaption(box, project.solutionMethod, project.channelFlowMethod);
    std::string line = "  " + padRight(caption + " ", kCaptionWidth, '.') + " "
            + padLeft(outcome.results[static_cast<size_t>(box)], kValueWidth);
    const std::string unit = outputBox(box).unit;
    if (!unit.empty())
        line += "  " + unit;
    return line + "\n";
}

// The "Hydraulic checks" block: each check as a result line, its limit and verdict below it.
std::string checksBlock(const SwaleInputData &record)
{
    const HydraulicChecks checks = computeHydraulicChecks(record);
    std::string out = "\nHydraulic checks\n";
    if (!checks.fault.empty())
        return out + "  Not computed: " + checks.fault + "\n";
    for (const CheckLine &check : hydraulicCheckLines(checks)) {
        std::string caption = check.quantity;
        if (!check.symbol.empty())
            caption += ", " + check.symbol;
        std::string line = "  " + padRight(caption + " ", kCaptionWidth, '.');
        if (!check.value.empty())
            line += " " + padLeft(check.value, kValueWidth);
        if (!check.unit.empty())
            line += "  " + check.unit;
        out += line + "\n";
        if (!check.limit.empty())
            out += "      limit " + check.limit + ". " + check.verdict + "\n";
        else if (!check.verdict.empty())
            out += "      " + check.verdict + "\n";
    }
    return out;
}
} // namespace

std::string resultsReport(const SwaleProject &project, const CalculationOutcome &outcome)
{
    std::string out = headerLines(project);
    // The rows and headings that the Results page shows for the chosen options, and no others.
    for (int group = 1; group < static_cast<int>(kOutputGroups.size()); ++group) {
        if (!isResultGroupShown(group, project.solutionMethod))
            continue;
        std::string lines;
        for (int box = kOutputGroups[group].first; box <= kOutputGroups[group].last; ++box) {
            if (isOutputShown(box, project.solutionMethod, project.channelFlowMethod))
                lines += resultLine(project, outcome, box);
        }
        if (lines.empty())
            continue;
        out += "\n";
        out += resultGroupTitle(group, project.solutionMethod, project.channelFlowMethod);
        out += "\n" + lines;
    }
    return out + checksBlock(outcome.record);
}

std::string errorLine(const std::string &message)
{
    return std::string(kErrorTitle) + ": " + message + "\n";
}

std::string faultReport(const CalculationOutcome &outcome)
{
    if (outcome.status == CalculationOutcome::Status::Invalid) {
        const ValidationFault &fault = outcome.fault;
        std::string out = errorLine(fault.message);
        if (fault.place == FaultPlace::InputBox)
            out += "  in input box " + NumberToDisplayText(static_cast<int32_t>(fault.input))
                    + ", \"" + inputBox(fault.input).caption + "\"\n";
        else if (fault.place == FaultPlace::GridCell)
            out += "  in the rating curve, row "
                    + NumberToDisplayText(static_cast<int32_t>(fault.row)) + ", column "
                    + NumberToDisplayText(static_cast<int32_t>(fault.col)) + "\n";
        return out;
    }
    std::string out;
    for (const std::string &message : outcome.failureMessages) {
        if (!message.empty())
            out += errorLine(message);
    }
    if (out.empty())
        out = errorLine("the calculation failed without a message");
    return out;
}
