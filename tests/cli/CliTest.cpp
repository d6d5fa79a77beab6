#include "CalcRunner.h"
#include "Calculate.h"
#include "CommandLine.h"
#include "Files.h"
#include "Fixtures.h"
#include "JsonOutput.h"
#include "ProjectFile.h"
#include "TextReport.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace {

class SwaleCalcTest : public ::testing::Test
{
protected:
    // Saves validProject(4, 2), after `damage` when one is given, under a new name.
    std::string saved(void (*damage)(SwaleProject &) = nullptr)
    {
        SwaleProject project = validProject(4, 2);
        if (damage)
            damage(project);
        const std::string path = m_folder.file("case" + std::to_string(++m_saved) + ".swl");
        EXPECT_TRUE(saveProject(path, project).ok);
        return path;
    }

    TempFolder m_folder;
    int m_saved = 0;
};

// Every way the program ends, for each of its commands: its exit code, the start of its standard
// output and a later part of it. Usage errors and messages outside --json go to standard error;
// results of each method are the golden tests'.
TEST_F(SwaleCalcTest, ExitCodesAndOutputs)
{
    const std::string good = saved();
    const std::string invalid = saved([](SwaleProject &p) { p.inputText[8] = "  "; });
    const std::string pdf = m_folder.file("report.pdf");
    struct Case
    {
        const char *name;
        std::vector<std::string> arguments;
        int exitCode;
        const char *out;
        const char *outLater = nullptr;
    };
    const Case cases[] = {
        { "unknown option", { "--frobnicate", good }, ExitUsage, "" },
        { "help", { "--help" }, ExitResults, "Usage: swale-calc " },
        { "missing file",
          { "--json", m_folder.file("nowhere.swl") },
          ExitFileNotLoaded,
          "{\"status\": \"unreadable\", \"message\": \"Unable to open file: " },
        { "no solution method",
          { "--json", saved([](SwaleProject &p) { p.solutionMethod = 0; }) },
          ExitInvalidInput,
          "{\"status\": \"invalid\", \"message\": \"Solution method has not been chosen.  "
          "Choose analysis type.\"}\n" },
        { "empty input box",
          { "--json", invalid },
          ExitInvalidInput,
          "{\"status\": \"invalid\", \"message\": \"Missing data.\", \"input\": 8}\n" },
        { "empty input box, text", { invalid }, ExitInvalidInput, "" },
        { "rating-curve cell",
          { "--json", saved([](SwaleProject &p) {
                p.solutionMethod = 3;
                p.clearRatingCurve();
                setRatingCurve(p, { { "0", "0" }, { "6", "" } });
            }) },
          ExitInvalidInput,
          "{\"status\": \"invalid\", \"message\": \"Missing data.  (Rating curve:  Row 2, Col "
          "2)\", \"row\": 2, \"col\": 2}\n" },
        { "normal depth beyond the rating curve",
          { "--json", saved([](SwaleProject &p) {
                p.solutionMethod = 3;
                p.clearRatingCurve();
                setRatingCurve(p, { { "0", "0" }, { "1", "0.1" } });
            }) },
          ExitCalculationFailed,
          "{\"status\": \"failed\", \"messages\": [\"The normal depth of flow (",
          " ft) exceeds the rating curve data.\", \"\"]}\n" },
        { "pdf without results", { "--pdf", pdf, invalid }, ExitInvalidInput, "" },
        { "pdf into no folder",
          { "--pdf", m_folder.file("no folder/r.pdf"), good },
          ExitPdfNotWritten,
          "Job Name:" },
        { "pdf", { "--pdf", pdf, good }, ExitResults, "" },
        { "two-way sweep",
          { "--sweep", "L=100:300:3", "--sweep", "n=0.02:0.04:2",
            saved([](SwaleProject &p) { p.solutionMethod = 2; }) },
          ExitResults,
          "L,n,status,L_result,e,FSe,Qp,Vr,dr,d,Wt,Ax,P,Rh,V,Id,Ab,Qip,Vm,Vs,critical_depth,"
          "critical_velocity,critical_slope,hydraulic_depth,froude,regime,shear_mean,shear_max,"
          "specific_energy,velocity_ratio,residence_time,message\n100,0.02,ok,100,",
          "\n300,0.04,ok,300," },
        { "sweep of an input the method does not use",
          { "--sweep", "A=1:2:3", good },
          ExitUsage,
          "" },
        { "solve out of reach",
          { "--solve", "d=30", "--vary", "B=0.5:10", good },
          ExitTargetNotReached,
          "" },
        { "solve for a result the method does not give",
          { "--solve", "L=1", "--vary", "B=1:2", good },
          ExitUsage,
          "" },
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.name);
        const CalcRun run = runCalc(row.arguments);
        EXPECT_EQ(run.exitCode, row.exitCode);
        EXPECT_EQ(run.out.rfind(row.out, 0), 0u) << run.out;
        if (row.outLater) {
            EXPECT_NE(run.out.find(row.outLater), std::string::npos) << run.out;
        }
        if (row.exitCode != 0 && std::string(row.out).empty()) {
            EXPECT_EQ(run.out, "") << "the message goes to standard error";
        }
        if (std::string(row.name) == "pdf without results") {
            EXPECT_EQ(readBytes(pdf), "") << "no report without results";
        }
    }
    EXPECT_EQ(readBytes(pdf).rfind("%PDF-", 0), 0u);
}

// --solve prints the input found, in full precision: the project calculated with it meets the
// target.
TEST_F(SwaleCalcTest, SolvePrintsTheInputThatMeetsTheTarget)
{
    const CalcRun run = runCalc({ "--solve", "d=0.3", "--vary", "B=0.5:10", saved() });
    ASSERT_EQ(run.exitCode, ExitResults);
    ASSERT_EQ(run.out.back(), '\n');
    SwaleProject project = validProject(4, 2);
    project.inputText[5] = run.out.substr(0, run.out.size() - 1);
    const CalculationOutcome outcome = Calculate(project);
    ASSERT_EQ(outcome.status, CalculationOutcome::Status::Ok) << run.out;
    EXPECT_NEAR(outcome.record.NormalDepth, 0.3, 1e-6);
}

struct ParseCase
{
    const char *name;
    std::vector<std::string> arguments;
    bool ok;
    bool json;
    const char *path;
};

const ParseCase kParses[] = {
    { "file only", { "a.swl" }, true, false, "a.swl" },
    { "json after", { "a.swl", "--json" }, true, true, "a.swl" },
    { "a file named like an option", { "--", "--json" }, true, false, "--json" },
    { "a lone dash is a file name", { "-" }, true, false, "-" },
    { "two files", { "a.swl", "b.swl" }, false, false, "a.swl" },
    { "pdf with its file name", { "--pdf", "out.pdf", "a.swl" }, true, false, "a.swl" },
    { "pdf without a name", { "a.swl", "--pdf" }, false, false, "" },
    { "pdf with an empty name", { "--pdf", "", "a.swl" }, false, false, "" },
    { "no file", {}, false, false, "" },
    { "sweep of an unknown input", { "--sweep", "W=1:2:3", "a.swl" }, false, false, "" },
    { "sweep without points", { "--sweep", "B=1:2", "a.swl" }, false, false, "" },
    { "spacing other than log", { "--sweep", "B=1:2:3:lin", "a.swl" }, false, false, "" },
    { "three sweeps",
      { "--sweep", "B=1:2:3", "--sweep", "n=1:2:3", "--sweep", "Sc=1:2:3", "a.swl" },
      false,
      false,
      "" },
    { "solve without vary", { "--solve", "d=1", "a.swl" }, false, false, "" },
};

TEST(CommandLine, Parses)
{
    for (const ParseCase &row : kParses) {
        SCOPED_TRACE(row.name);
        CommandLine commandLine;
        std::string error;
        EXPECT_EQ(parseCommandLine(row.arguments, commandLine, error), row.ok);
        EXPECT_EQ(error.empty(), row.ok) << error;
        if (row.ok) {
            EXPECT_EQ(commandLine.pdfPath,
                      std::string(row.name).rfind("pdf", 0) == 0 ? "out.pdf" : "");
            EXPECT_EQ(commandLine.json, row.json);
            EXPECT_EQ(commandLine.projectPath, row.path);
        }
    }
}

TEST(JsonOutput, EscapesStrings)
{
    EXPECT_EQ(jsonString(""), "\"\"");
    EXPECT_EQ(jsonString("a \"b\" \\ c"), "\"a \\\"b\\\" \\\\ c\"");
    EXPECT_EQ(jsonString("line\r\nnext\ttab"), "\"line\\r\\nnext\\ttab\"");
    EXPECT_EQ(jsonString(std::string("\x01", 1)), "\"\\u0001\"");
    EXPECT_EQ(jsonString("ft\xC2\xB3"), "\"ft\xC2\xB3\"") << "UTF-8 passes through";
}

// The readable report shows the rows of the Results page: all 18 boxes under method 1; a
// specified flow drops the runoff depth; method 4 also drops the length, the efficiency and the
// infiltration group. Which boxes each mode shows is the Results page's test; this checks the
// report asks it. Result rows are the lines indented by two blanks before the hydraulic checks.
TEST(ResultsReport, ShowsTheRowsOfTheResultsPage)
{
    const struct
    {
        int solutionMethod, channelFlowMethod, expectedRows;
        bool runoffDepthShown;
    } cases[] = { { 1, 1, 18, true }, { 1, 2, 17, false }, { 4, 2, 10, false } };
    for (const auto &row : cases) {
        SCOPED_TRACE(row.solutionMethod * 10 + row.channelFlowMethod);
        const SwaleProject project = validProject(row.solutionMethod, row.channelFlowMethod);
        CalculationOutcome outcome;
        outcome.status = CalculationOutcome::Status::Ok;
        for (std::string &text : outcome.results)
            text = "1";
        const std::string report = resultsReport(project, outcome);
        std::istringstream lines(report);
        int rows = 0;
        for (std::string line; std::getline(lines, line) && line != "Hydraulic checks";)
            rows += line.rfind("  ", 0) == 0 ? 1 : 0;
        EXPECT_EQ(rows, row.expectedRows) << report;
        EXPECT_EQ(report.find("Runoff depth") != std::string::npos, row.runoffDepthShown);
    }
}
} // namespace
