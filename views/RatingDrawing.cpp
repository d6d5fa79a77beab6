#include "RatingDrawing.h"

#include "ChannelHydraulics.h"

#include <algorithm>

namespace {
constexpr int kSamples = 60;
constexpr double kInchesPerFoot = 12;

// Q and V at depth y, ft; (0, 0) for the dry channel.
QPointF dischargeAndVelocity(const SwaleInputData &record, double y)
{
    if (y <= 0)
        return QPointF(0, 0);
    const SectionGeometry g
            = sectionGeometry(y, record.BottomWidth, record.LeftSideSlope, record.RightSideSlope);
    const double Q = manningDischarge(record.RoughnessCoefficient, g.Ax, g.Rh, record.ChannelSlope);
    return QPointF(Q, Q / g.Ax);
}
} // namespace

std::optional<double> interpolate(const QPolygonF &curve, double x)
{
    for (qsizetype i = 1; i < curve.size(); ++i) {
        const QPointF &a = curve[i - 1];
        const QPointF &b = curve[i];
        if (x >= a.x() && x <= b.x()) {
            if (b.x() == a.x())
                return a.y();
            return a.y() + (x - a.x()) * (b.y() - a.y()) / (b.x() - a.x());
        }
    }
    return std::nullopt;
}

QPolygonF inletCurveInFeet(const RatingCurveTable &table, double maxDepth)
{
    QPolygonF feet;
    for (const RatingCurvePoint &point : table.Points)
        feet.append(QPointF(point.Depth / kInchesPerFoot, point.Discharge));
    QPolygonF cut;
    for (qsizetype i = 0; i < feet.size(); ++i) {
        if (feet[i].x() <= maxDepth) {
            cut.append(feet[i]);
            continue;
        }
        if (i > 0)
            cut.append(QPointF(maxDepth, *interpolate(feet, maxDepth)));
        break;
    }
    return cut;
}

RatingDrawing buildRatingDrawing(const SwaleInputData &record)
{
    RatingDrawing r;
    const double d = record.NormalDepth;
    r.maxDepth = 1.5 * d;
    r.permissibleVelocity = record.PermissibleVelocity;
    r.designPoint = QPointF(d, record.PeakFlowRate);
    std::vector<double> depths;
    for (int i = 0; i <= kSamples; ++i)
        depths.push_back(r.maxDepth * i / kSamples);
    depths.push_back(d);
    std::sort(depths.begin(), depths.end());
    for (const double y : depths) {
        const QPointF qv = dischargeAndVelocity(record, y);
        r.discharge.append(QPointF(y, qv.x()));
        r.velocity.append(QPointF(y, qv.y()));
    }
    if (record.SolutionMethod == 3) {
        r.inlet = inletCurveInFeet(record.RatingCurve, r.maxDepth);
        r.inletAtDepth = QPointF(d, record.InletDischarge);
    }
    return r;
}
