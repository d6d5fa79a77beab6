#include "Sweep.h"

#include "NumberText.h"
#include "Validation.h"

#include <charconv>
#include <cmath>
#include <optional>

namespace {
constexpr size_t kProgressEvery = 256; // points between two progress reports

bool isCancelled(const std::atomic<bool> *cancel)
{
    return cancel && cancel->load(std::memory_order_relaxed);
}

const std::vector<CheckLine> kNoLines;

// The display lines of the hydraulic checks of `record`; none when they cannot be computed.
std::vector<CheckLine> linesOfChecks(const SwaleInputData &record)
{
    const HydraulicChecks checks = computeHydraulicChecks(record);
    return checks.fault.empty() ? hydraulicCheckLines(checks) : kNoLines;
}

// Calculates the working copy with the axes' boxes set to `values` and fills `row`.
void calculatePoint(SwaleProject &working, const std::vector<SweepAxis> &axes,
                    const std::vector<double> &values, const std::vector<ResultColumn> &columns,
                    SweepRow &row)
{
    for (size_t a = 0; a < axes.size(); ++a)
        working.inputText[static_cast<size_t>(axes[a].box)] = pointText(values[a]);
    const CalculationOutcome outcome = Calculate(working);
    std::optional<std::vector<CheckLine>> checkLines;
    row.inputs = values;
    row.results.clear();
    switch (outcome.status) {
    case CalculationOutcome::Status::Ok:
        row.status = PointStatus::Ok;
        row.results.reserve(columns.size());
        for (const ResultColumn &column : columns) {
            // The checks take a search of their own: worked out once a row, when asked for.
            if (column.fromChecks && !checkLines)
                checkLines = linesOfChecks(outcome.record);
            row.results.push_back(column.text(outcome, checkLines ? *checkLines : kNoLines));
        }
        row.message.clear();
        return;
    case CalculationOutcome::Status::Invalid:
        row.status = PointStatus::Invalid;
        break;
    case CalculationOutcome::Status::Failed:
        row.status = PointStatus::Failed;
        break;
    }
    row.message = outcomeMessage(outcome);
}

// One point of a one-input sweep: the row and the value of the solved result there.
struct Probe
{
    double input = 0;
    bool ok = false;
    std::string text;
    double value = 0;
};

Probe probe(SwaleProject &working, const SweepAxis &axis, double input,
            const std::vector<ResultColumn> &columns, int column)
{
    SweepRow row;
    calculatePoint(working, { axis }, { input }, columns, row);
    Probe p;
    p.input = input;
    p.ok = row.status == PointStatus::Ok;
    if (p.ok) {
        p.text = row.results[static_cast<size_t>(column)];
        p.value = resultNumber(p.text);
    }
    return p;
}

// Narrows [low, high], whose results lie on both sides of the target, until the interval is
// kSolveTolerance of the input wide; returns the end whose result lies nearer the target, or a
// point that does not calculate when one turns up inside the bracket.
Probe bisect(SwaleProject &working, const SweepAxis &axis, const std::vector<ResultColumn> &columns,
             int column, double target, Probe low, Probe high, const std::atomic<bool> *cancel)
{
    const bool lowBelow = low.value < target;
    for (int step = 0; step < 200 && !isCancelled(cancel); ++step) {
        const double width = std::fabs(high.input - low.input);
        if (width <= kSolveTolerance * std::max(std::fabs(low.input), std::fabs(high.input)))
            break;
        const Probe mid
                = probe(working, axis, low.input + (high.input - low.input) / 2, columns, column);
        if (!mid.ok || mid.value == target)
            return mid; // a failing point inside the bracket ends the search unresolved
        if ((mid.value < target) == lowBelow)
            low = mid;
        else
            high = mid;
    }
    return std::fabs(low.value - target) <= std::fabs(high.value - target) ? low : high;
}

std::string pointSentence(const std::string &symbol, const Probe &p, const std::string &key)
{
    return symbol + " = " + pointText(p.input) + " gives " + key + " = " + p.text;
}
} // namespace

double axisValue(const SweepAxis &axis, int i)
{
    if (i <= 0)
        return axis.from;
    if (i >= axis.points - 1)
        return axis.to;
    const double fraction = static_cast<double>(i) / (axis.points - 1);
    if (axis.spacing == Spacing::Logarithmic)
        return axis.from * std::pow(axis.to / axis.from, fraction);
    return axis.from + (axis.to - axis.from) * fraction;
}

std::string pointText(double value)
{
    char buffer[32];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    return std::string(buffer, result.ptr);
}

std::string checkSweepAxis(const SweepAxis &axis, int solutionMethod, int channelFlowMethod,
                           bool second)
{
    const std::string symbol = inputSymbol(axis.box);
    if (symbol.empty())
        return "input box " + std::to_string(axis.box) + " holds no number to sweep";
    if (!isInputUsed(axis.box, solutionMethod, channelFlowMethod))
        return "the solution method and channel flow of the project do not use " + symbol;
    if (!std::isfinite(axis.from) || !std::isfinite(axis.to))
        return "the range of " + symbol + " must be two finite numbers";
    if (axis.from == axis.to)
        return "the range of " + symbol + " must have two different ends";
    const int most = second ? kMaxSecondInputPoints : kMaxSweepPoints;
    if (axis.points < 2 || axis.points > most)
        return "the number of points of " + symbol + " must be 2 to " + std::to_string(most);
    if (axis.spacing == Spacing::Logarithmic && (axis.from <= 0 || axis.to <= 0))
        return "logarithmic spacing of " + symbol + " needs a range above zero";
    return {};
}

std::string checkSweep(const std::vector<SweepAxis> &axes, const SwaleProject &project)
{
    if (axes.empty() || axes.size() > 2)
        return "a sweep varies one input or two";
    const int method = GetSolutionMethod(project);
    const int flow = GetChannelFlowOption(project);
    for (size_t a = 0; a < axes.size(); ++a) {
        const std::string reason = checkSweepAxis(axes[a], method, flow, a == 1);
        if (!reason.empty())
            return reason;
    }
    if (axes.size() == 2 && axes[0].box == axes[1].box)
        return "the two swept inputs must differ";
    if (axes.size() == 2 && static_cast<long>(axes[0].points) * axes[1].points > kMaxSweepPoints)
        return "a two-way sweep has at most " + std::to_string(kMaxSweepPoints) + " points in all";
    return {};
}

const char *statusName(PointStatus status)
{
    switch (status) {
    case PointStatus::Ok:
        return "ok";
    case PointStatus::Invalid:
        return "invalid";
    case PointStatus::Failed:
        return "failed";
    case PointStatus::NotRun:
        break;
    }
    return "";
}

std::string outcomeMessage(const CalculationOutcome &outcome)
{
    if (outcome.status == CalculationOutcome::Status::Invalid)
        return outcome.fault.message;
    std::string message;
    for (const std::string &text : outcome.failureMessages) {
        if (!text.empty())
            message += (message.empty() ? "" : " ") + text;
    }
    return message;
}

SweepResult runSweep(const SwaleProject &project, const std::vector<SweepAxis> &axes,
                     const std::atomic<bool> *cancel, const SweepProgress &progress)
{
    SweepResult sweep;
    sweep.axes = axes;
    sweep.columns = resultColumns(GetSolutionMethod(project), GetChannelFlowOption(project));
    const size_t inner = axes.size() == 2 ? static_cast<size_t>(axes[1].points) : 1;
    const size_t total = static_cast<size_t>(axes.empty() ? 0 : axes[0].points) * inner;
    sweep.rows.resize(total);
    SwaleProject working = project;
    std::vector<double> values(axes.size());
    for (size_t i = 0; i < total; ++i) {
        if (isCancelled(cancel))
            return sweep;
        values[0] = axisValue(axes[0], static_cast<int>(i / inner));
        if (axes.size() == 2)
            values[1] = axisValue(axes[1], static_cast<int>(i % inner));
        calculatePoint(working, axes, values, sweep.columns, sweep.rows[i]);
        if (progress && ((i + 1) % kProgressEvery == 0 || i + 1 == total))
            progress(i + 1, total);
    }
    sweep.complete = true;
    return sweep;
}

double resultNumber(const std::string &text)
{
    return leadingNumber(text);
}

int columnIndex(const std::vector<ResultColumn> &columns, const std::string &key)
{
    for (size_t c = 0; c < columns.size(); ++c) {
        if (columns[c].key == key)
            return static_cast<int>(c);
    }
    return -1;
}

SolveOutcome solveForTarget(const SwaleProject &project, const SolveRequest &request,
                            const std::atomic<bool> *cancel)
{
    SweepAxis axis = request.vary;
    if (axis.points == 0)
        axis.points = kDefaultSolvePoints;
    const std::vector<ResultColumn> columns
            = resultColumns(GetSolutionMethod(project), GetChannelFlowOption(project));
    const int column = columnIndex(columns, request.resultKey);
    const std::string symbol = inputSymbol(axis.box);
    SolveOutcome outcome;
    if (column < 0) {
        outcome.message = "the solution method of the project has no result " + request.resultKey;
        return outcome;
    }
    SwaleProject working = project;
    Probe previous, nearest;
    for (int i = 0; i < axis.points && !isCancelled(cancel); ++i) {
        const Probe p = probe(working, axis, axisValue(axis, i), columns, column);
        if (p.ok
            && (!nearest.ok
                || std::fabs(p.value - request.target) < std::fabs(nearest.value - request.target)))
            nearest = p;
        const bool crosses = previous.ok && p.ok
                && (previous.value - request.target) * (p.value - request.target) <= 0;
        if (crosses) {
            const Probe found = previous.value == request.target
                    ? previous
                    : bisect(working, axis, columns, column, request.target, previous, p, cancel);
            if (!found.ok || isCancelled(cancel))
                break;
            outcome.reached = true;
            outcome.input = found.input;
            outcome.resultText = found.text;
            outcome.message = pointSentence(symbol, found, request.resultKey);
            return outcome;
        }
        previous = p;
    }
    if (isCancelled(cancel)) {
        outcome.message = "the search was cancelled";
        return outcome;
    }
    if (!nearest.ok) {
        outcome.message = "no point of the range of " + symbol + " calculates";
        return outcome;
    }
    outcome.input = nearest.input;
    outcome.resultText = nearest.text;
    outcome.message = "the target " + request.resultKey + " = " + pointText(request.target)
            + " is not reached in the range; the nearest point is "
            + pointSentence(symbol, nearest, request.resultKey);
    return outcome;
}
