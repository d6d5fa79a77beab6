#include "GlobalData.h"
#include "RecentFiles.h"
#include "SettingsFiles.h"

#include "Files.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

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
    const std::string path = folder.file("WindowState.ini");
    ASSERT_TRUE(WriteWindowState(path, WindowShowState::Normal, 150, 300, 9000, 12000));
    EXPECT_EQ(readBytes(path), "State=0\r\nTop=150\r\nLeft=300\r\nHeight=9000\r\nWidth=12000\r\n");
    WindowPlacement placement;
    ASSERT_TRUE(ReadWindowState(path, placement));
    EXPECT_EQ(placement.top, 150);
    EXPECT_EQ(placement.left, 300);
    ASSERT_TRUE(WriteWindowState(path, WindowShowState::Maximised, 1, 2, 3, 4));
    EXPECT_EQ(readBytes(path), "State=2\r\n");
}

TEST(HelpImageSettings, KeepsOnlyNamedFilesThatExist)
{
    TempFolder folder;
    const std::string program = folder.path() + "/";
    writeBytes(program + "small.png", "x");
    writeBytes(program + "large.png", "x");
    writeBytes(program + "HelpImages.ini",
               " small = small.png\r\nMedium=medium.png\r\nLARGE=large.png\r\nLargest=\r\n"
               "junk line\r\n");
    const HelpImageFiles files = ReadHelpImageFolders(program);
    EXPECT_EQ(files[1], "small.png");
    EXPECT_EQ(files[2], ""); // named, but the file does not exist
    EXPECT_EQ(files[3], "large.png");
    EXPECT_EQ(files[4], ""); // empty value
}

TEST(HelpImageSettings, DefaultSizeRoundTripAndBadValues)
{
    TempFolder folder;
    const std::string settings = folder.path() + "/";
    EXPECT_EQ(ReadDefHelpImage(settings), 0); // no file yet
    for (int size = 1; size <= 4; ++size) {
        ASSERT_TRUE(WriteDefHelpImage(settings, size));
        EXPECT_EQ(ReadDefHelpImage(settings), size);
    }
    for (const char *content : { "5\r\n", "0\r\n", "big\r\n" }) {
        SCOPED_TRACE(content);
        writeBytes(settings + "DefHelpImg.ini", content);
        EXPECT_EQ(ReadDefHelpImage(settings), 0);
    }
}

TEST(RecentFileList, MostRecentFirstWithoutDuplicatesAtMostFive)
{
    RecentFileList list;
    for (const char *path : { "/a.swl", "/b.swl", "/c.swl", "/a.swl" })
        list.add(path);
    ASSERT_EQ(list.count(), 3);
    EXPECT_EQ(list.entry(1), "/a.swl");
    EXPECT_EQ(list.entry(2), "/c.swl");
    EXPECT_EQ(list.entry(3), "/b.swl");
    for (const char *path : { "/d.swl", "/e.swl", "/f.swl" })
        list.add(path);
    EXPECT_EQ(list.count(), 5);
    EXPECT_EQ(list.entry(1), "/f.swl");
    EXPECT_EQ(list.entry(5), "/c.swl"); // "/b.swl", the oldest, dropped out
}

TEST(RecentFileList, DisplayTextNumbersTheEntryAndKeepsAmpersands)
{
    RecentFileList list;
    list.add("/data/Smith & Sons/swale.swl");
    list.add("/data/a.swl");
    EXPECT_EQ(list.displayText(1), "&1 /data/a.swl");
    EXPECT_EQ(list.displayText(2), "&2 /data/Smith && Sons/swale.swl");
}

// What is saved loads back; a file edited by hand loses blanks and repeats and keeps five.
TEST(RecentFileList, SaveAndLoadRoundTrip)
{
    TempFolder folder;
    RecentFileList list;
    list.add("/x/one.swl");
    list.add("/x/two \xC3\xA9.swl"); // a path that needs UTF-8 in the file
    ASSERT_TRUE(list.save(folder.file("RecentFiles.ini")));
    RecentFileList loaded;
    ASSERT_TRUE(loaded.load(folder.file("RecentFiles.ini")));
    ASSERT_EQ(loaded.count(), 2);
    EXPECT_EQ(loaded.entry(1), "/x/two \xC3\xA9.swl");
    EXPECT_EQ(loaded.entry(2), "/x/one.swl");
    writeBytes(folder.file("RecentFiles.ini"), "/1\r\n\r\n/2\r\n/1\r\n/3\r\n/4\r\n/5\r\n/6\r\n");
    ASSERT_TRUE(loaded.load(folder.file("RecentFiles.ini")));
    ASSERT_EQ(loaded.count(), 5);
    EXPECT_EQ(loaded.entry(5), "/5");
}

class ProgramFolders : public ::testing::Test
{
protected:
    TempFolder m_folder;
    ScopedVariable m_dataHome { "XDG_DATA_HOME", m_folder.path() + "/data" };
    ScopedVariable m_home { "HOME", m_folder.path() };
};

TEST_F(ProgramFolders, FirstRunCreatesTheSettingsFolders)
{
    GlobalData data;
    FolderError error;
    ASSERT_TRUE(BuildGlobalData(m_folder.path() + "/program", data, error));
    EXPECT_EQ(data.programFolder, m_folder.path() + "/program/");
    EXPECT_EQ(data.settingsFolder, m_folder.path() + "/data/TAVRO33/Swale/");
    EXPECT_TRUE(folderExists(data.settingsFolder));
    // No Documents folder in the temporary home: the home folder stands in.
    EXPECT_EQ(data.documentsFolder, m_folder.path() + "/");
}

TEST_F(ProgramFolders, UnknownSpecialFolderIsError513)
{
    std::string path = "unchanged";
    FolderError error;
    EXPECT_FALSE(SpecialFolder(17, path, error));
    EXPECT_EQ(path, "unchanged");
    EXPECT_EQ(error.number, 513);
    EXPECT_EQ(error.source, "SpecialFolder");
    EXPECT_EQ(error.description, "The folder path could not be detected");
}

} // namespace
