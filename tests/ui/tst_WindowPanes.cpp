// The panels and windows beside the pages: the export of a channel drawing, how the checks mark a
// failing value, the help image and its sizes, and the Design Explorer (a value it puts into an
// input box changes the document as typing does, a sweep runs off the window's thread and exports
// its table, a range it cannot sweep is refused).
#include "ChannelPane.h"
#include "ChecksPanel.h"
#include "DesignExplorer.h"
#include "Files.h"
#include "HelpImagePanel.h"
#include "MainWindowSuite.h"
#include "SettingsFiles.h"
#include "Sweep.h"
#include "ctrlPictureViewer.h"
#include "tvrEditBox.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTableWidget>
#include <QTest>

namespace {

// Widths of the test help images of sizes 1 to 3; size 4 names a file that does not exist.
constexpr int kWidths[] = { 0, 40, 60, 80 };

QString menuTicks(const HelpImagePanel::SizeEntries &entries)
{
    QString ticks;
    for (int i = 1; i <= 4; ++i)
        ticks += entries[static_cast<size_t>(i)]->isChecked() ? QLatin1Char('x') : QLatin1Char('.');
    return ticks;
}

} // namespace

class tst_WindowPanes : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void drawingsExportAsPngSvgAndClipboard();
    void failingCheckIsMarkedInColourAndWords_data();
    void failingCheckIsMarkedInColourAndWords();
    void helpImageSizeIsStoredElseTheDefault_data();
    void helpImageSizeIsStoredElseTheDefault();
    void missingHelpImagesAreNotOfferedAndSayNothing();
    void rightClickAsksForThePopUpAndCopyTakesThePicture();
    void smallPicturesAreCentred();
    void solvedValueIsTypedIntoItsBox();
    void sweepRunsAndExportsItsTable();
    void refusesARangeItCannotSweep_data();
    void refusesARangeItCannotSweep();

private:
    // A new window on help images of sizes 1 to 3 (HelpImages.ini names a 4th that is missing).
    ctrlPictureViewer *windowWithHelpImages(bool withMediumImage = true);
    DesignExplorer &openExplorer();
    void setAxis(const QString &symbol, const QString &from, const QString &to, int points);

    WindowFixture m_fx;
};

void tst_WindowPanes::init()
{
    setUpWithExamples(m_fx);
}

void tst_WindowPanes::cleanup()
{
    m_fx.tearDown();
}

ctrlPictureViewer *tst_WindowPanes::windowWithHelpImages(bool withMediumImage)
{
    for (int size = 1; size <= 3; ++size) {
        QImage image(kWidths[size], kWidths[size] / 2, QImage::Format_RGB32);
        image.fill(Qt::darkCyan);
        if (size != 2 || withMediumImage)
            image.save(m_fx.programFile(QStringLiteral("help/%1.png").arg(size)), "PNG");
    }
    writeBytes(m_fx.programFile(QStringLiteral("HelpImages.ini")).toStdString(),
               "SMALL=help/1.png\r\nmedium=help/2.png\r\n Large =help/3.png\r\n"
               "LARGEST=help/missing.png\r\n");
    m_fx.makeWindow();
    return m_fx.window->findChild<ctrlPictureViewer *>();
}

DesignExplorer &tst_WindowPanes::openExplorer()
{
    openExample(m_fx, 1);
    m_fx.window->calculateButton()->click();
    m_fx.window->showDesignExplorer();
    return *m_fx.window->designExplorer();
}

void tst_WindowPanes::setAxis(const QString &symbol, const QString &from, const QString &to,
                              int points)
{
    DesignExplorer &explorer = *m_fx.window->designExplorer();
    auto *input = explorer.findChild<QComboBox *>(QStringLiteral("input1"));
    const int index = input->findText(QStringLiteral("[%1]").arg(symbol), Qt::MatchEndsWith);
    QVERIFY(index >= 0);
    input->setCurrentIndex(index);
    explorer.findChild<QLineEdit *>(QStringLiteral("from1"))->setText(from);
    explorer.findChild<QLineEdit *>(QStringLiteral("to1"))->setText(to);
    explorer.findChild<QSpinBox *>(QStringLiteral("points1"))->setValue(points);
}

void tst_WindowPanes::drawingsExportAsPngSvgAndClipboard()
{
    openExample(m_fx, 3);
    m_fx.window->calculateButton()->click();
    ChannelViewWidget *section = m_fx.window->channelPane()->viewWidget(ChannelView::CrossSection);
    const QString svgPath = m_fx.documentsFile(QStringLiteral("section.svg"));
    m_fx.prompts.answerSave(svgPath);
    QVERIFY(section->saveAs(QStringLiteral("svg")));
    QCOMPARE(m_fx.prompts.records().last().request.defaultSuffix, QStringLiteral("svg"));
    const std::string svg = readBytes(svgPath.toStdString());
    QVERIFY(svg.find("<svg") != std::string::npos);
    QVERIFY(svg.find("Wt = ") != std::string::npos);

    ChannelViewWidget *rating = m_fx.window->channelPane()->viewWidget(ChannelView::RatingCurves);
    const QString pngPath = m_fx.documentsFile(QStringLiteral("rating.png"));
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

void tst_WindowPanes::failingCheckIsMarkedInColourAndWords_data()
{
    QTest::addColumn<double>("velocityRatio");
    QTest::addColumn<double>("froude");
    QTest::addColumn<QStringList>("failing"); // checks marked as failing

    QTest::newRow("all within their limits") << 0.5 << 0.5 << QStringList();
    QTest::newRow("faster than the permissible velocity")
            << 1.4 << 0.5 << QStringList { QStringLiteral("Velocity ratio, [V/Vp]") };
    QTest::newRow("supercritical and eroding")
            << 2.0 << 1.5
            << QStringList { QStringLiteral("Flow regime"),
                             QStringLiteral("Velocity ratio, [V/Vp]") };
}

// A failing check's row is coloured, and the verdict under it says "Fails" in words; a passing
// check's row keeps the table's colours and its verdict does not say so.
void tst_WindowPanes::failingCheckIsMarkedInColourAndWords()
{
    QFETCH(double, velocityRatio);
    QFETCH(double, froude);
    QFETCH(QStringList, failing);
    HydraulicChecks checks;
    checks.criticalDepth = 0.5;
    checks.froude = froude;
    checks.regime = regimeOf(froude);
    checks.velocityRatio = velocityRatio;
    ChecksPanel panel;
    panel.showChecks(checks);

    const QTableWidget *table = panel.table();
    QStringList coloured;
    QStringList failedInWords;
    for (int row = 0; row < table->rowCount(); ++row) {
        const QTableWidgetItem *item = table->item(row, ChecksPanel::QuantityColumn);
        const bool isVerdict = table->columnSpan(row, ChecksPanel::QuantityColumn) > 1;
        if (!isVerdict && item->background().style() != Qt::NoBrush)
            coloured << item->text();
        if (isVerdict && item->text().contains(QStringLiteral("Fails:")))
            failedInWords << table->item(row - 1, ChecksPanel::QuantityColumn)->text();
    }
    QCOMPARE(coloured, failing);
    QCOMPARE(failedInWords, failing);
}

void tst_WindowPanes::helpImageSizeIsStoredElseTheDefault_data()
{
    QTest::addColumn<int>("stored"); // 0: none
    QTest::addColumn<bool>("popup");
    QTest::addColumn<int>("chosen"); // 0: none
    QTest::addColumn<QString>("ticks");
    QTest::newRow("none stored: the default") << 0 << false << 0 << QStringLiteral(".x..");
    QTest::newRow("Large stored") << 3 << false << 0 << QStringLiteral("..x.");
    QTest::newRow("Help menu, Small") << 0 << false << 1 << QStringLiteral("x...");
    QTest::newRow("pop-up, Large") << 0 << true << 3 << QStringLiteral("..x.");
}

// The help image starts at the stored size, else the default; either menu chooses a size, ticks
// it in both and stores it. Start-up reads the stored size but does not write it.
void tst_WindowPanes::helpImageSizeIsStoredElseTheDefault()
{
    QFETCH(int, stored);
    QFETCH(bool, popup);
    QFETCH(int, chosen);
    if (stored)
        QVERIFY(WriteDefHelpImage(m_fx.folders.settingsFolder, stored));
    ctrlPictureViewer *viewer = windowWithHelpImages();
    const MainMenus &menus = m_fx.window->menus();
    if (chosen)
        (popup ? menus.mnuHelpImage_Image_Size : menus.mnuHelp_Image_Size)[chosen]->trigger();
    const int shown = chosen ? chosen : stored ? stored : HelpImagePanel::kDefaultSize;
    QCOMPARE(viewer->picture().width(), kWidths[shown]);
    QTEST(menuTicks(menus.mnuHelp_Image_Size), "ticks");
    QTEST(menuTicks(menus.mnuHelpImage_Image_Size), "ticks");
    QFile file(m_fx.settingsFile(QLatin1String(kDefHelpImageFile)));
    QCOMPARE(file.open(QIODevice::ReadOnly), stored || chosen);
    if (file.isOpen())
        QCOMPARE(file.readAll().trimmed(), QByteArray::number(shown));
}

// A size whose image is missing is not offered, and showing it says nothing (any message would be
// an unscripted prompt).
void tst_WindowPanes::missingHelpImagesAreNotOfferedAndSayNothing()
{
    ctrlPictureViewer *viewer = windowWithHelpImages(false);
    const MainMenus &menus = m_fx.window->menus();
    QVERIFY(menus.mnuHelp_Image_Size[1]->isEnabled());
    QVERIFY(menus.mnuHelpImage_Image_Size[3]->isEnabled());
    QVERIFY(!menus.mnuHelp_Image_Size[4]->isEnabled());
    QVERIFY(!menus.mnuHelpImage_Image_Size[4]->isEnabled());
    QVERIFY(!viewer->hasPicture()); // the default size's image is missing
    m_fx.window->helpImage()->ShowHelpImage("");
    m_fx.window->helpImage()->ShowHelpImage("help/nothing-here.png");
    QVERIFY(!viewer->hasPicture());
    m_fx.window->helpImage()->cmd_HelpImageSize(1);
    QCOMPARE(viewer->picture().width(), kWidths[1]);
}

void tst_WindowPanes::rightClickAsksForThePopUpAndCopyTakesThePicture()
{
    ctrlPictureViewer *viewer = windowWithHelpImages();
    m_fx.window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_fx.window.get()));
    QSignalSpy asked(viewer, &ctrlPictureViewer::popupMenuRequested);
    QTest::mouseClick(viewer->viewport(), Qt::LeftButton);
    QCOMPARE(asked.count(), 0);
    QTest::mouseClick(viewer->viewport(), Qt::RightButton, {}, QPoint(30, 20));
    QCOMPARE(asked.count(), 1);
    QCOMPARE(asked.at(0).at(0).toPoint(), viewer->viewport()->mapToGlobal(QPoint(30, 20)));
    m_fx.window->menus().mnuHelpImage->hide();

    QApplication::clipboard()->clear();
    m_fx.window->menus().mnuHelpImage_Copy->trigger();
    const QImage copied = QApplication::clipboard()->image();
    QCOMPARE(copied.size(), viewer->picture().size());
    QCOMPARE(copied.pixelColor(5, 5), QColor(Qt::darkCyan));
}

void tst_WindowPanes::smallPicturesAreCentred()
{
    ctrlPictureViewer viewer;
    viewer.resize(200, 150);
    viewer.show();
    QVERIFY(QTest::qWaitForWindowExposed(&viewer));
    QPixmap small(40, 20);
    small.fill(Qt::blue);
    viewer.setPicture(small);
    QCOMPARE(viewer.horizontalScrollBar()->maximum(), 0);
    const QRect shown = viewer.widget()->geometry();
    const QRect view = viewer.viewport()->rect();
    QVERIFY(qAbs(shown.center().x() - view.center().x()) <= 1);
    QVERIFY(qAbs(shown.center().y() - view.center().y()) <= 1);
}

void tst_WindowPanes::solvedValueIsTypedIntoItsBox()
{
    DesignExplorer &explorer = openExplorer();
    setAxis(QStringLiteral("B"), QStringLiteral("1"), QStringLiteral("12"), 50);
    auto *result = explorer.findChild<QComboBox *>(QStringLiteral("solveResult"));
    result->setCurrentIndex(result->findText(QStringLiteral("[L]"), Qt::MatchEndsWith));
    explorer.findChild<QLineEdit *>(QStringLiteral("target"))->setText(QStringLiteral("1200"));
    explorer.solve();
    QVERIFY(explorer.canPutSolvedValue());
    QVERIFY(m_fx.window->resultsShown());

    explorer.putSolvedValue();
    QVERIFY(!m_fx.window->resultsShown()); // the edit made the results stale
    m_fx.window->calculateButton()->click();
    const double length = resultNumber(m_fx.window->txtOutput(1)->text().toStdString());
    QVERIFY2(qAbs(length - 1200) < 1200 * 1e-5, qPrintable(m_fx.window->txtOutput(1)->text()));
}

void tst_WindowPanes::sweepRunsAndExportsItsTable()
{
    DesignExplorer &explorer = openExplorer();
    setAxis(QStringLiteral("B"), QStringLiteral("-1"), QStringLiteral("5"), 4);
    QSignalSpy finished(&explorer, &DesignExplorer::sweepFinished);
    QVERIFY(explorer.startSweep());
    QVERIFY(finished.wait(60000));
    QVERIFY(explorer.sweep()->complete);

    const QString path = m_fx.documentsFile(QStringLiteral("sweep"));
    m_fx.prompts.answerSave(path);
    QVERIFY(explorer.exportCsv());
    const QList<QByteArray> lines
            = QByteArray::fromStdString(readBytes(path.toStdString() + ".csv")).split('\n');
    QCOMPARE(lines.size(), 6); // header, four points, the empty rest after the last line end
    QVERIFY(lines[0].startsWith("\"Bottom width of channel, [B] (ft)\",status,"));
    QVERIFY(lines[1].startsWith("-1,invalid,"));
    QVERIFY(lines[1].endsWith(",Bottom width must be greater than or equal to zero."));
    QVERIFY(lines[2].startsWith("1,ok,"));
}

void tst_WindowPanes::refusesARangeItCannotSweep_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("message");
    QTest::newRow("not a number")
            << "wide"
            << "The range of Bottom width of channel, [B] must be two numbers.";
    QTest::newRow("empty range") << "5"
                                 << "The range of B must have two different ends.";
}

void tst_WindowPanes::refusesARangeItCannotSweep()
{
    QFETCH(QString, from);
    QFETCH(QString, message);
    DesignExplorer &explorer = openExplorer();
    setAxis(QStringLiteral("B"), from, QStringLiteral("5"), 10);
    m_fx.prompts.answerMessage();
    QVERIFY(!explorer.startSweep());
    QCOMPARE(m_fx.prompts.messages(), QStringList { message });
}

QTEST_MAIN(tst_WindowPanes)
#include "tst_WindowPanes.moc"
