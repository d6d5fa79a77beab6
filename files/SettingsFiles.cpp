#include "SettingsFiles.h"

#include "DataFile.h"
#include "GlobalData.h"
#include "NumberText.h"

#include <QFileInfo>
#include <QString>

#include <cctype>
#include <cfenv>
#include <climits>
#include <cmath>
#include <cstdlib>
#include <vector>

const char *const kWindowStateFile = "WindowState.ini";
const char *const kRecentFilesFile = "RecentFiles.ini";
const char *const kDefHelpImageFile = "DefHelpImg.ini";
const char *const kDefWindowSizeFile = "DefWindowSize.ini";
const char *const kHelpImagesFile = "HelpImages.ini";

namespace {

const std::array<const char *, kHelpImageSizeCount + 1> kHelpImageKeys
        = { "", "SMALL", "MEDIUM", "LARGE", "LARGEST" };

std::string upperCase(std::string text)
{
    for (char &c : text)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return text;
}

// The value of a settings line as a whole number. The text must read as a number by the same
// rule as the input boxes; thousands separators and a "$" are dropped before the conversion,
// which rounds to nearest with halves going to the even neighbour (9000.5 -> 9000, 9001.5 -> 9002).
std::optional<int> settingsNumber(const std::string &text)
{
    const std::optional<double> number = recognisedNumberValue(text);
    if (!number || !std::isfinite(*number))
        return std::nullopt;
    const double value = *number;
    const int savedMode = std::fegetround();
    std::fesetround(FE_TONEAREST);
    const double rounded = std::nearbyint(value);
    std::fesetround(savedMode);
    if (rounded < INT_MIN || rounded > INT_MAX)
        return std::nullopt;
    return static_cast<int>(rounded);
}

void take(const KeyValues &values, const char *key, std::optional<int> &field)
{
    const auto found = values.find(key);
    if (found != values.end())
        field = found->second;
}

} // namespace

bool WriteSettingsFile(const std::string &path, const std::vector<std::string> &lines)
{
    DataFile file;
    if (!file.OpenForWrite(path))
        return false;
    for (const std::string &line : lines) {
        if (!file.WriteLine(line))
            return false;
    }
    return file.Close();
}

bool OpenSettingsFile(DataFile &file, const std::string &path)
{
    // Checked before opening: opening a named pipe waits for a writer.
    const QFileInfo info(QString::fromStdString(path));
    if (!info.isFile() || info.size() > kMaxSettingsFileSize)
        return false;
    return file.OpenForRead(path);
}

bool ReadSettingsPairs(
        const std::string &path,
        const std::function<void(const std::string &key, const std::string &value)> &take)
{
    DataFile file;
    if (!OpenSettingsFile(file, path))
        return false;
    std::string line;
    while (file.ReadLine(line)) {
        const size_t equals = line.find('=');
        if (equals != std::string::npos)
            take(line.substr(0, equals), line.substr(equals + 1));
    }
    const bool readToEnd = file.atEnd();
    file.Close();
    return readToEnd;
}

bool ReadKeyValueFile(const std::string &path, KeyValues &values)
{
    return ReadSettingsPairs(path, [&values](const std::string &key, const std::string &text) {
        if (const std::optional<int> value = settingsNumber(text))
            values[upperCase(key)] = *value;
    });
}

bool ReadWindowState(const std::string &path, WindowPlacement &placement)
{
    KeyValues values;
    const bool ok = ReadKeyValueFile(path, values);
    take(values, "STATE", placement.state);
    take(values, "LEFT", placement.left);
    take(values, "TOP", placement.top);
    take(values, "HEIGHT", placement.height);
    take(values, "WIDTH", placement.width);
    take(values, "CHANNELPANE", placement.channelPane);
    take(values, "CHANNELPANEWIDTH", placement.channelPaneWidth);
    return ok;
}

bool ReadDefWindowSize(const std::string &path, WindowPlacement &placement)
{
    KeyValues values;
    const bool ok = ReadKeyValueFile(path, values);
    take(values, "HEIGHT", placement.height);
    take(values, "WIDTH", placement.width);
    return ok;
}

bool WriteWindowState(const std::string &path, WindowShowState state, int top, int left, int height,
                      int width, const PanePlacement &panes)
{
    std::vector<std::string> lines = { "State=" + std::to_string(static_cast<int>(state)) };
    if (state == WindowShowState::Normal) {
        lines.insert(lines.end(),
                     { "Top=" + std::to_string(top), "Left=" + std::to_string(left),
                       "Height=" + std::to_string(height), "Width=" + std::to_string(width) });
    }
    if (panes.channelPane)
        lines.push_back("ChannelPane=" + std::to_string(*panes.channelPane));
    if (panes.channelPaneWidth)
        lines.push_back("ChannelPaneWidth=" + std::to_string(*panes.channelPaneWidth));
    return WriteSettingsFile(path, lines);
}

HelpImageFiles ReadHelpImageFolders(const std::string &programFolder)
{
    HelpImageFiles files {};
    ReadSettingsPairs(programFolder + kHelpImagesFile,
                      [&](const std::string &rawKey, const std::string &rawValue) {
                          const std::string key = upperCase(trimBlanks(rawKey));
                          const std::string value = trimBlanks(rawValue);
                          if (value.empty())
                              return;
                          for (int size = 1; size <= kHelpImageSizeCount; ++size) {
                              if (key == kHelpImageKeys[static_cast<size_t>(size)]
                                  && fileExists(programFolder + value))
                                  files[static_cast<size_t>(size)] = value;
                          }
                      });
    return files;
}

int ReadDefHelpImage(const std::string &settingsFolder)
{
    DataFile file;
    int size = 0;
    if (!OpenSettingsFile(file, settingsFolder + kDefHelpImageFile) || !file.ReadInteger(size))
        return 0;
    file.Close();
    return size >= 1 && size <= kHelpImageSizeCount ? size : 0;
}

bool WriteDefHelpImage(const std::string &settingsFolder, int size)
{
    return WriteSettingsFile(settingsFolder + kDefHelpImageFile, { std::to_string(size) });
}
