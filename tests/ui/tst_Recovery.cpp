// The safety net for unsaved edits: a save that fails inside the unsaved-data question leaves a
// recovery copy under every command that asks it; a program killed after an edit leaves an
// autosave that the next start offers, while a clean exit leaves none; and instances running
// side by side never take each other's autosaves.
#include "FileFaults.h"
#include "Files.h"
#include "GlobalData.h"
#include "ProjectFile.h"
#include "RecordingPrompts.h"
#include "RecoveryFiles.h"
#include "RecoveryStore.h"
#include "frmMain.h"
#include "tvrEditBox.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

enum class Command { New, Open, Example, Recent, Exit };

// The bytes `project` saves to: two projects that save alike are the same document.
std::string savedBytes(const SwaleProject &project, const QString &scratch)
{
    const std::string path = scratch.toStdString();
    return saveProject(path, project).ok ? readBytes(path) : std::string();
}

QStringList projectsIn(const QString &folder)
{
    return QDir(folder).entryList({ QStringLiteral("*.swl") }, QDir::Files, QDir::Name);
}

SwaleProject routeNine()
{
    SwaleProject project;
    project.inputText[1] = "Route 9 roadside swale";
    project.inputText[2] = "J. Marsh";
    project.inputText[4] = "200";
    project.solutionMethod = 1;
    project.channelFlowMethod = 1;
    return project;
}

} // namespace

class tst_Recovery : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void failedSaveLeavesRecoveryCopy_data();
    void failedSaveLeavesRecoveryCopy();
    void cleanExitLeavesNoAutosave();
    void killedProgramIsOfferedAtNextStart();

private:
    QString path(const char *relative) const { return m_folder->path() + '/' + relative; }
    GlobalData foldersWithSettings(const QString &settingsFolder) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    GlobalData m_folders;
    RecordingPrompts m_prompts;
    std::unique_ptr<frmMain> m_window;
};

void tst_Recovery::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    openToOrdinaryUser(m_folder->path().toStdString());
    for (const char *name : { "program/Examples", "settings", "documents/projects" })
        QVERIFY(QDir(m_folder->path()).mkpath(QLatin1String(name)));
    // The settings folder is the user's own: it takes files whoever the test acts as.
    QVERIFY(QFile::setPermissions(path("settings"), QFileDevice::Permissions(0x7777)));
    m_folders = foldersWithSettings(path("settings/"));
    m_prompts.clear();
    m_window = std::make_unique<frmMain>(m_prompts, m_folders);
}

void tst_Recovery::cleanup()
{
    QCOMPARE(m_prompts.pendingAnswers(), 0);
    m_window.reset();
    m_folder.reset();
}

GlobalData tst_Recovery::foldersWithSettings(const QString &settingsFolder) const
{
    return { path("program/").toStdString(), settingsFolder.toStdString(),
             path("documents/").toStdString() };
}

void tst_Recovery::failedSaveLeavesRecoveryCopy_data()
{
    QTest::addColumn<int>("command");
    QTest::addColumn<bool>("recoveryWritable");
    QTest::newRow("New") << int(Command::New) << true;
    QTest::newRow("Open") << int(Command::Open) << true;
    QTest::newRow("Example") << int(Command::Example) << true;
    QTest::newRow("Recent") << int(Command::Recent) << true;
    QTest::newRow("Exit") << int(Command::Exit) << true;
    QTest::newRow("New, recovery folder read-only too") << int(Command::New) << false;
}

void tst_Recovery::failedSaveLeavesRecoveryCopy()
{
    QFETCH(int, command);
    QFETCH(bool, recoveryWritable);
    const QString projects = path("documents/projects");
    FaultyFolder faulty(SaveFault::ReadOnlyFolder, projects.toStdString());
    const QString target = projects + QStringLiteral("/route9.swl");
    const QString other = path("documents/other.swl");
    const QString example = path("program/Examples/example.swl");
    for (const QString &file : { target, other, example })
        QVERIFY(saveProject(file.toStdString(), routeNine()).ok);
    // Recent entry 2 is the other project.
    QVERIFY(m_window->OpenDataFile(other, OpenNormal));
    QVERIFY(m_window->OpenDataFile(target, OpenNormal));
    m_window->txtInput(1)->setText(QStringLiteral("Route 9 roadside swale, widened"));
    m_window->txtInput(5)->setText(QStringLiteral("6.5"));
    const SwaleProject edited = m_window->currentProject();
    if (!recoveryWritable)
        QVERIFY(QFile::setPermissions(path("settings"), QFileDevice::Permissions(0x5555)));

    const std::string notInForce = faulty.arm(4096);
    if (!notInForce.empty())
        QSKIP(qPrintable(QStringLiteral("a read-only folder cannot be made here: %1")
                                 .arg(QString::fromStdString(notInForce))));
    m_prompts.answerMessage(MessageAnswer::Yes);
    m_prompts.answerMessage(); // the save's error
    m_prompts.answerMessage(); // where the recovery copy is, or that it could not be written
    switch (Command(command)) {
    case Command::New:
        m_window->newCommand();
        break;
    case Command::Open:
        m_prompts.answerOpen(other);
        m_window->OpenProjectCommand(OpenNormal);
        break;
    case Command::Example:
        m_prompts.answerOpen(example);
        m_window->OpenProjectCommand(OpenExample);
        break;
    case Command::Recent:
        m_window->recentFileCommand(2);
        break;
    case Command::Exit:
        QVERIFY(m_window->close());
        break;
    }
    faulty.disarm();
    QVERIFY(QFile::setPermissions(path("settings"), QFileDevice::Permissions(0x7777)));

    // The command carried on as it always has: the edits are gone from the window.
    QVERIFY(Command(command) == Command::Exit || !m_window->isDataChanged());
    const QStringList messages = m_prompts.messages();
    QCOMPARE(messages.size(), 3);
    QCOMPARE(messages.at(1), QStringLiteral("Unable to open file:\r") + target);
    const QString recoveryFolder = path("settings/Recovery/");
    if (!recoveryWritable) {
        QVERIFY2(messages.at(2).startsWith(
                         QStringLiteral("Unable to save a recovery copy of the data:\r")
                         + recoveryFolder),
                 qPrintable(messages.at(2)));
        QCOMPARE(m_prompts.records().last().title, QStringLiteral("Error"));
        QCOMPARE(projectsIn(recoveryFolder), QStringList());
        return;
    }
    const QString prefix = QStringLiteral("A recovery copy of the data was saved to:\r");
    QVERIFY2(messages.at(2).startsWith(prefix), qPrintable(messages.at(2)));
    const QString copy = messages.at(2).mid(prefix.size());
    QCOMPARE(QFileInfo(copy).absolutePath() + '/', recoveryFolder);
    QVERIFY2(QFileInfo(copy).fileName().startsWith(QStringLiteral("route9 ")), qPrintable(copy));
    SwaleProject recovered;
    QVERIFY(loadProject(copy.toStdString(), recovered).ok);
    QCOMPARE(savedBytes(recovered, path("a.swl")), savedBytes(edited, path("b.swl")));
}

void tst_Recovery::cleanExitLeavesNoAutosave()
{
    m_window->recovery().setAutosaveInterval(20);
    m_window->txtInput(1)->setText(QStringLiteral("Culvert outfall swale"));
    const QString autosave = m_window->recovery().autosavePath();
    QTRY_VERIFY(QFileInfo::exists(autosave));
    SwaleProject written;
    QVERIFY(loadProject(autosave.toStdString(), written).ok);
    QCOMPARE(written.inputText[1], std::string("Culvert outfall swale"));

    m_prompts.answerMessage(MessageAnswer::No); // closed without saving
    QVERIFY(m_window->close());
    QCOMPARE(QDir(path("settings/Recovery/Autosave")).entryList(QDir::Files), QStringList());

    // The next start finds nothing to offer: an offer would be an unscripted prompt.
    m_window = std::make_unique<frmMain>(m_prompts, m_folders);
    QCoreApplication::processEvents();
    QCOMPARE(m_prompts.records().size(), 1);
}

// The real program, typed into and then killed, beside windows of this process: a second
// instance leaves the running program's autosave alone, and after the kill the next start
// offers the killed program's autosave but not the one of the instance still running.
void tst_Recovery::killedProgramIsOfferedAtNextStart()
{
    const QString typed = QStringLiteral("Killed before saving");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("HOME"), path("home"));
    environment.insert(QStringLiteral("XDG_DATA_HOME"), path("data"));
    environment.insert(QStringLiteral("SWALE_AUTOSAVE_INTERVAL_MS"), QStringLiteral("50"));
    environment.insert(QStringLiteral("SWALE_TEST_TYPE_JOB_NAME"), typed);
    QProcess program;
    program.setProcessEnvironment(environment);
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    program.start(QStringLiteral(SWALE_PROGRAM), {});
    QVERIFY2(program.waitForStarted(), qPrintable(program.errorString()));
    const QString settings = path("data/TAVRO33/Swale/");
    const QString autosaves = QString::fromStdString(autosaveFolderOf(settings.toStdString()));
    QTRY_COMPARE_WITH_TIMEOUT(projectsIn(autosaves).size(), 1, 30000);

    const GlobalData folders = foldersWithSettings(settings);
    frmMain second(m_prompts, folders);
    QCoreApplication::processEvents();
    QCOMPARE(m_prompts.records().size(), 0); // the running program's autosave is not offered
    second.recovery().setAutosaveInterval(20);
    second.txtInput(1)->setText(QStringLiteral("Second instance"));
    QTRY_VERIFY(QFileInfo::exists(second.recovery().autosavePath()));
    QCOMPARE(projectsIn(autosaves).size(), 2);

    program.kill(); // SIGKILL: no clean exit
    QVERIFY(program.waitForFinished());
    m_prompts.answerRecovery({ RecoveryAnswer::Open, 0 });
    frmMain third(m_prompts, folders);
    QCoreApplication::processEvents();
    QCOMPARE(m_prompts.records().size(), 1);
    const QList<RecoveryOffer> offers = m_prompts.records().constFirst().offers;
    QCOMPARE(offers.size(), 1);
    QCOMPARE(offers.constFirst().name, QStringLiteral("<untitled>"));
    QCOMPARE(offers.constFirst().originalPath, QString());
    QCOMPARE(third.txtInput(1)->text(), typed);
    QVERIFY(third.windowTitle().endsWith(QStringLiteral("<untitled> (recovered)")));
    QVERIFY(third.isDataChanged());
    // The killed program's autosave became the third window's own; the second's stays.
    QCOMPARE(projectsIn(autosaves).size(), 2);
    QVERIFY(QFileInfo::exists(second.recovery().autosavePath()));
    QVERIFY(QFileInfo::exists(third.recovery().autosavePath()));

    // Recovered means untitled: Save asks for a name.
    m_prompts.answerSave(path("documents/recovered.swl"));
    QVERIFY(third.SaveProject());
    QCOMPARE(m_prompts.records().last().kind, RecordingPrompts::Kind::SaveDialog);
    QVERIFY(!QFileInfo::exists(third.recovery().autosavePath()));
}

QTEST_MAIN(tst_Recovery)
#include "tst_Recovery.moc"
