// The geometry behind the channel drawings: axis scales, the fit of the section, the clipped
// hydrograph against the core's volume formula, and the rating curves through the design point.
#include "AxisScale.h"
#include "ChannelHydraulics.h"
#include "HydrographDrawing.h"
#include "Inflow.h"
#include "RatingCurve.h"
#include "RatingDrawing.h"
#include "SectionDrawing.h"

#include <gtest/gtest.h>

namespace {

struct ScaleCase
{
    const char *name;
    double low, high;
    int intervals;
    double minimum, maximum, step;
    int decimals;
};
const ScaleCase kScaleCases[] = {
    // Steps of 1, 2, 2.5 or 5 times a power of ten, the range widened to whole steps.
    { "section width 8.8 ft in 4", 0, 8.8, 4, 0, 10, 2.5, 1 },
    { "water table below the bottom", -3.1, 0.9, 4, -4, 1, 1, 0 },
    { "flows to 0.55 cfs in 5", 0, 0.55, 5, 0, 0.6, 0.2, 1 },
    { "empty range widened", 2, 2, 4, 2, 3, 0.25, 2 },
};

TEST(AxisScale, RoundStepsCoverTheRange)
{
    for (const ScaleCase &row : kScaleCases) {
        SCOPED_TRACE(row.name);
        const AxisScale scale = niceScale(row.low, row.high, row.intervals);
        EXPECT_DOUBLE_EQ(scale.minimum, row.minimum);
        EXPECT_DOUBLE_EQ(scale.maximum, row.maximum);
        EXPECT_DOUBLE_EQ(scale.step, row.step);
        EXPECT_EQ(scale.decimals(), row.decimals);
    }
}

struct FitCase
{
    const char *name;
    QRectF extent; // ft
    QRectF area;
    double exaggeration;
};
const FitCase kFitCases[] = {
    // 300 / 20 = 15 px/ft across; 1.2 ft high is 18 px, under half of 300: 10 gives 180 px.
    { "wide shallow swale", QRectF(0, -0.2, 20, 1.2), QRectF(0, 0, 300, 300), 10 },
    { "deep narrow ditch", QRectF(0, -1, 4, 4), QRectF(0, 0, 400, 300), 1 },
    // 2.5 ft of 25 ft at 16 px/ft is 40 px: half of 200 needs 2.5 times, so 5, which would be
    // 200 px and just fits.
    { "flat section in a short plot", QRectF(0, 0, 25, 2.5), QRectF(0, 0, 400, 200), 5 },
};

TEST(SectionScale, FitsTheAreaWithARoundExaggeration)
{
    for (const FitCase &row : kFitCases) {
        SCOPED_TRACE(row.name);
        const SectionScale scale = fitSection(row.extent, row.area);
        EXPECT_NEAR(scale.exaggeration(), row.exaggeration, 1e-9);
        EXPECT_TRUE(row.area.adjusted(-1e-9, -1e-9, 1e-9, 1e-9).contains(scale.plot));
        // The extent's corners land on the plot's corners, y upwards.
        const QPointF lowLeft = scale.map(QPointF(row.extent.left(), row.extent.top()));
        EXPECT_NEAR(lowLeft.x(), scale.plot.left(), 1e-9);
        EXPECT_NEAR(lowLeft.y(), scale.plot.bottom(), 1e-9);
    }
}

TEST(SectionDrawing, WaterReachesTheTopWidthAtTheNormalDepth)
{
    SwaleInputData record;
    record.SolutionMethod = 1;
    record.BottomWidth = 4;
    record.LeftSideSlope = 3;
    record.RightSideSlope = 2;
    record.NormalDepth = 0.5;
    record.TopWidth = topWidth(0.5, 4, 3, 2);
    record.WaterTableDepth = 3;
    const SectionDrawing s = buildSectionDrawing(record, 0.4);
    EXPECT_DOUBLE_EQ(s.water.last().x() - s.water.first().x(), record.TopWidth);
    EXPECT_DOUBLE_EQ(s.water.first().y(), 0.5);
    EXPECT_GT(s.bankHeight, 0.5);
    EXPECT_DOUBLE_EQ(s.storageZone.width(), record.TopWidth);
    EXPECT_DOUBLE_EQ(s.storageZone.top(), -3);
    EXPECT_LE(s.extent.top(), -3);
}

struct ClipCase
{
    const char *name;
    int channelFlowMethod;
    double D, Tc, Qp, duration; // min, min, cfs, min
    double rate; // cfs
};
const ClipCase kClipCases[] = {
    { "trapezoid, rate below the peak", 1, 30, 10, 0.85, 0, 0.356032 },
    { "trapezoid, rate near the peak", 1, 20, 12, 8.4, 0, 8.3 },
    { "storm shorter than Tc: the ramps meet", 1, 5, 15, 2, 0, 0.9 },
    { "rectangle of a given flow", 2, 0, 0, 0.5, 60, 0.1029939 },
};

TEST(HydrographDrawing, ClippedAreaIsTheVolumeOfTheCore)
{
    for (const ClipCase &row : kClipCases) {
        SCOPED_TRACE(row.name);
        SwaleInputData record;
        record.ChannelFlowMethod = static_cast<int16_t>(row.channelFlowMethod);
        record.StormDuration = row.D;
        record.TimeOfConcentration = row.Tc;
        record.PeakFlowRate = row.Qp;
        record.FlowDuration = row.duration;
        const QPolygonF clipped = clipHydrograph(inflowHydrograph(record), row.rate);
        const double area = polygonArea(clipped) * 60; // cfs min to ft3
        const double volume = hydrographVolume(record, row.rate);
        EXPECT_NEAR(area, volume, 1e-9 * volume);
        // The whole hydrograph holds the treatment volume Vr, whatever Tc.
        if (row.D >= row.Tc) {
            const double Vr = inflowVolume(record);
            EXPECT_NEAR(polygonArea(inflowHydrograph(record)) * 60, Vr, 1e-9 * Vr);
        }
    }
}

// A trapezoidal channel at its normal depth, as the solution methods leave it.
SwaleInputData solvedChannel(double Qp)
{
    SwaleInputData record;
    record.BottomWidth = 2;
    record.LeftSideSlope = 4;
    record.RightSideSlope = 4;
    record.ChannelSlope = 0.02;
    record.RoughnessCoefficient = 0.035;
    record.PermissibleVelocity = 6;
    record.PeakFlowRate = Qp;
    CalcContext context;
    EXPECT_TRUE(SolveNormalDepth(record, context));
    computeHydraulicsAtNormalDepth(record);
    return record;
}

TEST(RatingDrawing, DischargeCurvePassesThroughTheDesignPoint)
{
    for (const double Qp : { 0.5, 8.4, 150.0 }) {
        SCOPED_TRACE(Qp);
        const SwaleInputData record = solvedChannel(Qp);
        const RatingDrawing r = buildRatingDrawing(record);
        EXPECT_GE(r.maxDepth, 1.5 * record.NormalDepth);
        EXPECT_EQ(r.designPoint, QPointF(record.NormalDepth, Qp));
        // The search stops within a billionth of the section factor; Q follows it.
        EXPECT_NEAR(*interpolate(r.discharge, record.NormalDepth), Qp, 1e-7 * Qp);
        EXPECT_NEAR(*interpolate(r.velocity, record.NormalDepth), record.MeanVelocity,
                    1e-7 * record.MeanVelocity);
        EXPECT_TRUE(r.inlet.isEmpty());
    }
}

TEST(RatingDrawing, InletCurveMeetsTheNormalDepthAtTheInletDischarge)
{
    SwaleInputData record = solvedChannel(8.4);
    record.SolutionMethod = 3;
    // The median ditch's inlet: depth in inches, discharge in cfs.
    const double points[][2] = { { 0, 0 }, { 2, 0.82 }, { 6, 4.24 }, { 12, 12 }, { 24, 30 } };
    for (const auto &point : points)
        record.RatingCurve.Points.push_back({ point[0], point[1] });
    record.RatingCurve.PointCount = static_cast<int32_t>(record.RatingCurve.Points.size());
    ASSERT_TRUE(LookupRatingCurve(record.RatingCurve, record.NormalDepth, record.InletDischarge));

    const RatingDrawing r = buildRatingDrawing(record);
    ASSERT_TRUE(r.inletAtDepth.has_value());
    EXPECT_EQ(*r.inletAtDepth, QPointF(record.NormalDepth, record.InletDischarge));
    EXPECT_NEAR(*interpolate(r.inlet, record.NormalDepth), record.InletDischarge, 1e-12);
    // 24 in lies beyond 1.5 d: the curve is cut there, not squeezed into the plot.
    EXPECT_DOUBLE_EQ(r.inlet.last().x(), r.maxDepth);
    EXPECT_DOUBLE_EQ(r.inlet[1].x(), 2.0 / 12);
}

} // namespace
