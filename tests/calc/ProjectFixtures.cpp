#include "ProjectFixtures.h"

SwaleProject validProject(int solutionMethod, int channelFlowMethod)
{
    SwaleProject p;
    p.solutionMethod = solutionMethod;
    p.channelFlowMethod = channelFlowMethod;
    const char *texts[kInputCount + 1] = {
        "",       "Route 9 swale", "J. Smith", "03-07-2026",
        "400", // 4 L, ft
        "4", // 5 B
        "3", // 6 Z1
        "3", // 7 Z2
        "0.01", // 8 Sc
        "80", // 9 e, percent
        "2", // 10 A, acre
        "0.5", // 11 C
        "3", // 12 ID, in/hr
        "60", // 13 D, min
        "10", // 14 Tc, min
        "4", // 15 Qp, cfs
        "30", // 16 duration, min
        "Grass", // 17
        "5", // 18 Vp, fps
        "0.03", // 19 n
        "2", // 20 Kvu, ft/day
        "2", // 21 FSi
        "35", // 22 f, percent
        "3", // 23 hb, ft
    };
    for (int i = 1; i <= kInputCount; ++i)
        p.inputText[static_cast<size_t>(i)] = texts[i];
    setRatingCurve(p, { { "0", "0" }, { "3", "1.5" }, { "6", "4" }, { "12", "10" } });
    return p;
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
