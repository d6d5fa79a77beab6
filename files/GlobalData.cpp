#include "GlobalData.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QString>

const char *const kFolderNotDetectedText = "The folder path could not be detected";

namespace {

QString toQString(const std::string &text)
{
    return QString::fromStdString(text);
}

QString desktopFolder(int folderId)
{
    switch (folderId) {
    case kLocalApplicationDataFolder:
        return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    case kDocumentsFolder: {
        const QString documents
                = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        if (!documents.isEmpty() && QFileInfo(documents).isDir())
            return documents;
        return QStandardPaths::writableLocation(QStandardPaths::HomeLocation);
    }
    default:
        return {};
    }
}

// settings base + `name` + "/", created when missing; "" when `base` is "".
std::string settingsSubfolder(const std::string &base, const char *name)
{
    if (base.empty())
        return {};
    const std::string path = base + name + "/";
    if (!folderExists(path) && !MakeDirectory(path))
        return {};
    return path;
}

} // namespace

bool SpecialFolder(int folderId, std::string &path, FolderError &error)
{
    const QString folder = desktopFolder(folderId);
    if (folder.isEmpty()) {
        error = { kFolderNotDetectedError, "SpecialFolder", kFolderNotDetectedText };
        return false;
    }
    path = folder.toStdString();
    return true;
}

bool MakeDirectory(const std::string &path)
{
    QDir().mkdir(toQString(path));
    return true;
}

bool folderExists(const std::string &path)
{
    return !path.empty() && QFileInfo(toQString(path)).isDir();
}

bool fileExists(const std::string &path)
{
    return !path.empty() && QFileInfo(toQString(path)).isFile();
}

std::string withTrailingSlash(const std::string &path)
{
    if (!path.empty() && path.back() == '/')
        return path;
    return path + "/";
}

std::string programFolderOf(const std::string &executableFolder)
{
    const QString installed
            = QDir::cleanPath(toQString(executableFolder) + QStringLiteral("/../share/swale"));
    if (QFileInfo(installed).isDir())
        return withTrailingSlash(installed.toStdString());
    return withTrailingSlash(executableFolder);
}

bool BuildGlobalData(const std::string &programFolder, GlobalData &data, FolderError &error)
{
    std::string base;
    std::string documents;
    if (!SpecialFolder(kLocalApplicationDataFolder, base, error)
        || !SpecialFolder(kDocumentsFolder, documents, error))
        return false;

    data.programFolder = withTrailingSlash(programFolder);
    // A new account may not have its data folder yet; the desktop's rules ask programs that
    // write there to create it.
    QDir().mkpath(toQString(base));
    base = folderExists(base) ? withTrailingSlash(base) : std::string();
    data.settingsFolder = settingsSubfolder(settingsSubfolder(base, "TAVRO33"), "Swale");
    QString trimmed = toQString(documents).trimmed();
    data.documentsFolder = withTrailingSlash(trimmed.toStdString());
    return true;
}
