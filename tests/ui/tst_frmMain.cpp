#include "GlobalData.h"
#include "HelpImagePanel.h"
#include "HelpViewer.h"
#include "InputPage.h"
#include "OptionGroup.h"
#include "RdcGridA.h"
#include "RecordingPrompts.h"
#include "ResultsPage.h"
#include "frmMain.h"
#include "tvrEditBox.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDate>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QToolBar>

#include <memory>

namespace {

const QString kUntitledCaption
        = QStringLiteral("TAVRO Channel and Overland Flow Analysis - <untitled>");
const QString kQuestion
        = QStringLiteral("The data has changed.  Do you want to save the current data?");
const QString kQuestionTitle = QStringLiteral("TAVRO Channel and Overland Flow Analysis ");

const QStringList kExamples = {
    QStringLiteral("Roadside swale - required length.swl"),
    QStringLiteral("Parking lot swale - efficiency of given length.swl"),
    QStringLiteral("Median ditch - inlet interception.swl"),
    QStringLiteral("Lined roadside ditch - capacity check.swl"),
};

QString exampleSource(const QString &name)
{
    return QStringLiteral(SWALE_EXAMPLES_DIR "/") + name;
}

// The output of `swale-calc --json` for a project file.
QJsonObject calculatorJson(const QString &path)
{
    QProcess calculator;
    calculator.start(QStringLiteral(SWALE_CALC), { QStringLiteral("--json"), path });
    if (!calculator.waitForFinished())
        return {};
    return QJsonDocument::fromJson(calculator.readAllStandardOutput()).object();
}

// The clipboard text of 18 result texts: every text on its own line, an empty line after the
// groups 1-3, 4-6, 7-11 and 12-13.
QString clipboardOf(const QJsonArray &results)
{
    QString text;
    for (int box = 1; box <= 18; ++box) {
        text += results.at(box - 1).toString() + QStringLiteral("\r\n");
        if (box == 3 || box == 6 || box == 11 || box == 13)
            text += QStringLiteral("\r\n");
    }
    return text;
}

} // namespace

class tst_frmMain : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void startsUntitledOnTheInputPage();
    void menuCaptions_data();
    void menuCaptions();
    void toolbarButtonsInOrder();
    void edits_data();
    void edits();
    void todayButtonWritesTheDateAndMarksTheDocument();
    void optionClickClearsResultsAndRelays();

    void newAnswers_data();
    void newAnswers();
    void openAnswers_data();
    void openAnswers();
    void recentAnswers_data();
    void recentAnswers();
    void closeAnswers_data();
    void closeAnswers();

    void saveAsThenOpenRoundTrip();
    void exampleOpensUntitled();
    void saveFailures_data();
    void saveFailures();
    void deletedRecentFileIsReported();
    void unreadableProjectLeavesTheDocument();

    void calculateMatchesTheCalculator_data();
    void calculateMatchesTheCalculator();
    void faultOnResultsPageReturnsToTheBox();
    void ratingCurveFaultSelectsTheCell();
    void calculationFailureShowsCriticalMessage();
    void printNeedsResultsAndAPrinter();
    void exportPdfWritesTheReportWhereTheUserSays();
    void helpButtonsOpenTheirTopics();

    void settingsRoundTrip();

private:
    void makeWindow();
    void openExample(int index);
    void makeChanged();
    // Writes a small valid project to `name` in the documents folder and returns its path.
    QString writeProject(const QString &name);
    QString settingsFile(const char *name) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    GlobalData m_folders;
    RecordingPrompts m_prompts;
    std::unique_ptr<frmMain> m_window;
};

void tst_frmMain::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    const std::string root = m_folder->path().toStdString();
    QDir(m_folder->path()).mkpath(QStringLiteral("program/Examples"));
    QDir(m_folder->path()).mkpath(QStringLiteral("program/help"));
    QDir(m_folder->path()).mkpath(QStringLiteral("settings"));
    QDir(m_folder->path()).mkpath(QStringLiteral("documents"));
    m_folders = { root + "/program/", root + "/settings/", root + "/documents/" };
    for (const QString &example : kExamples)
        QFile::copy(exampleSource(example),
                    QString::fromStdString(m_folders.programFolder + "Examples/") + example);
    m_prompts.clear();
    makeWindow();
}

void tst_frmMain::cleanup()
{
    QCOMPARE(m_prompts.pendingAnswers(), 0);
    m_window.reset();
    m_folder.reset();
}

void tst_frmMain::makeWindow()
{
    m_window.reset();
    m_window = std::make_unique<frmMain>(m_prompts, m_folders);
}

void tst_frmMain::openExample(int index)
{
    QVERIFY(m_window->OpenDataFile(QString::fromStdString(m_folders.programFolder + "Examples/")
                                           + kExamples.at(index - 1),
                                   OpenExample));
}

void tst_frmMain::makeChanged()
{
    m_window->txtInput(1)->setText(QStringLiteral("Edited job"));
    QVERIFY(m_window->isDataChanged());
}

QString tst_frmMain::writeProject(const QString &name)
{
    const QString path = QString::fromStdString(m_folders.documentsFolder) + name;
    QFile::copy(exampleSource(kExamples.at(0)), path);
    return path;
}

QString tst_frmMain::settingsFile(const char *name) const
{
    return QString::fromStdString(m_folders.settingsFolder) + QLatin1String(name);
}

void tst_frmMain::startsUntitledOnTheInputPage()
{
    QCOMPARE(m_window->windowTitle(), kUntitledCaption);
    QCOMPARE(m_window->tabs()->currentIndex(), 0);
    QCOMPARE(m_window->tabs()->tabText(0), QStringLiteral("Input Data"));
    QCOMPARE(m_window->tabs()->tabText(1), QStringLiteral("Results"));
    QCOMPARE(m_window->tabs()->tabText(2), QStringLiteral("Help"));
    QCOMPARE(m_window->inputPage()->GetSolutionMethod(), 1);
    QVERIFY(!m_window->isDataChanged());
    QVERIFY(!m_window->resultsShown());
    QVERIFY(!m_window->menus().toolbarPrint()->isEnabled());
    QVERIFY(m_window->currentFilePath().isEmpty());
    QVERIFY(QRegularExpression(QStringLiteral("^Version 3\\.3\\.\\d{4}$"))
                    .match(m_window->versionText())
                    .hasMatch());
    for (int i = 1; i <= 5; ++i)
        QVERIFY(!m_window->menus().mnuFile_Recent[static_cast<size_t>(i)]->isVisible());
    QVERIFY(!m_window->menus().mnuFile_Separator3->isVisible());
    QCOMPARE(m_window->txtInput(6)->rightcaption(), QStringLiteral("?H : 1V"));
    QCOMPARE(m_window->txtOutput(12)->leftcaption(), QStringLiteral("Mean veolcity, [V]"));
    QCOMPARE(m_window->findChild<QPushButton *>(QStringLiteral("cmdHelp_1"))->text(),
             QStringLiteral("<-  Help"));
}

void tst_frmMain::menuCaptions_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("caption");
    const char *const rows[][2] = {
        { "mnuFile_New", "&New" },
        { "mnuFile_Open", "&Open" },
        { "mnuFile_Save", "&Save" },
        { "mnuFile_SaveAs", "Save &As" },
        { "mnuFile_Print", "&Print" },
        { "mnuFile_PrintSetup", "Page Set&up" },
        { "cmdFile_Example", "Example..." },
        { "mnuFile_Exit", "&Exit" },
        { "mnuHelp_About", "&About" },
        { "mnuHelp_Image_Size_1", "&Small" },
        { "mnuHelp_Image_Size_2", "&Medium" },
        { "mnuHelp_Image_Size_3", "&Large" },
        { "mnuHelp_Image_Size_4", "L&argest" },
        { "mnuHelpImage_Image_Size_4", "Largest" },
        { "mnuHelpImage_Copy", "Copy" },
    };
    for (const auto &row : rows)
        QTest::newRow(row[0]) << QString::fromLatin1(row[0]) << QString::fromLatin1(row[1]);
}

void tst_frmMain::menuCaptions()
{
    QFETCH(QString, name);
    QFETCH(QString, caption);
    auto *action = m_window->findChild<QAction *>(name);
    QVERIFY2(action, qPrintable(name));
    QCOMPARE(action->text(), caption);
    QCOMPARE(m_window->menus().mnuFile->title(), QStringLiteral("&File"));
    QCOMPARE(m_window->menus().mnuHelp->title(), QStringLiteral("&Help"));
    QCOMPARE(m_window->menus().mnuHelp_Image->title(), QStringLiteral("Help Image Si&ze"));
    QCOMPARE(m_window->menus().mnuHelpImage->title(), QStringLiteral("Help Image"));
}

void tst_frmMain::toolbarButtonsInOrder()
{
    const QStringList tags = { QStringLiteral("New"), QStringLiteral("Open"),
                               QStringLiteral("Save"), QStringLiteral("Print") };
    for (int i = 1; i <= 4; ++i) {
        QAction *button = m_window->menus().toolbarButtons[static_cast<size_t>(i)];
        QCOMPARE(button->data().toString(), tags.at(i - 1));
        QVERIFY(!button->icon().isNull());
    }
    QCOMPARE(m_window->menus().Toolbar1->actions().at(3), m_window->menus().toolbarButtons[4]);
}

void tst_frmMain::edits_data()
{
    QTest::addColumn<int>("box");
    QTest::addColumn<bool>("clearsResults");
    QTest::newRow("job name keeps results") << 1 << false;
    QTest::newRow("engineer keeps results") << 2 << false;
    QTest::newRow("date keeps results") << 3 << false;
    QTest::newRow("bottom width clears results") << 5 << true;
    QTest::newRow("depth to water table clears results") << 23 << true;
}

void tst_frmMain::edits()
{
    QFETCH(int, box);
    QFETCH(bool, clearsResults);
    openExample(1);
    m_window->calculateButton()->click();
    QVERIFY(m_window->resultsShown());
    QTest::keyClick(m_window->txtInput(box)->editor(), Qt::Key_9);
    QVERIFY(m_window->isDataChanged());
    QCOMPARE(m_window->resultsShown(), !clearsResults);
    QCOMPARE(m_window->txtOutput(7)->text().isEmpty(), clearsResults);
    QCOMPARE(m_window->menus().toolbarPrint()->isEnabled(), !clearsResults);
}

void tst_frmMain::todayButtonWritesTheDateAndMarksTheDocument()
{
    auto *today = m_window->findChild<QPushButton *>(QStringLiteral("cmdToday"));
    QCOMPARE(today->text(), QStringLiteral("<- Today"));
    const QString date = QDate::currentDate().toString(QStringLiteral("MM-dd-yyyy"));
    today->click();
    QCOMPARE(m_window->txtInput(3)->text(), date);
    QVERIFY(m_window->isDataChanged());

    // Pressed again on a saved project that already holds today's date, it still marks it.
    m_prompts.answerSave(QString::fromStdString(m_folders.documentsFolder) + "today.swl");
    QVERIFY(m_window->SaveProjectAs());
    QVERIFY(!m_window->isDataChanged());
    today->click();
    QCOMPARE(m_window->txtInput(3)->text(), date);
    QVERIFY(m_window->isDataChanged());
    m_window->ClearProject();
}

void tst_frmMain::optionClickClearsResultsAndRelays()
{
    openExample(1);
    m_window->calculateButton()->click();
    QVERIFY(m_window->resultsShown());
    m_window->inputPage()->solutionMethodGroup()->option(3)->click();
    QVERIFY(!m_window->resultsShown());
    QVERIFY(!m_window->menus().toolbarPrint()->isEnabled());
    QVERIFY(m_window->isDataChanged());
    QCOMPARE(m_window->txtOutput(2)->leftcaption(),
             QStringLiteral("Treatment/interception efficiency, [e]"));
    QVERIFY(m_window->inputPage()->ratingCurveGrid()->isVisibleTo(m_window->inputPage()));
    QVERIFY(!m_window->txtInput(20)->isVisibleTo(m_window->inputPage()));
    m_window->inputPage()->channelFlowGroup()->option(2)->click();
    QCOMPARE(m_window->resultsPage()->heading(2)->text(),
             QStringLiteral("Channel Inflow Calculations"));
    QCOMPARE(m_window->txtOutput(4)->leftcaption(), QStringLiteral("Channel inflow rate, [Qp]"));
    QVERIFY(m_window->txtInput(15)->isVisibleTo(m_window->inputPage()));
    QVERIFY(!m_window->txtInput(10)->isVisibleTo(m_window->inputPage()));
    m_window->inputPage()->solutionMethodGroup()->option(4)->click();
    QVERIFY(m_window->inputPage()->ratingCurveGrid()->isVisibleTo(m_window->inputPage()));
}

void tst_frmMain::newAnswers_data()
{
    QTest::addColumn<bool>("titled");
    QTest::addColumn<bool>("changed");
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("cleared");
    QTest::addColumn<bool>("saved");
    QTest::newRow("clean: no question") << true << false << 0 << true << false;
    QTest::newRow("Cancel keeps everything")
            << true << true << int(MessageAnswer::Cancel) << false << false;
    QTest::newRow("No clears without saving")
            << true << true << int(MessageAnswer::No) << true << false;
    QTest::newRow("Yes saves in place, then clears")
            << true << true << int(MessageAnswer::Yes) << true << true;
    QTest::newRow("Yes on an untitled project, Save As cancelled, still clears")
            << false << true << int(MessageAnswer::Yes) << true << false;
}

void tst_frmMain::newAnswers()
{
    QFETCH(bool, titled);
    QFETCH(bool, changed);
    QFETCH(int, answer);
    QFETCH(bool, cleared);
    QFETCH(bool, saved);
    const QString path = writeProject(QStringLiteral("new.swl"));
    if (titled)
        QVERIFY(m_window->OpenDataFile(path, OpenNormal));
    else
        openExample(1);
    const QString caption = m_window->windowTitle();
    if (changed) {
        makeChanged();
        m_prompts.answerMessage(answer);
        if (!titled && answer == MessageAnswer::Yes)
            m_prompts.answerSave(QString());
    }
    m_window->menus().toolbarButtons[1]->trigger(); // the toolbar's New
    if (changed) {
        QCOMPARE(m_prompts.records().constFirst().message, kQuestion);
        QCOMPARE(m_prompts.records().constFirst().title, kQuestionTitle);
        QCOMPARE(m_prompts.records().constFirst().style, int(MessageStyle::YesNoCancel));
    } else {
        QVERIFY(m_prompts.records().isEmpty());
    }
    QCOMPARE(m_window->windowTitle(), cleared ? kUntitledCaption : caption);
    QCOMPARE(m_window->txtInput(1)->text().isEmpty(), cleared);
    QCOMPARE(m_window->isDataChanged(), !cleared);
    QCOMPARE(m_window->currentFilePath().isEmpty(), cleared || !titled);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll().contains("Edited job"), saved);
    if (!cleared)
        m_window->ClearProject();
}

void tst_frmMain::openAnswers_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("opened");
    QTest::addColumn<bool>("saved");
    QTest::newRow("Cancel") << int(MessageAnswer::Cancel) << false << false;
    QTest::newRow("No") << int(MessageAnswer::No) << true << false;
    QTest::newRow("Yes saves the old project first") << int(MessageAnswer::Yes) << true << true;
}

void tst_frmMain::openAnswers()
{
    QFETCH(int, answer);
    QFETCH(bool, opened);
    QFETCH(bool, saved);
    const QString first = writeProject(QStringLiteral("first.swl"));
    const QString second = writeProject(QStringLiteral("second.swl"));
    QVERIFY(m_window->OpenDataFile(first, OpenNormal));
    makeChanged();
    m_prompts.answerMessage(answer);
    if (opened)
        m_prompts.answerOpen(second);
    m_window->menus().mnuFile_Open->trigger();
    QCOMPARE(m_window->currentFilePath(), opened ? second : first);
    QCOMPARE(m_window->isDataChanged(), !opened);
    QFile file(first);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll().contains("Edited job"), saved);
    if (opened) {
        const FileDialogRequest request = m_prompts.records().last().request;
        QCOMPARE(request.selectedFilter, 1);
        QCOMPARE(request.filters.at(1),
                 QStringLiteral("TAVRO Channel and Overland Flow Analysis (*.swl)"));
        QCOMPARE(request.filters.at(0), QStringLiteral("All Files (*.*)"));
        QCOMPARE(request.defaultSuffix, QStringLiteral("udr"));
        QCOMPARE(request.initialFolder, QString::fromStdString(m_folders.documentsFolder));
    }
}

void tst_frmMain::recentAnswers_data()
{
    openAnswers_data();
}

void tst_frmMain::recentAnswers()
{
    QFETCH(int, answer);
    QFETCH(bool, opened);
    QFETCH(bool, saved);
    const QString first = writeProject(QStringLiteral("first.swl"));
    const QString second = writeProject(QStringLiteral("second.swl"));
    QVERIFY(m_window->OpenDataFile(second, OpenNormal));
    QVERIFY(m_window->OpenDataFile(first, OpenNormal));
    QCOMPARE(m_window->menus().mnuFile_Recent[1]->text(), QStringLiteral("&1 ") + first);
    QCOMPARE(m_window->menus().mnuFile_Recent[2]->text(), QStringLiteral("&2 ") + second);
    QVERIFY(!m_window->menus().mnuFile_Recent[3]->isVisible());
    QVERIFY(m_window->menus().mnuFile_Separator3->isVisible());
    makeChanged();
    m_prompts.answerMessage(answer);
    m_window->menus().mnuFile_Recent[2]->trigger();
    QCOMPARE(m_window->currentFilePath(), opened ? second : first);
    QFile file(first);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll().contains("Edited job"), saved);
    if (opened)
        QCOMPARE(m_window->menus().mnuFile_Recent[1]->text(), QStringLiteral("&1 ") + second);
}

void tst_frmMain::closeAnswers_data()
{
    QTest::addColumn<bool>("changed");
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("closes");
    QTest::newRow("clean closes without a question") << false << 0 << true;
    QTest::newRow("Cancel keeps the window") << true << int(MessageAnswer::Cancel) << false;
    QTest::newRow("No closes") << true << int(MessageAnswer::No) << true;
    QTest::newRow("Yes with the Save dialog cancelled closes")
            << true << int(MessageAnswer::Yes) << true;
}

void tst_frmMain::closeAnswers()
{
    QFETCH(bool, changed);
    QFETCH(int, answer);
    QFETCH(bool, closes);
    m_window->show();
    if (changed) {
        makeChanged();
        m_prompts.answerMessage(answer);
        if (answer == MessageAnswer::Yes)
            m_prompts.answerSave(QString()); // untitled: Save As, cancelled
    }
    m_window->menus().mnuFile_Exit->trigger();
    QCOMPARE(m_window->isVisible(), !closes);
    QCOMPARE(QFile::exists(settingsFile("WindowState.ini")), closes);
    QCOMPARE(QFile::exists(settingsFile("RecentFiles.ini")), closes);
    m_window->ClearProject(); // leave without a question
}

void tst_frmMain::saveAsThenOpenRoundTrip()
{
    openExample(3);
    m_window->txtInput(17)->setText(QString::fromUtf8("Sod, \xC3\xA9t\xC3\xA9 mix"));
    const QString path = QString::fromStdString(m_folders.documentsFolder) + "copy.swl";
    m_prompts.answerSave(path);
    QVERIFY(m_window->SaveProjectAs());
    QCOMPARE(m_window->windowTitle(),
             QStringLiteral("TAVRO Channel and Overland Flow Analysis - copy.swl"));
    QCOMPARE(m_window->currentFilePath(), path);
    QVERIFY(!m_window->isDataChanged());
    QCOMPARE(m_window->menus().mnuFile_Recent[1]->text(), QStringLiteral("&1 ") + path);
    const SwaleProject saved = m_window->currentProject();

    m_window->menus().mnuFile_New->trigger();
    QVERIFY(m_window->txtInput(17)->text().isEmpty());
    m_prompts.answerOpen(path);
    m_window->menus().mnuFile_Open->trigger();
    const SwaleProject loaded = m_window->currentProject();
    QCOMPARE(loaded.inputText, saved.inputText);
    QCOMPARE(loaded.solutionMethod, 3);
    QCOMPARE(loaded.ratingCurve, saved.ratingCurve);
    QCOMPARE(m_window->txtInput(17)->text(), QString::fromUtf8("Sod, \xC3\xA9t\xC3\xA9 mix"));

    // Save in place: no dialog, the file changes.
    m_window->txtInput(1)->setText(QStringLiteral("Second job"));
    QVERIFY(m_window->SaveProject());
    QVERIFY(!m_window->isDataChanged());
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("Second job"));
}

void tst_frmMain::exampleOpensUntitled()
{
    m_prompts.answerOpen(QString::fromStdString(m_folders.programFolder + "Examples/")
                         + kExamples.at(1));
    m_window->menus().cmdFile_Example->trigger();
    QCOMPARE(m_prompts.records().last().request.initialFolder,
             QString::fromStdString(m_folders.programFolder) + QStringLiteral("Examples/"));
    QCOMPARE(m_window->windowTitle(),
             QStringLiteral("TAVRO Channel and Overland Flow Analysis - ") + kExamples.at(1));
    QVERIFY(m_window->currentFilePath().isEmpty());
    QVERIFY(!m_window->isDataChanged());
    QCOMPARE(m_window->inputPage()->GetSolutionMethod(), 2);
    QVERIFY(!m_window->menus().mnuFile_Recent[1]->isVisible());
    m_prompts.answerSave(QString());
    QVERIFY(!m_window->SaveProject()); // asks for a name: the example stays untouched
    QCOMPARE(m_prompts.records().last().kind, RecordingPrompts::Kind::SaveDialog);
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
    const QString documents = QString::fromStdString(m_folders.documentsFolder);
    QString target = documents + QStringLiteral("target.swl");
    if (saveAs) {
        openExample(1);
        if (!badLine)
            target = documents + QStringLiteral("gone/target.swl");
        m_prompts.answerSave(target);
    } else {
        QVERIFY(m_window->OpenDataFile(writeProject(QStringLiteral("target.swl")), OpenNormal));
        if (!badLine) {
            QVERIFY(QFile::remove(target));
            QVERIFY(QDir(documents).mkdir(QStringLiteral("target.swl")));
        }
    }
    const QString caption = m_window->windowTitle();
    const QString path = m_window->currentFilePath();
    m_window->txtInput(2)->setText(badLine ? QStringLiteral("two\nlines") : QStringLiteral("x"));
    QCOMPARE(m_window->txtInput(2)->text().contains(QLatin1Char('\n')), badLine);
    m_prompts.answerMessage();
    QVERIFY(!(saveAs ? m_window->SaveProjectAs() : m_window->SaveProject()));
    QCOMPARE(m_prompts.messages().last(), message + QLatin1Char('\r') + target);
    QCOMPARE(m_prompts.records().last().style, int(MessageStyle::Exclamation));
    QCOMPARE(m_prompts.records().last().title, QStringLiteral("Error"));
    QCOMPARE(m_window->windowTitle(), caption);
    QCOMPARE(m_window->currentFilePath(), path);
    QVERIFY(m_window->isDataChanged());
    m_window->ClearProject();
}

void tst_frmMain::deletedRecentFileIsReported()
{
    const QString path = writeProject(QStringLiteral("deleted.swl"));
    QVERIFY(m_window->OpenDataFile(path, OpenNormal));
    m_window->txtInput(2)->setText(QStringLiteral("Still here"));
    QVERIFY(QFile::remove(path));
    m_prompts.answerMessage(MessageAnswer::No);
    m_prompts.answerMessage();
    m_window->menus().mnuFile_Recent[1]->trigger();
    QCOMPARE(m_prompts.messages().last(), QStringLiteral("File not found:\r") + path);
    QCOMPARE(m_window->txtInput(2)->text(), QStringLiteral("Still here"));
    QCOMPARE(m_window->menus().mnuFile_Recent[1]->text(), QStringLiteral("&1 ") + path);
    QVERIFY(m_window->isDataChanged());
    m_window->ClearProject();
}

void tst_frmMain::unreadableProjectLeavesTheDocument()
{
    openExample(1);
    const QString before = m_window->windowTitle();
    const QString path = QString::fromStdString(m_folders.documentsFolder) + "damaged.swl";
    QFile damaged(path);
    QVERIFY(damaged.open(QIODevice::WriteOnly));
    damaged.write("Swale_03\r\nonly a line\r\n");
    damaged.close();
    m_prompts.answerOpen(path);
    m_prompts.answerMessage();
    m_window->menus().mnuFile_Open->trigger();
    QCOMPARE(m_prompts.messages().last(), QStringLiteral("Unable to open file:\r") + path);
    QCOMPARE(m_window->windowTitle(), before);
    QVERIFY(!m_window->isDataChanged());
    QVERIFY(!m_window->txtInput(5)->text().isEmpty());
    QVERIFY(!m_window->menus().mnuFile_Recent[1]->isVisible());
}

void tst_frmMain::calculateMatchesTheCalculator_data()
{
    QTest::addColumn<int>("example");
    for (int i = 1; i <= kExamples.size(); ++i)
        QTest::newRow(qPrintable(kExamples.at(i - 1))) << i;
}

void tst_frmMain::calculateMatchesTheCalculator()
{
    QFETCH(int, example);
    const QJsonObject expected = calculatorJson(exampleSource(kExamples.at(example - 1)));
    QCOMPARE(expected.value(QStringLiteral("status")).toString(), QStringLiteral("ok"));
    const QJsonArray results = expected.value(QStringLiteral("results")).toArray();
    QCOMPARE(results.size(), 18);

    openExample(example);
    m_window->calculateButton()->click();
    QVERIFY(m_prompts.records().isEmpty());
    for (int box = 1; box <= 18; ++box)
        QCOMPARE(m_window->txtOutput(box)->text(), results.at(box - 1).toString());
    QCOMPARE(QApplication::clipboard()->text(), clipboardOf(results));
    QCOMPARE(m_window->tabs()->currentIndex(), 1);
    QVERIFY(m_window->resultsShown());
    QVERIFY(m_window->isDataChanged());
    QVERIFY(m_window->menus().toolbarPrint()->isEnabled());
    QVERIFY(m_window->txtOutput(7)->isWriteProtected());

    // A second calculation gives the same texts.
    m_window->calculateButton()->click();
    QCOMPARE(m_window->txtOutput(7)->text(), results.at(6).toString());
    m_window->ClearProject();
}

void tst_frmMain::faultOnResultsPageReturnsToTheBox()
{
    m_window->show();
    QApplication::setActiveWindow(m_window.get());
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    openExample(1);
    m_window->txtInput(12)->setText(QStringLiteral("   "));
    m_window->tabs()->setCurrentIndex(1);
    m_prompts.answerMessage();
    m_window->calculateButton()->click();
    QCOMPARE(m_prompts.messages(), QStringList { QStringLiteral("Missing data.") });
    QCOMPARE(m_prompts.records().constFirst().style, int(MessageStyle::Exclamation));
    QCOMPARE(m_prompts.records().constFirst().title, QStringLiteral("Error"));
    QCOMPARE(m_window->tabs()->currentIndex(), 0);
    QVERIFY(m_window->txtInput(12)->hasFocus());
    QVERIFY(!m_window->resultsShown());
    m_window->ClearProject();
}

void tst_frmMain::ratingCurveFaultSelectsTheCell()
{
    m_window->show();
    QApplication::setActiveWindow(m_window.get());
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    openExample(3);
    RdcGridA *grid = m_window->inputPage()->ratingCurveGrid();
    grid->setText(3, 2, QString());
    m_prompts.answerMessage();
    m_window->calculateButton()->click();
    QCOMPARE(m_prompts.messages(),
             QStringList { QStringLiteral("Missing data.  (Rating curve:  Row 3, Col 2)") });
    QCOMPARE(grid->row(), 3);
    QCOMPARE(grid->Col(), 2);
    QVERIFY(grid->isAncestorOf(QApplication::focusWidget()) || grid->hasFocus());
    m_window->ClearProject();
}

void tst_frmMain::calculationFailureShowsCriticalMessage()
{
    openExample(1);
    m_window->txtInput(19)->setText(QStringLiteral("0"));
    m_prompts.answerMessage();
    m_window->calculateButton()->click();
    QCOMPARE(m_prompts.messages(),
             QStringList {
                     QStringLiteral("Arithmetic error in the calculation: division by zero") });
    QCOMPARE(m_prompts.records().constFirst().style, int(MessageStyle::Critical));
    QVERIFY(!m_window->resultsShown());
    QCOMPARE(m_window->tabs()->currentIndex(), 0);
    m_window->ClearProject();
}

// Export PDF asks for a file name beside the data, then writes the report of the window's texts.
void tst_frmMain::exportPdfWritesTheReportWhereTheUserSays()
{
    openExample(2);
    m_window->calculateButton()->click();
    const QString pdf = m_folder->filePath(QStringLiteral("documents/report.pdf"));
    m_prompts.answerSave(pdf);
    m_window->menus().mnuFile_ExportPdf->trigger();
    QCOMPARE(m_prompts.records().size(), 1);
    const FileDialogRequest &request = m_prompts.records().at(0).request;
    QCOMPARE(request.filters, QStringList { QStringLiteral("PDF Files (*.pdf)") });
    QVERIFY(request.fileName.endsWith(QStringLiteral(".pdf")));
    QFile written(pdf);
    QVERIFY(written.open(QIODevice::ReadOnly));
    QVERIFY(written.read(5) == "%PDF-");

    // Cancelling the dialog writes nothing.
    QVERIFY(QFile::remove(pdf));
    m_prompts.answerSave(QString());
    m_window->menus().mnuFile_ExportPdf->trigger();
    QVERIFY(!QFile::exists(pdf));
}

void tst_frmMain::printNeedsResultsAndAPrinter()
{
    emit m_window->menus().mnuFile->aboutToShow();
    QVERIFY(!m_window->menus().mnuFile_Print->isEnabled());
    openExample(4);
    m_window->calculateButton()->click();
    emit m_window->menus().mnuFile->aboutToShow();
    QVERIFY(m_window->menus().mnuFile_Print->isEnabled());
    // The test machine has no printer.
    m_prompts.answerMessage();
    m_window->menus().mnuFile_Print->trigger();
    QCOMPARE(m_prompts.messages(),
             QStringList { QStringLiteral("Unable to establish connection with printer.") });
    m_window->ClearProject();
    emit m_window->menus().mnuFile->aboutToShow();
    QVERIFY(!m_window->menus().mnuFile_Print->isEnabled());
}

void tst_frmMain::helpButtonsOpenTheirTopics()
{
    auto *help2 = m_window->findChild<QPushButton *>(QStringLiteral("cmdHelp_2"));
    help2->click(); // no topic in the program folder: nothing happens
    QVERIFY(!m_window->findChild<HelpViewer *>());

    QFile topic(QString::fromStdString(m_folders.programFolder) + "help/2.html");
    QVERIFY(topic.open(QIODevice::WriteOnly));
    topic.write("<html><head><title>Roughness</title></head><body>n</body></html>");
    topic.close();
    help2->click();
    auto *viewer = m_window->findChild<HelpViewer *>();
    QVERIFY(viewer);
    QVERIFY(viewer->isVisible());
    QCOMPARE(viewer->browser()->source().fileName(), QStringLiteral("2.html"));
    QCOMPARE(viewer->browser()->documentTitle(), QStringLiteral("Roughness"));
}

void tst_frmMain::settingsRoundTrip()
{
    m_window->show();
    m_window->resize(900, 700);
    m_window->move(40, 30);
    const QString path = writeProject(QStringLiteral("recent.swl"));
    QVERIFY(m_window->OpenDataFile(path, OpenNormal));
    m_window->helpImage()->cmd_HelpImageSize(3);
    QVERIFY(m_window->close());
    QFile state(settingsFile("WindowState.ini"));
    QVERIFY(state.open(QIODevice::ReadOnly));
    const QByteArray content = state.readAll();
    QVERIFY2(content.startsWith("State=0\r\nTop="), content.constData());
    QVERIFY(content.contains("Height=10500\r\n"));
    QVERIFY(content.contains("Width=13500\r\n"));

    makeWindow();
    QCOMPARE(m_window->size(), QSize(900, 700));
    QCOMPARE(m_window->menus().mnuFile_Recent[1]->text(), QStringLiteral("&1 ") + path);
    QVERIFY(m_window->menus().mnuHelp_Image_Size[3]->isChecked());
    QVERIFY(!m_window->menus().mnuHelp_Image_Size[2]->isChecked());
}

QTEST_MAIN(tst_frmMain)
#include "tst_frmMain.moc"
