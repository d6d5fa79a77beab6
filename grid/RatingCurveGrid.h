#pragma once

#include "PropertyBag.h"
#include "UserTexts.h"

#include <QString>

class RdcGridA;

// The rating-curve grid of the input page: depth in inches and discharge rate in cfs, one
// point a row.

// Column headers, each on two lines.
inline const QString kRatingCurveDepthHeader = QLatin1String(kRatingDepthTitle)
        + QStringLiteral("\r\n") + QLatin1String(kRatingDepthUnit);
inline const QString kRatingCurveDischargeHeader = QLatin1String(kRatingDischargeTitle)
        + QStringLiteral("\r\n") + QLatin1String(kRatingDischargeUnit);

// The saved design of the rating-curve grid: editable, 2 columns, 50 rows, no title bar, header
// and data rows 21 pixels high, row labels centred.
PropertyBag ratingCurveGridProperties();

// Makes a grid the rating-curve grid: loads that design, writes the two headers and widens each
// column until its header shows whole. The cells are left as they are.
void setupRatingCurveGrid(RdcGridA &grid);
