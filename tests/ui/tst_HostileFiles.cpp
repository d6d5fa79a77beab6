// The window starts with its defaults and without a word whatever sits where its settings files
// should be, and leaves at exit without a word when it cannot write them. Opening something that
// is no project file (a named pipe, a device, a folder, a huge file) says "Unable to open file:"
// at once and leaves the open document alone.
#include "FileFaults.h"
#include "GlobalData.h"
#include "HelpImagePanel.h"
#include "MainMenus.h"
#include "ProjectFile.h"
#include "RecordingPrompts.h"
#include "SettingsFiles.h"
#include "frmMain.h"
#include "tvrEditBox.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <optional>

#include <sys/stat.h>
#include <unistd.h>

namespace {

// What stands in place of every settings file.
enum class Hostile {
    Unreadable, // mode 000, the window run as an ordinary user
    Folder,
    HugeOneLine, // 50 MB without a line break
    HugeManyLines, // 50 MB of lines a reader would take
    BinaryJunk,
    NamedPipe,
    SettingsFolderIsAFile, // the settings folder cannot be created: "TAVRO33" is a file
};

const char *const kSettingsFiles[] = { kWindowStateFile, kRecentFilesFile, kDefHelpImageFile };
const char *const kProgramFiles[] = { kDefWindowSizeFile, kHelpImagesFile };

// The window's designed size, which it keeps when no settings file gives another.
const QSize kDesignedSize(960, 760);
constexpr int kHugeSize = 50 * 1024 * 1024;

// Writes `line` repeated to `size` bytes, a megabyte at a time.
bool writeRepeated(const QString &path, const QByteArray &line, int size)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    const int count = qMin(size, 1024 * 1024) / int(line.size());
    const QByteArray piece = line.repeated(qMax(1, count));
    for (qint64 written = 0; written < size; written += piece.size()) {
        if (file.write(piece) != piece.size())
            return false;
    }
    return true;
}

} // namespace

class tst_HostileFiles : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void windowStartsWithDefaultsAndLeavesQuietly_data();
    void windowStartsWithDefaultsAndLeavesQuietly();
    void openingWhatIsNoProjectLeavesTheDocument_data();
    void openingWhatIsNoProjectLeavesTheDocument();

private:
    // Puts `kind` where every settings file of both folders should be.
    void makeHostile(Hostile kind);
    QStringList settingsPaths() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    GlobalData m_folders;
    RecordingPrompts m_prompts;
};

void tst_HostileFiles::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    const QString root = m_folder->path();
    openToOrdinaryUser(root.toStdString());
    for (const char *name : { "program", "settings", "documents" })
        QVERIFY(QDir(root).mkpath(QLatin1String(name)));
    m_folders = { root.toStdString() + "/program/", root.toStdString() + "/settings/",
                  root.toStdString() + "/documents/" };
    m_prompts.clear();
}

void tst_HostileFiles::cleanup()
{
    QCOMPARE(m_prompts.pendingAnswers(), 0);
    m_folder.reset();
}

QStringList tst_HostileFiles::settingsPaths() const
{
    QStringList paths;
    for (const char *name : kSettingsFiles)
        paths << QString::fromStdString(m_folders.settingsFolder) + QLatin1String(name);
    for (const char *name : kProgramFiles)
        paths << QString::fromStdString(m_folders.programFolder) + QLatin1String(name);
    return paths;
}

void tst_HostileFiles::makeHostile(Hostile kind)
{
    const QStringList paths = settingsPaths();
    // One file of each kind, the others hard links to it: 50 MB are written once.
    const QString first = paths.first();
    switch (kind) {
    case Hostile::Unreadable:
        QVERIFY(writeRepeated(first, "Width=12000\r\n", 1000));
        QCOMPARE(chmod(QFile::encodeName(first).constData(), 0), 0);
        break;
    case Hostile::HugeOneLine:
        QVERIFY(writeRepeated(first, "9", kHugeSize));
        break;
    case Hostile::HugeManyLines:
        QVERIFY(writeRepeated(first, "Height=12000\r\n", kHugeSize));
        break;
    case Hostile::BinaryJunk: {
        QByteArray junk;
        for (int i = 0; i < 4096; ++i)
            junk += char((i * 7919) % 256);
        QVERIFY(writeRepeated(first, junk, junk.size()));
        break;
    }
    case Hostile::Folder:
    case Hostile::NamedPipe:
    case Hostile::SettingsFolderIsAFile:
        break;
    }
    for (const QString &path : paths) {
        const QByteArray name = QFile::encodeName(path);
        switch (kind) {
        case Hostile::Folder:
            QVERIFY(QDir().mkdir(path));
            break;
        case Hostile::NamedPipe:
            QCOMPARE(mkfifo(name.constData(), 0644), 0);
            break;
        case Hostile::SettingsFolderIsAFile:
            break;
        default:
            if (path != first)
                QCOMPARE(link(QFile::encodeName(first).constData(), name.constData()), 0);
        }
    }
}

void tst_HostileFiles::windowStartsWithDefaultsAndLeavesQuietly_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("unreadable files") << int(Hostile::Unreadable);
    QTest::newRow("folders in their place") << int(Hostile::Folder);
    QTest::newRow("50 MB on one line") << int(Hostile::HugeOneLine);
    QTest::newRow("50 MB of lines") << int(Hostile::HugeManyLines);
    QTest::newRow("binary junk with NULs") << int(Hostile::BinaryJunk);
    QTest::newRow("named pipes nobody writes") << int(Hostile::NamedPipe);
    QTest::newRow("settings folder cannot be created") << int(Hostile::SettingsFolderIsAFile);
}

void tst_HostileFiles::windowStartsWithDefaultsAndLeavesQuietly()
{
    QFETCH(int, kind);
    const Hostile hostile = static_cast<Hostile>(kind);
    std::optional<QByteArray> blocker;
    if (hostile == Hostile::SettingsFolderIsAFile) {
        // The folders as start-up works them out, with a file where "TAVRO33" should be made.
        const QString base = m_folder->path() + QStringLiteral("/data");
        QVERIFY(QDir().mkpath(base));
        blocker = QByteArray("State=2\r\n");
        QVERIFY(writeRepeated(base + QStringLiteral("/TAVRO33"), *blocker, blocker->size()));
        qputenv("XDG_DATA_HOME", QFile::encodeName(base));
        FolderError error;
        const bool built = BuildGlobalData(m_folders.programFolder, m_folders, error);
        qunsetenv("XDG_DATA_HOME");
        QVERIFY(built);
        QVERIFY(!folderExists(m_folders.settingsFolder));
    }
    makeHostile(hostile);
    std::unique_ptr<OrdinaryUser> user;
    if (hostile == Hostile::Unreadable) {
        user = std::make_unique<OrdinaryUser>();
        if (!user->error().empty())
            QSKIP(user->error().c_str());
    }

    auto window = std::make_unique<frmMain>(m_prompts, m_folders);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    QCOMPARE(window->size(), kDesignedSize);
    QVERIFY(!window->isMaximized());
    for (int i = 1; i <= 5; ++i)
        QVERIFY(!window->menus().mnuFile_Recent[static_cast<size_t>(i)]->isVisible());
    QCOMPARE(window->helpImage()->size(), int(HelpImagePanel::kDefaultSize));
    for (int size = 1; size <= kHelpImageSizeCount; ++size)
        QVERIFY(!window->menus().mnuHelp_Image_Size[static_cast<size_t>(size)]->isEnabled());

    // At exit the window state and the recent files cannot be written: nothing is said.
    QVERIFY(window->close());
    window.reset();
    user.reset();
    QCOMPARE(m_prompts.records().size(), 0);
    if (blocker) {
        QFile file(m_folder->path() + QStringLiteral("/data/TAVRO33"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), *blocker);
    }
}

void tst_HostileFiles::openingWhatIsNoProjectLeavesTheDocument_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("named pipe nobody writes") << "pipe";
    QTest::newRow("link to /dev/zero") << "device";
    QTest::newRow("folder") << "folder";
    QTest::newRow("50 MB of lines") << "huge";
}

void tst_HostileFiles::openingWhatIsNoProjectLeavesTheDocument()
{
    QFETCH(QString, kind);
    const QString documents = QString::fromStdString(m_folders.documentsFolder);
    const QString kept = documents + QStringLiteral("kept.swl");
    SwaleProject project;
    project.inputText[1] = "Kept job";
    project.solutionMethod = 1;
    project.channelFlowMethod = 1;
    QVERIFY(saveProject(kept.toStdString(), project).ok);
    frmMain window(m_prompts, m_folders);
    QVERIFY(window.OpenDataFile(kept, OpenNormal));

    const QString path = documents + QStringLiteral("hostile.swl");
    const QByteArray name = QFile::encodeName(path);
    if (kind == QLatin1String("pipe"))
        QCOMPARE(mkfifo(name.constData(), 0644), 0);
    else if (kind == QLatin1String("device"))
        QCOMPARE(symlink("/dev/zero", name.constData()), 0);
    else if (kind == QLatin1String("folder"))
        QVERIFY(QDir().mkdir(path));
    else
        QVERIFY(writeRepeated(path, "Swale_03\r\n", kHugeSize));
    const QString caption = window.windowTitle();
    const QString recent = window.menus().mnuFile_Recent[1]->text();

    m_prompts.answerOpen(path);
    m_prompts.answerMessage();
    window.menus().mnuFile_Open->trigger();
    QCOMPARE(m_prompts.messages(), QStringList { QStringLiteral("Unable to open file:\r") + path });
    QCOMPARE(window.windowTitle(), caption);
    QCOMPARE(window.currentFilePath(), kept);
    QCOMPARE(window.txtInput(1)->text(), QStringLiteral("Kept job"));
    QVERIFY(!window.isDataChanged());
    QCOMPARE(window.menus().mnuFile_Recent[1]->text(), recent);
    QVERIFY(!window.menus().mnuFile_Recent[2]->isVisible());
}

QTEST_MAIN(tst_HostileFiles)
#include "tst_HostileFiles.moc"
