#include "CalcRunner.h"
#include "HelpImagePanel.h"
#include "HelpViewer.h"
#include "InputPage.h"
#include "OptionGroup.h"
#include "RdcGridA.h"
#include "ScrollingPage.h"
#include "ResultsPage.h"
#include "WindowFixture.h"
#include "tvrEditBox.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDate>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTest>
#include <QTextBrowser>

#include <memory>

#include <sys/stat.h>

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
    void edits_data();
    void edits();
    void todayButtonWritesTheDateAndMarksTheDocument();
    void optionClickClearsResultsAndRelays();

    void newAnswers_data();
    void newAnswers();
    void openAnswers_data();
    void openAnswers();
    void closeAnswers_data();
    void closeAnswers();

    void saveAsThenOpenRoundTrip();
    void exampleOpensUntitled();
    void saveFailures_data();
    void saveFailures();
    void deletedRecentFileIsReported();
    void unreadableProjectLeavesTheDocument_data();
    void unreadableProjectLeavesTheDocument();

    void calculateMatchesTheCalculator_data();
    void calculateMatchesTheCalculator();
    void faultsAreShownWhereTheyAre_data();
    void faultsAreShownWhereTheyAre();
    void printNeedsResultsAndAPrinter();
    void exportPdfWritesTheReportWhereTheUserSays();
    void helpButtonsOpenTheirTopics();

    void settingsRoundTrip();
    void panelsWaitForRoomInTheTab();
    void smallWindowScrollsToTheFocusedBox();

private:
    void showActive();
    void openExample(int index);
    void makeChanged();
    // Writes a small valid project to `name` in the documents folder and returns its path.
    QString writeProject(const QString &name);

    WindowFixture m_fx;
};

void tst_frmMain::init()
{
    m_fx.setUp();
    for (const QString &example : kExamples)
        QFile::copy(exampleSource(example),
                    m_fx.programFile(QStringLiteral("Examples/") + example));
}

void tst_frmMain::cleanup()
{
    m_fx.tearDown();
}

void tst_frmMain::showActive()
{
    m_fx.window->show();
    QApplication::setActiveWindow(m_fx.window.get());
    QVERIFY(QTest::qWaitForWindowActive(m_fx.window.get()));
}

void tst_frmMain::openExample(int index)
{
    QVERIFY(m_fx.window->OpenDataFile(
            QString::fromStdString(m_fx.folders.programFolder + "Examples/")
                    + kExamples.at(index - 1),
            OpenExample));
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

void tst_frmMain::startsUntitledOnTheInputPage()
{
    QCOMPARE(m_fx.window->windowTitle(), kUntitledCaption);
    QCOMPARE(m_fx.window->tabs()->currentIndex(), 0);
    QCOMPARE(m_fx.window->inputPage()->GetSolutionMethod(), 1);
    QVERIFY(!m_fx.window->isDataChanged());
    QVERIFY(!m_fx.window->resultsShown());
    QVERIFY(!m_fx.window->menus().toolbarPrint()->isEnabled());
    QVERIFY(m_fx.window->currentFilePath().isEmpty());
    QVERIFY(QRegularExpression(QStringLiteral("^Version 3\\.3\\.\\d{4}$"))
                    .match(m_fx.window->versionText())
                    .hasMatch());
    for (int i = 1; i <= 5; ++i)
        QVERIFY(!m_fx.window->menus().mnuFile_Recent[static_cast<size_t>(i)]->isVisible());
    QVERIFY(!m_fx.window->menus().mnuFile_Separator3->isVisible());
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
    m_fx.window->calculateButton()->click();
    QVERIFY(m_fx.window->resultsShown());
    QTest::keyClick(m_fx.window->txtInput(box)->editor(), Qt::Key_9);
    QVERIFY(m_fx.window->isDataChanged());
    QCOMPARE(m_fx.window->resultsShown(), !clearsResults);
    QCOMPARE(m_fx.window->txtOutput(7)->text().isEmpty(), clearsResults);
    QCOMPARE(m_fx.window->menus().toolbarPrint()->isEnabled(), !clearsResults);
}

void tst_frmMain::todayButtonWritesTheDateAndMarksTheDocument()
{
    auto *today = m_fx.window->findChild<QPushButton *>(QStringLiteral("cmdToday"));
    QCOMPARE(today->text(), QStringLiteral("<- Today"));
    const QString date = QDate::currentDate().toString(QStringLiteral("MM-dd-yyyy"));
    today->click();
    QCOMPARE(m_fx.window->txtInput(3)->text(), date);
    QVERIFY(m_fx.window->isDataChanged());

    // Pressed again on a saved project that already holds today's date, it still marks it.
    m_fx.prompts.answerSave(QString::fromStdString(m_fx.folders.documentsFolder) + "today.swl");
    QVERIFY(m_fx.window->SaveProjectAs());
    QVERIFY(!m_fx.window->isDataChanged());
    today->click();
    QCOMPARE(m_fx.window->txtInput(3)->text(), date);
    QVERIFY(m_fx.window->isDataChanged());
    m_fx.window->ClearProject();
}

void tst_frmMain::optionClickClearsResultsAndRelays()
{
    openExample(1);
    m_fx.window->calculateButton()->click();
    QVERIFY(m_fx.window->resultsShown());
    m_fx.window->inputPage()->solutionMethodGroup()->option(3)->click();
    QVERIFY(!m_fx.window->resultsShown());
    QVERIFY(!m_fx.window->menus().toolbarPrint()->isEnabled());
    QVERIFY(m_fx.window->isDataChanged());
    QVERIFY(m_fx.window->inputPage()->ratingCurveGrid()->isVisibleTo(m_fx.window->inputPage()));
    QVERIFY(!m_fx.window->txtInput(20)->isVisibleTo(m_fx.window->inputPage()));
    m_fx.window->inputPage()->channelFlowGroup()->option(2)->click();
    QVERIFY(m_fx.window->txtInput(15)->isVisibleTo(m_fx.window->inputPage()));
    QVERIFY(!m_fx.window->txtInput(10)->isVisibleTo(m_fx.window->inputPage()));
    m_fx.window->inputPage()->solutionMethodGroup()->option(4)->click();
    QVERIFY(m_fx.window->inputPage()->ratingCurveGrid()->isVisibleTo(m_fx.window->inputPage()));
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
        QVERIFY(m_fx.window->OpenDataFile(path, OpenNormal));
    else
        openExample(1);
    const QString caption = m_fx.window->windowTitle();
    if (changed) {
        makeChanged();
        m_fx.prompts.answerMessage(answer);
        if (!titled && answer == MessageAnswer::Yes)
            m_fx.prompts.answerSave(QString());
    }
    m_fx.window->menus().toolbarButtons[1]->trigger(); // the toolbar's New
    if (changed) {
        QCOMPARE(m_fx.prompts.records().constFirst().message, kQuestion);
        QCOMPARE(m_fx.prompts.records().constFirst().title, kQuestionTitle);
        QCOMPARE(m_fx.prompts.records().constFirst().style, int(MessageStyle::YesNoCancel));
    } else {
        QVERIFY(m_fx.prompts.records().isEmpty());
    }
    QCOMPARE(m_fx.window->windowTitle(), cleared ? kUntitledCaption : caption);
    QCOMPARE(m_fx.window->txtInput(1)->text().isEmpty(), cleared);
    QCOMPARE(m_fx.window->isDataChanged(), !cleared);
    QCOMPARE(m_fx.window->currentFilePath().isEmpty(), cleared || !titled);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll().contains("Edited job"), saved);
    if (!cleared)
        m_fx.window->ClearProject();
}

void tst_frmMain::openAnswers_data()
{
    QTest::addColumn<bool>("recent");
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("opened");
    QTest::addColumn<bool>("saved");
    QTest::newRow("Open, Cancel") << false << int(MessageAnswer::Cancel) << false << false;
    QTest::newRow("Open, No") << false << int(MessageAnswer::No) << true << false;
    QTest::newRow("Open, Yes saves the old project first")
            << false << int(MessageAnswer::Yes) << true << true;
    QTest::newRow("Recent, Cancel") << true << int(MessageAnswer::Cancel) << false << false;
    QTest::newRow("Recent, Yes") << true << int(MessageAnswer::Yes) << true << true;
}

// Open and a recent file ask the unsaved-data question first, then open the other project.
void tst_frmMain::openAnswers()
{
    QFETCH(bool, recent);
    QFETCH(int, answer);
    QFETCH(bool, opened);
    QFETCH(bool, saved);
    const QString first = writeProject(QStringLiteral("first.swl"));
    const QString second = writeProject(QStringLiteral("second.swl"));
    if (recent)
        QVERIFY(m_fx.window->OpenDataFile(second, OpenNormal));
    QVERIFY(m_fx.window->OpenDataFile(first, OpenNormal));
    makeChanged();
    m_fx.prompts.answerMessage(answer);
    if (recent) {
        QCOMPARE(m_fx.window->menus().mnuFile_Recent[2]->text(), QStringLiteral("&2 ") + second);
        QVERIFY(!m_fx.window->menus().mnuFile_Recent[3]->isVisible());
        m_fx.window->menus().mnuFile_Recent[2]->trigger();
    } else {
        if (opened)
            m_fx.prompts.answerOpen(second);
        m_fx.window->menus().mnuFile_Open->trigger();
    }
    QCOMPARE(m_fx.window->currentFilePath(), opened ? second : first);
    QCOMPARE(m_fx.window->isDataChanged(), !opened);
    QFile file(first);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll().contains("Edited job"), saved);
    if (opened) {
        QCOMPARE(m_fx.window->menus().mnuFile_Recent[1]->text(), QStringLiteral("&1 ") + second);
    }
    if (opened && !recent) {
        const FileDialogRequest request = m_fx.prompts.records().last().request;
        QCOMPARE(request.selectedFilter, 1);
        QCOMPARE(request.filters.at(1),
                 QStringLiteral("TAVRO Channel and Overland Flow Analysis (*.swl)"));
        QCOMPARE(request.filters.at(0), QStringLiteral("All Files (*.*)"));
        QCOMPARE(request.defaultSuffix, QStringLiteral("udr"));
        QCOMPARE(request.initialFolder, QString::fromStdString(m_fx.folders.documentsFolder));
    }
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
    m_fx.window->show();
    if (changed) {
        makeChanged();
        m_fx.prompts.answerMessage(answer);
        if (answer == MessageAnswer::Yes)
            m_fx.prompts.answerSave(QString()); // untitled: Save As, cancelled
    }
    m_fx.window->menus().mnuFile_Exit->trigger();
    QCOMPARE(m_fx.window->isVisible(), !closes);
    QCOMPARE(QFile::exists(m_fx.settingsFile("WindowState.ini")), closes);
    QCOMPARE(QFile::exists(m_fx.settingsFile("RecentFiles.ini")), closes);
    m_fx.window->ClearProject(); // leave without a question
}

void tst_frmMain::saveAsThenOpenRoundTrip()
{
    openExample(3);
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
        openExample(1);
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

void tst_frmMain::calculateMatchesTheCalculator_data()
{
    QTest::addColumn<int>("example");
    for (int i = 1; i <= kExamples.size(); ++i)
        QTest::newRow(qPrintable(kExamples.at(i - 1))) << i;
}

void tst_frmMain::calculateMatchesTheCalculator()
{
    QFETCH(int, example);
    const CalcRun run
            = runCalc({ "--json", exampleSource(kExamples.at(example - 1)).toStdString() });
    const QJsonObject expected
            = QJsonDocument::fromJson(QByteArray::fromStdString(run.out)).object();
    QCOMPARE(expected.value(QStringLiteral("status")).toString(), QStringLiteral("ok"));
    const QJsonArray results = expected.value(QStringLiteral("results")).toArray();
    QCOMPARE(results.size(), 18);

    openExample(example);
    m_fx.window->calculateButton()->click();
    QVERIFY(m_fx.prompts.records().isEmpty());
    for (int box = 1; box <= 18; ++box)
        QCOMPARE(m_fx.window->txtOutput(box)->text(), results.at(box - 1).toString());
    QCOMPARE(QApplication::clipboard()->text(), clipboardOf(results));
    QCOMPARE(m_fx.window->tabs()->currentIndex(), 1);
    QVERIFY(m_fx.window->resultsShown());
    QVERIFY(m_fx.window->isDataChanged());
    QVERIFY(m_fx.window->menus().toolbarPrint()->isEnabled());
    QVERIFY(m_fx.window->txtOutput(7)->isWriteProtected());

    // A second calculation gives the same texts.
    m_fx.window->calculateButton()->click();
    QCOMPARE(m_fx.window->txtOutput(7)->text(), results.at(6).toString());
    m_fx.window->ClearProject();
}

void tst_frmMain::faultsAreShownWhereTheyAre_data()
{
    QTest::addColumn<int>("example");
    QTest::addColumn<int>("box"); // the box emptied or set to 0; 0: rating-curve cell (3, 2)
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("message");
    QTest::addColumn<int>("style");
    QTest::newRow("empty box, from the results page")
            << 1 << 12 << "   "
            << "Missing data." << int(MessageStyle::Exclamation);
    QTest::newRow("rating-curve cell")
            << 3 << 0 << ""
            << "Missing data.  (Rating curve:  Row 3, Col 2)" << int(MessageStyle::Exclamation);
    QTest::newRow("calculation failure") << 1 << 19 << "0"
                                         << "Arithmetic error in the calculation: division by zero"
                                         << int(MessageStyle::Critical);
}

// A fault returns to the input page and focuses its box or cell; a failure shows the critical
// message. Either way no results are shown.
void tst_frmMain::faultsAreShownWhereTheyAre()
{
    QFETCH(int, example);
    QFETCH(int, box);
    QFETCH(QString, text);
    QFETCH(QString, message);
    QFETCH(int, style);
    showActive();
    openExample(example);
    RdcGridA *grid = m_fx.window->inputPage()->ratingCurveGrid();
    if (box)
        m_fx.window->txtInput(box)->setText(text);
    else
        grid->setText(3, 2, text);
    const bool failure = style == int(MessageStyle::Critical);
    if (!failure) // a fault found from the results page goes back to the input page
        m_fx.window->tabs()->setCurrentIndex(1);
    m_fx.prompts.answerMessage();
    m_fx.window->calculateButton()->click();
    QCOMPARE(m_fx.prompts.messages(), QStringList { message });
    QCOMPARE(m_fx.prompts.records().constFirst().style, style);
    QCOMPARE(m_fx.prompts.records().constFirst().title, QStringLiteral("Error"));
    QCOMPARE(m_fx.window->tabs()->currentIndex(), 0);
    QVERIFY(!m_fx.window->resultsShown());
    if (failure) {
        QVERIFY(m_fx.window->isDataChanged());
    } else if (box) {
        QVERIFY(m_fx.window->txtInput(box)->hasFocus());
    } else {
        QCOMPARE(grid->row(), 3);
        QCOMPARE(grid->Col(), 2);
        QVERIFY(grid->isAncestorOf(QApplication::focusWidget()) || grid->hasFocus());
    }
    m_fx.window->ClearProject();
}

// Export PDF asks for a file name beside the data, then writes the report of the window's texts.
void tst_frmMain::exportPdfWritesTheReportWhereTheUserSays()
{
    openExample(2);
    m_fx.window->calculateButton()->click();
    const QString pdf = m_fx.folder->filePath(QStringLiteral("documents/report.pdf"));
    m_fx.prompts.answerSave(pdf);
    m_fx.window->menus().mnuFile_ExportPdf->trigger();
    QCOMPARE(m_fx.prompts.records().size(), 1);
    const FileDialogRequest &request = m_fx.prompts.records().at(0).request;
    QCOMPARE(request.filters, QStringList { QStringLiteral("PDF Files (*.pdf)") });
    QVERIFY(request.fileName.endsWith(QStringLiteral(".pdf")));
    QFile written(pdf);
    QVERIFY(written.open(QIODevice::ReadOnly));
    QVERIFY(written.read(5) == "%PDF-");
}

void tst_frmMain::printNeedsResultsAndAPrinter()
{
    emit m_fx.window->menus().mnuFile->aboutToShow();
    QVERIFY(!m_fx.window->menus().mnuFile_Print->isEnabled());
    openExample(4);
    m_fx.window->calculateButton()->click();
    emit m_fx.window->menus().mnuFile->aboutToShow();
    QVERIFY(m_fx.window->menus().mnuFile_Print->isEnabled());
    m_fx.window->ClearProject();
    emit m_fx.window->menus().mnuFile->aboutToShow();
    QVERIFY(!m_fx.window->menus().mnuFile_Print->isEnabled());
}

void tst_frmMain::helpButtonsOpenTheirTopics()
{
    auto *help2 = m_fx.window->findChild<QPushButton *>(QStringLiteral("cmdHelp_2"));
    help2->click(); // no topic in the program folder: nothing happens
    QVERIFY(!m_fx.window->findChild<HelpViewer *>());

    QFile topic(QString::fromStdString(m_fx.folders.programFolder) + "help/2.html");
    QVERIFY(topic.open(QIODevice::WriteOnly));
    topic.write("<html><head><title>Roughness</title></head><body>n</body></html>");
    topic.close();
    help2->click();
    auto *viewer = m_fx.window->findChild<HelpViewer *>();
    QVERIFY(viewer);
    QVERIFY(viewer->isVisible());
    QCOMPARE(viewer->browser()->source().fileName(), QStringLiteral("2.html"));
    QCOMPARE(viewer->browser()->documentTitle(), QStringLiteral("Roughness"));
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

// Until the panels were sized to a tab with room in it, switching tabs shows no panel; the
// first resize with room shows the current tab's panel.
void tst_frmMain::panelsWaitForRoomInTheTab()
{
    QTabWidget *tabs = m_fx.window->tabs();
    showActive();
    for (int tab = 0; tab < 3; ++tab)
        QVERIFY(m_fx.window->isPanelShown(tab));
    QVERIFY(tabs->widget(0)->isVisible());

    m_fx.window->fitPanelsToTabArea(QSize(300, 0));
    QVERIFY(!m_fx.window->isPanelShown(1));
    QVERIFY(!tabs->widget(0)->isVisible());
    tabs->setCurrentIndex(1);
    QVERIFY(!tabs->widget(1)->isVisible());

    m_fx.window->fitPanelsToTabArea(QSize(300, 200));
    QVERIFY(tabs->widget(1)->isVisible());
    QVERIFY(!tabs->widget(0)->isVisible());
    tabs->setCurrentIndex(2);
    QVERIFY(tabs->widget(2)->isVisible());
    QVERIFY(!tabs->widget(1)->isVisible());

    // A real resize of the window gives the panels the room of the tab again.
    m_fx.window->fitPanelsToTabArea(QSize(0, 0));
    QVERIFY(!tabs->widget(2)->isVisible());
    m_fx.window->resize(500, 400);
    QTRY_VERIFY(m_fx.window->isPanelShown(0));
    QVERIFY(tabs->widget(2)->isVisible());
}

// In a window too small for the page, the focused box is scrolled into view.
void tst_frmMain::smallWindowScrollsToTheFocusedBox()
{
    showActive();
    m_fx.window->resize(520, 360);
    QApplication::processEvents();
    ScrollingPage *page = m_fx.window->page(0);
    QVERIFY(page->vscScrollWindow()->isVisible());
    tvrEditBox *last = m_fx.window->txtInput(23);
    last->setFocus();
    QCOMPARE(last->mapTo(page, QPoint(0, last->height())).y(), page->visibleHeight());
    QTest::keyClick(last->editor(), Qt::Key_Down); // wraps to the job name
    QCOMPARE(QApplication::focusWidget(), m_fx.window->txtInput(1)->editor());
    QCOMPARE(m_fx.window->txtInput(1)->mapTo(page, QPoint(0, 0)).y(), 0);
}

QTEST_MAIN(tst_frmMain)
#include "tst_frmMain.moc"
