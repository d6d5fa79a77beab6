#include "ChannelViews.h"

#include "Arithmetic.h"
#include "CalcContext.h"
#include "ChannelCharts.h"
#include "SectionPainter.h"

#include <QPainter>

bool buildChannelViews(const SwaleInputData &record, std::optional<double> criticalDepth,
                       ChannelViews &views, QString &reason)
{
    CalcContext context;
    const bool built = runGuarded(context, [&] {
        views.section = buildSectionDrawing(record, criticalDepth);
        views.hydrograph = buildHydrographDrawing(record);
        views.rating = buildRatingDrawing(record);
        return record.NormalDepth > 0;
    });
    if (!built) {
        reason = context.CalculationErrorMessage.empty()
                ? QStringLiteral("The channel has no depth of flow to draw.")
                : QString::fromStdString(context.CalculationErrorMessage);
    }
    return built;
}

QString channelViewTitle(ChannelView view)
{
    switch (view) {
    case ChannelView::CrossSection:
        return QStringLiteral("Cross-section");
    case ChannelView::Hydrograph:
        return QStringLiteral("Inflow hydrograph");
    case ChannelView::RatingCurves:
        return QStringLiteral("Rating curves");
    }
    return QString();
}

void paintChannelView(QPainter &painter, const QRectF &target, const ChannelViews &views,
                      ChannelView view, double unitsPerPoint)
{
    const QSizeF logical(target.width() / unitsPerPoint, target.height() / unitsPerPoint);
    switch (view) {
    case ChannelView::CrossSection: {
        painter.save();
        painter.translate(target.topLeft());
        painter.scale(unitsPerPoint, unitsPerPoint);
        paintSection(painter, QRectF(QPointF(0, 0), logical), views.section);
        painter.restore();
        break;
    }
    case ChannelView::Hydrograph:
        renderChart(painter, target, logical, makeHydrographChart(views.hydrograph),
                    [&views](QChart &chart) { labelClippedVolume(chart, views.hydrograph); });
        break;
    case ChannelView::RatingCurves:
        renderChart(painter, target, logical, makeRatingChart(views.rating),
                    [&views](QChart &chart) { labelRatingPoints(chart, views.rating); });
        break;
    }
}
