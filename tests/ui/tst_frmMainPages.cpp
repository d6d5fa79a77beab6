// The window and its pages: editing, calculating, the faults, printing, help, the panels, the
// keyboard, and the channel pane and checks that follow the calculations.
#include "CalcRunner.h"
#include "ChannelPane.h"
#include "ChecksPanel.h"
#include "Files.h"
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
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStatusBar>
#include <QTableWidget>
#include <QTabWidget>
#include <QTest>
#include <QTextBrowser>

namespace {

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

// The page's own control that holds `focus`: an input box, a button, an option, the grid.
QString controlName(QWidget *focus, const QWidget *page)
{
    for (QWidget *w = focus; w && w != page; w = w->parentWidget()) {
        const QWidget *parent = w->parentWidget();
        if (parent == page || parent->objectName().startsWith(QLatin1String("grp")))
            return w->objectName();
    }
    return {};
}

} // namespace

class tst_frmMainPages : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void edits_data();
    void edits();
    void todayButtonWritesTheDateAndMarksTheDocument();
    void calculateMatchesTheCalculator_data();
    void calculateMatchesTheCalculator();
    void faultsAreShownWhereTheyAre_data();
    void faultsAreShownWhereTheyAre();
    void helpButtonsOpenTheirTopics();
    void panelsWaitForRoomInTheTab();
    void keysMoveTheFocus_data();
    void keysMoveTheFocus();
    void f9CalculatesFromAnywhere_data();
    void f9CalculatesFromAnywhere();
    void partReadNumbersAreFlagged_data();
    void partReadNumbersAreFlagged();
    void tabWalksTheInputPageInReadingOrder();
    void exportOfAnExampleIsNamedAfterIt();

private:
    void showActive();
    // The control named `name`; for a box its editor, for the grid its surface, which take keys.
    QWidget *control(const QString &name) const;

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

QWidget *tst_frmMainPages::control(const QString &name) const
{
    auto *widget = m_fx.window->findChild<QWidget *>(name);
    if (auto *box = qobject_cast<tvrEditBox *>(widget))
        return box->editor();
    if (auto *grid = qobject_cast<RdcGridA *>(widget))
        return grid->findChild<QWidget *>(QStringLiteral("pic"));
    return widget;
}

void tst_frmMainPages::edits_data()
{
    QTest::addColumn<int>("box"); // 0: a click on another solution method
    QTest::addColumn<bool>("clearsResults");
    QTest::newRow("job name keeps results") << 1 << false;
    QTest::newRow("bottom width clears results") << 5 << true;
    QTest::newRow("another solution method clears results") << 0 << true;
}

// An edit of a calculation input clears the results and greys the drawings and the checks; the
// job name leaves them. New clears the pane. (That the options lay the pages out anew is seen
// by keysMoveTheFocus, which moves among the boxes of the mode the options chose.)
void tst_frmMainPages::edits()
{
    QFETCH(int, box);
    QFETCH(bool, clearsResults);
    openExample(m_fx, 3);
    m_fx.window->calculateButton()->click();
    QVERIFY(m_fx.window->resultsShown());
    if (box)
        QTest::keyClick(m_fx.window->txtInput(box)->editor(), Qt::Key_9);
    else
        m_fx.window->inputPage()->solutionMethodGroup()->option(4)->click();
    QVERIFY(m_fx.window->isDataChanged());
    QCOMPARE(m_fx.window->resultsShown(), !clearsResults);
    QCOMPARE(m_fx.window->txtOutput(7)->text().isEmpty(), clearsResults);
    QCOMPARE(m_fx.window->menus().toolbarPrint()->isEnabled(), !clearsResults);
    ChannelPane *pane = m_fx.window->channelPane();
    ChecksPanel *checks = m_fx.window->checksPanel();
    QCOMPARE(pane->state(),
             clearsResults ? ChannelPane::State::Stale : ChannelPane::State::Current);
    QVERIFY(pane->views()); // kept, greyed when stale
    QCOMPARE(checks->isStale(), clearsResults);
    QCOMPARE(checks->table()->isEnabled(), !clearsResults);
    QCOMPARE(checks->status()->text().startsWith(QStringLiteral("Stale")), clearsResults);
    if (clearsResults)
        QCOMPARE(pane->message(), QString::fromUtf8(kChannelPaneStaleText));

    m_fx.prompts.answerMessage(MessageAnswer::No); // do not save the changes
    m_fx.window->newCommand();
    QCOMPARE(pane->state(), ChannelPane::State::Empty);
    QVERIFY(!pane->views());
    QCOMPARE(checks->table()->rowCount(), 0);
    QVERIFY(!checks->status()->text().startsWith(QStringLiteral("Stale")));
}

void tst_frmMainPages::todayButtonWritesTheDateAndMarksTheDocument()
{
    auto *today = m_fx.window->findChild<QPushButton *>(QStringLiteral("cmdToday"));
    const QString date = QDate::currentDate().toString(QStringLiteral("MM-dd-yyyy"));
    today->click();
    QCOMPARE(m_fx.window->txtInput(3)->text(), date);
    QVERIFY(m_fx.window->isDataChanged());
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
    emit m_fx.window->menus().mnuFile->aboutToShow();
    QVERIFY(m_fx.window->menus().mnuFile_Print->isEnabled());
    QVERIFY(m_fx.window->txtOutput(7)->isWriteProtected());
    // The drawing is of the depth shown (to the seven digits of the result box), the checks show.
    ChannelPane *pane = m_fx.window->channelPane();
    QCOMPARE(pane->state(), ChannelPane::State::Current);
    QVERIFY(qAbs(pane->views()->section.d - m_fx.window->txtOutput(7)->text().toDouble()) < 1e-6);
    QVERIFY(m_fx.window->checksPanel()->table()->rowCount() > 0);

    m_fx.window->ClearProject(); // no results: nothing to print
    emit m_fx.window->menus().mnuFile->aboutToShow();
    QVERIFY(!m_fx.window->menus().mnuFile_Print->isEnabled());
}

void tst_frmMainPages::faultsAreShownWhereTheyAre_data()
{
    QTest::addColumn<int>("box");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("message");
    QTest::addColumn<int>("style");
    QTest::newRow("empty box, from the results page")
            << 12 << "   "
            << "Missing data." << int(MessageStyle::Exclamation);
    QTest::newRow("calculation failure") << 19 << "0"
                                         << "Arithmetic error in the calculation: division by zero"
                                         << int(MessageStyle::Critical);
}

// A fault returns to the input page and focuses its box; a failure shows the critical
// message. Either way no results are shown, and the pane and the checks give the reason.
void tst_frmMainPages::faultsAreShownWhereTheyAre()
{
    QFETCH(int, box);
    QFETCH(QString, text);
    QFETCH(QString, message);
    QFETCH(int, style);
    showActive();
    openExample(m_fx, 1);
    m_fx.window->calculateButton()->click();
    m_fx.window->txtInput(box)->setText(text);
    const bool failure = style == int(MessageStyle::Critical);
    // A fault found from the results page goes back to the input page.
    m_fx.window->tabs()->setCurrentIndex(failure ? 0 : 1);
    m_fx.prompts.answerMessage();
    m_fx.window->calculateButton()->click();
    QCOMPARE(m_fx.prompts.messages(), QStringList { message });
    QCOMPARE(m_fx.prompts.records().constFirst().style, style);
    QCOMPARE(m_fx.prompts.records().constFirst().title, QStringLiteral("Error"));
    QCOMPARE(m_fx.window->tabs()->currentIndex(), 0);
    QVERIFY(!m_fx.window->resultsShown());
    if (!failure)
        QVERIFY(m_fx.window->txtInput(box)->hasFocus());
    ChannelPane *pane = m_fx.window->channelPane();
    QCOMPARE(pane->state(), ChannelPane::State::Failed);
    QVERIFY(!pane->views());
    QVERIFY2(pane->message().contains(message), qPrintable(pane->message()));
    QCOMPARE(m_fx.window->checksPanel()->table()->rowCount(), 0);
    QCOMPARE(m_fx.window->checksPanel()->status()->text(), QStringLiteral("No checks: ") + message);
    m_fx.window->ClearProject();
}

void tst_frmMainPages::helpButtonsOpenTheirTopics()
{
    auto *help2 = m_fx.window->findChild<QPushButton *>(QStringLiteral("cmdHelp_2"));
    help2->click(); // no topic in the program folder: nothing happens
    QVERIFY(!m_fx.window->findChild<HelpViewer *>());

    writeBytes(m_fx.programFile(QStringLiteral("help/2.html")).toStdString(),
               "<html><head><title>Roughness</title></head><body>n</body></html>");
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

void tst_frmMainPages::keysMoveTheFocus_data()
{
    QTest::addColumn<int>("method");
    QTest::addColumn<int>("flow");
    QTest::addColumn<QString>("from");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("to");
    const auto down = static_cast<int>(Qt::Key_Down);
    const auto up = static_cast<int>(Qt::Key_Up);
    const auto enter = static_cast<int>(Qt::Key_Return);
    // One row per kind of target: the moves themselves are KeyboardMovesTest's table.
    QTest::newRow("box to box") << 1 << 2 << "txtInput_15" << down << "txtInput_16";
    QTest::newRow("box to the chosen option")
            << 2 << 1 << "txtInput_3" << enter << "optCalculate_2";
    QTest::newRow("option to the first box") << 2 << 1 << "optCalculate_2" << enter << "txtInput_4";
    QTest::newRow("box to the grid") << 3 << 1 << "txtInput_19" << enter << "grdRatingCurve";
    QTest::newRow("Today button to a box") << 2 << 1 << "cmdToday" << up << "txtInput_3";
    QTest::newRow("output to output") << 1 << 2 << "txtOutput_5" << enter << "txtOutput_7";
}

void tst_frmMainPages::keysMoveTheFocus()
{
    QFETCH(int, method);
    QFETCH(int, flow);
    QFETCH(QString, from);
    QFETCH(int, key);
    QFETCH(QString, to);
    showActive();
    m_fx.window->inputPage()->solutionMethodGroup()->option(method)->click();
    m_fx.window->inputPage()->channelFlowGroup()->option(flow)->click();
    m_fx.window->tabs()->setCurrentIndex(from.startsWith(QLatin1String("txtOutput")) ? 1 : 0);
    QWidget *start = control(from);
    QVERIFY(start);
    start->setFocus();
    QVERIFY(start->hasFocus());
    QTest::keyClick(start, static_cast<Qt::Key>(key));
    QCOMPARE(QApplication::focusWidget(), control(to));
}

void tst_frmMainPages::f9CalculatesFromAnywhere_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QString>("focus");
    QTest::newRow("in an input box") << 0 << "txtInput_5";
    QTest::newRow("on the Results page") << 1 << "txtOutput_3";
}

void tst_frmMainPages::f9CalculatesFromAnywhere()
{
    QFETCH(int, tab);
    QFETCH(QString, focus);
    showActive();
    openExample(m_fx, 1);
    m_fx.window->tabs()->setCurrentIndex(tab);
    auto *target = m_fx.window->findChild<QWidget *>(focus);
    QVERIFY(target);
    target->setFocus();
    QVERIFY(!m_fx.window->resultsShown());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F9);
    QVERIFY(m_fx.window->resultsShown());
    QCOMPARE(m_fx.window->tabs()->currentIndex(), 1);
    QVERIFY(m_fx.window->calculateButton()->toolTip().contains(QStringLiteral("F9")));
}

// The boxes read only the leading number of a text they accept; the warning says what is read
// and the text stays as typed.
void tst_frmMainPages::partReadNumbersAreFlagged_data()
{
    QTest::addColumn<int>("box");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("note"); // "" for no warning
    QTest::newRow("thousands separator") << 5 << "1,500"
                                         << "read as 1";
    QTest::newRow("currency sign") << 19 << "$0.035"
                                   << "read as 0";
    QTest::newRow("plain number") << 5 << "1500"
                                  << "";
    QTest::newRow("not a number (validation's message instead)") << 5 << "abc"
                                                                 << "";
}

void tst_frmMainPages::partReadNumbersAreFlagged()
{
    QFETCH(int, box);
    QFETCH(QString, typed);
    QFETCH(QString, note);
    showActive();
    tvrEditBox *input = m_fx.window->txtInput(box);
    input->editor()->setFocus();
    QTest::keyClicks(input->editor(), typed);
    QCOMPARE(input->text(), typed);
    // The arrow keys along the line are the box's, not the page's.
    QTest::keyClick(input->editor(), Qt::Key_Left);
    QCOMPARE(input->editor()->cursorPosition(), typed.size() - 1);
    QVERIFY(input->editor()->hasFocus());
    auto *label = m_fx.window->findChild<QLabel *>(QStringLiteral("readingNote_%1").arg(box));
    QVERIFY(label);
    QCOMPARE(label->isVisibleTo(m_fx.window.get()), !note.isEmpty());
    if (!note.isEmpty())
        QCOMPARE(label->text(), note);
}

// From the job name, Tab visits the page's controls from the top down and, on one line, from
// left to right, and reaches every kind of control a reader meets.
void tst_frmMainPages::tabWalksTheInputPageInReadingOrder()
{
    showActive();
    QWidget *page = m_fx.window->inputPage();
    m_fx.window->txtInput(1)->setFocus(Qt::TabFocusReason);
    QPoint previous(-1, -1);
    QStringList visited;
    for (int step = 0; step < 60; ++step) {
        QWidget *focus = QApplication::focusWidget();
        QVERIFY(focus);
        if (!page->isAncestorOf(focus))
            break;
        const QPoint at = focus->mapTo(page, QPoint(0, 0));
        QVERIFY2(at.y() > previous.y() || (at.y() == previous.y() && at.x() > previous.x()),
                 qPrintable(visited.join(QLatin1Char(' ')) + QStringLiteral(" -> ")
                            + controlName(focus, page)));
        visited << controlName(focus, page);
        previous = at;
        QTest::keyClick(focus, Qt::Key_Tab);
    }
    for (const char *expected : { "txtInput_3", "cmdToday", "optCalculate_1", "txtInput_8",
                                  "optChannelFlow_1", "cmdHelp_1", "cmdHelp_2", "txtInput_23" })
        QVERIFY2(visited.contains(QLatin1String(expected)),
                 qPrintable(visited.join(QLatin1Char(' '))));
}

// An example opens untitled: its report is suggested under the example's name in the data
// folder, and the status bar says where the report went.
void tst_frmMainPages::exportOfAnExampleIsNamedAfterIt()
{
    showActive();
    openExample(m_fx, 1);
    QTest::keyClick(m_fx.window.get(), Qt::Key_F9);
    const QString documents = QString::fromStdString(m_fx.folders.documentsFolder);
    const QString pdf = documents + QStringLiteral("Roadside swale - required length.pdf");
    m_fx.prompts.answerSave(pdf);
    m_fx.window->menus().mnuFile_ExportPdf->trigger();
    const FileDialogRequest &request = m_fx.prompts.records().constLast().request;
    QCOMPARE(request.initialFolder, documents);
    QCOMPARE(request.fileName, QStringLiteral("Roadside swale - required length.pdf"));
    QVERIFY(QFile::exists(pdf));
    QCOMPARE(m_fx.window->statusBar()->currentMessage(),
             QStringLiteral("Report written to ") + pdf);
}

QTEST_MAIN(tst_frmMainPages)
#include "tst_frmMainPages.moc"
