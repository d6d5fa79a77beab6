#include "Fixtures.h"
#include "PdfProbe.h"
#include "PrintRoutine.h"
#include "ReportContent.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

// The report with real fonts through QPdfWriter: what the layout tests prove with a fixed
// measure must hold with the real metrics too.
class tst_ReportPdf : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyPhraseLandsInsideTheMargins();

private:
    QTemporaryDir m_folder;
};

void tst_ReportPdf::initTestCase()
{
    QVERIFY(m_folder.isValid());
}

void tst_ReportPdf::everyPhraseLandsInsideTheMargins()
{
    SwaleProject project = calculatedProject(1);
    project.inputText[1] = "Interchange of State Route 9 and County Road 12, northbound off-ramp "
                           "swale between stations 104+50 and 131+75, with the median ditch "
                           "tie-in at the ditch-bottom inlet DBI-7 and the outfall to pond 3";
    project.inputText[17]
            = "Turf reinforcement mat (TRM) over compacted clay liner, seeded with Bermuda grass";
    const PageMargins margins; // the defaults, as without a Margins.ini
    const QMarginsF inPoints = marginsInPoints(margins);
    const QString path = m_folder.filePath(QStringLiteral("method 1.pdf"));
    QString error;
    QVERIFY2(writeReportPdf(path, project, QStringLiteral("/projects/roadside.swl"),
                            ReportPageSetup(), margins, &error),
             qPrintable(error));
    const PdfProbe pdf(path);
    QVERIFY2(pdf.isValid(), qPrintable(pdf.errorString()));
    const QString text = pdf.text();
    QVERIFY(text.contains(QStringLiteral("TAVRO Channel and Overland Flow Analysis")));
    QVERIFY(text.contains(QStringLiteral("Project File /projects/roadside.swl")));
    QVERIFY(text.contains(QStringLiteral("the outfall to pond 3")));
    QVERIFY(text.contains(QStringLiteral("seeded with Bermuda grass")));
    const ReportContent content = buildReportContent(project, QString());
    for (const ReportSection &section : content.sections) {
        for (const ReportGroup &group : section.groups) {
            QVERIFY2(text.contains(group.heading), qPrintable(group.heading));
            for (const ReportField &field : group.fields) {
                const QString line = simplifiedText(field.caption + QLatin1Char(' ') + field.value
                                                    + QLatin1Char(' ') + field.unit);
                if (field.value.size() < 40) // the two long texts wrap; checked above
                    QVERIFY2(text.contains(line), qPrintable(line));
            }
        }
    }
    for (const PdfWord &word : pdf.words()) {
        const PdfPageSize page = pdf.pageSize(word.page);
        QVERIFY2(word.box.left() >= inPoints.left() - 1.0
                         && word.box.right() <= page.width - inPoints.right() + 1.0,
                 qPrintable(word.text));
    }
    for (int page = 1; page <= pdf.pageCount(); ++page) {
        const QString number = QStringLiteral("Page %1 of %2").arg(page).arg(pdf.pageCount());
        QVERIFY2(pdf.pageText(page).contains(number), qPrintable(number));
    }
    // "Arial" resolves to Liberation Sans, its metric twin, where Arial itself is not installed.
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    QVERIFY(bytes.contains("LiberationSans") || bytes.contains("Arial"));
}

int runReportPdfTests(int argc, char **argv)
{
    tst_ReportPdf test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_ReportPdf.moc"
