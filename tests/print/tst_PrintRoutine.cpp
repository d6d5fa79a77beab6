#include "PrintRoutine.h"

#include "Fixtures.h"
#include "PdfProbe.h"
#include "RecordingPrompts.h"

#include <QDoubleSpinBox>
#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

namespace {

void writeMarginsFile(const QString &folder, const QByteArray &lines)
{
    QFile file(folder + QStringLiteral("/Margins.ini"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(lines);
}

// Left edge, in points, of the leftmost word on page 1.
double leftmostWord(const QString &pdfPath)
{
    const PdfProbe pdf(pdfPath);
    double left = 1e9;
    for (const PdfWord &word : pdf.words())
        left = word.page == 1 ? std::min(left, word.box.left()) : left;
    return left;
}

} // namespace

class tst_PrintRoutine : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void printerFaultsAreReported_data();
    void printerFaultsAreReported();
    void cancelledPrintDialogPrintsNothing();
    void printGoesToTheChosenPrinter();
    void exportWritesTheReport();
    void exportToAnUnwritablePlaceIsReported();
    void marginsFileIsReadAtEachExport();
    void pageSetupChoicesApplyToTheNextExport();
    void pageSetupDialogKeepsFileMarginsUnlessChanged();

private:
    std::unique_ptr<QTemporaryDir> m_programFolder;
    std::unique_ptr<RecordingPrompts> m_prompts;
    std::unique_ptr<PrintRoutine> m_routine;
    SwaleProject m_project;
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

void tst_PrintRoutine::printerFaultsAreReported_data()
{
    QTest::addColumn<bool>("installed");
    QTest::addColumn<int>("dialogs");
    QTest::newRow("no printer installed") << false << 0;
    QTest::newRow("printer cannot be opened") << true << 1;
}

void tst_PrintRoutine::printerFaultsAreReported()
{
    QFETCH(bool, installed);
    QFETCH(int, dialogs);
    m_prompts->setPrinterInstalled(installed);
    if (installed) {
        m_prompts->answerPrinter(true, m_programFolder->filePath(QStringLiteral("no/p.pdf")));
        QTest::ignoreMessage(QtWarningMsg, "QPainter::begin(): Returned false");
    }
    m_prompts->answerMessage();
    QVERIFY(!m_routine->printReport(m_project, QString()));
    QCOMPARE(m_prompts->recordsOf(RecordingPrompts::Kind::PrintDialog).size(), dialogs);
    const auto messages = m_prompts->recordsOf(RecordingPrompts::Kind::Message);
    QCOMPARE(messages.size(), 1);
    QCOMPARE(messages[0].message, QStringLiteral("Unable to establish connection with printer."));
    QCOMPARE(messages[0].title, QStringLiteral("Error"));
    QCOMPARE(messages[0].style, 48);
}

void tst_PrintRoutine::cancelledPrintDialogPrintsNothing()
{
    m_prompts->setPrinterInstalled(true);
    m_prompts->answerPrinter(false);
    QVERIFY(!m_routine->printReport(m_project, QString()));
    QVERIFY(m_prompts->messages().isEmpty());
}

void tst_PrintRoutine::printGoesToTheChosenPrinter()
{
    writeMarginsFile(m_programFolder->path(), "1\r\n1000\r\n500\r\n500\r\n500\r\n");
    m_prompts->setPrinterInstalled(true);
    const QString printed = m_programFolder->filePath(QStringLiteral("printed.pdf"));
    m_prompts->answerPrinter(true, printed);
    QVERIFY(m_routine->printReport(m_project, QStringLiteral("/jobs/route9.swl")));
    QVERIFY(m_prompts->messages().isEmpty());
    // The dialog opens on the chosen paper.
    QCOMPARE(m_prompts->recordsOf(RecordingPrompts::Kind::PrintDialog)[0].paper, QPageSize::Letter);

    const PdfProbe pdf(printed);
    QVERIFY2(pdf.isValid(), qPrintable(pdf.errorString()));
    QVERIFY(pdf.text().contains(QStringLiteral("II. RESULTS")));
    QVERIFY(qAbs(leftmostWord(printed) - 72) < 1.5); // Margins.ini: 1 inch left
}

// A cancelled dialog writes nothing and says nothing; the next export writes the report.
void tst_PrintRoutine::exportWritesTheReport()
{
    const QString path = m_programFolder->filePath(QStringLiteral("out.pdf"));
    m_prompts->answerSave(QString());
    m_prompts->answerSave(path);
    QVERIFY(!m_routine->exportPdf(m_project, QStringLiteral("/jobs/route9.swl"), QString()));
    QVERIFY(!QFile::exists(path));
    QVERIFY(m_routine->exportPdf(m_project, QStringLiteral("/jobs/route9.swl"), QString()));
    const FileDialogRequest request = m_prompts->records()[1].request;
    QCOMPARE(request.initialFolder + request.fileName, QStringLiteral("/jobs/route9.pdf"));
    QCOMPARE(request.filters, QStringList { QStringLiteral("PDF Files (*.pdf)") });
    QVERIFY(m_prompts->messages().isEmpty());
    const PdfProbe pdf(path);
    QVERIFY2(pdf.isValid(), qPrintable(pdf.errorString()));
    QVERIFY(pdf.text().contains(QStringLiteral("Project File /jobs/route9.swl")));
    QVERIFY(pdf.text().contains(QStringLiteral("Summary Of Results")));
}

void tst_PrintRoutine::exportToAnUnwritablePlaceIsReported()
{
    const QString path = m_programFolder->filePath(QStringLiteral("missing/out.pdf"));
    m_prompts->answerSave(path);
    m_prompts->answerMessage();
    QVERIFY(!m_routine->exportPdf(m_project, QString(), QString()));
    QCOMPARE(m_prompts->messages(),
             QStringList { QStringLiteral("Error writing to file:\r") + path });
    QVERIFY(!QFile::exists(path));
}

void tst_PrintRoutine::marginsFileIsReadAtEachExport()
{
    const QString path = m_programFolder->filePath(QStringLiteral("out.pdf"));
    for (int i = 0; i < 3; ++i)
        m_prompts->answerSave(path);

    QVERIFY(m_routine->exportPdf(m_project, QString(), QString())); // no file: half an inch
    QVERIFY(qAbs(leftmostWord(path) - 36) < 1.5);

    writeMarginsFile(m_programFolder->path(), "1\r\n1500\r\n500\r\n500\r\n500\r\n");
    QVERIFY(m_routine->exportPdf(m_project, QString(), QString()));
    QVERIFY(qAbs(leftmostWord(path) - 108) < 1.5);

    writeMarginsFile(m_programFolder->path(), "0\r\n5000\r\n1000\r\n1000\r\n1000\r\n"); // 50 mm
    QVERIFY(m_routine->exportPdf(m_project, QString(), QString()));
    QVERIFY(qAbs(leftmostWord(path) - 50 * 72 / 25.4) < 1.5);
}

void tst_PrintRoutine::pageSetupChoicesApplyToTheNextExport()
{
    writeMarginsFile(m_programFolder->path(), "1\r\n1500\r\n500\r\n500\r\n500\r\n");
    ReportPageSetup chosen;
    chosen.marginsChosen = true;
    chosen.margins.Margin1 = 0.25f;
    chosen.orientation = QPageLayout::Landscape;
    chosen.pageSize = QPageSize(QPageSize::A4);
    m_prompts->answerPageSetup(chosen);
    QVERIFY(m_routine->pageSetup());
    // The dialog was offered the file's margins.
    QCOMPARE(m_prompts->records()[0].fileMargins.Margin1, 1.5f);

    const QString path = m_programFolder->filePath(QStringLiteral("out.pdf"));
    m_prompts->answerSave(path);
    QVERIFY(m_routine->exportPdf(m_project, QString(), QString()));
    QVERIFY(qAbs(leftmostWord(path) - 18) < 1.5);
    const PdfProbe pdf(path);
    QVERIFY(qAbs(pdf.pageSize(1).width - 841.89) < 1);
    QVERIFY(qAbs(pdf.pageSize(1).height - 595.28) < 1);
}

void tst_PrintRoutine::pageSetupDialogKeepsFileMarginsUnlessChanged()
{
    PageMargins file;
    file.ScaleCode = kScaleMillimetres;
    file.Margin1 = 20.0f;
    file.Margin2 = 15.0f;
    file.Margin3 = 10.0f;
    file.Margin4 = 12.5f;
    PageSetupDialog dialog(ReportPageSetup(), file);
    QVERIFY(!dialog.setup().marginsChosen);

    const QList<QDoubleSpinBox *> boxes = dialog.findChildren<QDoubleSpinBox *>();
    QCOMPARE(boxes.size(), 4);
    boxes[0]->setValue(30.0); // left
    dialog.setOrientation(QPageLayout::Landscape);
    dialog.setPageSize(QPageSize::A4);
    const ReportPageSetup changed = dialog.setup();
    QVERIFY(changed.marginsChosen);
    QCOMPARE(changed.margins.Margin1, 30.0f);
    QCOMPARE(changed.margins.Margin3, 10.0f);
    QCOMPARE(changed.orientation, QPageLayout::Landscape);
    QCOMPARE(changed.pageSize.id(), QPageSize::A4);

    QPushButton *defaults = nullptr;
    for (QPushButton *button : dialog.findChildren<QPushButton *>()) {
        if (button->text() == QStringLiteral("&Default Margins"))
            defaults = button;
    }
    QVERIFY(defaults);
    QTest::mouseClick(defaults, Qt::LeftButton);
    QVERIFY(!dialog.setup().marginsChosen);
    QCOMPARE(boxes[0]->value(), 20.0);
}

int runPrintRoutineTests(int argc, char **argv)
{
    tst_PrintRoutine test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_PrintRoutine.moc"
