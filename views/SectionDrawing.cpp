#include "SectionDrawing.h"

#include <algorithm>
#include <cmath>

SectionDrawing buildSectionDrawing(const SwaleInputData &record,
                                   std::optional<double> criticalDepth)
{
    SectionDrawing s;
    s.B = record.BottomWidth;
    s.Z1 = record.LeftSideSlope;
    s.Z2 = record.RightSideSlope;
    s.d = record.NormalDepth;
    s.Wt = record.TopWidth;
    s.criticalDepth = criticalDepth;
    const double deepest = std::max(s.d, criticalDepth.value_or(0.0));
    s.bankHeight = deepest + std::max(deepest / 3, 0.25);
    if (record.SolutionMethod == 1 || record.SolutionMethod == 2)
        s.waterTableDepth = std::max(0.0, record.WaterTableDepth);

    const double H = s.bankHeight;
    const double toeLeft = s.leftToeX();
    const double toeRight = toeLeft + s.B;
    s.ground = QPolygonF({ QPointF(0, H), QPointF(toeLeft, 0), QPointF(toeRight, 0),
                           QPointF(s.rightBankX(H), H) });
    s.water = QPolygonF({ QPointF(s.leftBankX(s.d), s.d), QPointF(toeLeft, 0), QPointF(toeRight, 0),
                          QPointF(s.rightBankX(s.d), s.d) });
    if (s.waterTableDepth > 0)
        s.storageZone = QRectF(s.leftBankX(s.d), -s.waterTableDepth, s.Wt, s.waterTableDepth);
    // The ground is shown a little below the bottom (or the water table) so that it reads as
    // soil, not as a line; the painter adds room for the labels there.
    const double below = s.waterTableDepth > 0 ? s.waterTableDepth * 1.05 : H * 0.1;
    s.extent = QRectF(0, -below, s.rightBankX(H), H + below);
    return s;
}

QPointF SectionScale::map(const QPointF &feet) const
{
    return QPointF(plot.left() + (feet.x() - extent.left()) * horizontal,
                   plot.bottom() - (feet.y() - extent.top()) * vertical);
}

QPolygonF SectionScale::map(const QPolygonF &feet) const
{
    QPolygonF mapped;
    mapped.reserve(feet.size());
    for (const QPointF &point : feet)
        mapped.append(map(point));
    return mapped;
}

namespace {
// Fill at least half the plot's height before the vertical is left true to scale.
constexpr double kMinimumHeightShare = 0.5;

double exaggerationFor(double needed)
{
    // 1, 2, 5, 10, 20, 50 ...: the ratios printed on engineering drawings.
    double decade = 1;
    for (;;) {
        for (const double factor : { 1.0, 2.0, 5.0 }) {
            if (factor * decade >= needed)
                return factor * decade;
        }
        decade *= 10;
    }
}
} // namespace

SectionScale fitSection(const QRectF &extent, const QRectF &area)
{
    SectionScale scale;
    scale.extent = extent;
    const double width = std::max(extent.width(), 1e-9);
    const double height = std::max(extent.height(), 1e-9);
    const double trueScale = std::min(area.width() / width, area.height() / height);
    scale.horizontal = trueScale;
    scale.vertical = trueScale;
    // In a tall, narrow area half its height would still be a lot: no more than 0.6 of the width.
    const double wanted = std::min(kMinimumHeightShare * area.height(), 0.6 * area.width());
    if (height * trueScale < wanted) {
        // Width-bound: keep the width, stretch the height by a round ratio.
        const double ratio = exaggerationFor(wanted / (height * trueScale));
        scale.vertical = trueScale * ratio;
        // A ratio that would overflow the height shrinks both scales together.
        if (height * scale.vertical > area.height()) {
            const double shrink = area.height() / (height * scale.vertical);
            scale.horizontal *= shrink;
            scale.vertical *= shrink;
        }
    }
    const QSizeF used(width * scale.horizontal, height * scale.vertical);
    scale.plot
            = QRectF(area.left() + (area.width() - used.width()) / 2,
                     area.top() + (area.height() - used.height()) / 2, used.width(), used.height());
    return scale;
}
