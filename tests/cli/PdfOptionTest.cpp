#include "CommandLine.h"

#include "ProjectFile.h"
#include "TempFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <sys/wait.h>
#include <vector>

namespace {

// Runs swale-calc with its output thrown away; the exit code, or -1 when it did not exit.
int runCalcQuietly(const std::string &arguments)
{
    const std::string command
            = std::string("'") + SWALE_CALC_PATH + "' " + arguments + " >/dev/null 2>&1";
    const int status = std::system(command.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

std::string inQuotes(const std::string &path)
{
    return "'" + path + "'";
}

// The channel of the command-line tests: 2 cfs for an hour in a grassed channel, method 4.
SwaleProject channelProject()
{
    SwaleProject project;
    project.solutionMethod = 4;
    project.channelFlowMethod = 2;
    const std::pair<int, const char *> values[] = {
        { 1, "PDF option check" },
        { 5, "4" },
        { 6, "3" },
        { 7, "3" },
        { 8, "0.01" },
        { 15, "2" },
        { 16, "60" },
        { 18, "5" },
        { 19, "0.035" },
    };
    for (const auto &[box, text] : values)
        project.inputText[static_cast<size_t>(box)] = text;
    return project;
}

TEST(PdfOption, IsParsedWithItsFileName)
{
    CommandLine commandLine;
    std::string error;
    ASSERT_TRUE(parseCommandLine({ "--pdf", "out.pdf", "a.swl" }, commandLine, error));
    EXPECT_EQ(commandLine.pdfPath, "out.pdf");
    EXPECT_EQ(commandLine.projectPath, "a.swl");

    for (const std::vector<std::string> &arguments :
         std::vector<std::vector<std::string>> { { "a.swl", "--pdf" }, { "--pdf", "", "a.swl" } }) {
        CommandLine missing;
        EXPECT_FALSE(parseCommandLine(arguments, missing, error));
        EXPECT_NE(error.find("--pdf"), std::string::npos);
    }
}

TEST(PdfOption, WritesTheReportOfACalculatedProject)
{
    TempFolder folder;
    const std::string project = folder.file("channel.swl");
    ASSERT_TRUE(saveProject(project, channelProject()).ok);
    const std::string pdf = folder.file("report.pdf");
    EXPECT_EQ(runCalcQuietly("--pdf " + inQuotes(pdf) + " " + inQuotes(project)), ExitResults);
    EXPECT_EQ(readBytes(pdf).rfind("%PDF-", 0), 0u);
}

TEST(PdfOption, WritesNothingWithoutResults)
{
    TempFolder folder;
    SwaleProject invalid = channelProject();
    invalid.inputText[8] = "";
    const std::string project = folder.file("invalid.swl");
    ASSERT_TRUE(saveProject(project, invalid).ok);
    const std::string pdf = folder.file("report.pdf");
    EXPECT_EQ(runCalcQuietly("--pdf " + inQuotes(pdf) + " " + inQuotes(project)), ExitInvalidInput);
    EXPECT_EQ(folder.entries(), std::vector<std::string> { "invalid.swl" });
}

TEST(PdfOption, AnUnwritablePdfExitsWith73)
{
    TempFolder folder;
    const std::string project = folder.file("channel.swl");
    ASSERT_TRUE(saveProject(project, channelProject()).ok);
    const std::string pdf = folder.file("no such folder/report.pdf");
    EXPECT_EQ(runCalcQuietly("--pdf " + inQuotes(pdf) + " " + inQuotes(project)),
              ExitPdfNotWritten);
}

} // namespace
