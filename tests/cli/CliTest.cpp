#include "CommandLine.h"
#include "JsonOutput.h"

#include "ProjectFile.h"
#include "TempFolder.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <sys/wait.h>
#include <vector>

namespace {
struct CalcRun
{
    int exitCode = -1;
    std::string out; // standard output only
};

std::string quoted(const std::string &argument)
{
    std::string out = "'";
    for (const char c : argument)
        out += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return out + "'";
}

CalcRun runCalc(const std::vector<std::string> &arguments)
{
    std::string command = quoted(SWALE_CALC_PATH);
    for (const std::string &argument : arguments)
        command += " " + quoted(argument);
    command += " 2>/dev/null";
    CalcRun run;
    FILE *pipe = popen(command.c_str(), "r");
    if (!pipe)
        return run;
    char buffer[4096];
    size_t count = 0;
    while ((count = fread(buffer, 1, sizeof buffer, pipe)) > 0)
        run.out.append(buffer, count);
    const int status = pclose(pipe);
    run.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return run;
}

// A grassed channel under solution method `method` that calculates: 2 cfs for an hour.
SwaleProject workingProject(int method)
{
    SwaleProject project;
    project.solutionMethod = method;
    project.channelFlowMethod = 2;
    const std::pair<int, const char *> values[] = {
        { 4, "300" }, { 5, "4" },  { 6, "3" },   { 7, "3" },  { 8, "0.01" },
        { 9, "50" },  { 15, "2" }, { 16, "60" }, { 18, "5" }, { 19, "0.035" },
        { 20, "2" },  { 21, "2" }, { 22, "35" }, { 23, "3" },
    };
    for (const auto &[box, text] : values)
        project.inputText[static_cast<size_t>(box)] = text;
    return project;
}

class SwaleCalcTest : public ::testing::Test
{
protected:
    std::string saved(const SwaleProject &project)
    {
        const std::string path = m_folder.file("case.swl");
        EXPECT_TRUE(saveProject(path, project).ok);
        return path;
    }

    TempFolder m_folder;
};

TEST_F(SwaleCalcTest, UsageErrorsExitWith64)
{
    const std::vector<std::vector<std::string>> cases = {
        {}, { "--json" }, { "--frobnicate", "a.swl" }, { "a.swl", "b.swl" }, { "-x" },
    };
    for (const auto &arguments : cases) {
        const CalcRun run = runCalc(arguments);
        EXPECT_EQ(run.exitCode, 64);
        EXPECT_EQ(run.out, "") << "usage errors go to standard error";
    }
}

TEST_F(SwaleCalcTest, HelpPrintsTheUsage)
{
    const CalcRun run = runCalc({ "--help" });
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.out.rfind("Usage: swale-calc ", 0), 0u) << run.out;
    EXPECT_NE(run.out.find("--json"), std::string::npos);
    EXPECT_NE(run.out.find("64 usage error"), std::string::npos);
}

TEST_F(SwaleCalcTest, AMissingFileIsNamedAndExitsWith3)
{
    const std::string path = m_folder.file("nowhere.swl");
    const CalcRun json = runCalc({ "--json", path });
    EXPECT_EQ(json.exitCode, 3);
    EXPECT_EQ(json.out.rfind("{\"status\": \"unreadable\", \"message\": \"Unable to open file: "
                                     + path,
                             0),
              0u)
            << json.out;
    const CalcRun text = runCalc({ path });
    EXPECT_EQ(text.exitCode, 3);
    EXPECT_EQ(text.out, "");
}

TEST_F(SwaleCalcTest, AFileThatIsNoProjectExitsWith3)
{
    const std::string path = m_folder.file("notes.swl");
    writeBytes(path, "Shopping list\r\n");
    const CalcRun run = runCalc({ "--json", path });
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_NE(run.out.find("not a project file"), std::string::npos) << run.out;
}

TEST_F(SwaleCalcTest, ResultsOfEveryMethod)
{
    for (int method = 1; method <= 4; ++method) {
        SCOPED_TRACE(method);
        SwaleProject project = workingProject(method);
        if (method == 3) {
            const char *const curve[][2] = { { "0", "0" }, { "6", "1.5" }, { "24", "9" } };
            for (int row = 1; row <= 3; ++row) {
                project.setRatingCurveCell(row, 1, curve[row - 1][0]);
                project.setRatingCurveCell(row, 2, curve[row - 1][1]);
            }
        }
        const CalcRun run = runCalc({ "--json", saved(project) });
        EXPECT_EQ(run.exitCode, 0) << run.out;
        EXPECT_EQ(run.out.rfind("{\"status\": \"ok\", \"results\": [", 0), 0u) << run.out;
        const size_t open = run.out.find('[');
        const size_t close = run.out.find(']');
        EXPECT_EQ(run.out.substr(close, 14), "], \"checks\": {");
        EXPECT_EQ(run.out.substr(run.out.size() - 3), "}}\n");
        size_t commas = 0;
        for (const char c : run.out.substr(open, close - open))
            commas += c == ',';
        EXPECT_EQ(commas, 17u) << "18 texts";
    }
}

struct FaultCase
{
    const char *name;
    void (*damage)(SwaleProject &);
    int exitCode;
    const char *json;
};

const FaultCase kFaults[] = {
    { "no solution method", [](SwaleProject &p) { p.solutionMethod = 0; }, 1,
      "{\"status\": \"invalid\", \"message\": \"Solution method has not been chosen.  Choose "
      "analysis type.\"}\n" },
    { "empty input box", [](SwaleProject &p) { p.inputText[8] = "  "; }, 1,
      "{\"status\": \"invalid\", \"message\": \"Missing data.\", \"input\": 8}\n" },
    { "rating-curve cell",
      [](SwaleProject &p) {
          p.solutionMethod = 3;
          p.setRatingCurveCell(1, 1, "0");
          p.setRatingCurveCell(1, 2, "0");
          p.setRatingCurveCell(2, 1, "6");
      },
      1,
      "{\"status\": \"invalid\", \"message\": \"Missing data.  (Rating curve:  Row 2, Col 2)\", "
      "\"row\": 2, \"col\": 2}\n" },
    { "normal depth beyond the rating curve",
      [](SwaleProject &p) {
          p.solutionMethod = 3;
          p.setRatingCurveCell(1, 1, "0");
          p.setRatingCurveCell(1, 2, "0");
          p.setRatingCurveCell(2, 1, "1");
          p.setRatingCurveCell(2, 2, "0.1");
      },
      2, nullptr },
    { "roughness of zero", [](SwaleProject &p) { p.inputText[19] = "0"; }, 2,
      "{\"status\": \"failed\", \"messages\": [\"Arithmetic error in the calculation: division by "
      "zero\"]}\n" },
};

TEST_F(SwaleCalcTest, FaultsGiveTheirShapesAndExitCodes)
{
    for (const FaultCase &row : kFaults) {
        SCOPED_TRACE(row.name);
        SwaleProject project = workingProject(4);
        row.damage(project);
        const std::string path = saved(project);
        const CalcRun json = runCalc({ "--json", path });
        EXPECT_EQ(json.exitCode, row.exitCode);
        if (row.json) {
            EXPECT_EQ(json.out, row.json);
        }
        const CalcRun text = runCalc({ path });
        EXPECT_EQ(text.exitCode, row.exitCode);
        EXPECT_EQ(text.out, "") << "messages go to standard error";
    }
}

TEST_F(SwaleCalcTest, BeyondTheRatingCurveGivesTwoMessages)
{
    SwaleProject project = workingProject(3);
    project.setRatingCurveCell(1, 1, "0");
    project.setRatingCurveCell(1, 2, "0");
    project.setRatingCurveCell(2, 1, "1");
    project.setRatingCurveCell(2, 2, "0.1");
    const CalcRun run = runCalc({ "--json", saved(project) });
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.out.rfind("{\"status\": \"failed\", \"messages\": [\"The normal depth of flow (",
                            0),
              0u)
            << run.out;
    EXPECT_NE(run.out.find(" ft) exceeds the rating curve data.\", \"\"]}\n"), std::string::npos)
            << run.out;
}

TEST_F(SwaleCalcTest, TheReportShowsOnlyTheBoxesOfTheMethod)
{
    SwaleProject project = workingProject(4);
    project.inputText[1] = "Test job";
    const CalcRun run = runCalc({ saved(project) });
    ASSERT_EQ(run.exitCode, 0);
    EXPECT_NE(run.out.find("Test job"), std::string::npos);
    EXPECT_NE(run.out.find("Channel Inflow Calculations"), std::string::npos);
    EXPECT_NE(run.out.find("Channel inflow rate, [Qp]"), std::string::npos);
    EXPECT_NE(run.out.find("Mean veolcity, [V]"), std::string::npos);
    EXPECT_NE(run.out.find("fps"), std::string::npos);
    EXPECT_EQ(run.out.find("Length of channel"), std::string::npos);
    EXPECT_EQ(run.out.find("Infiltration Calculations"), std::string::npos);
}

struct ParseCase
{
    const char *name;
    std::vector<std::string> arguments;
    bool ok;
    bool json;
    bool help;
    const char *path;
};

const ParseCase kParses[] = {
    { "file only", { "a.swl" }, true, false, false, "a.swl" },
    { "json before", { "--json", "a.swl" }, true, true, false, "a.swl" },
    { "json after", { "a.swl", "--json" }, true, true, false, "a.swl" },
    { "help alone", { "--help" }, true, false, true, "" },
    { "short help", { "-h" }, true, false, true, "" },
    { "a file named like an option", { "--", "--json" }, true, false, false, "--json" },
    { "a lone dash is a file name", { "-" }, true, false, false, "-" },
    { "no file", {}, false, false, false, "" },
    { "unknown option", { "--verbose" }, false, false, false, "" },
    { "two files", { "a.swl", "b.swl" }, false, false, false, "a.swl" },
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
            EXPECT_EQ(commandLine.json, row.json);
            EXPECT_EQ(commandLine.help, row.help);
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
} // namespace
