#include "CalcRunner.h"
#include "CommandLine.h"
#include "Files.h"
#include "Fixtures.h"
#include "JsonOutput.h"
#include "ProjectFile.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

class SwaleCalcTest : public ::testing::Test
{
protected:
    std::string saved(const SwaleProject &project, const char *name = "case.swl")
    {
        const std::string path = m_folder.file(name);
        EXPECT_TRUE(saveProject(path, project).ok);
        return path;
    }

    TempFolder m_folder;
};

// Every way the program ends, by its exit code; results of each method are the golden tests'.
TEST_F(SwaleCalcTest, ExitCodes)
{
    const std::string good = saved(validProject(4, 2), "good.swl");
    SwaleProject invalid = validProject(4, 2);
    invalid.inputText[8] = "";
    const std::string bad = saved(invalid, "invalid.swl");
    writeBytes(m_folder.file("notes.swl"), "Shopping list\r\n");
    const std::string pdf = m_folder.file("report.pdf");
    struct Case
    {
        const char *name;
        std::vector<std::string> arguments;
        int exitCode;
        const char *out;
    };
    const Case cases[] = {
        { "no arguments", {}, 64, "" },
        { "unknown option", { "--frobnicate", good }, 64, "" },
        { "help", { "--help" }, 0, "Usage: swale-calc " },
        { "missing file",
          { "--json", m_folder.file("nowhere.swl") },
          3,
          "{\"status\": \"unreadable\", \"message\": \"Unable to open file: " },
        { "not a project",
          { "--json", m_folder.file("notes.swl") },
          3,
          "{\"status\": \"unreadable\"" },
        { "pdf without results", { "--pdf", pdf, bad }, ExitInvalidInput, "" },
        { "pdf into no folder",
          { "--pdf", m_folder.file("no folder/r.pdf"), good },
          ExitPdfNotWritten,
          "" },
        { "pdf", { "--pdf", pdf, good }, ExitResults, "" },
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.name);
        const CalcRun run = runCalc(row.arguments);
        EXPECT_EQ(run.exitCode, row.exitCode);
        EXPECT_EQ(run.out.rfind(row.out, 0), 0u) << run.out;
        if (row.exitCode == 64) {
            EXPECT_EQ(run.out, "") << "usage errors go to standard error";
        }
        if (std::string(row.name) == "pdf without results") {
            EXPECT_EQ(readBytes(pdf), "") << "no report without results";
        }
    }
    EXPECT_EQ(readBytes(pdf).rfind("%PDF-", 0), 0u);
}

struct FaultCase
{
    const char *name;
    void (*damage)(SwaleProject &);
    int exitCode;
    const char *json; // the whole JSON output, or its start when `jsonEnd` is given
    const char *jsonEnd = nullptr;
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
          p.clearRatingCurve();
          setRatingCurve(p, { { "0", "0" }, { "6", "" } });
      },
      1,
      "{\"status\": \"invalid\", \"message\": \"Missing data.  (Rating curve:  Row 2, Col 2)\", "
      "\"row\": 2, \"col\": 2}\n" },
    { "normal depth beyond the rating curve",
      [](SwaleProject &p) {
          p.solutionMethod = 3;
          p.clearRatingCurve();
          setRatingCurve(p, { { "0", "0" }, { "1", "0.1" } });
      },
      2, "{\"status\": \"failed\", \"messages\": [\"The normal depth of flow (",
      " ft) exceeds the rating curve data.\", \"\"]}\n" },
    { "roughness of zero", [](SwaleProject &p) { p.inputText[19] = "0"; }, 2,
      "{\"status\": \"failed\", \"messages\": [\"Arithmetic error in the calculation: division by "
      "zero\"]}\n" },
};

TEST_F(SwaleCalcTest, FaultsGiveTheirShapesAndExitCodes)
{
    for (const FaultCase &row : kFaults) {
        SCOPED_TRACE(row.name);
        SwaleProject project = validProject(4, 2);
        row.damage(project);
        const std::string path = saved(project);
        const CalcRun json = runCalc({ "--json", path });
        EXPECT_EQ(json.exitCode, row.exitCode);
        if (row.jsonEnd) {
            EXPECT_EQ(json.out.rfind(row.json, 0), 0u) << json.out;
            EXPECT_NE(json.out.find(row.jsonEnd), std::string::npos) << json.out;
        } else {
            EXPECT_EQ(json.out, row.json);
        }
        const CalcRun text = runCalc({ path });
        EXPECT_EQ(text.exitCode, row.exitCode);
        EXPECT_EQ(text.out, "") << "messages go to standard error";
    }
}

TEST_F(SwaleCalcTest, TheReportShowsOnlyTheBoxesOfTheMethod)
{
    SwaleProject project = validProject(4, 2);
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
    { "pdf with its file name", { "--pdf", "out.pdf", "a.swl" }, true, false, false, "a.swl" },
    { "pdf without a name", { "a.swl", "--pdf" }, false, false, false, "" },
    { "pdf with an empty name", { "--pdf", "", "a.swl" }, false, false, false, "" },
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
