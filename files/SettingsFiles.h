#pragma once

#include <array>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

// The small settings files of the program, read and written through DataFile. None of them is
// required: a missing or damaged file leaves the defaults and shows no message.

// In the settings folder:
extern const char *const kWindowStateFile; // "WindowState.ini": last window state and place
extern const char *const kRecentFilesFile; // "RecentFiles.ini": recent-file list
extern const char *const kDefHelpImageFile; // "DefHelpImg.ini": chosen help-image size
// In the program folder:
extern const char *const kDefWindowSizeFile; // "DefWindowSize.ini": default window size
extern const char *const kHelpImagesFile; // "HelpImages.ini": help image of each size

class DataFile;

// The program writes its settings files a few short lines long. A larger file, or anything in
// its place that is not a plain file (a folder, a named pipe, a device), is not read at all: a
// damaged or hostile settings file costs neither time nor memory, and a pipe that nobody writes
// to cannot stop the program at start-up.
constexpr long long kMaxSettingsFileSize = 64 * 1024;

// Opens `path` for reading as a settings file; false, leaving the caller's defaults, when it is
// missing, unreadable, not a plain file or larger than kMaxSettingsFileSize.
bool OpenSettingsFile(DataFile &file, const std::string &path);
// Writes `lines` as the whole of the settings file `path`, replacing it only once every line
// was written; false, leaving the old file, when it could not be written.
bool WriteSettingsFile(const std::string &path, const std::vector<std::string> &lines);

// Reads the settings file `path` as key=value lines: each line with an "=" is split at its first
// one and handed to `take` as it stands; lines without "=" are skipped. Returns true when the
// file was read to its end.
bool ReadSettingsPairs(
        const std::string &path,
        const std::function<void(const std::string &key, const std::string &value)> &take);

// Sizes in these files are in twips, 15 to the pixel.
constexpr int kTwipsPerPixel = 15;

// Upper-case key -> value of a key=value file.
using KeyValues = std::map<std::string, int>;

// Reads `path` line by line: each line is split at its first "=", the key is taken in upper
// case as it stands (a blank before "=" stays part of the key), and a value that reads as a
// number is rounded to the nearest whole number, halves to even. Lines without "=", empty or
// non-numeric values and values beyond the integer range are skipped; a key met twice keeps its
// last value. Returns true when the file was read to its end.
bool ReadKeyValueFile(const std::string &path, KeyValues &values);

// Window states as WindowState.ini stores them.
enum class WindowShowState { Normal = 0, Minimised = 1, Maximised = 2 };

// What WindowState.ini and DefWindowSize.ini hold; a key missing from the file stays empty.
struct WindowPlacement
{
    std::optional<int> state;
    std::optional<int> top; // twips
    std::optional<int> left;
    std::optional<int> height;
    std::optional<int> width;
    // The channel pane beside the tabs (WindowState.ini only): shown (1) or hidden (0), and its
    // width in twips. Missing in files of earlier versions: the window then decides.
    std::optional<int> channelPane;
    std::optional<int> channelPaneWidth;
};

// The panes' keys of WindowState.ini, written after the window's own.
struct PanePlacement
{
    std::optional<int> channelPane; // 1 shown, 0 hidden
    std::optional<int> channelPaneWidth; // twips
};

// Reads the keys STATE, LEFT, TOP, HEIGHT and WIDTH, and CHANNELPANE and CHANNELPANEWIDTH. True
// when the file was read to its end.
bool ReadWindowState(const std::string &path, WindowPlacement &placement);
// Reads the keys HEIGHT and WIDTH. True when the file was read to its end.
bool ReadDefWindowSize(const std::string &path, WindowPlacement &placement);
// Writes "State=" and, for the normal state only, "Top=", "Left=", "Height=" and "Width=" in
// twips, in that order; then "ChannelPane=" and "ChannelPaneWidth=" for those of `panes` that are
// set, in any state. Returns false when the file could not be written.
bool WriteWindowState(const std::string &path, WindowShowState state, int top, int left, int height,
                      int width, const PanePlacement &panes = {});

// Help-image sizes 1 to 4: Small, Medium, Large, Largest.
constexpr int kHelpImageSizeCount = 4;
// Help image file of each size, relative to the program folder, [0] unused; "" for a size that
// HelpImages.ini does not name or whose file does not exist.
using HelpImageFiles = std::array<std::string, kHelpImageSizeCount + 1>;

// Reads HelpImages.ini from the program folder: keys SMALL, MEDIUM, LARGE and LARGEST (trimmed,
// any case), each naming an image file in the program folder.
HelpImageFiles ReadHelpImageFolders(const std::string &programFolder);
// The help-image size stored in DefHelpImg.ini of the settings folder, 1 to 4; 0 when the file
// is missing or holds anything else.
int ReadDefHelpImage(const std::string &settingsFolder);
// Stores `size` in DefHelpImg.ini. Returns false when the file could not be written.
bool WriteDefHelpImage(const std::string &settingsFolder, int size);
