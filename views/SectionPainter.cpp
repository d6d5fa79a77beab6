#include "SectionPainter.h"

#include "AxisScale.h"
#include "ViewStyle.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace {
// Room around the section, in drawing units: title row, dimension lines, axes.
constexpr double kTitleHeight = 20;
constexpr double kLeftRoom = 50; // y tick labels and the axis title
constexpr double kRightRoom = 14;
constexpr double kTopRoom = kTitleHeight + 30; // Wt dimension above the banks
constexpr double kBottomRoom = 40; // x tick labels and the axis title
constexpr double kArrow = 5;

QString feet(const char *symbol, double value)
{
    return QStringLiteral("%1 = %2 ft").arg(QLatin1String(symbol), quantityText(value));
}

// A label on a white ground, so that it stays readable over hatching and lines.
void drawLabel(QPainter &p, const QPointF &anchor, const QString &text, Qt::Alignment align)
{
    const QFontMetricsF metrics(p.font(), p.device());
    const QSizeF size(metrics.horizontalAdvance(text) + 4, metrics.height());
    const QRectF box(alignedTopLeft(anchor, size, align), size);
    p.fillRect(box, QColor(255, 255, 255, 220));
    p.drawText(box, Qt::AlignCenter, text);
}

void drawArrowHead(QPainter &p, const QPointF &tip, const QPointF &from)
{
    const QLineF line(tip, from);
    const double length = line.length();
    if (length <= 0)
        return;
    const QPointF u = (from - tip) / length;
    const QPointF n(-u.y(), u.x());
    const double size = std::min(kArrow, length / 2);
    p.drawPolygon(QPolygonF(
            { tip, tip + u * size * 1.6 + n * size * 0.6, tip + u * size * 1.6 - n * size * 0.6 }));
}

// A dimension line between a and b with arrows at both ends.
void drawDimension(QPainter &p, const QPointF &a, const QPointF &b)
{
    p.drawLine(a, b);
    p.setBrush(ViewColour::dimension);
    drawArrowHead(p, a, b);
    drawArrowHead(p, b, a);
    p.setBrush(Qt::NoBrush);
}

void paintAxes(QPainter &p, const QRectF &rect, const SectionScale &s)
{
    const QRectF &plot = s.plot;
    p.setPen(QPen(ViewColour::axis, 1));
    p.setFont(viewFont(9));
    const QFontMetricsF metrics(p.font(), p.device());
    const double baseY = plot.bottom() + 4;
    p.drawLine(QPointF(plot.left(), baseY), QPointF(plot.right(), baseY));
    const AxisScale x = niceScale(s.extent.left(), s.extent.right(),
                                  std::max(3, static_cast<int>(plot.width() / 55)));
    for (int i = 0; i <= x.intervals(); ++i) {
        const double value = x.minimum + i * x.step;
        if (value < s.extent.left() - 1e-9 || value > s.extent.right() + 1e-9)
            continue;
        const double px = s.map(QPointF(value, 0)).x();
        p.drawLine(QPointF(px, baseY), QPointF(px, baseY + 4));
        p.drawText(QRectF(px - 30, baseY + 5, 60, metrics.height()), Qt::AlignHCenter,
                   x.label(value));
    }
    p.drawText(QRectF(plot.left(), baseY + 5 + metrics.height(), plot.width(), metrics.height()),
               Qt::AlignHCenter, QStringLiteral("Distance across (ft)"));

    const double axisX = plot.left() - 4;
    p.drawLine(QPointF(axisX, plot.top()), QPointF(axisX, plot.bottom()));
    const AxisScale y = niceScale(s.extent.top(), s.extent.bottom(),
                                  std::max(3, static_cast<int>(plot.height() / 45)));
    for (int i = 0; i <= y.intervals(); ++i) {
        const double value = y.minimum + i * y.step;
        if (value < s.extent.top() - 1e-9 || value > s.extent.bottom() + 1e-9)
            continue;
        const double py = s.map(QPointF(0, value)).y();
        p.drawLine(QPointF(axisX - 4, py), QPointF(axisX, py));
        p.drawText(QRectF(axisX - 40, py - metrics.height() / 2, 34, metrics.height()),
                   Qt::AlignRight | Qt::AlignVCenter, y.label(value));
    }
    p.save();
    p.translate(rect.left() + 2, plot.center().y());
    p.rotate(-90);
    p.drawText(QRectF(-plot.height() / 2, 0, plot.height(), metrics.height()), Qt::AlignHCenter,
               QStringLiteral("Height (ft)"));
    p.restore();
}

void paintSoil(QPainter &p, const SectionScale &s, const SectionDrawing &d)
{
    QPolygonF soil = d.ground;
    soil << QPointF(s.extent.right(), s.extent.top()) << QPointF(s.extent.left(), s.extent.top());
    p.setPen(Qt::NoPen);
    p.setBrush(ViewColour::ground);
    p.drawPolygon(s.map(soil));
    if (!d.storageZone.isEmpty()) {
        const QRectF zone
                = QRectF(s.map(d.storageZone.topLeft()), s.map(d.storageZone.bottomRight()))
                          .normalized();
        p.setBrush(QBrush(ViewColour::storage, Qt::BDiagPattern));
        p.drawRect(zone);
        p.setPen(QPen(ViewColour::storage, 1, Qt::DotLine));
        p.setBrush(Qt::NoBrush);
        p.drawRect(zone);
        p.setFont(viewFont(9));
        p.setPen(ViewColour::storage.darker(150));
        drawLabel(p, QPointF(zone.center().x(), zone.bottom() - 3),
                  QStringLiteral("Soil storage zone"), Qt::AlignHCenter | Qt::AlignBottom);
        // The water table across the whole drawing.
        const double y = s.map(QPointF(0, -d.waterTableDepth)).y();
        p.setPen(QPen(ViewColour::waterLine, 1.2, Qt::DashLine));
        p.drawLine(QPointF(s.plot.left(), y), QPointF(s.plot.right(), y));
        p.setPen(ViewColour::waterLine);
        drawLabel(p, QPointF(s.plot.left() + 2, y + 2),
                  QStringLiteral("Water table, ") + feet("hb", d.waterTableDepth)
                          + QStringLiteral(" below bottom"),
                  Qt::AlignLeft | Qt::AlignTop);
    }
    p.setPen(QPen(ViewColour::groundLine, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    p.drawPolyline(s.map(d.ground));
}

void paintWater(QPainter &p, const SectionScale &s, const SectionDrawing &d)
{
    p.setPen(Qt::NoPen);
    p.setBrush(ViewColour::water);
    p.drawPolygon(s.map(d.water));
    p.setPen(QPen(ViewColour::waterLine, 1.5));
    p.drawLine(s.map(d.water.first()), s.map(d.water.last()));
    if (d.criticalDepth && *d.criticalDepth > 0) {
        const double yc = *d.criticalDepth;
        const QPointF left = s.map(QPointF(d.leftBankX(yc), yc));
        p.setPen(QPen(ViewColour::critical, 1.2, Qt::DashLine));
        p.drawLine(left, s.map(QPointF(d.rightBankX(yc), yc)));
        p.setPen(ViewColour::critical);
        p.setFont(viewFont(9));
        drawLabel(p, left - QPointF(4, 0), feet("yc", yc), Qt::AlignRight | Qt::AlignVCenter);
    }
}

void paintDimensions(QPainter &p, const SectionScale &s, const SectionDrawing &d)
{
    p.setFont(viewFont(10));
    const QPen extension(QColor(0x90, 0x90, 0x90), 0.8, Qt::DotLine);
    const QPen dimension(ViewColour::dimension, 1);

    // Wt above the banks, with extension lines up from the water's edges.
    const QPointF waterLeft = s.map(d.water.first());
    const QPointF waterRight = s.map(d.water.last());
    const double wtY = s.map(QPointF(0, d.bankHeight)).y() - 12;
    p.setPen(extension);
    p.drawLine(waterLeft, QPointF(waterLeft.x(), wtY - 3));
    p.drawLine(waterRight, QPointF(waterRight.x(), wtY - 3));
    p.setPen(dimension);
    drawDimension(p, QPointF(waterLeft.x(), wtY), QPointF(waterRight.x(), wtY));
    drawLabel(p, QPointF((waterLeft.x() + waterRight.x()) / 2, wtY - 1), feet("Wt", d.Wt),
              Qt::AlignHCenter | Qt::AlignBottom);

    // d on the centre line of the bottom, bottom to water surface.
    const double centreX = d.leftToeX() + d.B / 2;
    const QPointF bottom = s.map(QPointF(centreX, 0));
    const QPointF surface = s.map(QPointF(centreX, d.d));
    drawDimension(p, bottom, surface);
    drawLabel(p, QPointF(bottom.x() + 4, (bottom.y() + surface.y()) / 2), feet("d", d.d),
              Qt::AlignLeft | Qt::AlignVCenter);

    // B just below the bottom; a triangular channel has none.
    if (d.B > 0) {
        const QPointF toeLeft = s.map(QPointF(d.leftToeX(), 0));
        const QPointF toeRight = s.map(QPointF(d.leftToeX() + d.B, 0));
        const double bY = toeLeft.y() + 10;
        p.setPen(extension);
        p.drawLine(toeLeft, QPointF(toeLeft.x(), bY + 3));
        p.drawLine(toeRight, QPointF(toeRight.x(), bY + 3));
        p.setPen(dimension);
        drawDimension(p, QPointF(toeLeft.x(), bY), QPointF(toeRight.x(), bY));
        drawLabel(p, QPointF((toeLeft.x() + toeRight.x()) / 2, bY + 2), feet("B", d.B),
                  Qt::AlignHCenter | Qt::AlignTop);
    }
}

void paintTitle(QPainter &p, const QRectF &rect, double exaggeration)
{
    const QRectF row(rect.left() + 6, rect.top() + 2, rect.width() - 12, kTitleHeight);
    p.setPen(Qt::black);
    p.setFont(viewFont(12, true));
    p.drawText(row, Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("Cross-section"));
    p.setFont(viewFont(10));
    const QString scale = exaggeration > 1.0001
            ? QStringLiteral("Vertical exaggeration %1:1").arg(std::round(exaggeration))
            : QStringLiteral("True to scale (no vertical exaggeration)");
    p.drawText(row, Qt::AlignRight | Qt::AlignVCenter, scale);
}
} // namespace

SectionScale sectionScaleIn(const QRectF &rect, const SectionDrawing &section)
{
    const QRectF area = rect.adjusted(kLeftRoom, kTopRoom, -kRightRoom, -kBottomRoom);
    // Below the lowest line drawn (the bottom, or the water table) the labels need room: the
    // B dimension, or the water table's name. Soil is added there until the scale settles.
    const bool waterTable = section.waterTableDepth > 0;
    const double lowest = waterTable ? -section.waterTableDepth : 0;
    const double room = waterTable ? 20 : 34;
    QRectF extent = section.extent;
    SectionScale scale = fitSection(extent, area);
    for (int pass = 0; pass < 3; ++pass) {
        const double needed = lowest - room / scale.vertical;
        if (needed >= extent.top())
            break;
        extent.setTop(needed);
        scale = fitSection(extent, area);
    }
    return scale;
}

void paintSection(QPainter &painter, const QRectF &rect, const SectionDrawing &section)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect, Qt::white);
    const SectionScale scale = sectionScaleIn(rect, section);
    paintTitle(painter, rect, scale.exaggeration());
    paintSoil(painter, scale, section);
    paintWater(painter, scale, section);
    paintDimensions(painter, scale, section);
    paintAxes(painter, rect, scale);
    painter.restore();
}
