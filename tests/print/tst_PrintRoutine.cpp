// The print commands as the window runs them: Print, Export PDF, Page Setup and Print Preview,
// with their dialogs and messages, the margins and paper they print on and the names they give
// the document. Which parts the report holds and where they go on a page is the layout's test.
#include "PrintRoutine.h"

#include "Files.h"
#include "Fixtures.h"
#include "PdfProbe.h"
#include "RecordingPrompts.h"
#include "ReportPreviewDialog.h"
#include "Sweep.h"
#include "SweepReport.h"

#include <QDoubleSpinBox>
#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

namespace {

// Left and right edges, in points, of the text on page 1.
std::pair<double, double> textEdges(const QString &pdfPath)
{
    const PdfProbe pdf(pdfPath);
    double left = 1e9, right = 0;
    for (const PdfWord &word : pdf.words()) {
        if (word.page == 1) {
            left = std::min(left, word.box.left());
            right = std::max(right, word.box.right());
        }
    }
    return { left, right };
}

} // namespace

class tst_PrintRoutine : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void printCommand_data();
    void printCommand();
    void exportWritesTheWholeReport();
    void marginsAndPaperOfEachExport();
    void pageSetupDialogKeepsFileMarginsUnlessChanged();

private:
    std::unique_ptr<QTemporaryDir> m_programFolder;
    std::unique_ptr<RecordingPrompts> m_prompts;
    std::unique_ptr<PrintRoutine> m_routine;
    SwaleProject m_project;
    std::string marginsFile() const
    {
        return (m_programFolder->path() + "/Margins.ini").toStdString();
    }
};

void tst_PrintRoutine::init()
{
    m_programFolder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_programFolder->isValid());
    m_prompts = std::make_unique<RecordingPrompts>();
    m_routine = std::make_unique<PrintRoutine>(*m_prompts, m_programFolder->path());
    m_project = calculatedProject(1);
}

void tst_PrintRoutine::cleanup()
{
    QCOMPARE(m_prompts->pendingAnswers(), 0);
}

// Print goes to the printer chosen in the print dialog, which opens on the chosen paper, with
// the margins of Margins.ini. A cancelled dialog prints nothing and says nothing; a missing
// printer and one that cannot be opened say so.
void tst_PrintRoutine::printCommand_data()
{
    QTest::addColumn<bool>("installed");
    QTest::addColumn<QString>("printTo"); // "": the print dialog is cancelled
    QTest::newRow("printed") << true << "printed.pdf";
    QTest::newRow("no printer installed") << false << "";
    QTest::newRow("print dialog cancelled") << true << "";
    QTest::newRow("printer cannot be opened") << true << "no/p.pdf";
}

void tst_PrintRoutine::printCommand()
{
    QFETCH(bool, installed);
    QFETCH(QString, printTo);
    const bool accepted = !printTo.isEmpty();
    writeBytes(marginsFile(), "1\r\n1000\r\n500\r\n500\r\n500\r\n");
    const QString target = m_programFolder->filePath(printTo);
    m_prompts->setPrinterInstalled(installed);
    if (installed)
        m_prompts->answerPrinter(accepted, target);
    const bool reported = !installed || printTo.contains(QLatin1Char('/'));
    if (reported && installed)
        QTest::ignoreMessage(QtWarningMsg, "QPainter::begin(): Returned false");
    if (reported)
        m_prompts->answerMessage();
    const bool printed = accepted && !reported;
    QCOMPARE(m_routine->printReport(m_project, QString()), printed);
    const auto dialogs = m_prompts->recordsOf(RecordingPrompts::Kind::PrintDialog);
    QCOMPARE(dialogs.size(), installed ? 1 : 0);
    if (installed)
        QCOMPARE(dialogs[0].paper, QPageSize::Letter);
    const auto messages = m_prompts->recordsOf(RecordingPrompts::Kind::Message);
    QCOMPARE(messages.size(), reported ? 1 : 0);
    if (reported) {
        QCOMPARE(messages[0].message,
                 QStringLiteral("Unable to establish connection with printer."));
        QCOMPARE(messages[0].title, QStringLiteral("Error"));
        QCOMPARE(messages[0].style, 48);
    }
    if (printed)
        QVERIFY(qAbs(textEdges(target).first - 72) < 1.5); // Margins.ini: 1 inch left
}

// Export PDF, end to end with real fonts. A cancelled dialog writes nothing and says nothing; the
// export from the Print Preview runs the same command and writes, under the name suggested, the
// document's report: every section (the inputs, the results, the hydraulic checks and the design
// explorer's page the window adds), then the page of channel views, in Arial or its metric twin,
// every word inside the margins with the real metrics and every page numbered. A place that
// cannot be written is reported.
void tst_PrintRoutine::exportWritesTheWholeReport()
{
    m_project.inputText[1] = "Interchange of State Route 9 and County Road 12, northbound off-ramp "
                             "swale between stations 104+50 and 131+75, with the median ditch "
                             "tie-in at the ditch-bottom inlet DBI-7 and the outfall to pond 3";
    m_project.inputText[17]
            = "Turf reinforcement mat (TRM) over compacted clay liner, seeded with Bermuda grass";
    const SweepAxis width { inputBoxOfSymbol("B"), 2, 6, 5 };
    const ReportSection explorer = sweepReportSection(runSweep(m_project, { width }), 0, nullptr);
    m_routine->setExtraSections({ explorer });
    const QString path = m_programFolder->filePath(QStringLiteral("out.pdf"));
    const QString unwritable = m_programFolder->filePath(QStringLiteral("missing/out.pdf"));
    m_prompts->answerSave(QString());
    m_prompts->answerPreview([](ReportPreviewDialog &dialog) {
        dialog.findChild<QPushButton *>(QStringLiteral("previewExportPdf"))->click();
    });
    m_prompts->answerSave(path);
    m_prompts->answerSave(unwritable);
    m_prompts->answerMessage();
    const QString source = QStringLiteral("/jobs/route9.swl");
    QVERIFY(!m_routine->exportPdf(m_project, QString(), m_programFolder->path())); // untitled
    QCOMPARE(m_routine->printPreview(m_project, source, QString()), path);
    const auto saves = m_prompts->recordsOf(RecordingPrompts::Kind::SaveDialog);
    QCOMPARE(saves[0].request.initialFolder + saves[0].request.fileName,
             m_programFolder->filePath(QStringLiteral("Swale report.pdf")));
    QCOMPARE(saves[1].request.initialFolder + saves[1].request.fileName,
             QStringLiteral("/jobs/route9.pdf"));
    QVERIFY(m_prompts->messages().isEmpty());

    const PdfProbe pdf(path);
    QVERIFY2(pdf.isValid(), qPrintable(pdf.errorString()));
    const QString text = pdf.text();
    QVERIFY(text.contains(QStringLiteral("Project File /jobs/route9.swl")));
    QVERIFY(text.contains(QStringLiteral("the outfall to pond 3")));
    QVERIFY(text.contains(QStringLiteral("seeded with Bermuda grass")));
    // pdftotext may drop the blanks around "=", so phrases are compared without blanks.
    const QString unspaced = QString(text).remove(QLatin1Char(' '));
    ReportContent content = buildReportContent(m_project, source);
    QCOMPARE(content.sections.size(), size_t(3));
    content.sections.push_back(explorer);
    for (const ReportSection &section : content.sections) {
        QVERIFY2(text.contains(section.heading.simplified()), qPrintable(section.heading));
        for (const ReportGroup &group : section.groups) {
            QVERIFY2(text.contains(group.heading), qPrintable(group.heading));
            for (const ReportField &field : group.fields) {
                const QString line = field.caption + field.value + field.unit;
                if (field.value.size() < 40) // the two long texts wrap; checked above
                    QVERIFY2(unspaced.contains(QString(line).remove(QLatin1Char(' '))),
                             qPrintable(line));
            }
        }
    }
    QVERIFY(pdf.pageText(pdf.pageCount()).contains(QStringLiteral("Channel views")));
    for (const PdfWord &word : pdf.words()) { // no Margins.ini: half an inch
        QVERIFY2(word.box.left() >= 36 - 1.0 && word.box.right() <= 612 - 36 + 1.0,
                 qPrintable(word.text));
    }
    for (int page = 1; page <= pdf.pageCount(); ++page) {
        const QString number = QStringLiteral("Page %1 of %2").arg(page).arg(pdf.pageCount());
        QVERIFY2(pdf.pageText(page).contains(number), qPrintable(number));
    }
    // "Arial" is Liberation Sans, its metric twin, where Arial is not installed.
    const std::string bytes = readBytes(path.toStdString());
    QVERIFY(bytes.find("LiberationSans") != std::string::npos
            || bytes.find("Arial") != std::string::npos);

    QVERIFY(!m_routine->exportPdf(m_project, source, QString()));
    QCOMPARE(m_prompts->messages(),
             QStringList { QStringLiteral("Error writing to file:\r") + unwritable });
    QVERIFY(!QFile::exists(unwritable));
}

// Margins.ini is read again at each export; margins and paper chosen in Page Setup replace it,
// and the Print Preview shows the report on them: as many pages as the PDF has.
void tst_PrintRoutine::marginsAndPaperOfEachExport()
{
    m_project = calculatedProject(3);
    setLongRatingCurve(m_project, 120);
    const QString path = m_programFolder->filePath(QStringLiteral("out.pdf"));
    m_prompts->answerSave(path);
    m_prompts->answerSave(path);

    QVERIFY(m_routine->exportPdf(m_project, QString(), QString())); // no file: half an inch
    QVERIFY(qAbs(textEdges(path).first - 36) < 1.5);

    // Left 1.5 inch, right 1 inch (the file's fourth line).
    writeBytes(marginsFile(), "1\r\n1500\r\n500\r\n1000\r\n500\r\n");
    QVERIFY(m_routine->exportPdf(m_project, QString(), QString()));
    QVERIFY(qAbs(textEdges(path).first - 108) < 1.5);
    QVERIFY(qAbs(textEdges(path).second - (612 - 72)) < 1.5);

    ReportPageSetup chosen;
    chosen.marginsChosen = true;
    chosen.margins.Margin1 = 0.25f;
    chosen.orientation = QPageLayout::Landscape;
    chosen.pageSize = QPageSize(QPageSize::A4);
    m_prompts->answerPageSetup(chosen);
    m_prompts->answerSave(path);
    QVERIFY(m_routine->pageSetup());
    // The dialog was offered the file's margins.
    QCOMPARE(m_prompts->recordsOf(RecordingPrompts::Kind::PageSetup)[0].fileMargins.Margin1, 1.5f);
    QVERIFY(m_routine->exportPdf(m_project, QString(), QString()));
    QVERIFY(qAbs(textEdges(path).first - 18) < 1.5);
    const PdfProbe pdf(path);
    QVERIFY(qAbs(pdf.pageSize(1).width() - 841.89) < 1);
    QVERIFY(qAbs(pdf.pageSize(1).height() - 595.28) < 1);
    m_prompts->answerPreview();
    QCOMPARE(m_routine->printPreview(m_project, QString(), QString()), QString());
    QCOMPARE(m_prompts->recordsOf(RecordingPrompts::Kind::Preview)[0].pages, pdf.pageCount());
    QVERIFY2(pdf.pageCount() >= 4, qPrintable(QString::number(pdf.pageCount())));
}

void tst_PrintRoutine::pageSetupDialogKeepsFileMarginsUnlessChanged()
{
    PageMargins file;
    file.ScaleCode = kScaleMillimetres;
    file.Margin1 = 20.0f;
    file.Margin3 = 10.0f;
    PageSetupDialog dialog(ReportPageSetup(), file);
    QVERIFY(!dialog.setup().marginsChosen);

    const QList<QDoubleSpinBox *> boxes = dialog.findChildren<QDoubleSpinBox *>();
    QCOMPARE(boxes.size(), 4);
    boxes[0]->setValue(30.0); // left
    dialog.setOrientation(QPageLayout::Landscape);
    dialog.setPageSize(QPageSize::A4);
    const ReportPageSetup changed = dialog.setup();
    QCOMPARE(changed.orientation, QPageLayout::Landscape);
    QCOMPARE(changed.pageSize.id(), QPageSize::A4);
    QVERIFY(changed.marginsChosen);
    QCOMPARE(changed.margins.Margin1, 30.0f);
    QCOMPARE(changed.margins.Margin3, 10.0f);

    const QList<QPushButton *> buttons = dialog.findChildren<QPushButton *>();
    const auto defaults = std::find_if(buttons.begin(), buttons.end(), [](QPushButton *button) {
        return button->text() == QStringLiteral("&Default Margins");
    });
    QVERIFY(defaults != buttons.end());
    QTest::mouseClick(*defaults, Qt::LeftButton);
    QVERIFY(!dialog.setup().marginsChosen);
    QCOMPARE(boxes[0]->value(), 20.0);
}

int runPrintRoutineTests(int argc, char **argv)
{
    tst_PrintRoutine test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_PrintRoutine.moc"
