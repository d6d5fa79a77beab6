#include "SwaleProject.h"

const std::string &SwaleProject::ratingCurveCell(int row, int col) const
{
    static const std::string empty;
    if (row < 1 || row > ratingCurveRowCount() || col < 1 || col > 2)
        return empty;
    return ratingCurve[static_cast<size_t>(row - 1)][static_cast<size_t>(col - 1)];
}

void SwaleProject::setRatingCurveCell(int row, int col, const std::string &text)
{
    if (row < 1 || col < 1 || col > 2)
        return;
    if (row > ratingCurveRowCount())
        ratingCurve.resize(static_cast<size_t>(row));
    ratingCurve[static_cast<size_t>(row - 1)][static_cast<size_t>(col - 1)] = text;
}

void SwaleProject::clearRatingCurve()
{
    ratingCurve.assign(kRatingCurveGridRows, {});
}
