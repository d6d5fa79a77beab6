#include "PdfProbe.h"
#include "PrintRoutine.h"
#include "Fixtures.h"
#include "RecordingPrompts.h"
#include "ReportPreviewDialog.h"

#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

class tst_ReportCommands : public QObject
{
    Q_OBJECT

private slots:
    void previewShowsThePagesThatPrint_data();
    void previewShowsThePagesThatPrint();
    void previewExportsThroughTheExportCommand();
    void exampleIsNamedInTheReport();
};

// The preview lays the report out on the paper of Page Setup: as many pages as the PDF of the
// same report has, portrait and landscape, short and long rating curves.
void tst_ReportCommands::previewShowsThePagesThatPrint_data()
{
    QTest::addColumn<int>("ratingRows");
    QTest::addColumn<bool>("landscape");
    QTest::addColumn<int>("leastPages");
    QTest::newRow("short curve, portrait") << 5 << false << 1;
    QTest::newRow("long curve, portrait") << 120 << false << 3;
    QTest::newRow("long curve, landscape") << 120 << true << 4;
}

void tst_ReportCommands::previewShowsThePagesThatPrint()
{
    QFETCH(int, ratingRows);
    QFETCH(bool, landscape);
    QFETCH(int, leastPages);
    QTemporaryDir folder;
    SwaleProject project = calculatedProject(3);
    setLongRatingCurve(project, ratingRows);
    ReportPageSetup setup;
    setup.orientation = landscape ? QPageLayout::Landscape : QPageLayout::Portrait;

    // Page Setup's choice reaches the preview through the routine, as in the window.
    RecordingPrompts prompts;
    prompts.answerPageSetup(setup);
    prompts.answerPreview();
    PrintRoutine routine(prompts, folder.path() + QLatin1Char('/'));
    QVERIFY(routine.pageSetup());
    const QString file = QStringLiteral("/jobs/a.swl");
    QCOMPARE(routine.printPreview(project, file, folder.path()), QString());
    const auto previews = prompts.recordsOf(RecordingPrompts::Kind::Preview);
    QCOMPARE(previews.size(), 1);
    const int previewPages = previews.front().pages;

    const QString pdf = folder.filePath(QStringLiteral("report.pdf"));
    QVERIFY(writeReportPdf(pdf, project, file, routine.setup(), routine.currentMargins()));
    const PdfProbe probe(pdf);
    QVERIFY2(probe.isValid(), qPrintable(probe.errorString()));
    QCOMPARE(previewPages, probe.pageCount());
    QVERIFY2(previewPages >= leastPages, qPrintable(QString::number(previewPages)));
}

// Export PDF from the preview runs the Export PDF command: its dialog, its file.
void tst_ReportCommands::previewExportsThroughTheExportCommand()
{
    QTemporaryDir folder;
    RecordingPrompts prompts;
    const QString target = folder.filePath(QStringLiteral("from preview.pdf"));
    prompts.answerPreview([](ReportPreviewDialog &dialog) {
        dialog.findChild<QPushButton *>(QStringLiteral("previewExportPdf"))->click();
    });
    prompts.answerSave(target);
    PrintRoutine routine(prompts, folder.path() + QLatin1Char('/'));
    QCOMPARE(routine.printPreview(calculatedProject(1), QString(), folder.path()), target);
    const auto saves = prompts.recordsOf(RecordingPrompts::Kind::SaveDialog);
    QCOMPARE(saves.size(), 1);
    QCOMPARE(saves.front().request.initialFolder + saves.front().request.fileName,
             folder.filePath(QStringLiteral("Swale report.pdf")));
    QVERIFY(PdfProbe(target).pageCount() >= 1);
}

void tst_ReportCommands::exampleIsNamedInTheReport()
{
    const ReportContent content
            = buildReportContent(calculatedProject(1),
                                 ReportSource::example(QStringLiteral(
                                         "/x/Examples/Roadside swale - required length.swl")));
    QCOMPARE(content.titleFields.back().caption, QStringLiteral("Project File"));
    QCOMPARE(content.titleFields.back().value,
             QStringLiteral("Example: Roadside swale - required length"));
}

QTEST_MAIN(tst_ReportCommands)
#include "tst_ReportCommands.moc"
