#include "Fixtures.h"
#include "RatingCurve.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {
// A project whose rating curve holds `rows`: "depth;discharge" rows separated by "|".
SwaleProject curve(const std::string &rows)
{
    std::vector<std::pair<std::string, std::string>> cells;
    std::istringstream in(rows);
    for (std::string row; std::getline(in, row, '|');) {
        const size_t semicolon = row.find(';');
        cells.emplace_back(row.substr(0, semicolon), row.substr(semicolon + 1));
    }
    SwaleProject p;
    setRatingCurve(p, cells);
    return p;
}
} // namespace

TEST(ValidateRatingCurve, ReportsTheFirstFaultAndItsCell)
{
    const struct
    {
        const char *name, *rows;
        int row, col;
        const char *message;
    } cases[] = {
        { "one row then a blank row", "0;0", 0, 0,
          "There must be at least two lines of data in the rating curve." },
        { "row 3 without discharge", "0;0|1;1|2;", 3, 2,
          "Missing data.  (Rating curve:  Row 3, Col 2)" },
        { "text in a depth", "0;0|one;1", 2, 1,
          "Data is not numeric.  (Rating curve:  Row 2, Col 1)" },
        { "first depth not zero", "0.5;0|1;1", 1, 1,
          "Rating curve data must start at depth zero." },
        { "tiny first discharge", "0;0.0001|1;1", 1, 2,
          "Rating curve data must start with zero discharge." },
        { "equal depths", "0;0|2;1|2;3", 3, 1,
          "Data are out of order.  (Rating curve:  Row 3, Col 1)" },
        { "equal discharges", "0;0|2;1|3;1", 3, 2,
          "Dicharge rates must increase with depth.  (Rating curve:  Row 3, Col 2)" },
        { "depth fault found before an earlier discharge fault", "0;0|1;0|3;2|2;4", 4, 1,
          "Data are out of order.  (Rating curve:  Row 4, Col 1)" },
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        RatingCurveTable table;
        RatingCurveFault fault;
        EXPECT_FALSE(ValidateRatingCurve(curve(c.rows), table, fault));
        EXPECT_EQ(fault.message, c.message);
        EXPECT_EQ(fault.row, c.row);
        EXPECT_EQ(fault.col, c.col);
    }
}

// Rows with one cell blank count (see the fault table); the curve ends at a wholly blank row.
TEST(ValidateRatingCurve, FillsTheTableUpToTheFirstWhollyBlankRow)
{
    RatingCurveTable table;
    RatingCurveFault fault;
    // 1E-50 is zero in single precision; " 6 " and "1,5" read as 6 and 1.
    ASSERT_TRUE(ValidateRatingCurve(curve("1E-50;0|0.5;0.25| 6 ;1,5| ; |7;5"), table, fault))
            << fault.message;
    ASSERT_EQ(table.PointCount, 3);
    EXPECT_EQ(table.Points[0].Depth, 1e-50);
    EXPECT_EQ(table.Points[1].Discharge, 0.25);
    EXPECT_EQ(table.Points[2].Depth, 6.0);
    EXPECT_EQ(table.Points[2].Discharge, 1.0);

    EXPECT_EQ(CountRatingCurveRows(SwaleProject()), 0);
    SwaleProject full;
    for (int r = 1; r <= kRatingCurveGridRows; ++r)
        full.setRatingCurveCell(r, 1, "1");
    EXPECT_EQ(CountRatingCurveRows(full), kRatingCurveGridRows);
}

TEST(LookupRatingCurve, InterpolatesInInchesAndNeverExtrapolates)
{
    RatingCurveTable table;
    RatingCurveFault fault;
    ASSERT_TRUE(ValidateRatingCurve(curve("0;0|6;2|12;8"), table, fault));
    struct Case
    {
        double depthFt;
        bool inside;
        double discharge;
    };
    const Case cases[] = {
        { 0.25, true, 1.0 }, // 3 in: halfway up the first segment
        { 0.0, true, 0.0 },      { 0.5, true, 2.0 }, // an interior point
        { 0.75, true, 5.0 },     { 1.0, true, 8.0 }, // exactly the last point
        { 1.0001, false, -1.0 }, { -0.1, false, -1.0 },
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.depthFt);
        double q = -1.0;
        EXPECT_EQ(LookupRatingCurve(table, c.depthFt, q), c.inside);
        EXPECT_NEAR(q, c.discharge, 1e-12);
    }
}
