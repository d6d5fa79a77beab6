#include "RecoveryFiles.h"

#include "ProjectFile.h"
#include "SettingsFiles.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QUuid>

#include <algorithm>

const char *const kRecoveryFolderName = "Recovery";
const char *const kAutosaveFolderName = "Autosave";

namespace {

const char *const kProjectSuffix = ".swl";
const char *const kInfoSuffix = ".ini";
const char *const kLockSuffix = ".lock";
const char *const kNameKey = "Name";
const char *const kOriginalKey = "Original";
const char *const kSavedKey = "Saved";
const char *const kUntitledName = "untitled";

QString toQt(const std::string &text)
{
    return QString::fromStdString(text);
}

// The document's name as a file name on every desktop: without the project extension and
// without the characters that Windows refuses in names.
QString fileNameStem(const std::string &name)
{
    QString stem = toQt(name).trimmed();
    if (stem.endsWith(QLatin1String(kProjectSuffix), Qt::CaseInsensitive))
        stem.chop(static_cast<int>(qstrlen(kProjectSuffix)));
    if (stem.isEmpty() || stem == QLatin1String("<untitled>"))
        return QLatin1String(kUntitledName);
    for (QChar &c : stem) {
        if (c < QLatin1Char(' ') || QStringLiteral("<>:\"/\\|?*").contains(c))
            c = QLatin1Char('_');
    }
    return stem;
}

// The first of "stem time.swl", "stem time (2).swl", ... that does not exist in `folder`.
QString freshCopyPath(const QString &folder, const QString &stem)
{
    const QString base = folder + stem + QLatin1Char(' ')
            + QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HHmmss"));
    QString path = base + QLatin1String(kProjectSuffix);
    for (int n = 2; QFileInfo::exists(path); ++n)
        path = base + QStringLiteral(" (%1)").arg(n) + QLatin1String(kProjectSuffix);
    return path;
}

RecoveryWriteResult writeProjectTo(const std::string &path, const SwaleProject &project)
{
    const ProjectFileResult saved = saveProject(path, project);
    return { saved.ok, path, saved.error };
}

bool makeFolder(const std::string &folder, RecoveryWriteResult &failure)
{
    if (QDir().mkpath(toQt(folder)))
        return true;
    failure = { false, folder, "the folder cannot be created" };
    return false;
}

bool writeInfo(const std::string &path, const AutosaveInfo &info)
{
    return WriteSettingsFile(path,
                             { std::string(kNameKey) + "=" + info.name,
                               std::string(kOriginalKey) + "=" + info.originalPath,
                               std::string(kSavedKey) + "=" + info.savedAt });
}

// A missing or damaged info file leaves the name "untitled", no original file, and the time
// of the autosave's last change.
AutosaveInfo readInfo(const std::string &infoPath, const std::string &projectPath)
{
    AutosaveInfo info { kUntitledName,
                        {},
                        QFileInfo(toQt(projectPath))
                                .lastModified()
                                .toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"))
                                .toStdString() };
    ReadSettingsPairs(infoPath, [&info](const std::string &key, const std::string &value) {
        if (key == kNameKey && !value.empty())
            info.name = value;
        else if (key == kOriginalKey)
            info.originalPath = value;
        else if (key == kSavedKey && !value.empty())
            info.savedAt = value;
    });
    return info;
}

std::string withoutSuffix(const std::string &path)
{
    return path.substr(0, path.size() - std::string(kProjectSuffix).size());
}

} // namespace

std::string recoveryFolderOf(const std::string &settingsFolder)
{
    return settingsFolder + kRecoveryFolderName + "/";
}

std::string autosaveFolderOf(const std::string &settingsFolder)
{
    return recoveryFolderOf(settingsFolder) + kAutosaveFolderName + "/";
}

RecoveryWriteResult writeRecoveryCopy(const std::string &folder, const std::string &name,
                                      const SwaleProject &project)
{
    RecoveryWriteResult failure;
    const std::string path = freshCopyPath(toQt(folder), fileNameStem(name)).toStdString();
    if (!makeFolder(folder, failure))
        return { false, path, failure.error };
    return writeProjectTo(path, project);
}

AutosaveSlot::AutosaveSlot(std::string autosaveFolder)
    : m_folder(std::move(autosaveFolder))
    , m_id(QUuid::createUuid().toString(QUuid::WithoutBraces).toStdString())
{ }

AutosaveSlot::~AutosaveSlot() = default;

std::string AutosaveSlot::projectPath() const
{
    return m_folder + m_id + kProjectSuffix;
}

RecoveryWriteResult AutosaveSlot::write(const SwaleProject &project, const AutosaveInfo &info)
{
    RecoveryWriteResult failure;
    if (!makeFolder(m_folder, failure))
        return failure;
    if (!m_lock) {
        auto lock = std::make_unique<QLockFile>(toQt(m_folder + m_id + kLockSuffix));
        // Never stale while this process runs, however long it runs.
        lock->setStaleLockTime(0);
        if (!lock->tryLock(0))
            return { false, m_folder + m_id + kLockSuffix, "the lock cannot be taken" };
        m_lock = std::move(lock);
    }
    RecoveryWriteResult result = writeProjectTo(projectPath(), project);
    if (result.ok && !writeInfo(m_folder + m_id + kInfoSuffix, info))
        return { false, m_folder + m_id + kInfoSuffix, "the information file cannot be written" };
    return result;
}

void AutosaveSlot::remove()
{
    QFile::remove(toQt(projectPath()));
    QFile::remove(toQt(m_folder + m_id + kInfoSuffix));
}

void AutosaveSlot::release()
{
    remove();
    m_lock.reset(); // unlocking removes the lock file
}

std::vector<OrphanedAutosave> claimOrphanedAutosaves(const std::string &autosaveFolder)
{
    std::vector<OrphanedAutosave> orphans;
    const QFileInfoList projects = QDir(toQt(autosaveFolder))
                                           .entryInfoList({ QStringLiteral("*.swl") }, QDir::Files,
                                                          QDir::Time | QDir::Reversed);
    for (const QFileInfo &project : projects) {
        const std::string path = project.absoluteFilePath().toStdString();
        const std::string stem = withoutSuffix(path);
        auto lock = std::make_shared<QLockFile>(toQt(stem + kLockSuffix));
        lock->setStaleLockTime(0);
        // A lock held by a running process is not taken; a dead process's lock is stale and
        // tryLock takes it over.
        if (!lock->tryLock(0))
            continue;
        orphans.push_back({ path, readInfo(stem + kInfoSuffix, path), lock });
    }
    return orphans;
}

void discardOrphan(OrphanedAutosave &orphan)
{
    const std::string stem = withoutSuffix(orphan.projectPath);
    QFile::remove(toQt(orphan.projectPath));
    QFile::remove(toQt(stem + kInfoSuffix));
    orphan.lock.reset();
}
