#include "GlobalData.h"
#include "RecentFiles.h"
#include "SettingsFiles.h"

#include "Files.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <string>
#include <utility>

namespace {

struct KeyValueCase
{
    const char *name;
    const char *content;
    std::optional<int> width; // expected value of WIDTH
};

// Each row is a whole WindowState.ini; the expected WIDTH follows the reading rules.
const KeyValueCase kKeyValueCases[] = {
    { "upper-case key", "WIDTH=9000\r\n", 9000 },
    { "half rounds to even", "Width=9000.5\r\n", 9000 },
    { "thousands separator", "Width=12,000\r\n", 12000 },
    { "exponent", "Width=1.2E3\r\n", 1200 },
    { "blank before = makes another key", "Width =9000\r\n", std::nullopt },
    { "number followed by text skipped", "Width=12px\r\n", std::nullopt },
    { "value beyond the integer range skipped", "Width=1E12\r\n", std::nullopt },
    { "last of two wins", "Width=100\r\nWIDTH=200\r\n", 200 },
    { "a bad later value keeps the earlier", "Width=100\r\nWidth=x\r\n", 100 },
};

TEST(KeyValueFiles, ReadingRules)
{
    TempFolder folder;
    for (const KeyValueCase &row : kKeyValueCases) {
        SCOPED_TRACE(row.name);
        writeBytes(folder.file("WindowState.ini"), row.content);
        WindowPlacement placement;
        EXPECT_TRUE(ReadWindowState(folder.file("WindowState.ini"), placement));
        EXPECT_EQ(placement.width, row.width);
    }
}

// A normal window writes all five lines in order; a maximised one only its state.
TEST(WindowStateFile, WritesTheLinesOfItsState)
{
    TempFolder folder;
    const std::string path = folder.file(kWindowStateFile);
    ASSERT_TRUE(WriteWindowState(path, WindowShowState::Normal, 150, 300, 9000, 12000));
    EXPECT_EQ(readBytes(path), "State=0\r\nTop=150\r\nLeft=300\r\nHeight=9000\r\nWidth=12000\r\n");
    WindowPlacement placement;
    ASSERT_TRUE(ReadWindowState(path, placement));
    EXPECT_EQ(placement.top, 150);
    EXPECT_EQ(placement.left, 300);
    ASSERT_TRUE(WriteWindowState(path, WindowShowState::Maximised, 1, 2, 3, 4));
    EXPECT_EQ(readBytes(path), "State=2\r\n");
}

// The default window size takes only a height and a width from its file.
TEST(DefWindowSizeFile, ReadsOnlyHeightAndWidth)
{
    TempFolder folder;
    const std::string path = folder.file(kDefWindowSizeFile);
    writeBytes(path, "State=2\r\nTop=5\r\nHeight=9000\r\nWidth=12000\r\n");
    WindowPlacement placement;
    ASSERT_TRUE(ReadDefWindowSize(path, placement));
    EXPECT_EQ(placement.height, 9000);
    EXPECT_EQ(placement.width, 12000);
    EXPECT_FALSE(placement.state || placement.top);
}

// The chosen size is 1 to 4; anything else in the file leaves the choice to the window.
TEST(HelpImageSettings, DefaultSizeFromOneToFour)
{
    TempFolder folder;
    const std::string settings = folder.path() + "/";
    const std::pair<const char *, int> cases[]
            = { { "4\r\n", 4 }, { "5\r\n", 0 }, { "0\r\n", 0 }, { "big\r\n", 0 } };
    for (const auto &[content, size] : cases) {
        writeBytes(settings + kDefHelpImageFile, content);
        EXPECT_EQ(ReadDefHelpImage(settings), size) << content;
    }
}

// Most recent first, without repeats, at most five; a file edited by hand loses its blanks and
// repeats. Menu texts number the entries and double an ampersand; what is saved loads back.
TEST(RecentFileList, MostRecentFirstWithoutRepeatsAtMostFive)
{
    TempFolder folder;
    const std::string path = folder.file(kRecentFilesFile);
    writeBytes(path, "/1\r\n\r\n/2\r\n/1\r\n/3\r\n/4\r\n/5\r\n/6\r\n");
    RecentFileList list;
    ASSERT_TRUE(list.load(path));
    list.add("/3");
    list.add("/Smith & Sons \xC3\xA9.swl"); // a path that needs UTF-8 in the file
    EXPECT_EQ(list.displayText(1), "&1 /Smith && Sons \xC3\xA9.swl");
    EXPECT_EQ(list.displayText(2), "&2 /3");
    ASSERT_TRUE(list.save(path));
    RecentFileList loaded;
    ASSERT_TRUE(loaded.load(path));
    ASSERT_EQ(loaded.count(), 5);
    const char *const expected[] = { "/Smith & Sons \xC3\xA9.swl", "/3", "/1", "/2", "/4" };
    for (int i = 1; i <= 5; ++i)
        EXPECT_EQ(loaded.entry(i), expected[i - 1]) << "entry " << i;
}

// Start-up gives the settings folder's path whether or not the folder could be created: a file
// in its place makes the writers fail, without a word, and stays as it was.
TEST(ProgramFolders, FirstRunCreatesTheSettingsFolder)
{
    for (const bool blocked : { false, true }) {
        SCOPED_TRACE(blocked ? "a file in the settings folder's place" : "first run");
        TempFolder root;
        const ScopedVariable dataHome("XDG_DATA_HOME", root.file("data"));
        const ScopedVariable home("HOME", root.path());
        const std::string settings = root.file("data/TAVRO33/Swale");
        if (blocked) {
            std::filesystem::create_directories(root.file("data/TAVRO33"));
            writeBytes(settings, "Width=9000\r\n");
        }
        GlobalData data;
        FolderError error;
        ASSERT_TRUE(BuildGlobalData(root.file("program"), data, error));
        EXPECT_EQ(data.programFolder, root.file("program/"));
        EXPECT_EQ(data.settingsFolder, settings + "/");
        EXPECT_EQ(folderExists(settings), !blocked);
        // No Documents folder in the temporary home: the home folder stands in.
        EXPECT_EQ(data.documentsFolder, root.path() + "/");
        EXPECT_EQ(WriteDefHelpImage(data.settingsFolder, 3), !blocked);
        if (blocked) {
            EXPECT_EQ(readBytes(settings), "Width=9000\r\n");
        }
    }
}

} // namespace
