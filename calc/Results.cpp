#include "Results.h"

#include "NumberText.h"
#include "OutputTable.h"

#include <cmath>
#include <cstring>
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
    std::string clip(size, '\0');
    char *out = clip.data();
    const auto put = [&out](const char *text, size_t length) {
        std::memcpy(out, text, length);
        out += length;
    };
    int box = 1;
    for (int last : kLastOfGroup) {
        for (; box <= last; ++box) {
            const std::string &text = texts[static_cast<size_t>(box)];
            put(text.data(), text.size());
            put("\r\n", 2);
        }
        if (last != kOutputCount)
            put("\r\n", 2);
    }
    return clip;
}
