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

// Compares the parts of two projects that a file carries.
void expectSameDocument(const SwaleProject &actual, const SwaleProject &expected)
{
    EXPECT_EQ(actual.inputText, expected.inputText);
    EXPECT_EQ(actual.solutionMethod, expected.solutionMethod);
    EXPECT_EQ(actual.channelFlowMethod, expected.channelFlowMethod);
    EXPECT_EQ(GetLastUsedRow(actual), GetLastUsedRow(expected));
    for (int row = 1; row <= GetLastUsedRow(expected); ++row) {
        EXPECT_EQ(actual.ratingCurveCell(row, 1), expected.ratingCurveCell(row, 1)) << row;
        EXPECT_EQ(actual.ratingCurveCell(row, 2), expected.ratingCurveCell(row, 2)) << row;
    }
    EXPECT_EQ(actual.resultsShown, expected.resultsShown);
    if (expected.resultsShown) {
        EXPECT_EQ(actual.outputText, expected.outputText);
    }
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

TEST_F(ProjectFileTest, RoundTripGivesTheSameBytes)
{
    const SwaleProject original = sampleProject();
    const std::string first = save(original);
    SwaleProject loaded;
    const ProjectFileResult result = loadProject(m_path, loaded);
    ASSERT_TRUE(result.ok) << result.error;
    expectSameDocument(loaded, original);
    EXPECT_EQ(save(loaded), first);
}

TEST_F(ProjectFileTest, TrimsBlanksAndKeepsEverythingElseAsTyped)
{
    SwaleProject project;
    project.inputText[1] = "  Lot 4, Phase 2  ";
    project.inputText[5] = " 1,500 ";
    project.inputText[8] = ".010";
    project.setRatingCurveCell(1, 1, " 0 ");
    project.setRatingCurveCell(1, 2, "0.0 ");
    const std::string bytes = save(project);
    EXPECT_NE(bytes.find("\r\nLot 4, Phase 2\r\n"), std::string::npos);
    EXPECT_NE(bytes.find("\r\n1,500\r\n"), std::string::npos);
    EXPECT_NE(bytes.find("\r\n.010\r\n"), std::string::npos);
    EXPECT_NE(bytes.find("\r\n1\r\n0,0.0\r\n0\r\n"), std::string::npos);

    SwaleProject loaded;
    ASSERT_TRUE(loadProject(m_path, loaded).ok);
    EXPECT_EQ(loaded.inputText[1], "Lot 4, Phase 2") << "only rating-curve rows are split";
    EXPECT_EQ(loaded.inputText[5], "1,500");
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

    project.clearRatingCurve();
    EXPECT_EQ(GetLastUsedRow(project), 0);
    EXPECT_NE(save(project).find("\r\n0\r\n0\r\n0\r\n0\r\n"), std::string::npos);
}

TEST_F(ProjectFileTest, RatingRowsSplitAsTheTokenizerSplitsThem)
{
    std::vector<std::string> lines(24, "");
    lines[0] = "Swale_03";
    for (const char *line : { "3", "1", "5", "0,0", "1.5, 2.0", ",", "7", "0.5 1.25", "0" })
        lines.push_back(line);
    SwaleProject project;
    ASSERT_TRUE(loadBytes(joinLines(lines), project).ok);
    EXPECT_EQ(project.ratingCurveCell(1, 1), "0");
    EXPECT_EQ(project.ratingCurveCell(2, 2), " 2.0") << "the blank after the comma stays";
    EXPECT_EQ(project.ratingCurveCell(3, 1), ",") << "a lone comma is one token";
    EXPECT_EQ(project.ratingCurveCell(3, 2), "");
    EXPECT_EQ(project.ratingCurveCell(4, 1), "7");
    EXPECT_EQ(project.ratingCurveCell(4, 2), "");
    EXPECT_EQ(project.ratingCurveCell(5, 1), "0.5");
    EXPECT_EQ(project.ratingCurveCell(5, 2), "1.25");
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

TEST_F(ProjectFileTest, StoredOptionsOutsideTheGroupsLeaveThemUnchosen)
{
    struct Case
    {
        const char *solution;
        const char *channelFlow;
        int expectedSolution;
        int expectedChannelFlow;
    };
    const Case cases[] = {
        { "0", "0", 0, 0 },  { "4", "2", 4, 2 },  { "5", "3", 0, 0 },
        { "-1", "1", 0, 1 }, { "1", "-2", 1, 0 }, { "32767", "2", 0, 2 },
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(std::string(row.solution) + " / " + row.channelFlow);
        std::vector<std::string> lines(24, "x");
        lines[0] = "Swale_03";
        for (const char *line : { row.solution, row.channelFlow, "0", "0" })
            lines.push_back(line);
        SwaleProject project;
        ASSERT_TRUE(loadBytes(joinLines(lines), project).ok);
        EXPECT_EQ(project.solutionMethod, row.expectedSolution);
        EXPECT_EQ(project.channelFlowMethod, row.expectedChannelFlow);
    }
}

TEST_F(ProjectFileTest, AnyNonZeroResultsFlagMeansShown)
{
    std::vector<std::string> lines(24, "");
    lines[0] = "Swale_03";
    for (const char *line : { "4", "2", "0", "-3" })
        lines.push_back(line);
    for (int box = 1; box <= kOutputCount; ++box)
        lines.push_back("r" + std::to_string(box));
    SwaleProject project;
    ASSERT_TRUE(loadBytes(joinLines(lines), project).ok);
    EXPECT_TRUE(project.resultsShown);
    EXPECT_EQ(project.outputText[1], "r1");
    EXPECT_EQ(project.outputText[18], "r18");
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

TEST_F(ProjectFileTest, VersionOneLandsInTheRightBoxes)
{
    std::vector<std::string> lines = { "Swale_01" };
    for (const std::string &line : oldInputBlock())
        lines.push_back(line);
    lines.push_back("2"); // solution method
    lines.push_back("1"); // results flag
    for (int box = 1; box <= kOutputCount; ++box)
        lines.push_back("out " + std::to_string(box));
    SwaleProject project;
    const ProjectFileResult result = loadBytes(joinLines(lines), project);
    ASSERT_TRUE(result.ok) << result.error;
    expectOldInputsInPlace(project);
    EXPECT_EQ(project.solutionMethod, 2);
    EXPECT_EQ(GetLastUsedRow(project), 0);
    EXPECT_TRUE(project.resultsShown);
    EXPECT_EQ(project.outputText[18], "out 18");
}

TEST_F(ProjectFileTest, VersionTwoLandsInTheRightBoxesWithItsRatingCurve)
{
    std::vector<std::string> lines = { "Swale_02" };
    for (const std::string &line : oldInputBlock())
        lines.push_back(line);
    for (const char *line : { "3", "2", "0,0", "4,1.5", "0" })
        lines.push_back(line);
    SwaleProject project;
    project.inputText[15] = "left from an earlier project";
    writeBytes(m_path, joinLines(lines));
    DataFile file;
    ASSERT_TRUE(file.OpenForRead(m_path));
    ASSERT_TRUE(ReadProjectData(file, project));
    expectOldInputsInPlace(project);
    EXPECT_EQ(project.solutionMethod, 3);
    EXPECT_EQ(project.ratingCurveCell(2, 1), "4");
    EXPECT_EQ(project.ratingCurveCell(2, 2), "1.5");
    EXPECT_FALSE(project.resultsShown);
}

struct HeaderCase
{
    const char *header;
    bool loads;
};

// The version is read at positions 7 and 8 of the first line, wherever "Swale_" stands.
const HeaderCase kHeaders[] = {
    { "Swale_03", true },  { "Swale_03 saved by hand", true },
    { "Swale_3", true },   { "My Swale_03", false }, // positions 7 and 8 read "le"
    { "Swale_04", false }, { "Swale_00", false },
    { "swale_03", false }, { "", false },
};

TEST_F(ProjectFileTest, TheHeaderDecidesWhetherTheFileLoads)
{
    for (const HeaderCase &row : kHeaders) {
        SCOPED_TRACE(std::string("header [") + row.header + "]");
        std::vector<std::string> lines(24, "");
        lines[0] = row.header;
        for (const char *line : { "1", "1", "0", "0" })
            lines.push_back(line);
        SwaleProject project;
        const ProjectFileResult result = loadBytes(joinLines(lines), project);
        EXPECT_EQ(result.ok, row.loads);
        if (!row.loads) {
            EXPECT_EQ(result.failedStep, ProjectFileStep::Open);
            EXPECT_NE(result.error.find("not a project file"), std::string::npos) << result.error;
        }
    }
}

struct DamageCase
{
    const char *name;
    std::string bytes;
    ProjectFileStep step;
    const char *errorPart;
};

std::string validStart()
{
    return joinLines(std::vector<std::string>(1, "Swale_03"))
            + joinLines(std::vector<std::string>(23, "7"));
}

const DamageCase kDamage[] = {
    { "missing file", "", ProjectFileStep::Open, "" },
    { "cut short", "Swale_03\r\nJob\r\nEngineer\r\n", ProjectFileStep::Read,
      "unexpected end of file after line 3" },
    { "empty file", "", ProjectFileStep::Open, "the file is empty" },
    { "bad header", "Swail_03\r\n", ProjectFileStep::Open, "not a project file" },
    { "non-numeric solution method", validStart() + "one\r\n1\r\n0\r\n0\r\n", ProjectFileStep::Read,
      "line 25: \"one\" is not a whole number" },
    { "row count out of range", validStart() + "1\r\n1\r\n40000\r\n", ProjectFileStep::Read,
      "line 27" },
    { "fewer rating rows than announced", validStart() + "3\r\n1\r\n4\r\n0,0\r\n1,1\r\n",
      ProjectFileStep::Read, "unexpected end of file" },
    { "results cut short", validStart() + "1\r\n1\r\n0\r\n1\r\n1\r\n2\r\n", ProjectFileStep::Read,
      "unexpected end of file after line 30" },
    { "huge line", validStart() + std::string(DataFile::kMaxLineLength + 10, '9') + "\r\n",
      ProjectFileStep::Read, "longer than" },
    { "binary junk", std::string("Swale_03\r\n\0\x01\x7F\xFF junk", 16), ProjectFileStep::Open,
      "binary data" },
    { "version 1 without its results flag",
      "Swale_01\r\n" + joinLines(std::vector<std::string>(22, "1")), ProjectFileStep::Read,
      "unexpected end of file" },
};

TEST_F(ProjectFileTest, DamagedFilesAreRefusedWithAClearStatus)
{
    for (const DamageCase &row : kDamage) {
        SCOPED_TRACE(row.name);
        SwaleProject project;
        const bool missing = std::string(row.name) == "missing file";
        const ProjectFileResult result = missing ? loadProject(m_folder.file("absent.swl"), project)
                                                 : loadBytes(row.bytes, project);
        EXPECT_FALSE(result.ok);
        EXPECT_FALSE(result.error.empty());
        EXPECT_EQ(result.failedStep, row.step);
        EXPECT_NE(result.error.find(row.errorPart), std::string::npos) << result.error;
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

struct SavedTextCase
{
    const char *name;
    const char *text; // as a file gave it, so it must save and load back unchanged
};

// Texts that a file can give but that once failed to save or came back changed.
const SavedTextCase kSavedTexts[] = {
    { "UTF-8 whose characters all fit Windows-1252", "\xC3\x83\xC2\xA9" }, // "Ã©"
    { "a lone CR inside the text", "Job\rname" },
    { "a CR at the end of the text", "Job\r" },
    { "characters outside Windows-1252", "\xC5\x81ukasz \xC5\x9Awi\xC4\x85tek" }, // Łukasz Świątek
};

TEST_F(ProjectFileTest, TextsAFileCanHoldSaveAndLoadBackUnchanged)
{
    for (const SavedTextCase &row : kSavedTexts) {
        SCOPED_TRACE(row.name);
        SwaleProject project = sampleProject();
        project.inputText[1] = row.text;
        project.outputText[18] = row.text;
        save(project);
        SwaleProject loaded;
        const ProjectFileResult result = loadProject(m_path, loaded);
        ASSERT_TRUE(result.ok) << result.error;
        expectSameDocument(loaded, project);
    }
}
} // namespace
