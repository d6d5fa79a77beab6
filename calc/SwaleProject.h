#pragma once

#include <array>
#include <string>
#include <vector>

// Input boxes are numbered 1 to 23 and output boxes 1 to 18, as on the pages of the window.
constexpr int kInputCount = 23;
constexpr int kOutputCount = 18;
constexpr int kSolutionMethodCount = 4;
constexpr int kChannelFlowMethodCount = 2;
// The rating-curve grid starts with this many data rows; a project file may hold more.
constexpr int kRatingCurveGridRows = 50;

// The document: everything the user typed or chose, as text, plus the results on the Results
// page. The window copies its controls into a project and back; files, validation, the report
// and the command-line tool all read and write this one shape.
struct SwaleProject
{
    std::array<std::string, kInputCount + 1> inputText {}; // [0] unused: boxes are 1 to 23
    int solutionMethod = 0; // chosen optCalculate button, 1 to 4; 0 when none is chosen
    int channelFlowMethod = 0; // chosen optChannelFlow button, 1 or 2; 0 when none is chosen
    // Rating-curve cell texts: data row r (from 1) is ratingCurve[r - 1], column c (1 depth,
    // 2 discharge) is [c - 1].
    std::vector<std::array<std::string, 2>> ratingCurve
            = std::vector<std::array<std::string, 2>>(kRatingCurveGridRows);
    bool resultsShown = false; // the output texts are the results of the current inputs
    std::array<std::string, kOutputCount + 1> outputText {}; // [0] unused: boxes are 1 to 18

    int ratingCurveRowCount() const { return static_cast<int>(ratingCurve.size()); }
    // Text of cell (row, col); "" for a row beyond the grid.
    const std::string &ratingCurveCell(int row, int col) const;
    // Sets the text of cell (row, col), growing the grid when the row lies beyond it.
    void setRatingCurveCell(int row, int col, const std::string &text);
    // Empties every rating-curve cell and gives the grid its starting number of rows.
    void clearRatingCurve();
};
