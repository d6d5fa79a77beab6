#pragma once

#include "HydrographDrawing.h"
#include "RatingDrawing.h"
#include "SectionDrawing.h"
#include "SwaleInputData.h"

#include <QRectF>
#include <QString>

#include <array>
#include <optional>

class QPainter;

// The three drawings of a calculated channel, shared by the window's channel pane and the
// printed report: each is computed once as plain values, then painted on any device.
enum class ChannelView { CrossSection, Hydrograph, RatingCurves };
constexpr std::array<ChannelView, 3> kChannelViews
        = { ChannelView::CrossSection, ChannelView::Hydrograph, ChannelView::RatingCurves };

struct ChannelViews
{
    SectionDrawing section;
    HydrographDrawing hydrograph;
    RatingDrawing rating;
};

// Builds the drawings of a successful calculation's record; `criticalDepth` (ft) is drawn when
// known. False, with the reason in `reason`, when the record's numbers cannot be drawn (an
// arithmetic fault of the core on a degenerate channel).
bool buildChannelViews(const SwaleInputData &record, std::optional<double> criticalDepth,
                       ChannelViews &views, QString &reason);

// "Cross-section", "Inflow hydrograph", "Rating curves".
QString channelViewTitle(ChannelView view);

// Paints `view` into `target`. The drawing's texts and lines are sized in points:
// `unitsPerPoint` is the number of target units to a point (1 on a screen, the resolution / 72
// on a printer or PDF). Qt Charts needs a QApplication for the two charts.
void paintChannelView(QPainter &painter, const QRectF &target, const ChannelViews &views,
                      ChannelView view, double unitsPerPoint = 1.0);
