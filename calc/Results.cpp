#include "Results.h"

#include "NumberText.h"
#include "OutputTable.h"

#include <cmath>
#include <utility>

double resultValue(const SwaleInputData &data, int index)
{
    if (data.SolutionMethod == 3 && index == 16)
        return data.InletDischarge;
    if (data.SolutionMethod == 3 && index == 17)
        return data.InletVolume;
    const OutputBoxInfo &box = outputBox(index);
    return box.field ? data.*box.field : 0.0;
}

std::string resultText(double value)
{
    return AddLeadingZero(NumberToDisplayText(RoundToSingle(value)));
}

bool resultTexts(const SwaleInputData &data, std::array<std::string, kOutputCount + 1> &texts)
{
    std::array<std::string, kOutputCount + 1> written {};
    for (int i = 1; i <= kOutputCount; ++i) {
        if (!isOutputFilled(i, data.SolutionMethod))
            continue;
        const double value = resultValue(data, i);
        if (!std::isfinite(RoundToSingle(value)))
            return false;
        written[static_cast<size_t>(i)] = resultText(value);
    }
    texts = std::move(written);
    return true;
}

std::string CopyResultsToClipboard(const std::array<std::string, kOutputCount + 1> &texts)
{
    // The clipboard groups differ from the page's headings: box 12 travels with box 13.
    static const int kLastOfGroup[] = { 3, 6, 11, 13, 18 };
    constexpr size_t kGroupCount = sizeof kLastOfGroup / sizeof kLastOfGroup[0];
    size_t size = 2 * (kOutputCount + kGroupCount - 1); // every CR LF
    for (int box = 1; box <= kOutputCount; ++box)
        size += texts[static_cast<size_t>(box)].size();
    std::string clip;
    clip.reserve(size);
    int box = 1;
    for (int last : kLastOfGroup) {
        for (; box <= last; ++box)
            clip.append(texts[static_cast<size_t>(box)]).append("\r\n");
        if (last != kOutputCount)
            clip.append("\r\n");
    }
    return clip;
}
