// Settings files are not required: whatever sits where one should be (a file nobody may read,
// a folder, a huge file, binary junk, a named pipe, a device) leaves every reader at its
// defaults, without a message and without reading more than a settings file can hold.
#include "DataFile.h"
#include "FileFaults.h"
#include "GlobalData.h"
#include "PageMargins.h"
#include "RecentFiles.h"
#include "SettingsFiles.h"
#include "Files.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include <sys/stat.h>
#include <unistd.h>

namespace {

struct SettingsReader
{
    const char *name;
    const char *fileName;
    bool inProgramFolder; // else in the settings folder
    const char *goodLine; // a line the reader takes
    // Whether the reader took a value from the folders rather than keep its defaults.
    std::function<bool(const GlobalData &)> read;
};

const SettingsReader kReaders[] = {
    { "WindowState", kWindowStateFile, false, "Width=9000",
      [](const GlobalData &folders) {
          WindowPlacement placement;
          ReadWindowState(folders.settingsFolder + kWindowStateFile, placement);
          return placement.width.has_value();
      } },
    { "DefWindowSize", kDefWindowSizeFile, true, "Height=9000",
      [](const GlobalData &folders) {
          WindowPlacement placement;
          ReadDefWindowSize(folders.programFolder + kDefWindowSizeFile, placement);
          return placement.height.has_value();
      } },
    { "HelpImages", kHelpImagesFile, true, "Small=small.png",
      [](const GlobalData &folders) {
          return !ReadHelpImageFolders(folders.programFolder)[1].empty();
      } },
    { "DefHelpImg", kDefHelpImageFile, false, "3",
      [](const GlobalData &folders) { return ReadDefHelpImage(folders.settingsFolder) != 0; } },
    { "RecentFiles", kRecentFilesFile, false, "/home/user/swale.swl",
      [](const GlobalData &folders) {
          RecentFileList list;
          list.load(folders.settingsFolder + kRecentFilesFile);
          return list.count() > 0;
      } },
    { "Margins", kMarginsFile, true, "1000",
      [](const GlobalData &folders) {
          PageMargins margins;
          ReadPageMargins(folders.programFolder + kMarginsFile, margins);
          return margins.Margin1 != PageMargins().Margin1;
      } },
};

enum class Hostile { Unreadable, Folder, NamedPipe, EndlessDevice, JustOverTheCap, BinaryJunk };

// Puts something hostile at `path` in place of a settings file of `good` lines.
void makeHostile(Hostile kind, const std::string &path, const std::string &good)
{
    switch (kind) {
    case Hostile::Unreadable:
        writeRepeated(path, "", good, 5 * good.size());
        ASSERT_EQ(chmod(path.c_str(), 0), 0);
        break;
    case Hostile::Folder:
        ASSERT_EQ(mkdir(path.c_str(), 0755), 0);
        break;
    case Hostile::NamedPipe:
        ASSERT_EQ(mkfifo(path.c_str(), 0644), 0);
        break;
    case Hostile::EndlessDevice:
        ASSERT_EQ(symlink("/dev/zero", path.c_str()), 0);
        break;
    case Hostile::JustOverTheCap: // a huge file takes the same size check before opening
        writeRepeated(path, "", good, kMaxSettingsFileSize + 1);
        break;
    case Hostile::BinaryJunk: {
        std::string junk = good;
        for (int i = 0; i < 4096; ++i)
            junk += static_cast<char>((i * 7919) % 256);
        writeBytes(path, junk + good);
        break;
    }
    }
}

class HostileSettings : public ::testing::Test
{
protected:
    void SetUp() override
    {
        chmod(m_root.path().c_str(), 0755); // open to the ordinary user
        for (const char *name : { "program", "settings" })
            ASSERT_EQ(mkdir(m_root.file(name).c_str(), 0755), 0);
        m_folders = { m_root.file("program/"), m_root.file("settings/"), m_root.file("") };
        // The image that HelpImages.ini names must exist for the reader to take it.
        writeBytes(m_root.file("program/small.png"), "not read");
    }

    TempFolder m_root;
    GlobalData m_folders;
};

// Every reader opens through OpenSettingsFile: whatever is not a plain, readable file of at most
// 64 KiB is refused there, before a byte is read (a named pipe would block the read for ever).
TEST_F(HostileSettings, TheGuardRefusesWhatIsNoSettingsFile)
{
    const std::pair<Hostile, const char *> cases[] = {
        { Hostile::Folder, "a folder" },
        { Hostile::NamedPipe, "a named pipe" },
        { Hostile::EndlessDevice, "a link to /dev/zero" },
        { Hostile::JustOverTheCap, "good lines just over the cap" },
        { Hostile::BinaryJunk, "binary junk" },
        { Hostile::Unreadable, "unreadable" }, // last: it may skip when root cannot drop rights
    };
    for (const auto &[kind, name] : cases) {
        SCOPED_TRACE(name);
        const std::string path = m_root.file("settings" + std::to_string(static_cast<int>(kind)));
        makeHostile(kind, path, "Width=9000\r\n");
        std::unique_ptr<OrdinaryUser> user;
        if (kind == Hostile::Unreadable) {
            user = std::make_unique<OrdinaryUser>();
            if (!user->error().empty())
                GTEST_SKIP() << user->error();
        }
        DataFile file;
        EXPECT_FALSE(OpenSettingsFile(file, path));
    }
}

// Each reader takes its good line from a plain file, and leaves its defaults, without hanging,
// when a named pipe stands in the file's place: a reader that bypasses the guard fails here.
TEST_F(HostileSettings, EveryReaderGoesThroughTheGuard)
{
    for (const SettingsReader &reader : kReaders) {
        SCOPED_TRACE(reader.name);
        const std::string &folder
                = reader.inProgramFolder ? m_folders.programFolder : m_folders.settingsFolder;
        const std::string path = folder + reader.fileName;
        const std::string good = std::string(reader.goodLine) + "\r\n";
        // Margins.ini needs five lines; the other readers take the repeats as they take one.
        writeRepeated(path, "", good, 5 * good.size());
        EXPECT_TRUE(reader.read(m_folders)) << "the good lines are not read";
        std::filesystem::remove(path);
        makeHostile(Hostile::NamedPipe, path, good);
        EXPECT_FALSE(reader.read(m_folders)) << "the reader took a value";
    }
}

// A file where the settings folder should be: start-up still gives the settings folder's path
// (its creation is never checked), the readers keep their defaults, the writers fail without a
// word, and the blocking file is left alone.
TEST(SettingsFolderThatCannotBeCreated, ReadersKeepDefaultsAndWritersFailQuietly)
{
    TempFolder root;
    const std::string base = root.file("data");
    std::filesystem::create_directories(base + "/TAVRO33");
    const std::string blocker = base + "/TAVRO33/Swale";
    writeBytes(blocker, "Width=9000\r\n");
    const ScopedVariable dataHome("XDG_DATA_HOME", base);
    const ScopedVariable home("HOME", root.path());

    GlobalData folders;
    FolderError error;
    ASSERT_TRUE(BuildGlobalData(root.file("program"), folders, error));
    EXPECT_EQ(folders.settingsFolder, blocker + "/");
    WindowPlacement placement;
    EXPECT_FALSE(ReadWindowState(folders.settingsFolder + kWindowStateFile, placement));
    EXPECT_FALSE(placement.width);
    RecentFileList recent;
    recent.add("/home/user/swale.swl");
    EXPECT_FALSE(WriteWindowState(folders.settingsFolder + kWindowStateFile,
                                  WindowShowState::Normal, 10, 20, 9000, 12000));
    EXPECT_FALSE(WriteDefHelpImage(folders.settingsFolder, 3));
    EXPECT_FALSE(recent.save(folders.settingsFolder + kRecentFilesFile));
    EXPECT_EQ(readBytes(blocker), "Width=9000\r\n");
}

} // namespace
