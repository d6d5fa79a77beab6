#include "InputTable.h"
#include "OutputTable.h"
#include "PdfProbe.h"
#include "PrintRoutine.h"
#include "ReportContent.h"
#include "ReportFixtures.h"

#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

namespace {

// Margins record in thousandths of an inch, as Margins.ini gives them.
PageMargins inches(double left, double top, double right, double bottom)
{
    PageMargins margins;
    margins.Margin1 = static_cast<float>(left);
    margins.Margin2 = static_cast<float>(top);
    margins.Margin3 = static_cast<float>(bottom);
    margins.Margin4 = static_cast<float>(right);
    return margins;
}

} // namespace

class tst_ReportPdf : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void showsEveryShownCaptionAndValue_data();
    void showsEveryShownCaptionAndValue();
    void longRatingCurveRepeatsItsHeader();
    void marginsMoveTheText_data();
    void marginsMoveTheText();
    void longTextsWrapInsideThePage();
    void paperAndOrientationApply();
    void usesArial();

private:
    QString render(const SwaleProject &project, const QString &name,
                   const PageMargins &margins = PageMargins(),
                   const ReportPageSetup &setup = ReportPageSetup());

    QTemporaryDir m_folder;
};

void tst_ReportPdf::initTestCase()
{
    QVERIFY(m_folder.isValid());
}

QString tst_ReportPdf::render(const SwaleProject &project, const QString &name,
                              const PageMargins &margins, const ReportPageSetup &setup)
{
    const QString path = m_folder.filePath(name + QStringLiteral(".pdf"));
    QString error;
    if (!writeReportPdf(path, project, QStringLiteral("/projects/roadside.swl"), setup, margins,
                        &error))
        qWarning("%s", qPrintable(error));
    return path;
}

void tst_ReportPdf::showsEveryShownCaptionAndValue_data()
{
    QTest::addColumn<int>("method");
    QTest::addColumn<int>("flow");
    for (int method = 1; method <= 4; ++method) {
        for (int flow = 1; flow <= 2; ++flow) {
            QTest::addRow("method %d, flow %d", method, flow) << method << flow;
        }
    }
}

// Every caption, value and unit that the report content holds reads as one phrase on a line
// of the PDF; the headings and page numbers are there too.
void tst_ReportPdf::showsEveryShownCaptionAndValue()
{
    QFETCH(int, method);
    QFETCH(int, flow);
    const SwaleProject project = calculatedProject(method, flow);
    QVERIFY(project.resultsShown);
    const PdfProbe pdf(render(project, QStringLiteral("m%1f%2").arg(method).arg(flow)));
    QVERIFY2(pdf.isValid(), qPrintable(pdf.errorString()));
    const QString text = pdf.text();

    QVERIFY(text.contains(QStringLiteral("TAVRO Channel and Overland Flow Analysis")));
    QVERIFY(text.contains(QStringLiteral("I. INPUT DATA")));
    QVERIFY(text.contains(QStringLiteral("II. RESULTS")));
    QVERIFY(text.contains(QStringLiteral("Job Name Route 9 swale")));
    QVERIFY(text.contains(QStringLiteral("Engineer J. Smith")));
    QVERIFY(text.contains(QStringLiteral("Date 03-07-2026")));
    QVERIFY(text.contains(QStringLiteral("Project File /projects/roadside.swl")));
    QVERIFY(text.contains(QString::fromUtf8(kSolutionMethodCaptions[static_cast<size_t>(method)])));
    QVERIFY(text.contains(
            QString::fromUtf8(kChannelFlowMethodCaptions[static_cast<size_t>(flow)])));

    const ReportContent content = buildReportContent(project, QString());
    int fields = 0;
    for (const ReportSection &section : content.sections) {
        for (const ReportGroup &group : section.groups) {
            QVERIFY2(text.contains(group.heading), qPrintable(group.heading));
            for (const ReportField &field : group.fields) {
                const QString line = simplifiedText(field.caption + QLatin1Char(' ') + field.value
                                                    + QLatin1Char(' ') + field.unit);
                QVERIFY2(text.contains(line), qPrintable(line));
                ++fields;
            }
        }
    }
    QVERIFY(fields >= 15);
    for (int index = 1; index <= kOutputCount; ++index) {
        const std::string &value = project.outputText[static_cast<size_t>(index)];
        if (!value.empty())
            QVERIFY2(text.contains(QString::fromStdString(value)), value.c_str());
    }
    for (int page = 1; page <= pdf.pageCount(); ++page) {
        const QString number = QStringLiteral("Page %1 of %2").arg(page).arg(pdf.pageCount());
        QVERIFY2(pdf.pageText(page).contains(number), qPrintable(number));
    }
}

void tst_ReportPdf::longRatingCurveRepeatsItsHeader()
{
    SwaleProject project = calculatedProject(3);
    setLongRatingCurve(project, 130);
    const PdfProbe pdf(render(project, QStringLiteral("long curve")));
    QVERIFY2(pdf.isValid(), qPrintable(pdf.errorString()));
    QVERIFY(pdf.pageCount() >= 3);
    const int tablePages = pdf.pagesContaining(QStringLiteral("Point Depth Discharge Rate"));
    QVERIFY(tablePages >= 3);
    QCOMPARE(pdf.pagesContaining(QStringLiteral("Inlet Rating Curve (continued)")), tablePages - 1);
    // First and last rows, and a row on each side of the first break.
    QVERIFY(pdf.text().contains(QStringLiteral("1 0 0 ")));
    QVERIFY(pdf.text().contains(QStringLiteral("130 129 129.0625")));
    QCOMPARE(pdf.pagesContaining(QStringLiteral("Page 1 of %1").arg(pdf.pageCount())), 1);
}

void tst_ReportPdf::marginsMoveTheText_data()
{
    QTest::addColumn<double>("left");
    QTest::addColumn<double>("top");
    QTest::addColumn<double>("right");
    QTest::addColumn<double>("bottom");
    QTest::newRow("half inch") << 0.5 << 0.5 << 0.5 << 0.5;
    QTest::newRow("wide binding edge") << 1.5 << 1.0 << 0.25 << 0.75;
    QTest::newRow("deep top") << 0.75 << 2.0 << 1.0 << 0.5;
}

// Word boxes in points: the title block starts at the left margin, the page header at the top,
// the job name in the header ends at the right margin and the footer rests on the bottom one.
void tst_ReportPdf::marginsMoveTheText()
{
    QFETCH(double, left);
    QFETCH(double, top);
    QFETCH(double, right);
    QFETCH(double, bottom);
    const PdfProbe pdf(render(calculatedProject(1),
                              QStringLiteral("margins %1 %2").arg(left).arg(top),
                              inches(left, top, right, bottom)));
    QVERIFY2(pdf.isValid(), qPrintable(pdf.errorString()));
    const std::vector<PdfWord> words = pdf.wordsOf(1);
    double minX = 1e9, minY = 1e9, maxX = 0, maxY = 0;
    for (const PdfWord &word : words) {
        minX = std::min(minX, word.box.left());
        minY = std::min(minY, word.box.top());
        maxX = std::max(maxX, word.box.right());
        maxY = std::max(maxY, word.box.bottom());
    }
    const PdfPageSize &page = pdf.pageSize(1);
    // Glyph boxes sit a little inside the text lines: allow a point and a half.
    QVERIFY2(qAbs(minX - left * 72) < 1.5, qPrintable(QString::number(minX)));
    QVERIFY2(qAbs(minY - top * 72) < 1.5, qPrintable(QString::number(minY)));
    QVERIFY2(qAbs(maxX - (page.width - right * 72)) < 1.5, qPrintable(QString::number(maxX)));
    QVERIFY2(qAbs(maxY - (page.height - bottom * 72)) < 3.0, qPrintable(QString::number(maxY)));
}

void tst_ReportPdf::longTextsWrapInsideThePage()
{
    SwaleProject project = calculatedProject(1);
    project.inputText[1] = "Interchange of State Route 9 and County Road 12, northbound off-ramp "
                           "swale between stations 104+50 and 131+75, with the median ditch "
                           "tie-in at the ditch-bottom inlet DBI-7 and the outfall to pond 3";
    project.inputText[17]
            = "Turf reinforcement mat (TRM) over compacted clay liner, seeded with Bermuda grass";
    const PdfProbe pdf(render(project, QStringLiteral("long texts"), inches(1, 1, 1, 1)));
    QVERIFY2(pdf.isValid(), qPrintable(pdf.errorString()));
    for (const PdfWord &word : pdf.words())
        QVERIFY2(word.box.right() <= pdf.pageSize(word.page).width - 72 + 1.0,
                 qPrintable(word.text));
    QVERIFY(pdf.text().contains(QStringLiteral("the outfall to pond 3")));
    QVERIFY(pdf.text().contains(QStringLiteral("seeded with Bermuda grass")));
}

void tst_ReportPdf::paperAndOrientationApply()
{
    ReportPageSetup setup;
    setup.pageSize = QPageSize(QPageSize::A4);
    setup.orientation = QPageLayout::Landscape;
    const PdfProbe pdf(render(calculatedProject(2), QStringLiteral("a4"), PageMargins(), setup));
    QVERIFY2(pdf.isValid(), qPrintable(pdf.errorString()));
    QVERIFY(qAbs(pdf.pageSize(1).width - 841.89) < 1);
    QVERIFY(qAbs(pdf.pageSize(1).height - 595.28) < 1);
}

void tst_ReportPdf::usesArial()
{
    // "Arial" resolves to Liberation Sans, its metric twin, where Arial itself is not installed.
    const QString path = render(calculatedProject(4), QStringLiteral("fonts"));
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
