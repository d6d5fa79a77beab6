#pragma once

#include "SweepSymbols.h"
#include "SwaleProject.h"

#include <atomic>
#include <functional>
#include <string>
#include <vector>

// The design explorer's engine: the same Calculate as the button, run on a copy of the project
// for each value of one or two inputs, and a search for the input value at which a result meets
// a target. Pure: the window and swale-calc both drive it.

constexpr int kMaxSweepPoints = 100000; // points of a sweep, one input or two together
constexpr int kMaxSecondInputPoints = 200; // points of the second input of a two-way sweep

enum class Spacing { Linear, Logarithmic };

// One swept input: box `box` takes `points` values from `from` to `to`, both ends included.
struct SweepAxis
{
    int box = 0;
    double from = 0;
    double to = 0;
    int points = 0;
    Spacing spacing = Spacing::Linear;
};

// Value number `i` (0 to points - 1) of an axis; the ends are exactly `from` and `to`.
double axisValue(const SweepAxis &axis, int i);

// The text typed for a value: the shortest text that reads back as the same double.
std::string pointText(double value);

// The reason an axis cannot be swept on a project with these options, or "" when it can.
// `second` is true for the second input of a two-way sweep.
std::string checkSweepAxis(const SweepAxis &axis, int solutionMethod, int channelFlowMethod,
                           bool second);
// The reason the axes (one or two) cannot be swept together on `project`, or "".
std::string checkSweep(const std::vector<SweepAxis> &axes, const SwaleProject &project);

enum class PointStatus { NotRun, Ok, Invalid, Failed };
// "ok", "invalid", "failed"; "" for a point not run.
const char *statusName(PointStatus status);

// The message the window shows for an outcome that is not Ok: the validation fault, or the
// calculation's failure messages (the non-empty ones, joined by a blank); "" for Ok.
std::string outcomeMessage(const CalculationOutcome &outcome);

struct SweepRow
{
    std::vector<double> inputs; // value of each axis at this point
    PointStatus status = PointStatus::NotRun;
    std::vector<std::string> results; // text of each result column; empty unless Ok
    std::string message; // why the point has no results
};

struct SweepResult
{
    std::vector<SweepAxis> axes;
    std::vector<ResultColumn> columns;
    // One row per point, the first axis outermost; rows not reached by a cancelled sweep stay
    // NotRun.
    std::vector<SweepRow> rows;
    bool complete = false; // every row was calculated (false after a cancel)
};

// Called now and then with the number of points done and the total.
using SweepProgress = std::function<void(size_t done, size_t total)>;

// Runs every point of the axes on a copy of `project` whose swept boxes hold the point's
// pointText. `cancel` is read between points; a cancelled sweep returns with complete false.
// The axes must have passed checkSweep.
SweepResult runSweep(const SwaleProject &project, const std::vector<SweepAxis> &axes,
                     const std::atomic<bool> *cancel = nullptr, const SweepProgress &progress = {});

// The number shown by a result text ("1.234568E+07"); 0 for "".
double resultNumber(const std::string &text);

// Index of the result column `key` in `columns`; -1 when there is none.
int columnIndex(const std::vector<ResultColumn> &columns, const std::string &key);

struct SolveRequest
{
    std::string resultKey; // a ResultColumn key: "L", "FSe", ...
    double target = 0;
    SweepAxis vary; // the input and its range; points 0 means the default of 200
};

struct SolveOutcome
{
    bool reached = false; // `input` gives a result within the bisection tolerance of the target
    double input = 0; // the value found, or the nearest point of the sweep when not reached
    std::string resultText; // the result there; "" when no point of the range calculated
    std::string message; // a sentence for the user on either outcome
};

constexpr int kDefaultSolvePoints = 200;
// Relative width of the input interval at which the bisection stops.
constexpr double kSolveTolerance = 1E-07;

// Brackets the target between two neighbouring points of a sweep of `request.vary` and narrows
// the bracket by bisection on the input to kSolveTolerance relative. The result column must
// exist for the project's method (see columnIndex).
SolveOutcome solveForTarget(const SwaleProject &project, const SolveRequest &request,
                            const std::atomic<bool> *cancel = nullptr);
