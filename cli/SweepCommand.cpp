#include "SweepCommand.h"

#include "Sweep.h"
#include "SweepCsv.h"
#include "Validation.h"

namespace {
SweepAxis axisOf(const SweepArgument &argument)
{
    SweepAxis axis;
    axis.box = inputBoxOfSymbol(argument.symbol);
    axis.from = argument.from;
    axis.to = argument.to;
    axis.points = argument.points;
    axis.spacing = argument.logarithmic ? Spacing::Logarithmic : Spacing::Linear;
    return axis;
}

int usageFault(std::ostream &err, const std::string &reason)
{
    err << "swale-calc: " << reason << "\n(see swale-calc --help)\n";
    return ExitUsage;
}
} // namespace

int runSweepCommand(const CommandLine &commandLine, const SwaleProject &project, std::ostream &out,
                    std::ostream &err)
{
    std::vector<SweepAxis> axes;
    for (const SweepArgument &argument : commandLine.sweeps)
        axes.push_back(axisOf(argument));
    const std::string reason = checkSweep(axes, project);
    if (!reason.empty())
        return usageFault(err, reason);
    const SweepResult sweep = runSweep(project, axes);
    out << sweepCsvHeader(sweep, CsvHeader::Symbols);
    for (const SweepRow &row : sweep.rows)
        out << sweepCsvRow(sweep, row);
    return ExitResults;
}

int runSolveCommand(const CommandLine &commandLine, const SwaleProject &project, std::ostream &out,
                    std::ostream &err)
{
    SolveRequest request;
    request.resultKey = commandLine.solveResult;
    request.target = commandLine.solveTarget;
    request.vary = axisOf(commandLine.vary);
    if (request.vary.points == 0)
        request.vary.points = kDefaultSolvePoints;
    const std::string reason = checkSweep({ request.vary }, project);
    if (!reason.empty())
        return usageFault(err, reason);
    const auto columns = resultColumns(GetSolutionMethod(project), GetChannelFlowOption(project));
    if (columnIndex(columns, request.resultKey) < 0)
        return usageFault(err, "the solution method of the project gives no " + request.resultKey);
    const SolveOutcome outcome = solveForTarget(project, request);
    if (!outcome.reached) {
        err << "swale-calc: " << outcome.message << "\n";
        return ExitTargetNotReached;
    }
    out << pointText(outcome.input) << "\n";
    return ExitResults;
}
