#pragma once

#include <string>

// The folders of one run of the program, each ending with "/". Built once at start-up (see
// BuildGlobalData) and handed to whoever needs it.
struct GlobalData
{
    std::string programFolder; // the program's data files: help, examples, default settings
    std::string settingsFolder; // the user's settings: base + "TAVRO33/" + "Swale/"
    std::string documentsFolder; // where the file dialogs start when no project folder is known
};

// The one error of the folder set-up: the desktop cannot name a folder the program needs.
struct FolderError
{
    int number = 0;
    std::string source;
    std::string description;
};

// Special-folder numbers of the old Windows shell, kept as the names of the two folders asked for.
constexpr int kLocalApplicationDataFolder = 28;
constexpr int kDocumentsFolder = 5;
constexpr int kFolderNotDetectedError = 513;
extern const char *const kFolderNotDetectedText; // "The folder path could not be detected"

// Path of special folder `folderId`, without a trailing "/": 28 is the first writable generic
// data location of the desktop (usually ~/.local/share), 5 the Documents folder, or the home
// folder where there is no Documents folder. Returns false and fills `error` (513,
// "SpecialFolder") when the desktop names no folder, or for any other number.
bool SpecialFolder(int folderId, std::string &path, FolderError &error);

// Creates the folder `path`. Failures (it exists, its parent is missing, no permission) are
// ignored: the answer is always true.
bool MakeDirectory(const std::string &path);

// True when `path` names an existing folder, or an existing file.
bool folderExists(const std::string &path);
bool fileExists(const std::string &path);

// Adds "/" unless `path` already ends with one.
std::string withTrailingSlash(const std::string &path);

// The program folder of a program in `executableFolder`: "<prefix>/share/swale/" when the program
// is installed in "<prefix>/bin" beside that folder, else the executable's own folder (the build
// tree keeps the data beside the programs). Ends with "/".
std::string programFolderOf(const std::string &executableFolder);

// Works out the folders of the run and creates the settings folders that are missing:
// settings base + "TAVRO33/" + "Swale/". When the settings base cannot be found on disk the
// settings folder is empty (settings files then lie in the current folder). Fails only when
// SpecialFolder fails.
bool BuildGlobalData(const std::string &programFolder, GlobalData &data, FolderError &error);
