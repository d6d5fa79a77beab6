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

// A named pipe in the place of every settings file: each reader leaves its defaults at once. A
// reader that bypasses the guard waits on its pipe for ever (the test's timeout ends it). The
// readers' other tests show that each reads the file named here.
TEST(HostileSettings, EveryReaderGoesThroughTheGuard)
{
    TempFolder root;
    const std::string folder = root.path() + "/";
    for (const char *name : { kWindowStateFile, kDefWindowSizeFile, kHelpImagesFile,
                              kDefHelpImageFile, kRecentFilesFile, kMarginsFile })
        ASSERT_EQ(mkfifo((folder + name).c_str(), 0644), 0);
    WindowPlacement placement;
    EXPECT_FALSE(ReadWindowState(folder + kWindowStateFile, placement));
    EXPECT_FALSE(ReadDefWindowSize(folder + kDefWindowSizeFile, placement));
    EXPECT_FALSE(placement.width || placement.height);
    EXPECT_EQ(ReadHelpImageFolders(folder), HelpImageFiles {});
    EXPECT_EQ(ReadDefHelpImage(folder), 0);
    RecentFileList recent;
    EXPECT_FALSE(recent.load(folder + kRecentFilesFile));
    PageMargins margins;
    EXPECT_FALSE(ReadPageMargins(folder + kMarginsFile, margins));
}

} // namespace
