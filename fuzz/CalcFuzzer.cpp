// Feeds arbitrary projects to Calculate: the first two bytes choose the methods, the remaining
// lines fill the 23 input boxes and then the rating-curve rows ("depth,discharge"). Whatever the
// input, the command must finish, and every text it produces must be a displayable number.

#include "Calculate.h"
#include "OutputTable.h"

#include <cstdint>
#include <cstdlib>
#include <string>

namespace {
bool displayable(const std::string &text)
{
    return text.find("nan") == std::string::npos && text.find("NAN") == std::string::npos
            && text.find("inf") == std::string::npos && text.find("INF") == std::string::npos;
}

SwaleProject projectFrom(const uint8_t *data, size_t size)
{
    SwaleProject project;
    if (size < 2)
        return project;
    project.solutionMethod = data[0] % 6;
    project.channelFlowMethod = data[1] % 4;
    const std::string text(reinterpret_cast<const char *>(data + 2), size - 2);
    size_t start = 0;
    int line = 0;
    while (start <= text.size() && line < 23 + 60) {
        size_t end = text.find('\n', start);
        if (end == std::string::npos)
            end = text.size();
        const std::string value = text.substr(start, end - start);
        ++line;
        if (line <= 23) {
            project.inputText[static_cast<size_t>(line)] = value;
        } else {
            const size_t comma = value.find(',');
            const int row = line - 23;
            project.setRatingCurveCell(row, 1, value.substr(0, comma));
            project.setRatingCurveCell(row, 2, comma == std::string::npos ? "" : value.substr(comma + 1));
        }
        start = end + 1;
    }
    return project;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const SwaleProject project = projectFrom(data, size);
    const CalculationOutcome outcome = Calculate(project);
    switch (outcome.status) {
    case CalculationOutcome::Status::Ok:
        for (int i = 1; i <= kOutputCount; ++i) {
            const std::string &text = outcome.results[static_cast<size_t>(i)];
            if (!displayable(text) || text.empty() == isOutputFilled(i, project.solutionMethod))
                std::abort();
        }
        break;
    case CalculationOutcome::Status::Invalid:
        if (outcome.fault.message.empty())
            std::abort();
        break;
    case CalculationOutcome::Status::Failed:
        if (outcome.failureMessages.empty())
            std::abort();
        for (const std::string &message : outcome.failureMessages) {
            if (!displayable(message))
                std::abort();
        }
        break;
    }
    return 0;
}
