#include "ProjectFile.h"

#include "DataFile.h"
#include "Files.h"
#include "Fixtures.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {
const char *const kCrLf = "\r\n";

std::string joinLines(const std::vector<std::string> &lines)
{
    std::string out;
    for (const std::string &line : lines)
        out += line + kCrLf;
    return out;
}

// A version-3 file: the header, 23 input lines of "7", then `tail`.
std::string v3File(const std::vector<std::string> &tail, const std::string &header = "Swale_03")
{
    std::vector<std::string> lines(24, "7");
    lines[0] = header;
    lines.insert(lines.end(), tail.begin(), tail.end());
    return joinLines(lines);
}

class ProjectFileTest : public ::testing::Test
{
protected:
    std::string save(const SwaleProject &project)
    {
        const ProjectFileResult result = saveProject(m_path, project);
        EXPECT_TRUE(result.ok) << result.error;
        return readBytes(m_path);
    }

    ProjectFileResult loadBytes(const std::string &bytes, SwaleProject &project)
    {
        writeBytes(m_path, bytes);
        return loadProject(m_path, project);
    }

    TempFolder m_folder;
    std::string m_path = m_folder.file("project.swl");
};

// The version-3 layout, line by line, is the file contract: sample-v3.swl holds it.
TEST_F(ProjectFileTest, WritesTheVersionThreeLayout)
{
    EXPECT_EQ(save(sampleProject()), readBytes(SWALE_TEST_FILES_DIR "/sample-v3.swl"));
}

// Whatever loading lost or changed would show in the bytes of the second save.
TEST_F(ProjectFileTest, RoundTripGivesTheSameBytes)
{
    const std::string first = save(sampleProject());
    SwaleProject loaded;
    const ProjectFileResult result = loadProject(m_path, loaded);
    ASSERT_TRUE(result.ok) << result.error;
    EXPECT_EQ(save(loaded), first);
}

TEST_F(ProjectFileTest, TrimsBlanksAndKeepsEverythingElseAsTyped)
{
    SwaleProject project;
    project.inputText[1] = "  Lot 4, Phase 2  ";
    project.inputText[5] = " 1,500 ";
    project.setRatingCurveCell(1, 1, " 0 ");
    project.setRatingCurveCell(1, 2, "0.0 ");
    const std::string bytes = save(project);
    EXPECT_NE(bytes.find("\r\nLot 4, Phase 2\r\n"), std::string::npos);
    EXPECT_NE(bytes.find("\r\n1,500\r\n"), std::string::npos);
    EXPECT_NE(bytes.find("\r\n1\r\n0,0.0\r\n0\r\n"), std::string::npos);

    SwaleProject loaded;
    ASSERT_TRUE(loadProject(m_path, loaded).ok);
    EXPECT_EQ(loaded.inputText[1], "Lot 4, Phase 2") << "only rating-curve rows are split";
}

TEST_F(ProjectFileTest, RowsUpToTheLastUsedOneAreWritten)
{
    SwaleProject project;
    project.setRatingCurveCell(5, 2, "3.5");
    project.setRatingCurveCell(7, 1, "   "); // blanks only: not a used row
    EXPECT_EQ(GetLastUsedRow(project), 5);
    const std::string bytes = save(project);
    EXPECT_NE(bytes.find("\r\n0\r\n0\r\n5\r\n,\r\n,\r\n,\r\n,\r\n,3.5\r\n0\r\n"), std::string::npos)
            << bytes;
    EXPECT_EQ(bytes.substr(bytes.size() - 3), "0\r\n") << "results flag 0 ends the file";
}

TEST_F(ProjectFileTest, TheGridGrowsToHoldEveryRowOfTheFile)
{
    SwaleProject project;
    const int rows = kRatingCurveGridRows + 25;
    for (int row = 1; row <= rows; ++row) {
        project.setRatingCurveCell(row, 1, std::to_string(row - 1));
        project.setRatingCurveCell(row, 2, std::to_string(2 * (row - 1)));
    }
    save(project);
    SwaleProject loaded;
    ASSERT_TRUE(loadProject(m_path, loaded).ok);
    EXPECT_EQ(loaded.ratingCurveRowCount(), rows);
    EXPECT_EQ(loaded.ratingCurveCell(rows, 2), std::to_string(2 * (rows - 1)));
}

// Stored options outside their groups leave them unchosen; any non-zero results flag means shown.
TEST_F(ProjectFileTest, OptionsAndResultsFlagAsStored)
{
    struct Case
    {
        const char *solution, *channelFlow, *resultsFlag;
        int expectedSolution, expectedChannelFlow;
    };
    const Case cases[] = {
        { "4", "2", "-3", 4, 2 },
        { "5", "3", "0", 0, 0 },
        { "-1", "1", "0", 0, 1 },
        { "1", "-2", "0", 1, 0 },
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(std::string(row.solution) + " / " + row.channelFlow);
        std::vector<std::string> tail = { row.solution, row.channelFlow, "0", row.resultsFlag };
        const bool shown = std::string(row.resultsFlag) != "0";
        for (int box = 1; shown && box <= kOutputCount; ++box)
            tail.push_back("r" + std::to_string(box));
        SwaleProject project;
        ASSERT_TRUE(loadBytes(v3File(tail), project).ok);
        EXPECT_EQ(project.solutionMethod, row.expectedSolution);
        EXPECT_EQ(project.channelFlowMethod, row.expectedChannelFlow);
        EXPECT_EQ(project.resultsShown, shown);
        EXPECT_EQ(project.outputText[18], shown ? "r18" : "");
    }
}

// Lines 2 to 22 of the older layout, each naming the input box it must land in.
std::vector<std::string> oldInputBlock()
{
    const int boxes[]
            = { 1, 2, 3, 10, 11, 12, 13, 14, 8, 5, 6, 7, 17, 18, 19, 20, 21, 22, 23, 9, 4 };
    std::vector<std::string> lines;
    for (const int box : boxes)
        lines.push_back("box " + std::to_string(box));
    return lines;
}

void expectOldInputsInPlace(const SwaleProject &project)
{
    for (int box = 1; box <= kInputCount; ++box) {
        SCOPED_TRACE(box);
        const bool carried = box != 15 && box != 16;
        EXPECT_EQ(project.inputText[static_cast<size_t>(box)],
                  carried ? "box " + std::to_string(box) : "");
    }
    EXPECT_EQ(project.channelFlowMethod, 1) << "the runoff hydrograph is chosen";
}

// Version 1 has no channel-flow option and no rating curve; version 2 adds the rating curve.
TEST_F(ProjectFileTest, VersionsOneAndTwoLandInTheRightBoxes)
{
    struct Case
    {
        const char *header;
        std::vector<std::string> tail;
        int solutionMethod;
        const char *ratingCell; // row 2, column 2
        bool resultsShown;
    };
    const Case cases[] = {
        { "Swale_01", { "2", "1" }, 2, "", true },
        { "Swale_02", { "3", "2", "0,0", "4,1.5", "0" }, 3, "1.5", false },
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.header);
        std::vector<std::string> lines = { row.header };
        for (const std::vector<std::string> &part : { oldInputBlock(), row.tail })
            lines.insert(lines.end(), part.begin(), part.end());
        for (int box = 1; row.resultsShown && box <= kOutputCount; ++box)
            lines.push_back("out " + std::to_string(box));
        writeBytes(m_path, joinLines(lines));
        SwaleProject project;
        project.inputText[15] = "left from an earlier project";
        DataFile file;
        ASSERT_TRUE(file.OpenForRead(m_path));
        ASSERT_TRUE(ReadProjectData(file, project)) << file.errorString();
        expectOldInputsInPlace(project);
        EXPECT_EQ(project.solutionMethod, row.solutionMethod);
        EXPECT_EQ(project.ratingCurveCell(2, 2), row.ratingCell);
        EXPECT_EQ(project.resultsShown, row.resultsShown);
        EXPECT_EQ(project.outputText[18], row.resultsShown ? "out 18" : "");
    }
}

struct LoadCase
{
    const char *name;
    std::string bytes;
    bool loads;
    ProjectFileStep step = ProjectFileStep::Open;
    const char *errorPart = "";
};

// The version is read at positions 7 and 8 of the first line, wherever "Swale_" stands.
const LoadCase kLoads[] = {
    { "header with a note", v3File({ "1", "1", "0", "0" }, "Swale_03 saved by hand"), true },
    { "one-digit version", v3File({ "1", "1", "0", "0" }, "Swale_3"), true },
    { "text before the header", v3File({ "1", "1", "0", "0" }, "My Swale_03"), false,
      ProjectFileStep::Open, "not a project file" },
    { "unknown version", v3File({ "1", "1", "0", "0" }, "Swale_04"), false, ProjectFileStep::Open,
      "not a project file" },
    { "lower-case header", v3File({ "1", "1", "0", "0" }, "swale_03"), false, ProjectFileStep::Open,
      "not a project file" },
    { "cut short", "Swale_03\r\nJob\r\nEngineer\r\n", false, ProjectFileStep::Read,
      "unexpected end of file after line 3" },
    { "non-numeric solution method", v3File({ "one", "1", "0", "0" }), false, ProjectFileStep::Read,
      "line 25: \"one\" is not a whole number" },
    { "row count out of range", v3File({ "1", "1", "40000" }), false, ProjectFileStep::Read,
      "line 27" },
    { "results cut short", v3File({ "1", "1", "0", "1", "1", "2" }), false, ProjectFileStep::Read,
      "unexpected end of file after line 30" },
    { "version 1 without its results flag",
      "Swale_01\r\n" + joinLines(std::vector<std::string>(22, "1")), false, ProjectFileStep::Read,
      "unexpected end of file" },
};

TEST_F(ProjectFileTest, TheHeaderDecidesAndDamagedFilesAreRefused)
{
    for (const LoadCase &row : kLoads) {
        SCOPED_TRACE(row.name);
        SwaleProject project;
        const ProjectFileResult result = loadBytes(row.bytes, project);
        EXPECT_EQ(result.ok, row.loads) << result.error;
        if (!row.loads) {
            EXPECT_EQ(result.failedStep, row.step);
            EXPECT_NE(result.error.find(row.errorPart), std::string::npos) << result.error;
        }
    }
}

TEST_F(ProjectFileTest, SaveFailuresNameTheirStep)
{
    const ProjectFileResult intoMissingFolder
            = saveProject(m_folder.file("no/folder/p.swl"), sampleProject());
    EXPECT_FALSE(intoMissingFolder.ok);
    EXPECT_EQ(intoMissingFolder.failedStep, ProjectFileStep::Open);

    SwaleProject broken = sampleProject();
    broken.inputText[17] = "two\nlines";
    writeBytes(m_path, "old\r\n");
    const ProjectFileResult badText = saveProject(m_path, broken);
    EXPECT_FALSE(badText.ok);
    EXPECT_EQ(badText.failedStep, ProjectFileStep::Write);
    EXPECT_EQ(badText.error, "line 18: a value holds a line break");
    EXPECT_EQ(readBytes(m_path), "old\r\n") << "a failed save leaves the old file";
}

} // namespace
