// The window and its pages: editing, calculating, the faults, printing, help, the panels.
#include "CalcRunner.h"
#include "HelpViewer.h"
#include "InputPage.h"
#include "MainWindowSuite.h"
#include "OptionGroup.h"
#include "RdcGridA.h"
#include "ScrollingPage.h"
#include "tvrEditBox.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDate>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>
#include <QTextBrowser>

namespace {

const QString kUntitledCaption
        = QStringLiteral("TAVRO Channel and Overland Flow Analysis - <untitled>");

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

class tst_frmMainPages : public QObject
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
    void calculateMatchesTheCalculator_data();
    void calculateMatchesTheCalculator();
    void faultsAreShownWhereTheyAre_data();
    void faultsAreShownWhereTheyAre();
    void printNeedsResultsAndAPrinter();
    void helpButtonsOpenTheirTopics();
    void panelsWaitForRoomInTheTab();
    void smallWindowScrollsToTheFocusedBox();

private:
    void showActive();

    WindowFixture m_fx;
};

void tst_frmMainPages::init()
{
    setUpWithExamples(m_fx);
}

void tst_frmMainPages::cleanup()
{
    m_fx.tearDown();
}

void tst_frmMainPages::showActive()
{
    m_fx.window->show();
    QApplication::setActiveWindow(m_fx.window.get());
    QVERIFY(QTest::qWaitForWindowActive(m_fx.window.get()));
}

void tst_frmMainPages::startsUntitledOnTheInputPage()
{
    QCOMPARE(m_fx.window->windowTitle(), kUntitledCaption);
    QCOMPARE(m_fx.window->tabs()->currentIndex(), 0);
    QCOMPARE(m_fx.window->inputPage()->GetSolutionMethod(), 1);
    QVERIFY(!m_fx.window->isDataChanged());
    QVERIFY(!m_fx.window->resultsShown());
    QVERIFY(!m_fx.window->menus().toolbarPrint()->isEnabled());
    QVERIFY(m_fx.window->currentFilePath().isEmpty());
}

void tst_frmMainPages::edits_data()
{
    QTest::addColumn<int>("box");
    QTest::addColumn<bool>("clearsResults");
    QTest::newRow("job name keeps results") << 1 << false;
    QTest::newRow("bottom width clears results") << 5 << true;
}

void tst_frmMainPages::edits()
{
    QFETCH(int, box);
    QFETCH(bool, clearsResults);
    openExample(m_fx, 1);
    m_fx.window->calculateButton()->click();
    QVERIFY(m_fx.window->resultsShown());
    QTest::keyClick(m_fx.window->txtInput(box)->editor(), Qt::Key_9);
    QVERIFY(m_fx.window->isDataChanged());
    QCOMPARE(m_fx.window->resultsShown(), !clearsResults);
    QCOMPARE(m_fx.window->txtOutput(7)->text().isEmpty(), clearsResults);
    QCOMPARE(m_fx.window->menus().toolbarPrint()->isEnabled(), !clearsResults);
}

void tst_frmMainPages::todayButtonWritesTheDateAndMarksTheDocument()
{
    auto *today = m_fx.window->findChild<QPushButton *>(QStringLiteral("cmdToday"));
    QCOMPARE(today->text(), QStringLiteral("<- Today"));
    const QString date = QDate::currentDate().toString(QStringLiteral("MM-dd-yyyy"));
    today->click();
    QCOMPARE(m_fx.window->txtInput(3)->text(), date);
    QVERIFY(m_fx.window->isDataChanged());
}

void tst_frmMainPages::optionClickClearsResultsAndRelays()
{
    openExample(m_fx, 1);
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

void tst_frmMainPages::calculateMatchesTheCalculator_data()
{
    QTest::addColumn<int>("example");
    for (int i = 1; i <= kExamples.size(); ++i)
        QTest::newRow(qPrintable(kExamples.at(i - 1))) << i;
}

void tst_frmMainPages::calculateMatchesTheCalculator()
{
    QFETCH(int, example);
    const CalcRun run
            = runCalc({ "--json", exampleSource(kExamples.at(example - 1)).toStdString() });
    const QJsonObject expected
            = QJsonDocument::fromJson(QByteArray::fromStdString(run.out)).object();
    QCOMPARE(expected.value(QStringLiteral("status")).toString(), QStringLiteral("ok"));
    const QJsonArray results = expected.value(QStringLiteral("results")).toArray();
    QCOMPARE(results.size(), 18);

    openExample(m_fx, example);
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

void tst_frmMainPages::faultsAreShownWhereTheyAre_data()
{
    QTest::addColumn<int>("example");
    QTest::addColumn<int>("box");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("message");
    QTest::addColumn<int>("style");
    QTest::newRow("empty box, from the results page")
            << 1 << 12 << "   "
            << "Missing data." << int(MessageStyle::Exclamation);
    QTest::newRow("calculation failure") << 1 << 19 << "0"
                                         << "Arithmetic error in the calculation: division by zero"
                                         << int(MessageStyle::Critical);
}

// A fault returns to the input page and focuses its box; a failure shows the critical
// message. Either way no results are shown.
void tst_frmMainPages::faultsAreShownWhereTheyAre()
{
    QFETCH(int, example);
    QFETCH(int, box);
    QFETCH(QString, text);
    QFETCH(QString, message);
    QFETCH(int, style);
    showActive();
    openExample(m_fx, example);
    m_fx.window->txtInput(box)->setText(text);
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
    if (!failure)
        QVERIFY(m_fx.window->txtInput(box)->hasFocus());
    m_fx.window->ClearProject();
}

void tst_frmMainPages::printNeedsResultsAndAPrinter()
{
    emit m_fx.window->menus().mnuFile->aboutToShow();
    QVERIFY(!m_fx.window->menus().mnuFile_Print->isEnabled());
    openExample(m_fx, 4);
    m_fx.window->calculateButton()->click();
    emit m_fx.window->menus().mnuFile->aboutToShow();
    QVERIFY(m_fx.window->menus().mnuFile_Print->isEnabled());
    m_fx.window->ClearProject();
    emit m_fx.window->menus().mnuFile->aboutToShow();
    QVERIFY(!m_fx.window->menus().mnuFile_Print->isEnabled());
}

void tst_frmMainPages::helpButtonsOpenTheirTopics()
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

// Until the panels were sized to a tab with room in it, switching tabs shows no panel; the
// first resize with room shows the current tab's panel.
void tst_frmMainPages::panelsWaitForRoomInTheTab()
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
void tst_frmMainPages::smallWindowScrollsToTheFocusedBox()
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

QTEST_MAIN(tst_frmMainPages)
#include "tst_frmMainPages.moc"
