// The window and its documents: the unsaved-data question, saving, opening, the settings, and
// the safety net for unsaved edits: a save that fails inside the unsaved-data question leaves a
// recovery copy under every command that asks it; a program killed after an edit leaves an
// autosave that the next start offers, while a clean exit leaves none; and instances running
// side by side never take each other's autosaves.
#include "FileFaults.h"
#include "Files.h"
#include "HelpImagePanel.h"
#include "InputPage.h"
#include "MainWindowSuite.h"
#include "ProjectFile.h"
#include "RecoveryFiles.h"
#include "RecoveryStore.h"
#include "ScrollingPage.h"
#include "tvrEditBox.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QProcess>
#include <QScrollBar>
#include <QTest>

#include <sys/stat.h>

namespace {

const QString kUntitledCaption
        = QStringLiteral("TAVRO Channel and Overland Flow Analysis - <untitled>");
const QString kQuestion
        = QStringLiteral("The data has changed.  Do you want to save the current data?");
const QString kQuestionTitle = QStringLiteral("TAVRO Channel and Overland Flow Analysis ");

enum class Command { New, Open, Example, Recent, Exit };
enum class Save { Works, Fails, FailsAndRecoveryToo };

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

} // namespace

class tst_frmMain : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void unsavedDataQuestion_data();
    void unsavedDataQuestion();
    void exampleOpensUntitledAndSaveAsKeepsTheTexts();
    void saveFailures_data();
    void saveFailures();
    void unreadableProjectLeavesTheDocument_data();
    void unreadableProjectLeavesTheDocument();
    void settingsRoundTrip();
    void documentCommandsLeaveThePagesAtTheTop();
    void killedProgramIsOfferedAtNextStartButACleanExitIsNot();

private:
    // Writes a small valid project to `name` in the documents folder and returns its path.
    QString writeProject(const QString &name);
    // The window's folders with another settings folder.
    GlobalData foldersWithSettings(const QString &settingsFolder) const;

    WindowFixture m_fx;
};

void tst_frmMain::init()
{
    setUpWithExamples(m_fx);
}

void tst_frmMain::cleanup()
{
    m_fx.tearDown();
}

QString tst_frmMain::writeProject(const QString &name)
{
    const QString path = m_fx.documentsFile(name);
    QFile::copy(exampleSource(kExamples.at(0)), path);
    return path;
}

GlobalData tst_frmMain::foldersWithSettings(const QString &settingsFolder) const
{
    return { m_fx.folders.programFolder, settingsFolder.toStdString(),
             m_fx.folders.documentsFolder };
}

// New, Open, Example, a recent file and Exit ask the unsaved-data question of a changed document
// first. Yes saves and goes on whatever the save's outcome; a save that failed leaves a recovery
// copy of the edits first, or says that even that could not be written.
void tst_frmMain::unsavedDataQuestion_data()
{
    QTest::addColumn<int>("command");
    QTest::addColumn<int>("answer"); // 0: the document is clean, no question
    QTest::addColumn<int>("save"); // what the save after a Yes meets
    const int cancel = MessageAnswer::Cancel;
    const int no = MessageAnswer::No;
    const int yes = MessageAnswer::Yes;
    const int fails = int(Save::Fails);
    const int saves = int(Save::Works);
    const int bothFail = int(Save::FailsAndRecoveryToo);
    QTest::newRow("New, clean: no question") << int(Command::New) << 0 << saves;
    QTest::newRow("New, Cancel") << int(Command::New) << cancel << saves;
    QTest::newRow("New, No") << int(Command::New) << no << saves;
    QTest::newRow("New, Yes saves first") << int(Command::New) << yes << saves;
    QTest::newRow("New, Yes, the save fails") << int(Command::New) << yes << fails;
    QTest::newRow("New, Yes, the recovery copy fails too") << int(Command::New) << yes << bothFail;
    QTest::newRow("Open, Cancel") << int(Command::Open) << cancel << saves;
    QTest::newRow("Open, Yes saves first") << int(Command::Open) << yes << saves;
    QTest::newRow("Open, Yes, the save fails") << int(Command::Open) << yes << fails;
    QTest::newRow("Example, Yes, the save fails") << int(Command::Example) << yes << fails;
    QTest::newRow("Recent, No") << int(Command::Recent) << no << saves;
    QTest::newRow("Recent, Yes, the save fails") << int(Command::Recent) << yes << fails;
    QTest::newRow("Exit, clean: no question") << int(Command::Exit) << 0 << saves;
    QTest::newRow("Exit, Cancel") << int(Command::Exit) << cancel << saves;
    QTest::newRow("Exit, Yes saves first") << int(Command::Exit) << yes << saves;
    QTest::newRow("Exit, Yes, the save fails") << int(Command::Exit) << yes << fails;
}

void tst_frmMain::unsavedDataQuestion()
{
    QFETCH(int, command);
    QFETCH(int, answer);
    QFETCH(int, save);
    const bool goesOn = answer != MessageAnswer::Cancel;
    const QString projects = m_fx.documentsFile(QStringLiteral("projects"));
    QVERIFY(QDir().mkpath(projects));
    const QString first = writeProject(QStringLiteral("projects/first.swl"));
    const QString second = writeProject(QStringLiteral("second.swl"));
    QVERIFY(m_fx.window->OpenDataFile(second, OpenNormal)); // recent entry 2
    QVERIFY(m_fx.window->OpenDataFile(first, OpenNormal));
    m_fx.window->show();
    if (answer)
        m_fx.window->txtInput(1)->setText(QStringLiteral("Edited job"));
    const SwaleProject edited = m_fx.window->currentProject();
    const QString settings = m_fx.settingsFile(QString());
    std::unique_ptr<FaultyFolder> faulty;
    if (Save(save) != Save::Works) {
        openToOrdinaryUser(m_fx.folder->path().toStdString());
        // The settings folder is the user's own: it takes files whoever the test acts as.
        const int mode = Save(save) == Save::Fails ? 0x7777 : 0x5555;
        QVERIFY(QFile::setPermissions(settings, QFileDevice::Permissions(mode)));
        faulty = std::make_unique<FaultyFolder>(SaveFault::ReadOnlyFolder, projects.toStdString());
        const std::string notInForce = faulty->arm(4096);
        if (!notInForce.empty())
            QSKIP(qPrintable(QStringLiteral("a read-only folder cannot be made here: %1")
                                     .arg(QString::fromStdString(notInForce))));
    }
    if (answer)
        m_fx.prompts.answerMessage(answer);
    if (faulty) {
        m_fx.prompts.answerMessage(); // the save's error
        m_fx.prompts.answerMessage(); // where the recovery copy is, or that it could not be written
    }
    switch (Command(command)) {
    case Command::New:
        m_fx.window->menus().toolbarButtons[1]->trigger(); // the toolbar's New
        break;
    case Command::Open:
    case Command::Example:
        if (goesOn)
            m_fx.prompts.answerOpen(Command(command) == Command::Open
                                            ? second
                                            : m_fx.programFile(QStringLiteral("Examples/"))
                                                    + kExamples.at(1));
        (Command(command) == Command::Open ? m_fx.window->menus().mnuFile_Open
                                           : m_fx.window->menus().cmdFile_Example)
                ->trigger();
        break;
    case Command::Recent:
        m_fx.window->menus().mnuFile_Recent[2]->trigger();
        break;
    case Command::Exit:
        m_fx.window->menus().mnuFile_Exit->trigger();
        break;
    }
    if (faulty) {
        faulty->disarm();
        QVERIFY(QFile::setPermissions(settings, QFileDevice::Permissions(0x7777)));
    }
    if (answer) {
        QCOMPARE(m_fx.prompts.records().constFirst().message, kQuestion);
        QCOMPARE(m_fx.prompts.records().constFirst().title, kQuestionTitle);
        QCOMPARE(m_fx.prompts.records().constFirst().style, int(MessageStyle::YesNoCancel));
    } else {
        QVERIFY(m_fx.prompts.records().isEmpty());
    }
    QFile file(first);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll().contains("Edited job"),
             answer == MessageAnswer::Yes && Save(save) == Save::Works);
    const bool exits = goesOn && Command(command) == Command::Exit;
    QCOMPARE(m_fx.window->isVisible(), !exits);
    if (!exits) // the command carried on as it always has: the edits are gone from the window
        QCOMPARE(m_fx.window->isDataChanged(), !goesOn && answer);
    if (!goesOn)
        QCOMPARE(m_fx.window->currentFilePath(), first);
    else if (Command(command) == Command::New)
        QCOMPARE(m_fx.window->windowTitle(), kUntitledCaption);
    else if (Command(command) == Command::Open || Command(command) == Command::Recent)
        QCOMPARE(m_fx.window->currentFilePath(), second);
    if (goesOn && Command(command) == Command::Open) {
        const FileDialogRequest request
                = m_fx.prompts.recordsOf(RecordingPrompts::Kind::OpenDialog).constFirst().request;
        QCOMPARE(request.selectedFilter, 1);
        QCOMPARE(request.filters.at(1),
                 QStringLiteral("TAVRO Channel and Overland Flow Analysis (*.swl)"));
        QCOMPARE(request.filters.at(0), QStringLiteral("All Files (*.*)"));
        QCOMPARE(request.defaultSuffix, QStringLiteral("udr"));
        QCOMPARE(request.initialFolder, projects + '/'); // the folder of the open document
    }
    m_fx.window->ClearProject(); // leave without a question
    if (!faulty)
        return;
    const QStringList messages = m_fx.prompts.messages();
    QCOMPARE(messages.size(), 3);
    QCOMPARE(messages.at(1), QStringLiteral("Unable to open file:\r") + first);
    const QString recoveryFolder = m_fx.settingsFile(QStringLiteral("Recovery/"));
    if (Save(save) == Save::FailsAndRecoveryToo) {
        QVERIFY2(messages.at(2).startsWith(
                         QStringLiteral("Unable to save a recovery copy of the data:\r")
                         + recoveryFolder),
                 qPrintable(messages.at(2)));
        QCOMPARE(m_fx.prompts.records().last().title, QStringLiteral("Error"));
        QCOMPARE(projectsIn(recoveryFolder), QStringList());
        return;
    }
    const QString prefix = QStringLiteral("A recovery copy of the data was saved to:\r");
    QVERIFY2(messages.at(2).startsWith(prefix), qPrintable(messages.at(2)));
    const QString copy = messages.at(2).mid(prefix.size());
    QCOMPARE(QFileInfo(copy).absolutePath() + '/', recoveryFolder);
    QVERIFY2(QFileInfo(copy).fileName().startsWith(QStringLiteral("first ")), qPrintable(copy));
    SwaleProject recovered;
    QVERIFY(loadProject(copy.toStdString(), recovered).ok);
    QCOMPARE(savedBytes(recovered, m_fx.documentsFile(QStringLiteral("a.swl"))),
             savedBytes(edited, m_fx.documentsFile(QStringLiteral("b.swl"))));
}

// The window starts untitled on the Input Data tab with both options at 1. An example opens
// untitled, so that Save asks for a name; the project saved under it opens again whole, and New
// puts the options back at 1.
void tst_frmMain::exampleOpensUntitledAndSaveAsKeepsTheTexts()
{
    const auto startsAfresh = [this] {
        QCOMPARE(m_fx.window->tabs()->currentIndex(), 0);
        QCOMPARE(m_fx.window->inputPage()->GetSolutionMethod(), 1);
        QCOMPARE(m_fx.window->inputPage()->GetChannelFlowOption(), 1);
        QVERIFY(!m_fx.window->menus().toolbarPrint()->isEnabled());
    };
    startsAfresh();
    const QString examples = m_fx.programFile(QStringLiteral("Examples/"));
    m_fx.prompts.answerOpen(examples + kExamples.at(2));
    m_fx.window->menus().cmdFile_Example->trigger();
    QCOMPARE(m_fx.prompts.records().last().request.initialFolder, examples);
    QCOMPARE(m_fx.window->windowTitle(),
             QStringLiteral("TAVRO Channel and Overland Flow Analysis - ") + kExamples.at(2));
    QVERIFY(m_fx.window->currentFilePath().isEmpty());
    QVERIFY(!m_fx.window->isDataChanged());
    QVERIFY(!m_fx.window->menus().mnuFile_Recent[1]->isVisible());

    m_fx.window->txtInput(17)->setText(QString::fromUtf8("Sod, \xC3\xA9t\xC3\xA9 mix"));
    const QString path = m_fx.documentsFile(QStringLiteral("copy.swl"));
    const SwaleProject saved = m_fx.window->currentProject();
    m_fx.prompts.answerSave(path);
    QVERIFY(m_fx.window->SaveProject());
    QCOMPARE(m_fx.prompts.records().last().kind, RecordingPrompts::Kind::SaveDialog);
    QCOMPARE(m_fx.window->windowTitle(),
             QStringLiteral("TAVRO Channel and Overland Flow Analysis - copy.swl"));
    QCOMPARE(m_fx.window->currentFilePath(), path);
    QVERIFY(!m_fx.window->isDataChanged());
    QCOMPARE(m_fx.window->menus().mnuFile_Recent[1]->text(), QStringLiteral("&1 ") + path);

    m_fx.window->menus().mnuFile_New->trigger();
    QVERIFY(m_fx.window->txtInput(17)->text().isEmpty());
    startsAfresh();
    m_fx.prompts.answerOpen(path);
    m_fx.window->menus().mnuFile_Open->trigger();
    const SwaleProject reopened = m_fx.window->currentProject();
    QCOMPARE(reopened.solutionMethod, 3);
    QVERIFY(reopened.inputText == saved.inputText);
    QVERIFY(reopened.ratingCurve == saved.ratingCurve);
}
void tst_frmMain::saveFailures_data()
{
    QTest::addColumn<bool>("saveAs");
    QTest::addColumn<bool>("badLine");
    QTest::addColumn<QString>("message");
    QTest::newRow("Save As into a missing folder") << true << false << "Error opening file:";
    QTest::newRow("Save As of a line that cannot be written")
            << true << true << "Error writing to file:";
    QTest::newRow("Save onto a folder") << false << false << "Unable to open file:";
    QTest::newRow("Save of a line that cannot be written")
            << false << true << "Error writing data file:";
}

// A box holding a line break cannot go into the one-value-per-line file: the write fails after
// the file was opened, and the old file stays as it was.
void tst_frmMain::saveFailures()
{
    QFETCH(bool, saveAs);
    QFETCH(bool, badLine);
    QFETCH(QString, message);
    const QString documents = QString::fromStdString(m_fx.folders.documentsFolder);
    QString target = documents + QStringLiteral("target.swl");
    if (saveAs) {
        openExample(m_fx, 1);
        if (!badLine)
            target = documents + QStringLiteral("gone/target.swl");
        m_fx.prompts.answerSave(target);
    } else {
        QVERIFY(m_fx.window->OpenDataFile(writeProject(QStringLiteral("target.swl")), OpenNormal));
        if (!badLine) {
            QVERIFY(QFile::remove(target));
            QVERIFY(QDir(documents).mkdir(QStringLiteral("target.swl")));
        }
    }
    const QString caption = m_fx.window->windowTitle();
    const QString path = m_fx.window->currentFilePath();
    m_fx.window->txtInput(2)->setText(badLine ? QStringLiteral("two\nlines") : QStringLiteral("x"));
    QCOMPARE(m_fx.window->txtInput(2)->text().contains(QLatin1Char('\n')), badLine);
    m_fx.prompts.answerMessage();
    QVERIFY(!(saveAs ? m_fx.window->SaveProjectAs() : m_fx.window->SaveProject()));
    QCOMPARE(m_fx.prompts.messages().last(), message + QLatin1Char('\r') + target);
    QCOMPARE(m_fx.prompts.records().last().style, int(MessageStyle::Exclamation));
    QCOMPARE(m_fx.prompts.records().last().title, QStringLiteral("Error"));
    QCOMPARE(m_fx.window->windowTitle(), caption);
    QCOMPARE(m_fx.window->currentFilePath(), path);
    QVERIFY(m_fx.window->isDataChanged());
    m_fx.window->ClearProject();
}

void tst_frmMain::unreadableProjectLeavesTheDocument_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("message");
    QTest::newRow("damaged project") << "damaged"
                                     << "Unable to open file:\r";
    // Opening a named pipe would wait for a writer for ever: it is refused as no plain file.
    QTest::newRow("named pipe nobody writes") << "pipe"
                                              << "Unable to open file:\r";
    QTest::newRow("recent file deleted since") << "deleted"
                                               << "File not found:\r";
}

void tst_frmMain::unreadableProjectLeavesTheDocument()
{
    QFETCH(QString, kind);
    QFETCH(QString, message);
    const QString path = m_fx.documentsFile(QStringLiteral("damaged.swl"));
    if (kind == QLatin1String("deleted")) {
        QVERIFY(m_fx.window->OpenDataFile(writeProject(QStringLiteral("damaged.swl")), OpenNormal));
        QVERIFY(QFile::remove(path));
    }
    const QString kept = writeProject(QStringLiteral("kept.swl"));
    QVERIFY(m_fx.window->OpenDataFile(kept, OpenNormal));
    const std::string keptBytes = readBytes(kept.toStdString());
    m_fx.window->recovery().setAutosaveInterval(20);
    m_fx.window->txtInput(1)->setText(QStringLiteral("Edited job"));
    QTRY_VERIFY(QFileInfo::exists(m_fx.window->recovery().autosavePath()));
    const QString before = m_fx.window->windowTitle();
    if (kind == QLatin1String("pipe")) {
        QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0644), 0);
    } else if (kind == QLatin1String("damaged")) {
        QFile damaged(path);
        QVERIFY(damaged.open(QIODevice::WriteOnly));
        damaged.write("Swale_03\r\nonly a line\r\n");
    }
    m_fx.prompts.answerMessage(MessageAnswer::No); // the edits stay unsaved
    if (kind == QLatin1String("deleted")) {
        m_fx.prompts.answerMessage();
        m_fx.window->menus().mnuFile_Recent[2]->trigger();
    } else {
        m_fx.prompts.answerOpen(path);
        m_fx.prompts.answerMessage();
        m_fx.window->menus().mnuFile_Open->trigger();
    }
    QCOMPARE(m_fx.prompts.messages().last(), message + path);
    QCOMPARE(m_fx.window->windowTitle(), before);
    QCOMPARE(m_fx.window->currentFilePath(), kept);
    // The edits are still there and still unsaved: Exit will ask about them. The autosave went
    // beside the settings, never over the user's file.
    QCOMPARE(m_fx.window->txtInput(1)->text(), QStringLiteral("Edited job"));
    QVERIFY(m_fx.window->isDataChanged());
    QVERIFY(readBytes(kept.toStdString()) == keptBytes);
    QVERIFY(!m_fx.window->txtInput(5)->text().isEmpty());
    // A recent file that is gone keeps its entry; a file that never opened gets none.
    QCOMPARE(m_fx.window->menus().mnuFile_Recent[2]->isVisible(), kind == QLatin1String("deleted"));
}

// The window's place and size, the recent files, the help image's size and the channel pane's
// visibility are kept between runs. The designed window leaves no room for the pane: it starts
// hidden.
void tst_frmMain::settingsRoundTrip()
{
    QStringList menuTitles; // the View menu sits between File and Help
    for (QAction *menu : m_fx.window->menuBar()->actions())
        menuTitles << menu->text();
    QCOMPARE(menuTitles.mid(0, 3), QStringList({ "&File", "&View", "&Help" }));
    m_fx.window->show();
    auto *dock = m_fx.window->findChild<QDockWidget *>(QStringLiteral("channelDock"));
    QVERIFY(dock->isHidden());
    m_fx.window->resize(900, 700);
    m_fx.window->move(40, 30);
    const QString path = writeProject(QStringLiteral("recent.swl"));
    QVERIFY(m_fx.window->OpenDataFile(path, OpenNormal));
    m_fx.window->helpImage()->cmd_HelpImageSize(3);
    m_fx.window->menus().mnuView_ChannelPane->setChecked(true);
    QVERIFY(dock->isVisible());
    QVERIFY(m_fx.window->close());
    QFile state(m_fx.settingsFile("WindowState.ini"));
    QVERIFY(state.open(QIODevice::ReadOnly));
    const QByteArray content = state.readAll();
    QVERIFY2(content.startsWith("State=0\r\nTop="), content.constData());
    QVERIFY(content.contains("Height=10500\r\n"));
    QVERIFY(content.contains("Width=13500\r\n"));
    QVERIFY(content.contains("ChannelPane=1\r\n"));

    m_fx.makeWindow();
    m_fx.window->show();
    QCOMPARE(m_fx.window->size(), QSize(900, 700));
    QCOMPARE(m_fx.window->menus().mnuFile_Recent[1]->text(), QStringLiteral("&1 ") + path);
    QVERIFY(m_fx.window->menus().mnuHelp_Image_Size[3]->isChecked());
    QVERIFY(!m_fx.window->menus().mnuHelp_Image_Size[2]->isChecked());
    dock = m_fx.window->findChild<QDockWidget *>(QStringLiteral("channelDock"));
    QVERIFY(dock->isVisible());
    QVERIFY(m_fx.window->menus().mnuView_ChannelPane->isChecked());
    dock->close(); // as from its own title bar: the menu follows
    QVERIFY(!m_fx.window->menus().mnuView_ChannelPane->isChecked());
    QVERIFY(m_fx.window->close());
    const std::string closed = readBytes(m_fx.settingsFile("WindowState.ini").toStdString());
    QVERIFY(closed.find("ChannelPane=0\r\n") != std::string::npos);
}

// A document command leaves both pages at their top. The unsaved-data question takes the focus
// from the window; when it closes, the window is activated again and hands the focus back to the
// box that had it, far down the page.
void tst_frmMain::documentCommandsLeaveThePagesAtTheTop()
{
    frmMain &window = *m_fx.window;
    window.resize(900, 700);
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QVERIFY(window.OpenDataFile(writeProject(QStringLiteral("project.swl")), OpenNormal));
    QLineEdit *low = window.txtInput(23)->editor();
    low->setFocus(Qt::TabFocusReason);
    QVERIFY(window.page(0)->vscScrollWindow()->value() > 0);
    QTest::keyClicks(low, QStringLiteral("5"));

    m_fx.prompts.answerMessage(MessageAnswer::No);
    window.menus().mnuFile_Recent[1]->trigger(); // opens the same project again
    QCOMPARE(m_fx.prompts.pendingAnswers(), 0);
    QApplication::setActiveWindow(nullptr);
    QApplication::setActiveWindow(&window);
    QTRY_COMPARE(QApplication::focusWidget(), low);
    QCOMPARE(window.page(0)->vscScrollWindow()->value(), 0);
    QCOMPARE(window.page(1)->vscScrollWindow()->value(), 0);
}

// The real program, typed into and then killed, beside windows of this process: a second
// instance leaves the running program's autosave alone, and after the kill the next start
// offers the killed program's autosave but not the one of the instance still running. A clean
// exit removes the autosave: the start after it offers nothing.
void tst_frmMain::killedProgramIsOfferedAtNextStartButACleanExitIsNot()
{
    const QString typed = QStringLiteral("Killed before saving");
    const QString home = m_fx.folder->path();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("HOME"), home + QStringLiteral("/home"));
    environment.insert(QStringLiteral("XDG_DATA_HOME"), home + QStringLiteral("/data"));
    environment.insert(QStringLiteral("SWALE_AUTOSAVE_INTERVAL_MS"), QStringLiteral("50"));
    environment.insert(QStringLiteral("SWALE_TEST_TYPE_JOB_NAME"), typed);
    QProcess program;
    program.setProcessEnvironment(environment);
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    program.start(QStringLiteral(SWALE_PROGRAM), {});
    QVERIFY2(program.waitForStarted(), qPrintable(program.errorString()));
    const QString settings = home + QStringLiteral("/data/TAVRO33/Swale/");
    const QString autosaves = QString::fromStdString(autosaveFolderOf(settings.toStdString()));
    QTRY_COMPARE_WITH_TIMEOUT(projectsIn(autosaves).size(), 1, 30000);

    const GlobalData folders = foldersWithSettings(settings);
    RecordingPrompts &prompts = m_fx.prompts;
    frmMain second(prompts, folders);
    QCoreApplication::processEvents();
    QCOMPARE(prompts.records().size(), 0); // the running program's autosave is not offered
    second.recovery().setAutosaveInterval(20);
    second.txtInput(1)->setText(QStringLiteral("Second instance"));
    QTRY_VERIFY(QFileInfo::exists(second.recovery().autosavePath()));
    QCOMPARE(projectsIn(autosaves).size(), 2);

    program.kill(); // SIGKILL: no clean exit
    QVERIFY(program.waitForFinished());
    prompts.answerRecovery({ RecoveryAnswer::Open, 0 });
    frmMain third(prompts, folders);
    QCoreApplication::processEvents();
    QCOMPARE(prompts.records().size(), 1);
    const QList<RecoveryOffer> offers = prompts.records().constFirst().offers;
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
    prompts.answerSave(m_fx.documentsFile(QStringLiteral("recovered.swl")));
    QVERIFY(third.SaveProject());
    QCOMPARE(prompts.records().last().kind, RecordingPrompts::Kind::SaveDialog);
    QVERIFY(!QFileInfo::exists(third.recovery().autosavePath()));

    prompts.answerMessage(MessageAnswer::No); // closed without saving
    QVERIFY(second.close());
    QCOMPARE(projectsIn(autosaves), QStringList());
    const int asked = prompts.records().size();
    frmMain fourth(prompts, folders); // an offer would be an unscripted prompt
    QCoreApplication::processEvents();
    QCOMPARE(prompts.records().size(), asked);
}

QTEST_MAIN(tst_frmMain)
#include "tst_frmMain.moc"
