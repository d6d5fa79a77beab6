#pragma once

#include "Calculate.h"
#include "HydraulicCheckLines.h"

#include <functional>
#include <string>
#include <vector>

// The names by which the design explorer and `swale-calc --sweep` address inputs and results:
// the bracketed symbols of the captions ("B" for "Bottom width of channel, [B]"), and "duration"
// for the duration of flow, whose caption has no symbol.

// Symbol of numeric input box `box`; "" for a text box or an index outside 1 to 23.
std::string inputSymbol(int box);
// Input box of `symbol` (case sensitive, as in the captions); 0 when no numeric box has it.
int inputBoxOfSymbol(const std::string &symbol);
// The symbols of every numeric input box, in box order, for usage messages.
std::string inputSymbolList();
// "Bottom width of channel, [B]"; for box 16 "Duration of flow, [duration]".
std::string inputCaptionWithSymbol(int box);

// True when validation reads numeric box `box` under these options, i.e. when changing it can
// change the results.
bool isInputUsed(int box, int solutionMethod, int channelFlowMethod);

// One numeric result column of a sweep. The result boxes come first; further numeric results
// (the hydraulic checks) are appended in resultColumns with their own text function.
struct ResultColumn
{
    std::string key; // "L", "FSe": the CSV column name and the --solve name
    std::string caption; // as the Results page shows it for these options
    std::string unit; // "" for none
    // The text this column shows for a successful calculation, as the Results page writes it,
    // or for the display lines of the hydraulic checks of its record (none when they could not
    // be computed).
    std::function<std::string(const CalculationOutcome &, const std::vector<CheckLine> &)> text;
    bool fromChecks = false; // the column reads the hydraulic checks
};

// The result columns of a solution method: every result box the method fills in page order, box
// 13 (a repeat of box 3) left out, then the hydraulic checks under their JSON keys
// ("critical_depth", ...; "residence_time" for methods 1 and 2 only).
std::vector<ResultColumn> resultColumns(int solutionMethod, int channelFlowMethod);
// The symbols of every result box and the keys of the hydraulic checks, for usage messages.
std::string resultSymbolList();
