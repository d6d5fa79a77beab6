// The channel pane of the main window: when its drawings update, the View menu, its place kept
// between runs, and the export of a drawing through the window's prompts.
#include "ChannelPane.h"
#include "GlobalData.h"
#include "WindowFixture.h"
#include "frmMain.h"
#include "tvrEditBox.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

class tst_ChannelPane : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void drawingsFollowCalculateEditAndNew();
    void failedCalculateShowsTheReason();
    void viewMenuSitsBetweenFileAndHelpAndTogglesTheDock();
    void paneVisibilityIsKeptBetweenRuns();
    void drawingsExportAsPngSvgAndClipboard();

private:
    void calculateExample();
    QDockWidget *dock() const;
    QByteArray windowState() const;

    WindowFixture m_fx;
};

void tst_ChannelPane::init()
{
    m_fx.setUp();
}

void tst_ChannelPane::cleanup()
{
    m_fx.tearDown();
}

void tst_ChannelPane::calculateExample()
{
    QVERIFY(m_fx.window->OpenDataFile(
            QStringLiteral(SWALE_EXAMPLES_DIR "/Median ditch - inlet interception.swl"),
            OpenExample));
    m_fx.window->calculateButton()->click();
    QCOMPARE(m_fx.window->channelPane()->state(), ChannelPane::State::Current);
}

QDockWidget *tst_ChannelPane::dock() const
{
    return m_fx.window->findChild<QDockWidget *>(QStringLiteral("channelDock"));
}

QByteArray tst_ChannelPane::windowState() const
{
    QFile file(QString::fromStdString(m_fx.folders.settingsFolder)
               + QStringLiteral("WindowState.ini"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void tst_ChannelPane::drawingsFollowCalculateEditAndNew()
{
    ChannelPane *pane = m_fx.window->channelPane();
    QCOMPARE(pane->state(), ChannelPane::State::Empty);
    QVERIFY(!pane->views());
    calculateExample();
    QVERIFY(pane->views());
    // The drawing is of the depth shown (to the seven digits of the result box).
    QVERIFY(qAbs(pane->views()->section.d - m_fx.window->txtOutput(7)->text().toDouble()) < 1e-6);

    // The job name does not enter the calculation; the bottom width does.
    QTest::keyClick(m_fx.window->txtInput(1)->editor(), Qt::Key_X);
    QCOMPARE(pane->state(), ChannelPane::State::Current);
    QTest::keyClick(m_fx.window->txtInput(5)->editor(), Qt::Key_9);
    QCOMPARE(pane->state(), ChannelPane::State::Stale);
    QVERIFY(pane->views()); // kept, greyed
    QCOMPARE(pane->message(), QString::fromUtf8(kChannelPaneStaleText));

    m_fx.prompts.answerMessage(MessageAnswer::No); // do not save the changes
    m_fx.window->newCommand();
    QCOMPARE(pane->state(), ChannelPane::State::Empty);
    QVERIFY(!pane->views());
}

void tst_ChannelPane::failedCalculateShowsTheReason()
{
    calculateExample();
    m_fx.window->txtInput(5)->setText(QStringLiteral("wide"));
    m_fx.prompts.answerMessage();
    m_fx.window->calculateButton()->click();
    ChannelPane *pane = m_fx.window->channelPane();
    QCOMPARE(pane->state(), ChannelPane::State::Failed);
    QVERIFY(!pane->views());
    QVERIFY2(pane->message().contains(m_fx.prompts.messages().last()), qPrintable(pane->message()));
}

void tst_ChannelPane::viewMenuSitsBetweenFileAndHelpAndTogglesTheDock()
{
    QStringList titles;
    for (QAction *menu : m_fx.window->menuBar()->actions())
        titles << menu->text();
    QCOMPARE(titles.mid(0, 3),
             QStringList({ QStringLiteral("&File"), QStringLiteral("&View"),
                           QStringLiteral("&Help") }));
    QAction *toggle = m_fx.window->menus().mnuView_ChannelPane;
    QCOMPARE(toggle->text(), QStringLiteral("&Channel Pane"));
    QCOMPARE(dock()->windowTitle(), QStringLiteral("Channel"));
    QCOMPARE(dock()->widget(), m_fx.window->channelPane());

    m_fx.window->show();
    toggle->setChecked(true);
    QVERIFY(dock()->isVisible());
    toggle->setChecked(false);
    QVERIFY(!dock()->isVisible());
    dock()->show(); // as from its own title bar: the menu follows
    QVERIFY(toggle->isChecked());
}

void tst_ChannelPane::paneVisibilityIsKeptBetweenRuns()
{
    // The designed window (960 pixels) leaves no room for the pane: hidden at first.
    m_fx.window->show();
    QVERIFY(dock()->isHidden());
    QVERIFY(!m_fx.window->menus().mnuView_ChannelPane->isChecked());
    m_fx.window->menus().mnuView_ChannelPane->setChecked(true);
    QVERIFY(m_fx.window->close());
    QVERIFY2(windowState().contains("ChannelPane=1\r\n"), windowState().constData());

    m_fx.makeWindow();
    m_fx.window->show();
    QVERIFY(dock()->isVisible());
    QVERIFY(m_fx.window->menus().mnuView_ChannelPane->isChecked());
    m_fx.window->menus().mnuView_ChannelPane->setChecked(false);
    QVERIFY(m_fx.window->close());
    QVERIFY(windowState().contains("ChannelPane=0\r\n"));
    QVERIFY(windowState().startsWith("State=0\r\nTop=")); // the window's own keys as before

    m_fx.makeWindow();
    m_fx.window->show();
    QVERIFY(dock()->isHidden());
}

void tst_ChannelPane::drawingsExportAsPngSvgAndClipboard()
{
    calculateExample();
    ChannelViewWidget *section = m_fx.window->channelPane()->viewWidget(ChannelView::CrossSection);
    const QString svgPath = QString::fromStdString(m_fx.folders.documentsFolder) + "section.svg";
    m_fx.prompts.answerSave(svgPath);
    QVERIFY(section->saveAs(QStringLiteral("svg")));
    QCOMPARE(m_fx.prompts.records().last().request.defaultSuffix, QStringLiteral("svg"));
    QFile svg(svgPath);
    QVERIFY(svg.open(QIODevice::ReadOnly));
    const QByteArray content = svg.readAll();
    QVERIFY(content.contains("<svg"));
    QVERIFY(content.contains("Wt = "));

    ChannelViewWidget *rating = m_fx.window->channelPane()->viewWidget(ChannelView::RatingCurves);
    const QString pngPath = QString::fromStdString(m_fx.folders.documentsFolder) + "rating.png";
    m_fx.prompts.answerSave(pngPath);
    QVERIFY(rating->saveAs(QStringLiteral("png")));
    QCOMPARE(QImage(pngPath).size(), QSize(800, 500));

    m_fx.prompts.answerSave(QString()); // cancelled
    QVERIFY(!rating->saveAs(QStringLiteral("png")));

    rating->resize(400, 300);
    QApplication::clipboard()->clear();
    rating->copyToClipboard();
    QCOMPARE(QApplication::clipboard()->image().size(), QSize(400, 300));
}

QTEST_MAIN(tst_ChannelPane)
#include "tst_ChannelPane.moc"
