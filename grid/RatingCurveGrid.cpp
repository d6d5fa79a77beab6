#include "RatingCurveGrid.h"

#include "RdcGridA.h"

#include <algorithm>

PropertyBag ratingCurveGridProperties()
{
    PropertyBag bag;
    bag.WriteProperty(QStringLiteral("ReadOnly"), false, true);
    bag.WriteProperty(QStringLiteral("Cols"), 2, 1);
    bag.WriteProperty(QStringLiteral("Rows"), 50, 10);
    bag.WriteProperty(QStringLiteral("TitleVisible"), false, true);
    bag.WriteProperty(QStringLiteral("HeaderRowHeight"), 21, 20);
    bag.WriteProperty(QStringLiteral("DataRowHeight"), 21, 20);
    bag.WriteProperty(QStringLiteral("RowLabelAlign"), int(RdcGridA::AlignCentre),
                      int(RdcGridA::AlignLeft));
    return bag;
}

void setupRatingCurveGrid(RdcGridA &grid)
{
    grid.readProperties(ratingCurveGridProperties());
    grid.setText(0, 1, kRatingCurveDepthHeader);
    grid.setText(0, 2, kRatingCurveDischargeHeader);
    // A header keeps some air on both sides, like a spreadsheet's column letters.
    constexpr int kHeaderPadding = 8;
    for (int col = 1; col <= grid.Cols(); ++col) {
        const int needed = grid.headerCaptionWidth(col) + 2 * kHeaderPadding;
        grid.setColumnWidth(col, std::max(grid.DefaultDataColumnWidth(), needed));
    }
    grid.Refresh();
}
