// Feeds arbitrary bytes to every settings-file reader as the content of its file: the key=value
// files (WindowState.ini, DefWindowSize.ini), HelpImages.ini, DefHelpImg.ini, RecentFiles.ini
// and Margins.ini. Besides ending without a crash, what each reader gives must make sense, and
// what the program writes back from it must read back the same.

#include "FuzzScratch.h"
#include "GlobalData.h"
#include "PageMargins.h"
#include "RecentFiles.h"
#include "SettingsFiles.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdint>
#include <string>
#include <unistd.h>

namespace {
const std::string &inputPath()
{
    static const std::string path = scratchPath("input.ini");
    return path;
}

// The readers that take a folder find the input under their own file names.
void linkInputAs(const char *fileName)
{
    const std::string link = scratchPath(fileName);
    if (access(link.c_str(), F_OK) != 0 && symlink(inputPath().c_str(), link.c_str()) != 0)
        invariantBroken("cannot link the input as " + link);
}

bool isPlainAscii(const uint8_t *data, size_t size)
{
    return std::all_of(data, data + size, [](uint8_t b) { return b > 0 && b < 0x80; });
}

std::string upperCase(std::string text)
{
    for (char &c : text)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return text;
}

void checkKeyValues(const uint8_t *data, size_t size)
{
    KeyValues values;
    ReadKeyValueFile(inputPath(), values);
    const std::string upperInput = isPlainAscii(data, size)
            ? upperCase(std::string(reinterpret_cast<const char *>(data), size))
            : std::string();
    for (const auto &[key, value] : values) {
        (void)value;
        if (key.find('=') != std::string::npos || upperCase(key) != key)
            invariantBroken("key \"" + key + "\" is not an upper-case key before an \"=\"");
        if (!upperInput.empty() && upperInput.find(key + "=") == std::string::npos)
            invariantBroken("key \"" + key + "\" is not in the file");
    }
}

// What the window writes back at exit from a state it read must read back the same.
void checkWindowState()
{
    WindowPlacement read;
    ReadWindowState(inputPath(), read);
    if (!read.state || *read.state < 0 || *read.state > 2)
        return;
    const auto state = static_cast<WindowShowState>(*read.state);
    const std::string written = scratchPath("WindowStateOut.ini");
    if (!WriteWindowState(written, state, read.top.value_or(0), read.left.value_or(0),
                          read.height.value_or(0), read.width.value_or(0)))
        invariantBroken("WindowState.ini cannot be written");
    WindowPlacement again;
    if (!ReadWindowState(written, again) || again.state != read.state)
        invariantBroken("the window state does not read back");
    if (state == WindowShowState::Normal
        && (again.top != read.top.value_or(0) || again.left != read.left.value_or(0)
            || again.height != read.height.value_or(0) || again.width != read.width.value_or(0)))
        invariantBroken("the window place does not read back");
    if (state != WindowShowState::Normal
        && (again.top || again.left || again.height || again.width))
        invariantBroken("a window that is not normal stores its place");

    WindowPlacement size;
    ReadDefWindowSize(inputPath(), size);
    if (size.state || size.top || size.left || size.height != read.height
        || size.width != read.width)
        invariantBroken("DefWindowSize.ini reads other keys than WindowState.ini");
}

void checkHelpImages()
{
    linkInputAs(kHelpImagesFile);
    const HelpImageFiles files = ReadHelpImageFolders(scratchFolder());
    if (!files[0].empty())
        invariantBroken("help image size 0 is filled");
    for (const std::string &name : files) {
        if (name.empty())
            continue;
        if (name.front() == ' ' || name.back() == ' ' || !fileExists(scratchFolder() + name))
            invariantBroken("help image \"" + name + "\" is no file of the program folder");
    }

    linkInputAs(kDefHelpImageFile);
    const int chosen = ReadDefHelpImage(scratchFolder());
    if (chosen < 0 || chosen > kHelpImageSizeCount)
        invariantBroken("help image size " + std::to_string(chosen) + " is out of range");
}

void checkRecentFiles()
{
    RecentFileList list;
    if (!list.load(inputPath()))
        return;
    if (list.count() > RecentFileList::kMaxEntries || !list.entry(0).empty()
        || !list.entry(list.count() + 1).empty())
        invariantBroken("the recent-file list has the wrong size");
    for (int i = 1; i <= list.count(); ++i) {
        if (list.entry(i).empty())
            invariantBroken("an empty recent file");
        for (int j = 1; j < i; ++j) {
            if (list.entry(j) == list.entry(i))
                invariantBroken("a recent file twice");
        }
        if (list.displayText(i).rfind("&" + std::to_string(i) + " ", 0) != 0)
            invariantBroken("menu text \"" + list.displayText(i) + "\"");
    }
    // The list saved at exit is the list read at the next start.
    const std::string saved = scratchPath("RecentFilesOut.ini");
    if (!list.save(saved))
        invariantBroken("a recent-file list that loaded cannot be saved");
    RecentFileList again;
    if (!again.load(saved) || again.count() != list.count())
        invariantBroken("the saved recent-file list does not load back");
    for (int i = 1; i <= list.count(); ++i) {
        if (again.entry(i) != list.entry(i))
            invariantBroken("recent file \"" + list.entry(i) + "\" came back as \"" + again.entry(i)
                            + "\"");
    }
}

void checkPageMargins()
{
    PageMargins margins;
    margins.ScaleCode = 0; // the reader must set every field, whatever it finds
    margins.Margin1 = NAN;
    const bool read = ReadPageMargins(inputPath(), margins);
    const PageMargins defaults;
    if (!read
        && (margins.ScaleCode != defaults.ScaleCode || margins.Margin1 != defaults.Margin1
            || margins.Margin2 != defaults.Margin2 || margins.Margin3 != defaults.Margin3
            || margins.Margin4 != defaults.Margin4))
        invariantBroken("a margins file that was not read changes the margins");
    if (margins.ScaleCode != kScaleInches && margins.ScaleCode != kScaleMillimetres)
        invariantBroken("margins in an unknown unit");
    for (const float margin :
         { margins.Margin1, margins.Margin2, margins.Margin3, margins.Margin4 }) {
        if (!std::isfinite(margin) || std::fabs(margin) > 32768.0f / 100.0f)
            invariantBroken("a margin beyond the file's range");
    }
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    writeScratchFile(inputPath(), data, size);
    checkKeyValues(data, size);
    checkWindowState();
    checkHelpImages();
    checkRecentFiles();
    checkPageMargins();
    return 0;
}
