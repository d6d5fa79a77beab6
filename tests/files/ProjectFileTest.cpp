#include "ProjectFile.h"

#include "Files.h"
#include "Fixtures.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {
std::string joinLines(const std::vector<std::string> &lines)
{
    std::string out;
    for (const std::string &line : lines)
        out += line + "\r\n";
    return out;
}

// A version-3 file: the header, 23 input lines of "7", then `tail` (options 1 and 1, no rating
// curve, no results).
std::string v3File(const std::string &header,
                   const std::vector<std::string> &tail = { "1", "1", "0", "0" })
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

// The version-3 layout, line by line, is the file contract: sample-v3.swl holds it. Whatever
// reading that file lost or changed would show in the bytes of saving it again.
TEST_F(ProjectFileTest, WritesAndReadsTheVersionThreeLayout)
{
    const std::string sample = readBytes(SWALE_TEST_FILES_DIR "/sample-v3.swl");
    EXPECT_EQ(save(sampleProject()), sample);
    SwaleProject loaded;
    const ProjectFileResult result = loadBytes(sample, loaded);
    ASSERT_TRUE(result.ok) << result.error;
    EXPECT_EQ(save(loaded), sample);
}

// Texts are written trimmed of blanks, and rating-curve rows up to the last used one, which may
// lie past the grid's first rows: loading grows the grid to hold every row of the file.
TEST_F(ProjectFileTest, WritesTrimmedTextsAndRowsUpToTheLastUsedOne)
{
    const int lastRow = kRatingCurveGridRows + 5;
    SwaleProject project;
    project.inputText[1] = "  Lot 4, Phase 2  ";
    project.setRatingCurveCell(1, 1, " 0 ");
    project.setRatingCurveCell(1, 2, "0.0 ");
    project.setRatingCurveCell(lastRow, 2, "3.5");
    project.setRatingCurveCell(lastRow + 2, 1, "   "); // blanks only: not a used row
    const std::string bytes = save(project);
    EXPECT_NE(bytes.find("\r\nLot 4, Phase 2\r\n"), std::string::npos);
    // Options, row count, the rows, and results flag 0 ending the file.
    std::string tail = "\r\n0\r\n0\r\n" + std::to_string(lastRow) + "\r\n0,0.0\r\n";
    for (int row = 2; row < lastRow; ++row)
        tail += ",\r\n";
    tail += ",3.5\r\n0\r\n";
    EXPECT_EQ(bytes.substr(bytes.size() - tail.size()), tail);

    SwaleProject loaded;
    ASSERT_TRUE(loadProject(m_path, loaded).ok);
    EXPECT_EQ(loaded.inputText[1], "Lot 4, Phase 2") << "only rating-curve rows are split";
    EXPECT_EQ(loaded.ratingCurveRowCount(), lastRow);
}

// Stored options outside their groups leave them unchosen.
TEST_F(ProjectFileTest, OptionsOutsideTheirGroupsAreUnchosen)
{
    struct Case
    {
        const char *solution, *channelFlow;
        int expectedSolution, expectedChannelFlow;
    };
    const Case cases[]
            = { { "4", "2", 4, 2 }, { "5", "3", 0, 0 }, { "-1", "1", 0, 1 }, { "1", "-2", 1, 0 } };
    for (const Case &row : cases) {
        SCOPED_TRACE(std::string(row.solution) + " / " + row.channelFlow);
        SwaleProject project;
        ASSERT_TRUE(
                loadBytes(v3File("Swale_03", { row.solution, row.channelFlow, "0", "0" }), project)
                        .ok);
        EXPECT_EQ(project.solutionMethod, row.expectedSolution);
        EXPECT_EQ(project.channelFlowMethod, row.expectedChannelFlow);
    }
}

// Versions 1 and 2 hold 21 input boxes in another order, then the solution method; they know
// only the runoff hydrograph. Version 1 has no rating curve, version 2 has one. Any results
// flag but 0 means shown, in every version.
TEST_F(ProjectFileTest, VersionsOneAndTwoLandInTheRightBoxes)
{
    const int oldOrder[]
            = { 1, 2, 3, 10, 11, 12, 13, 14, 8, 5, 6, 7, 17, 18, 19, 20, 21, 22, 23, 9, 4 };
    struct Case
    {
        const char *header;
        std::vector<std::string> tail;
        int solutionMethod;
        const char *ratingCell; // row 2, column 2
        bool resultsShown;
    };
    const Case cases[] = {
        { "Swale_01", { "2", "-3" }, 2, "", true },
        { "Swale_02", { "3", "2", "0,0", "4,1.5", "0" }, 3, "1.5", false },
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.header);
        std::vector<std::string> lines = { row.header };
        for (const int box : oldOrder)
            lines.push_back("box " + std::to_string(box));
        lines.insert(lines.end(), row.tail.begin(), row.tail.end());
        for (int box = 1; row.resultsShown && box <= kOutputCount; ++box)
            lines.push_back("out " + std::to_string(box));
        SwaleProject project;
        const ProjectFileResult result = loadBytes(joinLines(lines), project);
        ASSERT_TRUE(result.ok) << result.error;
        for (int box = 1; box <= kInputCount; ++box) {
            const bool carried = box != 15 && box != 16;
            EXPECT_EQ(project.inputText[static_cast<size_t>(box)],
                      carried ? "box " + std::to_string(box) : "")
                    << "box " << box;
        }
        EXPECT_EQ(project.channelFlowMethod, 1) << "the runoff hydrograph is chosen";
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
    const char *errorPart = nullptr; // nullptr: the file loads
    ProjectFileStep step = ProjectFileStep::Open;
};

// The version is read at positions 7 and 8 of the first line, wherever "Swale_" stands.
const LoadCase kLoads[] = {
    { "header with a note", v3File("Swale_03 saved by hand") },
    { "one-digit version", v3File("Swale_3") },
    { "text before the header", v3File("My Swale_03"), "not a project file" },
    { "unknown version", v3File("Swale_04"), "not a project file" },
    { "lower-case header", v3File("swale_03"), "not a project file" },
    { "cut short", "Swale_03\r\nJob\r\nEngineer\r\n", "unexpected end of file after line 3",
      ProjectFileStep::Read },
    { "non-numeric solution method", v3File("Swale_03", { "one", "1", "0", "0" }),
      "line 25: \"one\" is not a whole number", ProjectFileStep::Read },
    { "row count out of range", v3File("Swale_03", { "1", "1", "40000" }), "line 27",
      ProjectFileStep::Read },
    { "results cut short", v3File("Swale_03", { "1", "1", "0", "1", "1", "2" }),
      "unexpected end of file after line 30", ProjectFileStep::Read },
};

TEST_F(ProjectFileTest, TheHeaderDecidesAndDamagedFilesAreRefused)
{
    for (const LoadCase &row : kLoads) {
        SCOPED_TRACE(row.name);
        SwaleProject project;
        const ProjectFileResult result = loadBytes(row.bytes, project);
        EXPECT_EQ(result.ok, row.errorPart == nullptr) << result.error;
        if (row.errorPart) {
            EXPECT_EQ(result.failedStep, row.step);
            EXPECT_NE(result.error.find(row.errorPart), std::string::npos) << result.error;
        }
    }
}

// A value with a line break would shift every later line: the save fails at its line, before
// Close, and the unfinished save leaves the old file and nothing beside it.
TEST_F(ProjectFileTest, AValueWithALineBreakFailsTheSave)
{
    SwaleProject broken = sampleProject();
    broken.inputText[17] = "two\nlines";
    writeBytes(m_path, "old\r\n");
    const ProjectFileResult result = saveProject(m_path, broken);
    EXPECT_EQ(result.failedStep, ProjectFileStep::Write);
    EXPECT_EQ(result.error, "line 18: a value holds a line break");
    EXPECT_EQ(readBytes(m_path), "old\r\n");
    EXPECT_EQ(m_folder.entries(), std::vector<std::string> { "project.swl" });
}

} // namespace
