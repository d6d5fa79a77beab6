// Settings files are not required: whatever sits where one should be (a named pipe, a device, a
// huge file) leaves every reader at its defaults, without a message and without reading more
// than a settings file can hold. A folder, binary data and a file that cannot be opened are
// refused by DataFile itself (DataFileTest's refusals).
#include "DataFile.h"
#include "Files.h"
#include "PageMargins.h"
#include "RecentFiles.h"
#include "SettingsFiles.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>

#include <sys/stat.h>
#include <unistd.h>

namespace {

// Every reader opens through OpenSettingsFile: whatever is not a plain file of at most 64 KiB is
// refused there, before a byte is read (a named pipe would block the read for ever).
TEST(HostileSettings, TheGuardRefusesWhatIsNoSettingsFile)
{
    TempFolder folder;
    const std::string pipe = folder.file("pipe");
    const std::string device = folder.file("device");
    const std::string large = folder.file("large");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0644), 0);
    ASSERT_EQ(symlink("/dev/zero", device.c_str()), 0);
    writeRepeated(large, "", "Width=9000\r\n", kMaxSettingsFileSize + 1); // good lines
    for (const std::string &path : { pipe, device, large }) {
        SCOPED_TRACE(path);
        DataFile file;
        EXPECT_FALSE(OpenSettingsFile(file, path));
    }
}

struct SettingsReader
{
    const char *fileName;
    const char *goodLine; // a line the reader takes
    // Whether the reader took a value from the files of `folder` rather than keep its defaults.
    std::function<bool(const std::string &folder)> read;
};

// One row for each place that opens a settings file: DefWindowSize.ini goes through the same
// ReadKeyValueFile as WindowState.ini.
const SettingsReader kReaders[] = {
    { kWindowStateFile, "Width=9000",
      [](const std::string &folder) {
          WindowPlacement placement;
          ReadWindowState(folder + kWindowStateFile, placement);
          return placement.width.has_value();
      } },
    { kHelpImagesFile, "Small=small.png",
      [](const std::string &folder) { return !ReadHelpImageFolders(folder)[1].empty(); } },
    { kDefHelpImageFile, "3",
      [](const std::string &folder) { return ReadDefHelpImage(folder) != 0; } },
    { kRecentFilesFile, "/home/user/swale.swl",
      [](const std::string &folder) {
          RecentFileList list;
          list.load(folder + kRecentFilesFile);
          return list.count() > 0;
      } },
    { kMarginsFile, "1000",
      [](const std::string &folder) {
          PageMargins margins;
          ReadPageMargins(folder + kMarginsFile, margins);
          return margins.Margin1 != PageMargins().Margin1;
      } },
};

// Each reader takes its good line from a plain file, and leaves its defaults, without hanging,
// when a named pipe stands in the file's place: a reader that bypasses the guard fails here.
TEST(HostileSettings, EveryReaderGoesThroughTheGuard)
{
    TempFolder root;
    const std::string folder = root.path() + "/";
    writeBytes(folder + "small.png", "not read"); // HelpImages.ini names only files that exist
    for (const SettingsReader &reader : kReaders) {
        SCOPED_TRACE(reader.fileName);
        const std::string path = folder + reader.fileName;
        const std::string good = std::string(reader.goodLine) + "\r\n";
        // Margins.ini needs five lines; the other readers take the repeats as they take one.
        writeRepeated(path, "", good, 5 * good.size());
        EXPECT_TRUE(reader.read(folder)) << "the good lines are not read";
        std::filesystem::remove(path);
        ASSERT_EQ(mkfifo(path.c_str(), 0644), 0);
        EXPECT_FALSE(reader.read(folder)) << "the reader took a value";
    }
}

} // namespace
