// What each channel drawing paints, checked on the painted pixels (the section) or the chart's
// scene (hydrograph, rating curves), and the report's page of drawings read back from its PDF.
#include "Fixtures.h"
#include "../print/PdfProbe.h"

#include "AxisScale.h"
#include "Calculate.h"
#include "ChannelCharts.h"
#include "ChannelViews.h"
#include "PrintRoutine.h"
#include "SectionPainter.h"
#include "ViewStyle.h"

#include <QAreaSeries>
#include <QGraphicsLayout>
#include <QGraphicsScene>
#include <QGraphicsSimpleTextItem>
#include <QImage>
#include <QLineSeries>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

namespace {

// The record of a valid project of the given methods, calculated.
SwaleInputData recordOf(int solutionMethod, int channelFlowMethod = 1)
{
    const CalculationOutcome outcome = Calculate(validProject(solutionMethod, channelFlowMethod));
    return outcome.record;
}

QLineSeries *seriesNamed(QChart &chart, const QString &prefix)
{
    for (QAbstractSeries *series : chart.series()) {
        if (series->name().startsWith(prefix))
            return qobject_cast<QLineSeries *>(series);
    }
    return nullptr;
}

} // namespace

class tst_ChannelViews : public QObject
{
    Q_OBJECT

private slots:
    void sectionPaintsWaterSoilAndAir();
    void hydrographChartShowsTheClippedVolume_data();
    void hydrographChartShowsTheClippedVolume();
    void ratingChartShowsVpAndTheInlet();
    void reportHasThePageOfDrawings();
};

void tst_ChannelViews::sectionPaintsWaterSoilAndAir()
{
    const SectionDrawing section = buildSectionDrawing(recordOf(1), std::nullopt);
    const QRectF area(0, 0, 700, 320);
    QImage image(area.size().toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        paintSection(painter, area, section);
    }
    const SectionScale scale = sectionScaleIn(area, section);
    auto pixelAt = [&](double x, double y) {
        return image.pixelColor(scale.map(QPointF(x, y)).toPoint());
    };
    const double quarter = section.leftToeX() + section.B / 4; // clear of the d dimension
    QCOMPARE(pixelAt(quarter, section.d / 4), ViewColour::water);
    // Above the water, between the banks: air.
    QCOMPARE(pixelAt(quarter, (section.d + section.bankHeight) / 2), QColor(Qt::white));
    // Under the left bank, beside any storage zone: soil.
    QCOMPARE(pixelAt(section.leftToeX() / 4, section.bankHeight / 8), ViewColour::ground);
}

void tst_ChannelViews::hydrographChartShowsTheClippedVolume_data()
{
    QTest::addColumn<int>("method");
    QTest::addColumn<int>("flow");
    QTest::newRow("method 2, runoff hydrograph") << 2 << 1;
    QTest::newRow("method 3, inlet, given flow") << 3 << 2;
}

void tst_ChannelViews::hydrographChartShowsTheClippedVolume()
{
    QFETCH(int, method);
    QFETCH(int, flow);
    const HydrographDrawing h = buildHydrographDrawing(recordOf(method, flow));
    QVERIFY(h.rate.has_value());
    QGraphicsScene scene;
    QChart *chart = makeHydrographChart(h).release();
    scene.addItem(chart);
    chart->setGeometry(QRectF(0, 0, 500, 320));
    chart->layout()->activate();
    labelClippedVolume(*chart, h);

    auto *area = qobject_cast<QAreaSeries *>(chart->series().first());
    QVERIFY(area);
    QCOMPARE(area->upperSeries()->points(), h.clipped.toList());
    QLineSeries *rate = seriesNamed(
            *chart, method == 3 ? QStringLiteral("Inlet at d") : QStringLiteral("Qip"));
    QVERIFY(rate);
    QCOMPARE(rate->at(0).y(), *h.rate);
    QCOMPARE(rate->at(1).x(), h.duration);

    // The volume is written inside the plot.
    const QString volume = quantityText(h.clippedVolume);
    bool labelled = false;
    for (QGraphicsItem *item : chart->childItems()) {
        auto *text = dynamic_cast<QGraphicsSimpleTextItem *>(item);
        if (text && text->text().contains(volume) && text->text().contains(QStringLiteral("Vr")))
            labelled = chart->plotArea().contains(text->sceneBoundingRect());
    }
    QVERIFY(labelled);
}

// The discharge curve itself is checked on the drawing's data (ChannelDrawingsTest).
void tst_ChannelViews::ratingChartShowsVpAndTheInlet()
{
    const SwaleInputData record = recordOf(3);
    std::unique_ptr<QChart> chart = makeRatingChart(buildRatingDrawing(record));
    QVERIFY(seriesNamed(*chart, QStringLiteral("Q")));
    QVERIFY(seriesNamed(*chart, QStringLiteral("Inlet")));
    QLineSeries *vp = seriesNamed(*chart, QStringLiteral("Vp"));
    QVERIFY(vp);
    QCOMPARE(vp->at(0).y(), record.PermissibleVelocity);
    // Vp is read on the velocity axis, on the right.
    const auto axes = vp->attachedAxes();
    QVERIFY(std::any_of(axes.begin(), axes.end(),
                        [](QAbstractAxis *axis) { return axis->alignment() == Qt::AlignRight; }));
}

void tst_ChannelViews::reportHasThePageOfDrawings()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("report.pdf"));
    SwaleProject project = validProject(3, 1);
    const CalculationOutcome outcome = Calculate(project);
    QCOMPARE(outcome.status, CalculationOutcome::Status::Ok);
    project.outputText = outcome.results;
    project.resultsShown = true;
    QVERIFY(writeReportPdf(path, project, QString(), ReportPageSetup(), PageMargins()));

    const PdfProbe pdf(path);
    QVERIFY2(pdf.isValid(), qPrintable(pdf.errorString()));
    const QString last = pdf.pageText(pdf.pageCount());
    for (const char *title : { "Channel views", "Cross-section", "Inflow hydrograph",
                               "Rating curves", "Wt =", "Time (min)", "Depth (ft)" })
        QVERIFY2(last.contains(QLatin1String(title)), title);
    QCOMPARE(pdf.text().count(QStringLiteral("Channel views")), 1);
    // The results come before the drawings.
    QVERIFY(!last.contains(QStringLiteral("II.  RESULTS")));

    // Without results there is nothing to draw.
    project.resultsShown = false;
    QVERIFY(writeReportPdf(path, project, QString(), ReportPageSetup(), PageMargins()));
    QVERIFY(!PdfProbe(path).text().contains(QStringLiteral("Channel views")));
}

QTEST_MAIN(tst_ChannelViews)
#include "tst_ChannelViews.moc"
