#include "GlobalData.h"
#include "InputPage.h"
#include "MainMenus.h"
#include "OptionGroup.h"
#include "PageFixtures.h"
#include "RdcGridA.h"
#include "RecordingPrompts.h"
#include "ResultsPage.h"
#include "ScrollingPage.h"
#include "SettingsFiles.h"
#include "frmMain.h"
#include "tvrEditBox.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

// The solution modes as the user meets them in the main window: the option clicks with their
// captions and sections, the Enter key on the options, the scrolling pages at a small window
// size, and the help-image size menus.
class tst_SolutionModes : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void clicksShowTheSectionsOfTheMode_data();
    void clicksShowTheSectionsOfTheMode();
    void enterOnAnOptionGoesToTheFirstBox_data();
    void enterOnAnOptionGoesToTheFirstBox();
    void smallWindowScrollsToTheFocusedBox();
    void resultsOpenAtTheirTopWhileInputKeepsItsPlace();
    void panelsWaitForRoomInTheTab();
    void helpImageMenusTickAndStoreTheSize();

private:
    void showActive();
    void choose(int method, int flow);

    std::unique_ptr<QTemporaryDir> m_folder;
    GlobalData m_folders;
    RecordingPrompts m_prompts;
    std::unique_ptr<frmMain> m_window;
};

void tst_SolutionModes::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    const QDir root(m_folder->path());
    for (const char *folder : { "program/help", "settings", "documents" })
        QVERIFY(root.mkpath(QLatin1String(folder)));
    // Two help images of different widths, named as the build names them.
    for (int size = 1; size <= 2; ++size) {
        QImage image(100 * size, 50, QImage::Format_RGB32);
        image.fill(Qt::white);
        QVERIFY(image.save(root.filePath(QStringLiteral("program/help/%1.png").arg(size))));
    }
    QFile ini(root.filePath(QStringLiteral("program/HelpImages.ini")));
    QVERIFY(ini.open(QIODevice::WriteOnly));
    ini.write("SMALL=help/1.png\r\nMEDIUM=help/2.png\r\n");
    ini.close();
    const std::string base = m_folder->path().toStdString();
    m_folders = { base + "/program/", base + "/settings/", base + "/documents/" };
    m_prompts.clear();
    m_window = std::make_unique<frmMain>(m_prompts, m_folders);
}

void tst_SolutionModes::cleanup()
{
    QCOMPARE(m_prompts.pendingAnswers(), 0);
    m_window.reset();
    m_folder.reset();
}

void tst_SolutionModes::showActive()
{
    m_window->show();
    QApplication::setActiveWindow(m_window.get());
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void tst_SolutionModes::choose(int method, int flow)
{
    m_window->inputPage()->solutionMethodGroup()->option(method)->click();
    m_window->inputPage()->channelFlowGroup()->option(flow)->click();
}

void tst_SolutionModes::clicksShowTheSectionsOfTheMode_data()
{
    QTest::addColumn<int>("method");
    QTest::addColumn<int>("flow");
    for (int method = 1; method <= 4; ++method) {
        for (int flow = 1; flow <= 2; ++flow)
            QTest::addRow("method %d, flow %d", method, flow) << method << flow;
    }
}

void tst_SolutionModes::clicksShowTheSectionsOfTheMode()
{
    QFETCH(int, method);
    QFETCH(int, flow);
    choose(method == 4 ? 1 : 4, 3 - flow); // from another mode
    choose(method, flow);
    QCOMPARE(shownFromTheTop(m_window->inputPage()), expectedInputOrder(method, flow));
    QCOMPARE(shownFromTheTop(m_window->resultsPage()), expectedResultsOrder(method, flow));
    QCOMPARE(m_window->inputPage()->ratingCurveGrid()->isHidden(), method < 3);
    QVERIFY(m_window->isDataChanged());
    // Each page is as large as its items: the last one ends inside the content panel.
    for (QWidget *panel : { static_cast<QWidget *>(m_window->inputPage()),
                            static_cast<QWidget *>(m_window->resultsPage()) }) {
        const QString last = shownFromTheTop(panel).last();
        QVERIFY(panel->findChild<QWidget *>(last)->geometry().bottom() < panel->height());
    }
}

void tst_SolutionModes::enterOnAnOptionGoesToTheFirstBox_data()
{
    QTest::addColumn<bool>("flowGroup");
    QTest::addColumn<int>("option");
    QTest::addColumn<int>("box");
    QTest::newRow("method 1: bottom width") << false << 1 << 5;
    QTest::newRow("method 2: swale length") << false << 2 << 4;
    QTest::newRow("method 4: bottom width") << false << 4 << 5;
    QTest::newRow("hydrograph: drainage area") << true << 1 << 10;
    QTest::newRow("flow rate: channel flow rate") << true << 2 << 15;
}

void tst_SolutionModes::enterOnAnOptionGoesToTheFirstBox()
{
    QFETCH(bool, flowGroup);
    QFETCH(int, option);
    QFETCH(int, box);
    showActive();
    OptionGroup *group = flowGroup ? m_window->inputPage()->channelFlowGroup()
                                   : m_window->inputPage()->solutionMethodGroup();
    group->option(option)->click();
    group->option(option)->setFocus();
    QTest::keyClick(group->option(option), Qt::Key_Return);
    QCOMPARE(QApplication::focusWidget(), m_window->txtInput(box)->editor());
}

void tst_SolutionModes::smallWindowScrollsToTheFocusedBox()
{
    showActive();
    m_window->resize(520, 360);
    QApplication::processEvents();
    ScrollingPage *page = m_window->page(0);
    QVERIFY(page->vscScrollWindow()->isVisible());
    QVERIFY(page->hscScrollWindow()->isVisible());
    QVERIFY(page->picScrollButton()->isVisible());
    QCOMPARE(page->vscScrollWindow()->maximum(),
             m_window->inputPage()->height() - page->visibleHeight());

    // Down the page with the keyboard to the last box: it sits at the viewport's bottom edge.
    tvrEditBox *last = m_window->txtInput(23);
    last->setFocus();
    const int bottom = last->mapTo(page, QPoint(0, last->height())).y();
    QCOMPARE(bottom, page->visibleHeight());
    // Back up to the job name: at the top edge.
    QTest::keyClick(m_window->txtInput(23)->editor(), Qt::Key_Down);
    QCOMPARE(QApplication::focusWidget(), m_window->txtInput(1)->editor());
    QCOMPARE(m_window->txtInput(1)->mapTo(page, QPoint(0, 0)).y(), 0);
    QCOMPARE(page->vscScrollWindow()->value(), m_window->txtInput(1)->y());
}

// Until the panels were sized to a tab with room in it, switching tabs shows no panel; the
// first resize with room shows the current tab's panel.
void tst_SolutionModes::panelsWaitForRoomInTheTab()
{
    QTabWidget *tabs = m_window->tabs();
    showActive();
    for (int tab = 0; tab < 3; ++tab)
        QVERIFY(m_window->isPanelShown(tab));
    QVERIFY(tabs->widget(0)->isVisible());

    m_window->fitPanelsToTabArea(QSize(300, 0));
    QVERIFY(!m_window->isPanelShown(1));
    QVERIFY(!tabs->widget(0)->isVisible());
    tabs->setCurrentIndex(1);
    QVERIFY(!tabs->widget(1)->isVisible());

    m_window->fitPanelsToTabArea(QSize(300, 200));
    QVERIFY(tabs->widget(1)->isVisible());
    QVERIFY(!tabs->widget(0)->isVisible());
    tabs->setCurrentIndex(2);
    QVERIFY(tabs->widget(2)->isVisible());
    QVERIFY(!tabs->widget(1)->isVisible());

    // A real resize of the window gives the panels the room of the tab again.
    m_window->fitPanelsToTabArea(QSize(0, 0));
    QVERIFY(!tabs->widget(2)->isVisible());
    m_window->resize(500, 400);
    QTRY_VERIFY(m_window->isPanelShown(0));
    QVERIFY(tabs->widget(2)->isVisible());
}

void tst_SolutionModes::resultsOpenAtTheirTopWhileInputKeepsItsPlace()
{
    showActive();
    m_window->resize(520, 360);
    QApplication::processEvents();
    ScrollingPage *input = m_window->page(0);
    ScrollingPage *results = m_window->page(1);
    input->vscScrollWindow()->setValue(100);
    results->vscScrollWindow()->setValue(100);
    choose(2, 1); // a relayout of both pages
    QCOMPARE(input->vscScrollWindow()->value(), 100);
    QCOMPARE(m_window->inputPage()->y(), -100);
    QCOMPARE(results->vscScrollWindow()->value(), 0);
    QCOMPARE(m_window->resultsPage()->pos(), QPoint(0, 0));
}

void tst_SolutionModes::helpImageMenusTickAndStoreTheSize()
{
    const MainMenus &menus = m_window->menus();
    auto ticks = [](const std::array<QAction *, 5> &entries) {
        QString marks;
        for (int i = 1; i <= 4; ++i)
            marks += entries[static_cast<size_t>(i)]->isChecked() ? QLatin1Char('x')
                                                                  : QLatin1Char('.');
        return marks;
    };
    // Sizes 3 and 4 have no image in this program folder.
    QVERIFY(!menus.mnuHelp_Image_Size[3]->isEnabled());
    QVERIFY(!menus.mnuHelpImage_Image_Size[4]->isEnabled());

    menus.mnuHelp_Image_Size[1]->trigger();
    QCOMPARE(ticks(menus.mnuHelp_Image_Size), QStringLiteral("x..."));
    QCOMPARE(ticks(menus.mnuHelpImage_Image_Size), QStringLiteral("x..."));
    QCOMPARE(ReadDefHelpImage(m_folders.settingsFolder), 1);

    menus.mnuHelpImage_Image_Size[2]->trigger();
    QCOMPARE(ticks(menus.mnuHelp_Image_Size), QStringLiteral(".x.."));
    QCOMPARE(ticks(menus.mnuHelpImage_Image_Size), QStringLiteral(".x.."));
    QCOMPARE(ReadDefHelpImage(m_folders.settingsFolder), 2);

    // The next start opens with the stored size.
    m_window = std::make_unique<frmMain>(m_prompts, m_folders);
    QVERIFY(m_window->menus().mnuHelp_Image_Size[2]->isChecked());
}

QTEST_MAIN(tst_SolutionModes)
#include "tst_SolutionModes.moc"
