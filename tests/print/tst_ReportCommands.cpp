#include "PdfProbe.h"
#include "PrintRoutine.h"
#include "ReportFixtures.h"
#include "ReportPreviewDialog.h"

#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <optional>

namespace {

// Scripted dialogs: a test that meets a dialog it did not script fails at once.
class ScriptedPrompts : public PrintPrompts
{
public:
    int ShowErrorMessage(const QString &message, int, const QString &) override
    {
        QTest::qFail(qPrintable(QStringLiteral("unexpected message: ") + message), __FILE__,
                     __LINE__);
        return 1;
    }
    bool askPrinter(QPrinter &) override
    {
        QTest::qFail("unscripted print dialog", __FILE__, __LINE__);
        return false;
    }
    bool askPageSetup(ReportPageSetup &setup, const PageMargins &) override
    {
        if (!pageSetupAnswer)
            QTest::qFail("unscripted page setup", __FILE__, __LINE__);
        setup = pageSetupAnswer.value_or(setup);
        return pageSetupAnswer.has_value();
    }
    QString askPdfFileName(const QString &suggestedPath) override
    {
        suggested = suggestedPath;
        if (!pdfAnswer)
            QTest::qFail("unscripted PDF file dialog", __FILE__, __LINE__);
        return pdfAnswer.value_or(QString());
    }
    // No printer at all: the preview must not need one.
    bool hasPrinter() const override { return false; }
    void showPreview(ReportPreviewDialog &dialog) override
    {
        ++previews;
        previewPages = dialog.pageCount();
        if (inPreview)
            inPreview(dialog);
    }

    std::optional<ReportPageSetup> pageSetupAnswer;
    std::optional<QString> pdfAnswer;
    QString suggested;
    int previews = 0;
    int previewPages = 0;
    std::function<void(ReportPreviewDialog &)> inPreview;
};

} // namespace

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
    ScriptedPrompts prompts;
    prompts.pageSetupAnswer = setup;
    PrintRoutine routine(prompts, folder.path() + QLatin1Char('/'));
    QVERIFY(routine.pageSetup());
    const QString file = QStringLiteral("/jobs/a.swl");
    QCOMPARE(routine.printPreview(project, file, folder.path()), QString());
    QCOMPARE(prompts.previews, 1);

    const QString pdf = folder.filePath(QStringLiteral("report.pdf"));
    QVERIFY(writeReportPdf(pdf, project, file, routine.setup(), routine.currentMargins()));
    const PdfProbe probe(pdf);
    QVERIFY2(probe.isValid(), qPrintable(probe.errorString()));
    QCOMPARE(prompts.previewPages, probe.pageCount());
    QVERIFY2(prompts.previewPages >= leastPages, qPrintable(QString::number(prompts.previewPages)));
}

// Export PDF from the preview runs the Export PDF command: its dialog, its file.
void tst_ReportCommands::previewExportsThroughTheExportCommand()
{
    QTemporaryDir folder;
    ScriptedPrompts prompts;
    const QString target = folder.filePath(QStringLiteral("from preview.pdf"));
    prompts.pdfAnswer = target;
    prompts.inPreview = [](ReportPreviewDialog &dialog) {
        dialog.findChild<QPushButton *>(QStringLiteral("previewExportPdf"))->click();
    };
    PrintRoutine routine(prompts, folder.path() + QLatin1Char('/'));
    QCOMPARE(routine.printPreview(calculatedProject(1), QString(), folder.path()), target);
    QCOMPARE(prompts.suggested, folder.filePath(QStringLiteral("Swale report.pdf")));
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
