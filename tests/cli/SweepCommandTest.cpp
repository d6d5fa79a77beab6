#include "CommandLine.h"
#include "SweepCommand.h"

#include "Fixtures.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {
// Runs the arguments as swale-calc would on the project: the exit code and standard output.
std::pair<int, std::string> run(const std::vector<std::string> &arguments,
                                const SwaleProject &project)
{
    CommandLine commandLine;
    std::string error;
    std::vector<std::string> withFile = arguments;
    withFile.push_back("case.swl");
    if (!parseCommandLine(withFile, commandLine, error))
        return { ExitUsage, "" };
    std::ostringstream out, err;
    const int code = commandLine.solve ? runSolveCommand(commandLine, project, out, err)
                                       : runSweepCommand(commandLine, project, out, err);
    return { code, out.str() };
}

TEST(SweepCommand, UsageFaultsExitWith64)
{
    const struct
    {
        const char *name;
        std::vector<std::string> arguments;
    } cases[] = {
        { "unknown input symbol", { "--sweep", "W=1:2:3" } },
        { "no points", { "--sweep", "B=1:2" } },
        { "too many points", { "--sweep", "B=1:2:100001" } },
        { "spacing other than log", { "--sweep", "B=1:2:3:lin" } },
        { "empty range", { "--sweep", "B=2:2:3" } },
        { "input the method does not use", { "--sweep", "A=1:2:3" } },
        { "three sweeps", { "--sweep", "B=1:2:3", "--sweep", "n=1:2:3", "--sweep", "Sc=1:2:3" } },
        { "solve without vary", { "--solve", "d=1" } },
        { "result the method does not give", { "--solve", "L=1", "--vary", "B=1:2" } },
    };
    const SwaleProject project = validProject(4, 2);
    for (const auto &row : cases) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(run(row.arguments, project).first, ExitUsage);
    }
}

TEST(SweepCommand, WritesOneCsvLinePerPoint)
{
    const auto [code, csv]
            = run({ "--sweep", "L=100:300:3", "--sweep", "n=0.02:0.04:2" }, validProject(2, 2));
    EXPECT_EQ(code, ExitResults);
    std::istringstream lines(csv);
    std::string line;
    std::getline(lines, line);
    EXPECT_EQ(line,
              "L,n,status,L_result,e,FSe,Qp,Vr,dr,d,Wt,Ax,P,Rh,V,Id,Ab,Qip,Vm,Vs,critical_depth,"
              "critical_velocity,critical_slope,hydraulic_depth,froude,regime,shear_mean,shear_max,"
              "specific_energy,velocity_ratio,residence_time,message");
    std::getline(lines, line);
    EXPECT_EQ(line.rfind("100,0.02,ok,100,", 0), 0u) << line;
    int rows = 1;
    while (std::getline(lines, line))
        ++rows;
    EXPECT_EQ(rows, 6);
}

TEST(SweepCommand, SolvePrintsTheValueOrExitsWhenTheTargetIsOutOfReach)
{
    const SwaleProject project = validProject(4, 2);
    const auto [found, value] = run({ "--solve", "d=0.3", "--vary", "B=0.5:10" }, project);
    EXPECT_EQ(found, ExitResults);
    EXPECT_FALSE(value.empty());
    EXPECT_EQ(run({ "--solve", "d=30", "--vary", "B=0.5:10" }, project).first,
              ExitTargetNotReached);
}
} // namespace
