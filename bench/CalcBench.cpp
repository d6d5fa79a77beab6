// Speed of the calculation core: the normal-depth search alone, and one whole Calculate command
// (validation, the method, the result and clipboard texts) per solution method on the examples,
// and the design explorer's sweep of 100,000 points.

#include "Calculate.h"
#include "ChannelHydraulics.h"
#include "ProjectFile.h"
#include "Sweep.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>

namespace {
const char *const kExamples[] = {
    "",
    "Roadside swale - required length.swl",
    "Parking lot swale - efficiency of given length.swl",
    "Median ditch - inlet interception.swl",
    "Lined roadside ditch - capacity check.swl",
};

SwaleProject example(int method)
{
    SwaleProject project;
    const std::string path = std::string(SWALE_EXAMPLES_DIR) + "/" + kExamples[method];
    const ProjectFileResult result = loadProject(path, project);
    if (!result.ok) {
        std::fprintf(stderr, "cannot load %s: %s\n", path.c_str(), result.error.c_str());
        std::exit(1);
    }
    return project;
}

void BM_SolveNormalDepth(benchmark::State &state)
{
    SwaleInputData data;
    data.PeakFlowRate = static_cast<double>(state.range(0));
    data.BottomWidth = 4;
    data.LeftSideSlope = 3;
    data.RightSideSlope = 3;
    data.ChannelSlope = 0.01;
    data.RoughnessCoefficient = 0.03;
    for (auto _ : state) {
        CalcContext context;
        benchmark::DoNotOptimize(SolveNormalDepth(data, context));
        benchmark::DoNotOptimize(data.NormalDepth);
    }
}
BENCHMARK(BM_SolveNormalDepth)->Arg(3)->Arg(100)->Arg(5000);

void BM_Calculate(benchmark::State &state)
{
    const int method = static_cast<int>(state.range(0));
    const SwaleProject project = example(method);
    if (project.solutionMethod != method) {
        state.SkipWithError("the example does not use the expected solution method");
        return;
    }
    for (auto _ : state) {
        CalculationOutcome outcome = Calculate(project);
        benchmark::DoNotOptimize(outcome);
        if (outcome.status != CalculationOutcome::Status::Ok) {
            state.SkipWithError("the example does not calculate");
            break;
        }
    }
}
BENCHMARK(BM_Calculate)
        ->ArgName("method")
        ->DenseRange(1, 4)
        ->Repetitions(5)
        ->ReportAggregatesOnly(true);
// The design explorer's largest sweep: 100,000 values of the bottom width, each a whole Calculate
// command on the example of the method (the input text written, validated, solved, displayed).
void BM_Sweep(benchmark::State &state)
{
    const SwaleProject project = example(static_cast<int>(state.range(0)));
    SweepAxis axis;
    axis.box = 5; // B
    axis.from = 1;
    axis.to = 20;
    axis.points = kMaxSweepPoints;
    for (auto _ : state) {
        SweepResult sweep = runSweep(project, { axis });
        benchmark::DoNotOptimize(sweep);
        if (!sweep.complete || sweep.rows.back().status != PointStatus::Ok) {
            state.SkipWithError("the sweep of the example does not calculate");
            break;
        }
    }
    state.counters["points"] = kMaxSweepPoints;
}
BENCHMARK(BM_Sweep)->ArgName("method")->DenseRange(1, 4)->Iterations(1)->Unit(
        benchmark::kMillisecond);
} // namespace

BENCHMARK_MAIN();
