#pragma once

#include "CalcContext.h"
#include "SwaleInputData.h"
#include "SwaleProject.h"

#include <array>
#include <string>
#include <vector>

// Where the window puts the focus after a validation fault.
enum class FaultPlace {
    None, // the option faults and the "at least two lines" fault of the rating curve
    InputBox, // txtInput(input)
    GridCell, // rating-curve cell (row, col)
};

struct ValidationFault
{
    std::string message;
    FaultPlace place = FaultPlace::None;
    int input = 0; // input box 1..23 when place is InputBox
    int row = 0; // rating-curve row and column when place is GridCell
    int col = 0;
};

struct CalculationOutcome
{
    enum class Status {
        Ok, // results and clipboardText hold the new results
        Invalid, // fault holds the first validation fault
        Failed, // failureMessages hold the "Error" boxes the window shows, in order
    };
    Status status = Status::Failed;
    std::array<std::string, kOutputCount + 1> results {}; // [0] unused: text of txtOutput(1..18)
    std::string clipboardText;
    ValidationFault fault;
    std::vector<std::string> failureMessages;
    // The calculation record at the normal depth found, for the checks and drawings that build on
    // a result (Ok only; zeroed otherwise).
    SwaleInputData record;
};

// The Calculate command without its window: a zeroed record, validation of the project, the
// procedure of the chosen solution method, and the texts of the 18 output boxes with the
// clipboard text. A failing procedure yields the messages the window shows one after the other
// with the critical-stop icon (method 3 beyond its rating curve gives two, the second empty).
CalculationOutcome Calculate(const SwaleProject &project, const CalcSettings &settings = {});
