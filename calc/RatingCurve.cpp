#include "RatingCurve.h"

#include "NumberText.h"
#include "UserTexts.h"

namespace {
std::string cellPlace(int row, int col)
{
    return "  (Rating curve:  Row " + NumberToDisplayText(static_cast<int32_t>(row)) + ", Col "
            + NumberToDisplayText(static_cast<int32_t>(col)) + ")";
}

bool fail(RatingCurveFault &fault, const std::string &message, int row, int col)
{
    fault.message = message;
    fault.row = row;
    fault.col = col;
    return false;
}

// Reads every cell of the first `count` rows into the table; false at the first blank or
// non-numeric cell.
bool readPoints(const SwaleProject &project, int count, RatingCurveTable &table,
                RatingCurveFault &fault)
{
    for (int r = 1; r <= count; ++r) {
        for (int c = 1; c <= 2; ++c) {
            const NumberReading reading = readNumberText(project.ratingCurveCell(r, c));
            if (reading.kind == NumberReading::Kind::Blank)
                return fail(fault, kMissingDataMessage + cellPlace(r, c), r, c);
            if (reading.kind == NumberReading::Kind::NotNumeric)
                return fail(fault, kNotNumericMessage + cellPlace(r, c), r, c);
            RatingCurvePoint &point = table.Points[static_cast<size_t>(r - 1)];
            (c == 1 ? point.Depth : point.Discharge) = reading.value;
        }
    }
    return true;
}
} // namespace

int CountRatingCurveRows(const SwaleProject &project)
{
    const int rows = project.ratingCurveRowCount();
    for (int r = 1; r <= rows; ++r) {
        if (isBlank(project.ratingCurveCell(r, 1)) && isBlank(project.ratingCurveCell(r, 2)))
            return r - 1;
    }
    return rows;
}

bool ValidateRatingCurve(const SwaleProject &project, RatingCurveTable &table,
                         RatingCurveFault &fault)
{
    const int count = CountRatingCurveRows(project);
    if (count < 2)
        return fail(fault, "There must be at least two lines of data in the rating curve.", 0, 0);
    table.PointCount = count;
    table.Points.assign(static_cast<size_t>(count), {});
    if (!readPoints(project, count, table, fault))
        return false;

    const auto &p = table.Points;
    // The first point is compared in single precision: a depth of 1E-50 counts as zero.
    if (RoundToSingle(p[0].Depth) != 0.0f)
        return fail(fault, "Rating curve data must start at depth zero.", 1, 1);
    if (RoundToSingle(p[0].Discharge) != 0.0f)
        return fail(fault, "Rating curve data must start with zero discharge.", 1, 2);
    // Every depth is checked before any discharge.
    for (int r = 2; r <= count; ++r) {
        if (p[static_cast<size_t>(r - 1)].Depth <= p[static_cast<size_t>(r - 2)].Depth)
            return fail(fault, "Data are out of order." + cellPlace(r, 1), r, 1);
    }
    for (int r = 2; r <= count; ++r) {
        if (p[static_cast<size_t>(r - 1)].Discharge <= p[static_cast<size_t>(r - 2)].Discharge)
            return fail(fault, "Dicharge rates must increase with depth." + cellPlace(r, 2), r, 2);
    }
    return true;
}

bool LookupRatingCurve(const RatingCurveTable &table, double depth, double &discharge)
{
    const double x = depth * 12; // ft to in
    for (int i = 1; i <= table.PointCount - 1; ++i) {
        const RatingCurvePoint &lo = table.Points[static_cast<size_t>(i - 1)];
        const RatingCurvePoint &hi = table.Points[static_cast<size_t>(i)];
        // The first segment that holds x wins: an interior point is read from the one below.
        if (x >= lo.Depth && x <= hi.Depth) {
            discharge = (x - lo.Depth) * (hi.Discharge - lo.Discharge) / (hi.Depth - lo.Depth)
                    + lo.Discharge;
            return true;
        }
    }
    return false;
}
