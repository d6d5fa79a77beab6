#include "GlobalData.h"
#include "RecentFiles.h"
#include "SettingsFiles.h"

#include "TempFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
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
    { "mixed-case key", "Width=9000\r\n", 9000 },
    { "lower-case key", "width=9000\r\n", 9000 },
    { "lone LF line ends", "width=9000\n", 9000 },
    { "half rounds down to even", "Width=9000.5\r\n", 9000 },
    { "half rounds up to even", "Width=9001.5\r\n", 9002 },
    { "above half rounds up", "Width=9000.6\r\n", 9001 },
    { "negative half to even", "Width=-2.5\r\n", -2 },
    { "blanks around the value", "Width=  120 \r\n", 120 },
    { "thousands separator", "Width=12,000\r\n", 12000 },
    { "exponent", "Width=1.2E3\r\n", 1200 },
    { "blank before = makes another key", "Width =9000\r\n", std::nullopt },
    { "empty value skipped", "Width=\r\n", std::nullopt },
    { "non-numeric value skipped", "Width=wide\r\n", std::nullopt },
    { "number followed by text skipped", "Width=12px\r\n", std::nullopt },
    { "value beyond the integer range skipped", "Width=1E12\r\n", std::nullopt },
    { "line without = skipped", "Width 9000\r\n", std::nullopt },
    { "last of two wins", "Width=100\r\nWIDTH=200\r\n", 200 },
    { "a bad later value keeps the earlier", "Width=100\r\nWidth=x\r\n", 100 },
    { "split at the first =", "Width=7=8\r\n", std::nullopt },
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

TEST(KeyValueFiles, MissingFileLeavesEverythingUnset)
{
    TempFolder folder;
    WindowPlacement placement;
    EXPECT_FALSE(ReadWindowState(folder.file("WindowState.ini"), placement));
    EXPECT_FALSE(placement.state || placement.top || placement.left || placement.height
                 || placement.width);
}

TEST(KeyValueFiles, StateAloneInLowerCaseAsksForMaximised)
{
    TempFolder folder;
    writeBytes(folder.file("WindowState.ini"), "state=2\r\n");
    WindowPlacement placement;
    ASSERT_TRUE(ReadWindowState(folder.file("WindowState.ini"), placement));
    EXPECT_EQ(placement.state, 2);
    EXPECT_FALSE(placement.width.has_value());
}

TEST(KeyValueFiles, DefWindowSizeReadsOnlyHeightAndWidth)
{
    TempFolder folder;
    writeBytes(folder.file("DefWindowSize.ini"), "Top=15\r\nHeight=9000\r\nWidth=12000\r\n");
    WindowPlacement placement;
    ASSERT_TRUE(ReadDefWindowSize(folder.file("DefWindowSize.ini"), placement));
    EXPECT_EQ(placement.height, 9000);
    EXPECT_EQ(placement.width, 12000);
    EXPECT_FALSE(placement.top.has_value());
}

TEST(WindowStateFile, NormalWindowWritesAllFiveLinesInOrder)
{
    TempFolder folder;
    ASSERT_TRUE(WriteWindowState(folder.file("WindowState.ini"), WindowShowState::Normal, 150, 300,
                                 9000, 12000));
    EXPECT_EQ(readBytes(folder.file("WindowState.ini")),
              "State=0\r\nTop=150\r\nLeft=300\r\nHeight=9000\r\nWidth=12000\r\n");
    WindowPlacement placement;
    ASSERT_TRUE(ReadWindowState(folder.file("WindowState.ini"), placement));
    EXPECT_EQ(placement.state, 0);
    EXPECT_EQ(placement.top, 150);
    EXPECT_EQ(placement.left, 300);
    EXPECT_EQ(placement.height, 9000);
    EXPECT_EQ(placement.width, 12000);
}

TEST(WindowStateFile, MaximisedWindowWritesOnlyItsState)
{
    TempFolder folder;
    ASSERT_TRUE(WriteWindowState(folder.file("WindowState.ini"), WindowShowState::Maximised, 1, 2,
                                 3, 4));
    EXPECT_EQ(readBytes(folder.file("WindowState.ini")), "State=2\r\n");
}

TEST(WindowStateFile, UnwritableFolderFailsQuietly)
{
    TempFolder folder;
    EXPECT_FALSE(WriteWindowState(folder.file("missing/WindowState.ini"), WindowShowState::Normal,
                                  1, 2, 3, 4));
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
    for (const char *content : { "5\r\n", "0\r\n", "big\r\n", "" }) {
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
    EXPECT_EQ(list.entry(0), "");
    EXPECT_EQ(list.entry(6), "");
}

TEST(RecentFileList, DisplayTextNumbersTheEntryAndKeepsAmpersands)
{
    RecentFileList list;
    list.add("/data/Smith & Sons/swale.swl");
    list.add("/data/a.swl");
    EXPECT_EQ(list.displayText(1), "&1 /data/a.swl");
    EXPECT_EQ(list.displayText(2), "&2 /data/Smith && Sons/swale.swl");
    EXPECT_EQ(list.displayText(3), "");
}

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
}

TEST(RecentFileList, LoadSkipsBlanksAndRepeatsAndKeepsFive)
{
    TempFolder folder;
    writeBytes(folder.file("RecentFiles.ini"), "/1\r\n\r\n/2\r\n/1\r\n/3\r\n/4\r\n/5\r\n/6\r\n");
    RecentFileList list;
    ASSERT_TRUE(list.load(folder.file("RecentFiles.ini")));
    ASSERT_EQ(list.count(), 5);
    EXPECT_EQ(list.entry(1), "/1");
    EXPECT_EQ(list.entry(5), "/5");
    EXPECT_FALSE(list.load(folder.file("missing.ini")));
    EXPECT_EQ(list.count(), 0);
}

class ProgramFolders : public ::testing::Test
{
protected:
    void SetUp() override
    {
        saveVariable("XDG_DATA_HOME", m_savedDataHome);
        saveVariable("HOME", m_savedHome);
        setenv("XDG_DATA_HOME", (m_folder.path() + "/data").c_str(), 1);
        setenv("HOME", m_folder.path().c_str(), 1);
    }
    void TearDown() override
    {
        restoreVariable("XDG_DATA_HOME", m_savedDataHome);
        restoreVariable("HOME", m_savedHome);
    }

    TempFolder m_folder;

private:
    static void saveVariable(const char *name, std::optional<std::string> &saved)
    {
        if (const char *value = std::getenv(name))
            saved = value;
    }
    static void restoreVariable(const char *name, const std::optional<std::string> &saved)
    {
        if (saved)
            setenv(name, saved->c_str(), 1);
        else
            unsetenv(name);
    }
    std::optional<std::string> m_savedDataHome;
    std::optional<std::string> m_savedHome;
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

TEST_F(ProgramFolders, DocumentsFolderWhenItExists)
{
    MakeDirectory(m_folder.path() + "/Documents");
    GlobalData data;
    FolderError error;
    ASSERT_TRUE(BuildGlobalData(m_folder.path(), data, error));
    EXPECT_EQ(data.documentsFolder, m_folder.path() + "/Documents/");
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

TEST_F(ProgramFolders, MakeDirectoryAlwaysAnswersTrue)
{
    EXPECT_TRUE(MakeDirectory(m_folder.path() + "/new"));
    EXPECT_TRUE(MakeDirectory(m_folder.path() + "/new")); // exists already
    EXPECT_TRUE(MakeDirectory(m_folder.path() + "/no/parent"));
    EXPECT_TRUE(folderExists(m_folder.path() + "/new"));
    EXPECT_FALSE(folderExists(m_folder.path() + "/no/parent"));
}

} // namespace
