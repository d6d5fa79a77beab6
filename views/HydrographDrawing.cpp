#include "HydrographDrawing.h"

#include <algorithm>
#include <cmath>

QPolygonF inflowHydrograph(const SwaleInputData &record)
{
    const double Qp = record.PeakFlowRate;
    if (record.ChannelFlowMethod != 1) {
        const double T = record.FlowDuration;
        return QPolygonF({ QPointF(0, 0), QPointF(0, Qp), QPointF(T, Qp), QPointF(T, 0) });
    }
    const double D = record.StormDuration;
    const double Tc = record.TimeOfConcentration;
    const double base = D + Tc;
    if (Tc <= 0)
        return QPolygonF({ QPointF(0, 0), QPointF(0, Qp), QPointF(D, Qp), QPointF(D, 0) });
    if (D >= Tc) {
        return QPolygonF({ QPointF(0, 0), QPointF(Tc, Qp), QPointF(D, Qp), QPointF(base, 0) });
    }
    // The two ramps meet at half the base, below Qp: the width of the hydrograph at flow q is
    // still (D + Tc) - 2 q Tc / Qp, which the volume formula integrates.
    const double middle = base / 2;
    return QPolygonF({ QPointF(0, 0), QPointF(middle, Qp * middle / Tc), QPointF(base, 0) });
}

QPolygonF clipHydrograph(const QPolygonF &hydrograph, double rate)
{
    QPolygonF clipped;
    if (hydrograph.isEmpty())
        return clipped;
    auto below = [rate](const QPointF &p) { return QPointF(p.x(), std::min(p.y(), rate)); };
    clipped.append(below(hydrograph.first()));
    for (qsizetype i = 1; i < hydrograph.size(); ++i) {
        const QPointF a = hydrograph[i - 1];
        const QPointF b = hydrograph[i];
        // Where a segment crosses the rate, the clipped outline turns there.
        if ((a.y() - rate) * (b.y() - rate) < 0) {
            const double t = (rate - a.y()) / (b.y() - a.y());
            clipped.append(QPointF(a.x() + t * (b.x() - a.x()), rate));
        }
        clipped.append(below(b));
    }
    return clipped;
}

double polygonArea(const QPolygonF &polygon)
{
    double twice = 0;
    for (qsizetype i = 0; i < polygon.size(); ++i) {
        const QPointF &a = polygon[i];
        const QPointF &b = polygon[(i + 1) % polygon.size()];
        twice += a.x() * b.y() - b.x() * a.y();
    }
    return std::fabs(twice) / 2;
}

HydrographDrawing buildHydrographDrawing(const SwaleInputData &record)
{
    HydrographDrawing h;
    h.solutionMethod = record.SolutionMethod;
    h.channelFlowMethod = record.ChannelFlowMethod;
    h.inflow = inflowHydrograph(record);
    h.peak = record.PeakFlowRate;
    h.runoffVolume = record.RunoffVolume;
    h.duration = h.inflow.isEmpty() ? 0 : h.inflow.last().x();
    switch (record.SolutionMethod) {
    case 1:
    case 2:
        h.rate = record.InfiltrationAtNormalDepth;
        h.clippedVolume = record.MaxInfiltrationVolume;
        break;
    case 3:
        h.rate = record.InletDischarge;
        h.clippedVolume = record.InletVolume;
        break;
    default:
        break;
    }
    if (h.rate)
        h.clipped = clipHydrograph(h.inflow, std::max(0.0, *h.rate));
    return h;
}
