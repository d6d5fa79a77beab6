// Speed of the calculation core: the normal-depth search alone, and one whole Calculate command
// (validation, the method, the result and clipboard texts) per solution method, on the examples
// and on 10,000 seeded random channels, and the design explorer's sweep of 100,000 points. One
// channel repeated lets the branch predictor learn the search's path; the random ones do not.

#include "Calculate.h"
#include "ChannelHydraulics.h"
#include "ProjectFile.h"
#include "Sweep.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <random>
#include <vector>

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

constexpr size_t kRandomCases = 10000;
constexpr uint64_t kSeed = 12;

double uniform(std::mt19937_64 &random, double low, double high)
{
    return std::uniform_real_distribution<double>(low, high)(random);
}

std::string text(double value)
{
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%.6g", value);
    return buffer;
}

// A channel an engineer might check: 0 to 20 ft bottom, 1:1 to 6:1 sides, slopes of 0.1 to 5
// percent, n of 0.012 (concrete) to 0.1 (dense grass), 0.1 to 300 cfs.
void randomChannel(std::mt19937_64 &random, SwaleInputData &data)
{
    data.PeakFlowRate = uniform(random, 0.1, 300);
    data.BottomWidth = uniform(random, 0, 20);
    data.LeftSideSlope = uniform(random, 1, 6);
    data.RightSideSlope = uniform(random, 1, 6);
    data.ChannelSlope = uniform(random, 0.001, 0.05);
    data.RoughnessCoefficient = uniform(random, 0.012, 0.1);
}

// The example of `method` with a random channel, flow and soil typed into its boxes, under both
// channel-flow methods in turn; only projects that calculate are kept.
std::vector<SwaleProject> randomProjects(int method)
{
    std::mt19937_64 random(kSeed + static_cast<uint64_t>(method));
    const SwaleProject base = example(method);
    std::vector<SwaleProject> projects;
    while (projects.size() < kRandomCases) {
        SwaleProject project = base;
        SwaleInputData c;
        randomChannel(random, c);
        auto &in = project.inputText;
        project.channelFlowMethod = 1 + static_cast<int>(projects.size() % 2);
        in[4] = text(uniform(random, 50, 2000));
        in[5] = text(c.BottomWidth);
        in[6] = text(c.LeftSideSlope);
        in[7] = text(c.RightSideSlope);
        in[8] = text(c.ChannelSlope);
        in[9] = text(uniform(random, 20, 90));
        in[10] = text(uniform(random, 0.2, 40));
        in[11] = text(uniform(random, 0.2, 0.95));
        in[12] = text(uniform(random, 0.5, 6));
        in[13] = text(uniform(random, 10, 120));
        in[14] = text(uniform(random, 5, 60));
        in[15] = text(c.PeakFlowRate);
        in[16] = text(uniform(random, 10, 240));
        in[19] = text(c.RoughnessCoefficient);
        in[20] = text(uniform(random, 0.5, 10));
        in[22] = text(uniform(random, 15, 45));
        in[23] = text(uniform(random, 1, 20));
        if (Calculate(project).status == CalculationOutcome::Status::Ok)
            projects.push_back(std::move(project));
    }
    return projects;
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

void BM_SolveNormalDepthRandom(benchmark::State &state)
{
    std::mt19937_64 random(kSeed);
    std::vector<SwaleInputData> channels(kRandomCases);
    for (SwaleInputData &data : channels)
        randomChannel(random, data);
    size_t i = 0;
    for (auto _ : state) {
        SwaleInputData &data = channels[i];
        i = (i + 1) % kRandomCases;
        CalcContext context;
        benchmark::DoNotOptimize(SolveNormalDepth(data, context));
        benchmark::DoNotOptimize(data.NormalDepth);
    }
}
BENCHMARK(BM_SolveNormalDepthRandom);

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

void BM_CalculateRandom(benchmark::State &state)
{
    const std::vector<SwaleProject> projects = randomProjects(static_cast<int>(state.range(0)));
    size_t i = 0;
    for (auto _ : state) {
        CalculationOutcome outcome = Calculate(projects[i]);
        i = (i + 1) % kRandomCases;
        benchmark::DoNotOptimize(outcome);
    }
}
BENCHMARK(BM_CalculateRandom)
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
