#include "ExplorerCharts.h"

#include "InputTable.h"

#include <QChart>
#include <QLegend>
#include <QLegendMarker>
#include <QLineSeries>
#include <QLogValueAxis>
#include <QPainter>
#include <QValueAxis>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {
QString qText(const std::string &text)
{
    return QString::fromStdString(text);
}

bool hasValue(const SweepRow &row, int column)
{
    return row.status == PointStatus::Ok && !row.results[static_cast<size_t>(column)].empty();
}

// Adds the line of one result as runs of calculated points; a gap starts a new series of the
// same colour, which the legend leaves out. Widens [least, most] to the values drawn.
void addResultLine(QChart &chart, const SweepResult &sweep, int column, QAbstractAxis *x,
                   QAbstractAxis *y, double &least, double &most)
{
    const ResultColumn &result = sweep.columns[static_cast<size_t>(column)];
    QLineSeries *run = nullptr;
    QColor colour;
    for (const SweepRow &row : sweep.rows) {
        if (!hasValue(row, column)) {
            run = nullptr;
            continue;
        }
        if (!run) {
            const bool first = !colour.isValid();
            run = new QLineSeries;
            run->setName(qText(result.key));
            chart.addSeries(run);
            run->attachAxis(x);
            run->attachAxis(y);
            if (first)
                colour = run->color();
            else
                run->setColor(colour);
            if (!first)
                chart.legend()->markers(run).first()->setVisible(false);
        }
        const double value = resultNumber(row.results[static_cast<size_t>(column)]);
        least = std::min(least, value);
        most = std::max(most, value);
        run->append(row.inputs[0], value);
    }
}
} // namespace

QChart *buildSweepChart(const SweepResult &sweep, const std::vector<int> &columns)
{
    auto *chart = new QChart;
    if (sweep.axes.empty())
        return chart;
    const SweepAxis &axis = sweep.axes[0];
    QAbstractAxis *x = nullptr;
    if (axis.spacing == Spacing::Logarithmic) {
        auto *log = new QLogValueAxis;
        log->setLabelFormat(QStringLiteral("%g"));
        x = log;
    } else {
        auto *linear = new QValueAxis;
        linear->setLabelFormat(QStringLiteral("%g"));
        x = linear;
    }
    const std::string unit = inputBox(axis.box).unit;
    x->setTitleText(
            qText(inputCaptionWithSymbol(axis.box) + (unit.empty() ? "" : " (" + unit + ")")));
    auto *y = new QValueAxis;
    y->setLabelFormat(QStringLiteral("%g"));
    chart->addAxis(x, Qt::AlignBottom);
    chart->addAxis(y, Qt::AlignLeft);
    x->setRange(std::min(axis.from, axis.to), std::max(axis.from, axis.to));
    QStringList names;
    double least = std::numeric_limits<double>::infinity();
    double most = -least;
    for (int column : columns) {
        addResultLine(*chart, sweep, column, x, y, least, most);
        names << qText(sweep.columns[static_cast<size_t>(column)].key);
    }
    if (least <= most) {
        const double pad
                = most > least ? (most - least) * 0.05 : std::max(std::fabs(most), 1.0) * 0.05;
        y->setRange(least - pad, most + pad);
        y->applyNiceNumbers();
    }
    y->setTitleText(names.join(QStringLiteral(", ")));
    chart->legend()->setAlignment(Qt::AlignBottom);
    return chart;
}

void HeatMapView::setSweep(const SweepResult *sweep, int column)
{
    m_sweep = sweep;
    m_column = column;
    update();
}

void HeatMapView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    if (!m_sweep || m_sweep->axes.size() != 2 || m_column < 0)
        return;
    const int across = m_sweep->axes[0].points;
    const int up = m_sweep->axes[1].points;
    double least = std::numeric_limits<double>::infinity();
    double most = -least;
    for (const SweepRow &row : m_sweep->rows) {
        if (hasValue(row, m_column)) {
            const double v = resultNumber(row.results[static_cast<size_t>(m_column)]);
            least = std::min(least, v);
            most = std::max(most, v);
        }
    }
    const QFontMetrics metrics(font());
    const int margin = metrics.height() * 2;
    const QRectF plot = QRectF(rect()).adjusted(margin * 3, margin, -margin, -margin * 2);
    const double w = plot.width() / across;
    const double h = plot.height() / up;
    for (size_t i = 0; i < m_sweep->rows.size(); ++i) {
        const SweepRow &row = m_sweep->rows[i];
        const int a = static_cast<int>(i) / up;
        const int b = static_cast<int>(i) % up;
        const QRectF cell(plot.left() + a * w, plot.bottom() - (b + 1) * h, w + 0.5, h + 0.5);
        QColor colour(Qt::lightGray);
        if (hasValue(row, m_column)) {
            const double v = resultNumber(row.results[static_cast<size_t>(m_column)]);
            const double t = most > least ? (v - least) / (most - least) : 0.5;
            colour = QColor::fromHsvF(static_cast<float>((1 - t) * 240.0 / 360.0), 0.8f, 0.95f);
        }
        painter.fillRect(cell, colour);
    }
    painter.setPen(palette().text().color());
    painter.drawRect(plot);
    const auto label = [](const SweepAxis &axis, double v) {
        return QString::fromStdString(inputSymbol(axis.box) + " = " + pointText(v));
    };
    const SweepAxis &first = m_sweep->axes[0];
    const SweepAxis &second = m_sweep->axes[1];
    painter.drawText(QPointF(plot.left(), plot.bottom() + metrics.height()),
                     label(first, first.from));
    const QString right = label(first, first.to);
    painter.drawText(QPointF(plot.right() - metrics.horizontalAdvance(right),
                             plot.bottom() + metrics.height()),
                     right);
    painter.drawText(QPointF(4, plot.bottom()), label(second, second.from));
    painter.drawText(QPointF(4, plot.top() + metrics.ascent()), label(second, second.to));
    const QString scale
            = QString::fromStdString(m_sweep->columns[static_cast<size_t>(m_column)].key)
            + (std::isfinite(least) ? QStringLiteral(": blue %1 to red %2").arg(least).arg(most)
                                    : QStringLiteral(": no point calculated"));
    painter.drawText(QPointF(plot.left(), plot.bottom() + 2 * metrics.height() + 2), scale);
}
