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
    { "lone LF line ends", "width=9000\n", 9000 },
    { "half rounds down to even", "Width=9000.5\r\n", 9000 },
    { "half rounds up to even", "Width=9001.5\r\n", 9002 },
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

// Which values each reader takes from a whole file, and that a missing file sets none.
TEST(KeyValueFiles, EachReaderTakesItsKeys)
{
    struct Case
    {
        const char *name;
        bool defaults;
        const char *content;
        std::string taken;
    };
    const Case cases[] = {
        { "missing file", false, nullptr, "" },
        { "state alone, lower case", false, "state=2\r\n", "state 2 " },
        { "default size: height and width only", true, "Top=15\r\nHeight=9000\r\nWidth=12000\r\n",
          "height 9000 width 12000 " },
    };
    TempFolder folder;
    for (const Case &row : cases) {
        SCOPED_TRACE(row.name);
        const std::string path = folder.file(row.name);
        if (row.content)
            writeBytes(path, row.content);
        WindowPlacement p;
        EXPECT_EQ(row.defaults ? ReadDefWindowSize(path, p) : ReadWindowState(path, p),
                  row.content != nullptr);
        std::string taken;
        const std::pair<const char *, std::optional<int> *> fields[] = { { "state", &p.state },
                                                                         { "top", &p.top },
                                                                         { "left", &p.left },
                                                                         { "height", &p.height },
                                                                         { "width", &p.width } };
        for (const auto &[key, value] : fields) {
            if (*value)
                taken += std::string(key) + " " + std::to_string(**value) + " ";
        }
        EXPECT_EQ(taken, row.taken);
    }
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
    EXPECT_EQ(loaded.entry(1), "/1");
    EXPECT_EQ(loaded.entry(5), "/5");
    EXPECT_FALSE(loaded.load(folder.file("missing.ini")));
    EXPECT_EQ(loaded.count(), 0);
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
