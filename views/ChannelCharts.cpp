#include "ChannelCharts.h"

#include "AxisScale.h"
#include "ViewStyle.h"

#include <QAreaSeries>
#include <QChart>
#include <QFontMetricsF>
#include <QGraphicsLayout>
#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QGraphicsSimpleTextItem>
#include <QLegendMarker>
#include <QLineSeries>
#include <QPainter>
#include <QScatterSeries>
#include <QValueAxis>

#include <algorithm>

namespace {

QValueAxis *addAxis(QChart &chart, const QString &title, double low, double high,
                    Qt::Alignment side, int targetIntervals)
{
    const AxisScale scale = niceScale(low, high, targetIntervals);
    auto *axis = new QValueAxis;
    axis->setTitleText(title);
    axis->setTitleFont(viewFont(10));
    axis->setLabelsFont(viewFont(9));
    axis->setRange(scale.minimum, scale.maximum);
    axis->setTickCount(scale.intervals() + 1);
    axis->setLabelFormat(QStringLiteral("%.%1f").arg(scale.decimals()));
    axis->setMinorTickCount(0);
    chart.addAxis(axis, side);
    return axis;
}

QLineSeries *lineSeries(const QString &name, const QPolygonF &points, const QPen &pen)
{
    auto *series = new QLineSeries;
    series->setName(name);
    for (const QPointF &point : points)
        series->append(point);
    series->setPen(pen);
    return series;
}

void attach(QChart &chart, QAbstractSeries *series, QValueAxis *x, QValueAxis *y)
{
    chart.addSeries(series);
    series->attachAxis(x);
    series->attachAxis(y);
}

void hideFromLegend(QChart &chart, QAbstractSeries *series)
{
    for (QLegendMarker *marker : chart.legend()->markers(series))
        marker->setVisible(false);
}

std::unique_ptr<QChart> newChart(const QString &title)
{
    auto chart = std::make_unique<QChart>();
    chart->setTitle(title);
    chart->setTitleFont(viewFont(12, true));
    chart->setBackgroundRoundness(0);
    chart->setMargins(QMargins(4, 4, 4, 4));
    chart->legend()->setAlignment(Qt::AlignBottom);
    chart->legend()->setFont(viewFont(9));
    return chart;
}

QPen pen(const QColor &colour, double width, Qt::PenStyle style = Qt::SolidLine)
{
    QPen result(colour, width, style);
    result.setCosmetic(false);
    return result;
}

QString volumeText(double volume)
{
    return quantityText(volume) + QStringLiteral(" ft³");
}

QString rateName(const HydrographDrawing &h)
{
    const QString flow = quantityText(*h.rate) + QStringLiteral(" cfs");
    return h.solutionMethod == 3 ? QStringLiteral("Inlet at d: ") + flow
                                 : QStringLiteral("Qip = ") + flow;
}

} // namespace

std::unique_ptr<QChart> makeHydrographChart(const HydrographDrawing &h)
{
    auto chart = newChart(QStringLiteral("Inflow hydrograph"));
    const double top = std::max(h.peak, h.rate.value_or(0.0)) * 1.1;
    QValueAxis *x
            = addAxis(*chart, QStringLiteral("Time (min)"), 0, h.duration, Qt::AlignBottom, 6);
    QValueAxis *y = addAxis(*chart, QStringLiteral("Flow (cfs)"), 0, top, Qt::AlignLeft, 5);

    if (h.rate) {
        auto *upper = lineSeries(QString(), h.clipped, QPen(Qt::NoPen));
        auto *area = new QAreaSeries(upper);
        upper->setParent(area);
        area->setName(h.solutionMethod == 3 ? QStringLiteral("Inlet volume")
                                            : QStringLiteral("Infiltrated (Vm)"));
        QColor fill = ViewColour::clipped;
        fill.setAlpha(150);
        area->setBrush(fill);
        area->setPen(pen(ViewColour::clipped.darker(130), 1));
        attach(*chart, area, x, y);
    }
    const QString inflowName = h.rate
            ? QStringLiteral("Inflow Q(t)")
            : QStringLiteral("Inflow Q(t), Vr = ") + volumeText(h.runoffVolume);
    attach(*chart, lineSeries(inflowName, h.inflow, pen(ViewColour::inflow, 2)), x, y);
    if (h.rate) {
        const QPolygonF line({ QPointF(0, *h.rate), QPointF(h.duration, *h.rate) });
        attach(*chart, lineSeries(rateName(h), line, pen(ViewColour::rate, 1.5, Qt::DashLine)), x,
               y);
    }
    return chart;
}

std::unique_ptr<QChart> makeRatingChart(const RatingDrawing &r)
{
    auto chart = newChart(QStringLiteral("Rating curves"));
    double topQ = r.designPoint.y();
    for (const QPointF &point : r.discharge)
        topQ = std::max(topQ, point.y());
    for (const QPointF &point : r.inlet)
        topQ = std::max(topQ, point.y());
    double topV = r.permissibleVelocity;
    for (const QPointF &point : r.velocity)
        topV = std::max(topV, point.y());

    QValueAxis *x
            = addAxis(*chart, QStringLiteral("Depth (ft)"), 0, r.maxDepth, Qt::AlignBottom, 6);
    QValueAxis *q = addAxis(*chart, QStringLiteral("Q (cfs)"), 0, topQ * 1.05, Qt::AlignLeft, 5);
    QValueAxis *v = addAxis(*chart, QStringLiteral("V (ft/s)"), 0, topV * 1.1, Qt::AlignRight, 5);
    v->setLabelsColor(ViewColour::velocity.darker(120));
    v->setTitleBrush(ViewColour::velocity.darker(120));

    attach(*chart, lineSeries(QStringLiteral("Q"), r.discharge, pen(ViewColour::inflow, 2)), x, q);
    attach(*chart, lineSeries(QStringLiteral("V"), r.velocity, pen(ViewColour::velocity, 2)), x, v);
    const QPolygonF vp(
            { QPointF(0, r.permissibleVelocity), QPointF(r.maxDepth, r.permissibleVelocity) });
    attach(*chart,
           lineSeries(QStringLiteral("Vp = %1 ft/s").arg(quantityText(r.permissibleVelocity)), vp,
                      pen(ViewColour::rate, 1.5, Qt::DashLine)),
           x, v);
    if (!r.inlet.isEmpty()) {
        auto *inlet = lineSeries(QStringLiteral("Inlet"), r.inlet, pen(ViewColour::inlet, 2));
        inlet->setPointsVisible(true);
        attach(*chart, inlet, x, q);
    }
    auto *design = new QScatterSeries;
    design->setName(QStringLiteral("Design point"));
    design->append(r.designPoint);
    design->setMarkerSize(9);
    design->setColor(ViewColour::inflow);
    design->setBorderColor(Qt::black);
    attach(*chart, design, x, q);
    hideFromLegend(*chart, design); // named beside the point
    if (r.inletAtDepth) {
        auto *atDepth = new QScatterSeries;
        atDepth->setName(QStringLiteral("Inlet at d"));
        atDepth->append(*r.inletAtDepth);
        atDepth->setMarkerShape(QScatterSeries::MarkerShapeRectangle);
        atDepth->setMarkerSize(9);
        atDepth->setColor(ViewColour::inlet);
        atDepth->setBorderColor(Qt::black);
        attach(*chart, atDepth, x, q);
        hideFromLegend(*chart, atDepth);
    }
    return chart;
}

namespace {
// A text on a white ground in the chart, its top left at `place`, above the series (which
// Qt Charts stacks over the chart's own children).
void addNote(QChart &chart, const QString &text, QPointF place, const QColor &colour,
             Qt::Alignment align)
{
    auto *label = new QGraphicsSimpleTextItem(text, &chart);
    label->setFont(viewFont(10, true));
    label->setBrush(colour);
    const QRectF box = label->boundingRect();
    place = alignedTopLeft(place, box.size(), align);
    // Keep the note inside the plot.
    const QRectF plot = chart.plotArea();
    place.setX(std::clamp(place.x(), plot.left() + 2,
                          std::max(plot.left() + 2, plot.right() - box.width() - 2)));
    place.setY(std::clamp(place.y(), plot.top() + 2,
                          std::max(plot.top() + 2, plot.bottom() - box.height() - 2)));
    auto *ground = new QGraphicsRectItem(box.adjusted(-3, -1, 3, 1), &chart);
    ground->setBrush(QColor(255, 255, 255, 210));
    ground->setPen(Qt::NoPen);
    ground->setPos(place);
    label->setPos(place);
    ground->setZValue(1000);
    label->setZValue(1001);
}
} // namespace

void labelClippedVolume(QChart &chart, const HydrographDrawing &h)
{
    if (!h.rate || h.clipped.isEmpty())
        return;
    const QString what
            = h.solutionMethod == 3 ? QStringLiteral("Inlet volume ") : QStringLiteral("Vm = ");
    const QString text = what + volumeText(h.clippedVolume) + QStringLiteral("\nof Vr = ")
            + volumeText(h.runoffVolume);
    const double rate = std::min(*h.rate, h.peak);
    const QPointF top = chart.mapToPosition(QPointF(h.duration / 2, rate));
    const QPointF base = chart.mapToPosition(QPointF(h.duration / 2, 0));
    const QColor colour = ViewColour::clipped.darker(220);
    // A thin band: the label goes above its line.
    if (base.y() - top.y() < 2.2 * QFontMetricsF(viewFont(10, true)).height() + 6)
        addNote(chart, text, top - QPointF(0, 4), colour, Qt::AlignHCenter | Qt::AlignBottom);
    else
        addNote(chart, text, (top + base) / 2, colour, Qt::AlignCenter);
}

void labelRatingPoints(QChart &chart, const RatingDrawing &r)
{
    const QPointF design = chart.mapToPosition(r.designPoint);
    addNote(chart,
            QStringLiteral("d = %1 ft\nQp = %2 cfs")
                    .arg(quantityText(r.designPoint.x()), quantityText(r.designPoint.y())),
            design + QPointF(-8, -6), ViewColour::inflow.darker(130),
            Qt::AlignRight | Qt::AlignBottom);
    if (r.inletAtDepth) {
        const QPointF inlet = chart.mapToPosition(*r.inletAtDepth);
        addNote(chart, QStringLiteral("Inlet %1 cfs").arg(quantityText(r.inletAtDepth->y())),
                inlet + QPointF(8, 6), ViewColour::inlet.darker(130), Qt::AlignLeft | Qt::AlignTop);
    }
}

void renderChart(QPainter &painter, const QRectF &target, const QSizeF &logicalSize,
                 std::unique_ptr<QChart> chart, const std::function<void(QChart &)> &annotate)
{
    QGraphicsScene scene;
    const QRectF source(QPointF(0, 0), logicalSize);
    scene.setSceneRect(source);
    QChart *item = chart.release();
    scene.addItem(item); // the scene owns and deletes it
    item->setGeometry(source);
    if (item->layout())
        item->layout()->activate();
    if (annotate)
        annotate(*item);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    scene.render(&painter, target, source, Qt::IgnoreAspectRatio);
    painter.restore();
}
