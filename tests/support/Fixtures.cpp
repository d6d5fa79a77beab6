#include "Fixtures.h"

#include "Calculate.h"

namespace {

void setInputs(SwaleProject &project, const char *const (&texts)[kInputCount + 1])
{
    for (int i = 1; i <= kInputCount; ++i)
        project.inputText[static_cast<size_t>(i)] = texts[i];
}

} // namespace

SwaleProject validProject(int solutionMethod, int channelFlowMethod)
{
    SwaleProject p;
    p.solutionMethod = solutionMethod;
    p.channelFlowMethod = channelFlowMethod;
    // L 400 ft, B 4 ft, Z1 = Z2 = 3, Sc 0.01, e 80 %, A 2 acres, C 0.5, ID 3 in/hr, D 60 min,
    // Tc 10 min, Qp 4 cfs, flow 30 min, Vp 5 fps, n 0.03, Kvu 2 ft/day, FSi 2, f 35 %, hb 3 ft.
    // clang-format off
    setInputs(p, { "",    "Route 9 swale", "J. Smith", "03-07-2026", "400",  "4",   "3",   "3",
                   "0.01", "80",           "2",        "0.5",        "3",    "60",  "10",  "4",
                   "30",  "Grass",         "5",        "0.03",       "2",    "2",   "35",  "3" });
    // clang-format on
    setRatingCurve(p, { { "0", "0" }, { "3", "1.5" }, { "6", "4" }, { "12", "10" } });
    return p;
}

SwaleProject calculatedProject(int solutionMethod, int channelFlowMethod)
{
    SwaleProject project = validProject(solutionMethod, channelFlowMethod);
    const CalculationOutcome outcome = Calculate(project);
    if (outcome.status == CalculationOutcome::Status::Ok) {
        project.outputText = outcome.results;
        project.resultsShown = true;
    }
    return project;
}

SwaleProject sampleProject()
{
    SwaleProject project;
    // clang-format off
    setInputs(project, { "", "Highway 7 median, inlet DBI-3", "R. Okafor", "05-11-2026", "", "2",
                         "4", "4", "0.02", "", "3", "0.7", "4", "20", "12", "", "",
                         "Sod, clay liner", "6", "0.035", "", "", "", "" });
    // clang-format on
    project.solutionMethod = 3;
    project.channelFlowMethod = 1;
    setRatingCurve(project, { { "0", "0" }, { "2", "0.82" }, { "6", "4.24" }, { "12", "12" } });
    project.resultsShown = true;
    for (int box = 1; box <= kOutputCount; ++box)
        project.outputText[static_cast<size_t>(box)] = box == 1 ? "" : std::to_string(box * 1.5);
    return project;
}

void setRatingCurve(SwaleProject &project,
                    const std::vector<std::pair<std::string, std::string>> &rows)
{
    int r = 1;
    for (const auto &row : rows) {
        project.setRatingCurveCell(r, 1, row.first);
        project.setRatingCurveCell(r, 2, row.second);
        ++r;
    }
}

void setLongRatingCurve(SwaleProject &project, int rows)
{
    project.clearRatingCurve();
    for (int r = 1; r <= rows; ++r) {
        project.setRatingCurveCell(r, 1, std::to_string(r - 1));
        project.setRatingCurveCell(r, 2, std::to_string(r - 1) + ".0625");
    }
    project.setRatingCurveCell(1, 2, "0");
}
