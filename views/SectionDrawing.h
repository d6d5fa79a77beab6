#pragma once

#include "SwaleInputData.h"

#include <QPointF>
#include <QPolygonF>
#include <QRectF>

#include <optional>

// The channel's cross-section at the normal depth, in feet: x across the channel from the top
// of the left bank, y up from the channel bottom (the water table lies at y = -hb).
struct SectionDrawing
{
    double B = 0; // bottom width, ft
    double Z1 = 0; // left side slope, horizontal per vertical
    double Z2 = 0; // right side slope
    double d = 0; // normal depth, ft
    double Wt = 0; // top width at d, ft
    double bankHeight = 0; // bank tops above the bottom, ft
    std::optional<double> criticalDepth; // ft, drawn dashed when known
    double waterTableDepth = 0; // hb below the bottom, ft; 0 when not drawn (methods 3 and 4)

    QPolygonF ground; // left bank top, left toe, right toe, right bank top
    QPolygonF water; // the flow area: left water edge, left toe, right toe, right water edge
    QRectF storageZone; // soil storage under the water surface down to the water table (methods 1,
                        // 2)
    QRectF extent; // everything the drawing shows, y upwards: top() is the lowest elevation

    double leftToeX() const { return Z1 * bankHeight; }
    // x of the left and right bank at elevation y.
    double leftBankX(double y) const { return Z1 * (bankHeight - y); }
    double rightBankX(double y) const { return Z1 * bankHeight + B + Z2 * y; }
};

// The section of a calculation record at its normal depth. The banks rise a third of the
// larger of the normal and critical depths above it, at least 0.25 ft: enough to show the
// channel's shape without pretending to know the real freeboard. Methods 1 and 2 show the
// water table hb below the bottom and the soil storage zone Wt wide above it (the Vs of the
// infiltration check).
SectionDrawing buildSectionDrawing(const SwaleInputData &record,
                                   std::optional<double> criticalDepth);

// How the section is fitted into a plot area: feet to plot units on each axis. The horizontal
// scale fills the plot; when the section is so flat that it would fill less than half the
// plot's height (or 0.6 of its width, in a tall plot), the vertical is exaggerated by the smallest
// of 2, 5, 10, 20, 50 ... that does.
struct SectionScale
{
    QRectF plot; // the part of the target the section occupies
    QRectF extent; // feet shown, as SectionDrawing::extent
    double horizontal = 1; // plot units per ft across
    double vertical = 1; // plot units per ft up

    double exaggeration() const { return vertical / horizontal; }
    QPointF map(const QPointF &feet) const;
    QPolygonF map(const QPolygonF &feet) const;
};

SectionScale fitSection(const QRectF &extent, const QRectF &area);
