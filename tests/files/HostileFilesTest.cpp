// Settings files are not required: whatever sits where one should be (a file nobody may read,
// a folder, a huge file, binary junk, a named pipe, a device) leaves every reader at its
// defaults, without a message and without reading more than a settings file can hold.
#include "FileFaults.h"
#include "GlobalData.h"
#include "PageMargins.h"
#include "RecentFiles.h"
#include "SettingsFiles.h"
#include "TempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <optional>
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
    // What the reader took from the folders, "" for nothing but its defaults.
    std::function<std::string(const GlobalData &)> read;
};

std::string describe(const WindowPlacement &placement)
{
    std::string text;
    for (const std::optional<int> *field : { &placement.state, &placement.top, &placement.left,
                                             &placement.height, &placement.width }) {
        if (*field)
            text += std::to_string(**field) + " ";
    }
    return text;
}

const SettingsReader kReaders[] = {
    { "WindowState", kWindowStateFile, false, "Width=9000",
      [](const GlobalData &folders) {
          WindowPlacement placement;
          ReadWindowState(folders.settingsFolder + kWindowStateFile, placement);
          return describe(placement);
      } },
    { "DefWindowSize", kDefWindowSizeFile, true, "Height=9000",
      [](const GlobalData &folders) {
          WindowPlacement placement;
          ReadDefWindowSize(folders.programFolder + kDefWindowSizeFile, placement);
          return describe(placement);
      } },
    { "HelpImages", kHelpImagesFile, true, "Small=small.png",
      [](const GlobalData &folders) {
          std::string text;
          for (const std::string &file : ReadHelpImageFolders(folders.programFolder))
              text += file;
          return text;
      } },
    { "DefHelpImg", kDefHelpImageFile, false, "3",
      [](const GlobalData &folders) {
          const int size = ReadDefHelpImage(folders.settingsFolder);
          return size == 0 ? std::string() : std::to_string(size);
      } },
    { "RecentFiles", kRecentFilesFile, false, "/home/user/swale.swl",
      [](const GlobalData &folders) {
          RecentFileList list;
          list.load(folders.settingsFolder + kRecentFilesFile);
          return list.count() == 0 ? std::string() : list.entry(1);
      } },
    { "Margins", kMarginsFile, true, "1000",
      [](const GlobalData &folders) {
          PageMargins margins;
          ReadPageMargins(folders.programFolder + kMarginsFile, margins);
          const PageMargins defaults;
          const bool same = margins.ScaleCode == defaults.ScaleCode
                  && margins.Margin1 == defaults.Margin1 && margins.Margin2 == defaults.Margin2
                  && margins.Margin3 == defaults.Margin3 && margins.Margin4 == defaults.Margin4;
          return same ? std::string() : std::to_string(margins.Margin1);
      } },
};

enum class Hostile {
    None, // the good line alone: the control, showing that the reader does read the file
    Unreadable,
    Folder,
    HugeOneLine,
    HugeManyLines,
    JustOverTheCap,
    BinaryJunk,
    NamedPipe,
    EndlessDevice,
    FolderIsAFile,
};

struct HostileCase
{
    Hostile kind;
    const char *name;
};

const HostileCase kHostileCases[] = {
    { Hostile::None, "control" },
    { Hostile::Unreadable, "unreadable" },
    { Hostile::Folder, "a_folder_in_its_place" },
    { Hostile::HugeOneLine, "50_MB_on_one_line" },
    { Hostile::HugeManyLines, "50_MB_of_good_lines" },
    { Hostile::JustOverTheCap, "good_lines_just_over_the_size_cap" },
    { Hostile::BinaryJunk, "binary_junk_with_NULs" },
    { Hostile::NamedPipe, "a_named_pipe_nobody_writes" },
    { Hostile::EndlessDevice, "a_link_to_dev_zero" },
    { Hostile::FolderIsAFile, "its_folder_is_a_file" },
};

void PrintTo(const SettingsReader &reader, std::ostream *out)
{
    *out << reader.fileName;
}

void PrintTo(const HostileCase &hostile, std::ostream *out)
{
    *out << hostile.name;
}

constexpr size_t kHugeSize = 50u * 1024 * 1024;

// Writes `line` + CR LF repeated until the file holds at least `size` bytes, a megabyte at a
// time, so the test itself stays small.
void writeRepeated(const std::string &path, const std::string &prefix, const std::string &line,
                   size_t size)
{
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << prefix;
    std::string piece;
    while (piece.size() < std::min<size_t>(size, 1024 * 1024))
        piece += line;
    for (size_t written = prefix.size(); written < size; written += piece.size())
        out.write(piece.data(), static_cast<std::streamsize>(piece.size()));
}

class HostileSettings : public ::testing::TestWithParam<std::tuple<SettingsReader, HostileCase>>
{
protected:
    void SetUp() override
    {
        openToOrdinaryUser(m_root.path());
        for (const char *name : { "program", "settings" })
            ASSERT_EQ(mkdir(m_root.file(name).c_str(), 0755), 0);
        m_folders = { m_root.file("program/"), m_root.file("settings/"), m_root.file("") };
        // The image that HelpImages.ini names must exist for the reader to take it.
        writeBytes(m_root.file("program/small.png"), "not read");
    }

    TempFolder m_root;
    GlobalData m_folders;
};

TEST_P(HostileSettings, LeaveTheDefaults)
{
    const auto &[reader, hostile] = GetParam();
    std::string &folder
            = reader.inProgramFolder ? m_folders.programFolder : m_folders.settingsFolder;
    const std::string path = folder + reader.fileName;
    const std::string good = std::string(reader.goodLine) + "\r\n";
    std::unique_ptr<OrdinaryUser> user;
    switch (hostile.kind) {
    case Hostile::None:
        // Margins.ini needs five lines; the other readers take the repeats as they take one.
        writeRepeated(path, "", good, 5 * good.size());
        break;
    case Hostile::Unreadable:
        writeRepeated(path, "", good, 5 * good.size());
        ASSERT_EQ(chmod(path.c_str(), 0), 0);
        user = std::make_unique<OrdinaryUser>();
        if (!user->error().empty())
            GTEST_SKIP() << "cannot read as an ordinary user: " << user->error();
        break;
    case Hostile::Folder:
        ASSERT_EQ(mkdir(path.c_str(), 0755), 0);
        break;
    case Hostile::HugeOneLine:
        writeRepeated(path, reader.goodLine, "9", kHugeSize);
        break;
    case Hostile::HugeManyLines:
        writeRepeated(path, "", good, kHugeSize);
        break;
    case Hostile::JustOverTheCap:
        writeRepeated(path, "", good, kMaxSettingsFileSize + 1);
        break;
    case Hostile::BinaryJunk: {
        std::string junk = good;
        for (int i = 0; i < 4096; ++i)
            junk += static_cast<char>((i * 7919) % 256);
        writeBytes(path, junk + good);
        break;
    }
    case Hostile::NamedPipe:
        ASSERT_EQ(mkfifo(path.c_str(), 0644), 0);
        break;
    case Hostile::EndlessDevice:
        ASSERT_EQ(symlink("/dev/zero", path.c_str()), 0);
        break;
    case Hostile::FolderIsAFile:
        std::filesystem::remove_all(folder);
        writeBytes(folder.substr(0, folder.size() - 1), good);
        break;
    }
    const std::string taken = reader.read(m_folders);
    if (hostile.kind == Hostile::None)
        EXPECT_FALSE(taken.empty()) << "the good line alone is not read";
    else
        EXPECT_EQ(taken, "") << "the reader took a value";
}

INSTANTIATE_TEST_SUITE_P(Readers, HostileSettings,
                         ::testing::Combine(::testing::ValuesIn(kReaders),
                                            ::testing::ValuesIn(kHostileCases)),
                         [](const auto &info) {
                             return std::string(std::get<0>(info.param).name) + "_"
                                     + std::get<1>(info.param).name;
                         });

} // namespace

namespace {

// Sets an environment variable for the scope.
class ScopedVariable
{
public:
    ScopedVariable(const char *name, const std::string &value)
        : m_name(name)
    {
        if (const char *old = std::getenv(name))
            m_old = old;
        setenv(name, value.c_str(), 1);
    }
    ~ScopedVariable()
    {
        if (m_old)
            setenv(m_name, m_old->c_str(), 1);
        else
            unsetenv(m_name);
    }
    ScopedVariable(const ScopedVariable &) = delete;
    ScopedVariable &operator=(const ScopedVariable &) = delete;

private:
    const char *m_name;
    std::optional<std::string> m_old;
};

struct BlockedFolderCase
{
    const char *name;
    const char *blocker; // a file where this folder of the settings path should be
};

const BlockedFolderCase kBlockedFolders[] = {
    { "TAVRO33 is a file", "TAVRO33" },
    { "Swale is a file", "TAVRO33/Swale" },
};

// A file where a settings folder should be: start-up still gives the settings folder's path
// (its creation is never checked), every reader keeps its defaults, every writer fails without
// a word, and the blocking file is left alone.
TEST(SettingsFolderThatCannotBeCreated, ReadersKeepDefaultsAndWritersFailQuietly)
{
    for (const BlockedFolderCase &row : kBlockedFolders) {
        SCOPED_TRACE(row.name);
        TempFolder root;
        const std::string base = root.file("data");
        std::filesystem::create_directories(base + "/TAVRO33");
        if (std::string(row.blocker) == "TAVRO33")
            std::filesystem::remove(base + "/TAVRO33");
        const std::string blocker = base + "/" + row.blocker;
        writeBytes(blocker, "Width=9000\r\n");
        const ScopedVariable dataHome("XDG_DATA_HOME", base);
        const ScopedVariable home("HOME", root.path());

        GlobalData folders;
        FolderError error;
        ASSERT_TRUE(BuildGlobalData(root.file("program"), folders, error));
        EXPECT_EQ(folders.settingsFolder, base + "/TAVRO33/Swale/");
        EXPECT_FALSE(folderExists(folders.settingsFolder));

        WindowPlacement placement;
        EXPECT_FALSE(ReadWindowState(folders.settingsFolder + kWindowStateFile, placement));
        EXPECT_EQ(describe(placement), "");
        EXPECT_EQ(ReadDefHelpImage(folders.settingsFolder), 0);
        RecentFileList recent;
        EXPECT_FALSE(recent.load(folders.settingsFolder + kRecentFilesFile));
        recent.add("/home/user/swale.swl");

        EXPECT_FALSE(WriteWindowState(folders.settingsFolder + kWindowStateFile,
                                      WindowShowState::Normal, 10, 20, 9000, 12000));
        EXPECT_FALSE(WriteDefHelpImage(folders.settingsFolder, 3));
        EXPECT_FALSE(recent.save(folders.settingsFolder + kRecentFilesFile));
        EXPECT_EQ(readBytes(blocker), "Width=9000\r\n");
    }
}

} // namespace
