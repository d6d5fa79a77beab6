// The window and its documents: the unsaved-data question, saving, opening, the settings.
#include "HelpImagePanel.h"
#include "InputPage.h"
#include "MainWindowSuite.h"
#include "tvrEditBox.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QTest>

#include <sys/stat.h>

namespace {

const QString kUntitledCaption
        = QStringLiteral("TAVRO Channel and Overland Flow Analysis - <untitled>");
const QString kQuestion
        = QStringLiteral("The data has changed.  Do you want to save the current data?");
const QString kQuestionTitle = QStringLiteral("TAVRO Channel and Overland Flow Analysis ");

enum class Command { New, Open, Recent, Exit };

} // namespace

class tst_frmMain : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void unsavedDataQuestion_data();
    void unsavedDataQuestion();
    void saveAsThenOpenRoundTrip();
    void exampleOpensUntitled();
    void saveFailures_data();
    void saveFailures();
    void deletedRecentFileIsReported();
    void unreadableProjectLeavesTheDocument_data();
    void unreadableProjectLeavesTheDocument();
    void settingsRoundTrip();

private:
    void makeChanged();
    // Writes a small valid project to `name` in the documents folder and returns its path.
    QString writeProject(const QString &name);

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

void tst_frmMain::makeChanged()
{
    m_fx.window->txtInput(1)->setText(QStringLiteral("Edited job"));
    QVERIFY(m_fx.window->isDataChanged());
}

QString tst_frmMain::writeProject(const QString &name)
{
    const QString path = QString::fromStdString(m_fx.folders.documentsFolder) + name;
    QFile::copy(exampleSource(kExamples.at(0)), path);
    return path;
}

// New, Open, a recent file and Exit ask the unsaved-data question of a changed document first.
void tst_frmMain::unsavedDataQuestion_data()
{
    QTest::addColumn<int>("command");
    QTest::addColumn<bool>("changed");
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("goesOn");
    const int cancel = MessageAnswer::Cancel;
    const int no = MessageAnswer::No;
    const int yes = MessageAnswer::Yes;
    QTest::newRow("New, clean: no question") << int(Command::New) << false << 0 << true;
    QTest::newRow("New, Cancel") << int(Command::New) << true << cancel << false;
    QTest::newRow("New, No") << int(Command::New) << true << no << true;
    QTest::newRow("New, Yes saves first") << int(Command::New) << true << yes << true;
    QTest::newRow("Open, Cancel") << int(Command::Open) << true << cancel << false;
    QTest::newRow("Open, Yes saves first") << int(Command::Open) << true << yes << true;
    QTest::newRow("Recent, No") << int(Command::Recent) << true << no << true;
    QTest::newRow("Recent, Yes saves first") << int(Command::Recent) << true << yes << true;
    QTest::newRow("Exit, clean: no question") << int(Command::Exit) << false << 0 << true;
    QTest::newRow("Exit, Cancel") << int(Command::Exit) << true << cancel << false;
    QTest::newRow("Exit, Yes saves first") << int(Command::Exit) << true << yes << true;
}

void tst_frmMain::unsavedDataQuestion()
{
    QFETCH(int, command);
    QFETCH(bool, changed);
    QFETCH(int, answer);
    QFETCH(bool, goesOn);
    const QString first = writeProject(QStringLiteral("first.swl"));
    const QString second = writeProject(QStringLiteral("second.swl"));
    QVERIFY(m_fx.window->OpenDataFile(second, OpenNormal)); // recent entry 2
    QVERIFY(m_fx.window->OpenDataFile(first, OpenNormal));
    m_fx.window->show();
    if (changed) {
        makeChanged();
        m_fx.prompts.answerMessage(answer);
    }
    switch (Command(command)) {
    case Command::New:
        m_fx.window->menus().toolbarButtons[1]->trigger(); // the toolbar's New
        break;
    case Command::Open:
        if (goesOn)
            m_fx.prompts.answerOpen(second);
        m_fx.window->menus().mnuFile_Open->trigger();
        break;
    case Command::Recent:
        m_fx.window->menus().mnuFile_Recent[2]->trigger();
        break;
    case Command::Exit:
        m_fx.window->menus().mnuFile_Exit->trigger();
        break;
    }
    if (changed) {
        QCOMPARE(m_fx.prompts.records().constFirst().message, kQuestion);
        QCOMPARE(m_fx.prompts.records().constFirst().title, kQuestionTitle);
        QCOMPARE(m_fx.prompts.records().constFirst().style, int(MessageStyle::YesNoCancel));
    } else {
        QVERIFY(m_fx.prompts.records().isEmpty());
    }
    QFile file(first);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll().contains("Edited job"), answer == MessageAnswer::Yes);
    QCOMPARE(m_fx.window->isDataChanged(), !goesOn && changed);
    QCOMPARE(m_fx.window->isVisible(), !(goesOn && Command(command) == Command::Exit));
    if (!goesOn)
        QCOMPARE(m_fx.window->currentFilePath(), first);
    else if (Command(command) == Command::New)
        QCOMPARE(m_fx.window->windowTitle(), kUntitledCaption);
    else if (Command(command) != Command::Exit)
        QCOMPARE(m_fx.window->currentFilePath(), second);
    if (goesOn && Command(command) == Command::Open) {
        const FileDialogRequest request = m_fx.prompts.records().last().request;
        QCOMPARE(request.selectedFilter, 1);
        QCOMPARE(request.filters.at(1),
                 QStringLiteral("TAVRO Channel and Overland Flow Analysis (*.swl)"));
        QCOMPARE(request.filters.at(0), QStringLiteral("All Files (*.*)"));
        QCOMPARE(request.defaultSuffix, QStringLiteral("udr"));
        QCOMPARE(request.initialFolder, QString::fromStdString(m_fx.folders.documentsFolder));
    }
    m_fx.window->ClearProject(); // leave without a question
}

void tst_frmMain::saveAsThenOpenRoundTrip()
{
    openExample(m_fx, 3);
    m_fx.window->txtInput(17)->setText(QString::fromUtf8("Sod, \xC3\xA9t\xC3\xA9 mix"));
    const QString path = QString::fromStdString(m_fx.folders.documentsFolder) + "copy.swl";
    m_fx.prompts.answerSave(path);
    QVERIFY(m_fx.window->SaveProjectAs());
    QCOMPARE(m_fx.window->windowTitle(),
             QStringLiteral("TAVRO Channel and Overland Flow Analysis - copy.swl"));
    QCOMPARE(m_fx.window->currentFilePath(), path);
    QVERIFY(!m_fx.window->isDataChanged());
    QCOMPARE(m_fx.window->menus().mnuFile_Recent[1]->text(), QStringLiteral("&1 ") + path);
    const SwaleProject saved = m_fx.window->currentProject();

    m_fx.window->menus().mnuFile_New->trigger();
    QVERIFY(m_fx.window->txtInput(17)->text().isEmpty());
    m_fx.prompts.answerOpen(path);
    m_fx.window->menus().mnuFile_Open->trigger();
    const SwaleProject loaded = m_fx.window->currentProject();
    QCOMPARE(loaded.inputText, saved.inputText);
    QCOMPARE(loaded.solutionMethod, 3);
    QCOMPARE(loaded.ratingCurve, saved.ratingCurve);
    QCOMPARE(m_fx.window->txtInput(17)->text(), QString::fromUtf8("Sod, \xC3\xA9t\xC3\xA9 mix"));

    // Save in place: no dialog, the file changes.
    m_fx.window->txtInput(1)->setText(QStringLiteral("Second job"));
    QVERIFY(m_fx.window->SaveProject());
    QVERIFY(!m_fx.window->isDataChanged());
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("Second job"));
}

void tst_frmMain::exampleOpensUntitled()
{
    m_fx.prompts.answerOpen(QString::fromStdString(m_fx.folders.programFolder + "Examples/")
                            + kExamples.at(1));
    m_fx.window->menus().cmdFile_Example->trigger();
    QCOMPARE(m_fx.prompts.records().last().request.initialFolder,
             QString::fromStdString(m_fx.folders.programFolder) + QStringLiteral("Examples/"));
    QCOMPARE(m_fx.window->windowTitle(),
             QStringLiteral("TAVRO Channel and Overland Flow Analysis - ") + kExamples.at(1));
    QVERIFY(m_fx.window->currentFilePath().isEmpty());
    QVERIFY(!m_fx.window->isDataChanged());
    QCOMPARE(m_fx.window->inputPage()->GetSolutionMethod(), 2);
    QVERIFY(!m_fx.window->menus().mnuFile_Recent[1]->isVisible());
    m_fx.prompts.answerSave(QString());
    QVERIFY(!m_fx.window->SaveProject()); // asks for a name: the example stays untouched
    QCOMPARE(m_fx.prompts.records().last().kind, RecordingPrompts::Kind::SaveDialog);
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

void tst_frmMain::deletedRecentFileIsReported()
{
    const QString path = writeProject(QStringLiteral("deleted.swl"));
    QVERIFY(m_fx.window->OpenDataFile(path, OpenNormal));
    m_fx.window->txtInput(2)->setText(QStringLiteral("Still here"));
    QVERIFY(QFile::remove(path));
    m_fx.prompts.answerMessage(MessageAnswer::No);
    m_fx.prompts.answerMessage();
    m_fx.window->menus().mnuFile_Recent[1]->trigger();
    QCOMPARE(m_fx.prompts.messages().last(), QStringLiteral("File not found:\r") + path);
    QCOMPARE(m_fx.window->txtInput(2)->text(), QStringLiteral("Still here"));
    QCOMPARE(m_fx.window->menus().mnuFile_Recent[1]->text(), QStringLiteral("&1 ") + path);
    QVERIFY(m_fx.window->isDataChanged());
    m_fx.window->ClearProject();
}

void tst_frmMain::unreadableProjectLeavesTheDocument_data()
{
    QTest::addColumn<bool>("pipe");
    QTest::newRow("damaged project") << false;
    // Opening a named pipe would wait for a writer for ever: it is refused as no plain file.
    QTest::newRow("named pipe nobody writes") << true;
}

void tst_frmMain::unreadableProjectLeavesTheDocument()
{
    QFETCH(bool, pipe);
    const QString kept = writeProject(QStringLiteral("kept.swl"));
    QVERIFY(m_fx.window->OpenDataFile(kept, OpenNormal));
    const QString before = m_fx.window->windowTitle();
    const QString path = m_fx.documentsFile(QStringLiteral("damaged.swl"));
    if (pipe) {
        QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0644), 0);
    } else {
        QFile damaged(path);
        QVERIFY(damaged.open(QIODevice::WriteOnly));
        damaged.write("Swale_03\r\nonly a line\r\n");
    }
    m_fx.prompts.answerOpen(path);
    m_fx.prompts.answerMessage();
    m_fx.window->menus().mnuFile_Open->trigger();
    QCOMPARE(m_fx.prompts.messages().last(), QStringLiteral("Unable to open file:\r") + path);
    QCOMPARE(m_fx.window->windowTitle(), before);
    QCOMPARE(m_fx.window->currentFilePath(), kept);
    QVERIFY(!m_fx.window->isDataChanged());
    QVERIFY(!m_fx.window->txtInput(5)->text().isEmpty());
    QVERIFY(!m_fx.window->menus().mnuFile_Recent[2]->isVisible());
}

void tst_frmMain::settingsRoundTrip()
{
    m_fx.window->show();
    m_fx.window->resize(900, 700);
    m_fx.window->move(40, 30);
    const QString path = writeProject(QStringLiteral("recent.swl"));
    QVERIFY(m_fx.window->OpenDataFile(path, OpenNormal));
    m_fx.window->helpImage()->cmd_HelpImageSize(3);
    QVERIFY(m_fx.window->close());
    QFile state(m_fx.settingsFile("WindowState.ini"));
    QVERIFY(state.open(QIODevice::ReadOnly));
    const QByteArray content = state.readAll();
    QVERIFY2(content.startsWith("State=0\r\nTop="), content.constData());
    QVERIFY(content.contains("Height=10500\r\n"));
    QVERIFY(content.contains("Width=13500\r\n"));

    m_fx.makeWindow();
    QCOMPARE(m_fx.window->size(), QSize(900, 700));
    QCOMPARE(m_fx.window->menus().mnuFile_Recent[1]->text(), QStringLiteral("&1 ") + path);
    QVERIFY(m_fx.window->menus().mnuHelp_Image_Size[3]->isChecked());
    QVERIFY(!m_fx.window->menus().mnuHelp_Image_Size[2]->isChecked());
}

QTEST_MAIN(tst_frmMain)
#include "tst_frmMain.moc"
