#pragma once

#include <string>
#include <vector>

// The normal-depth search's two settings, fixed when the program starts.
struct CalcSettings
{
    // Tolerance on the relative error of the section factor, in percent: 1E-07 stops the search
    // when the error is below one billionth of the target.
    double NormalDepthTolerance = 1E-07;
    // Iteration limit, held as a double and rounded to an integer when a search starts.
    double NormalDepthMaxIterations = 10000;
};

// What one calculation carries besides its record: the settings and the text of a failure.
struct CalcContext
{
    CalcSettings settings;
    std::string CalculationErrorMessage;
    // Messages a procedure shows itself before it fails (method 3 beyond the rating curve).
    std::vector<std::string> shownMessages;
};
