#include "TextReport.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// Result rows of the readable report are the lines indented by two blanks, up to the block of
// hydraulic checks that follows them.
int resultRowCount(const std::string &report)
{
    int rows = 0;
    size_t start = 0;
    const size_t checks = report.find("\nHydraulic checks\n");
    const size_t stop = checks == std::string::npos ? report.size() : checks;
    while (start < stop) {
        const size_t end = report.find('\n', start);
        if (report.compare(start, 2, "  ") == 0)
            ++rows;
        start = end == std::string::npos ? stop : end + 1;
    }
    return rows;
}

// Rows of the Results page, counted on the window: all 18 boxes under method 1; a specified flow
// drops the runoff depth; method 4 also drops the length, the efficiency and the infiltration
// group. Which boxes each mode shows is the Results page's test; this checks the report asks it.
struct RowsCase
{
    const char *name;
    int solutionMethod, channelFlowMethod, expectedRows;
    bool runoffDepthShown, infiltrationGroupShown;
};
const RowsCase kCases[] = {
    { "required length, hydrograph", 1, 1, 18, true, true },
    { "required length, given flow", 1, 2, 17, false, true },
    { "no inlet, given flow", 4, 2, 10, false, false },
};

TEST(ResultsReport, ShowsTheRowsOfTheResultsPage)
{
    for (const RowsCase &row : kCases) {
        SCOPED_TRACE(row.name);
        SwaleProject project;
        project.solutionMethod = row.solutionMethod;
        project.channelFlowMethod = row.channelFlowMethod;
        CalculationOutcome outcome;
        outcome.status = CalculationOutcome::Status::Ok;
        for (std::string &text : outcome.results)
            text = "1";
        const std::string report = resultsReport(project, outcome);
        EXPECT_EQ(resultRowCount(report), row.expectedRows) << report;
        EXPECT_EQ(report.find("Runoff depth") != std::string::npos, row.runoffDepthShown);
        EXPECT_EQ(report.find("Infiltration Calculations") != std::string::npos
                          || report.find("Inlet") != std::string::npos,
                  row.infiltrationGroupShown);
    }
}

} // namespace
