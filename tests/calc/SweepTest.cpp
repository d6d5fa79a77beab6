#include "Sweep.h"
#include "SweepCsv.h"

#include "NumberText.h"
#include "Fixtures.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <limits>

namespace {

// The display lines of the checks of a calculation, as a sweep row shows them.
std::vector<CheckLine> checkLinesOf(const CalculationOutcome &outcome)
{
    const HydraulicChecks checks = computeHydraulicChecks(outcome.record);
    return checks.fault.empty() ? hydraulicCheckLines(checks) : std::vector<CheckLine>();
}
SweepAxis axis(const char *symbol, double from, double to, int points,
               Spacing spacing = Spacing::Linear)
{
    return SweepAxis { inputBoxOfSymbol(symbol), from, to, points, spacing };
}

// A sweep whose values, typed as an engineer would type them, are known: every row must be
// what Calculate gives for the project with that text in the box.
struct TypedSweepCase
{
    const char *name;
    int method;
    int flow;
    const char *symbol;
    double from, to;
    std::vector<const char *> typed; // the points' values as typed by hand, in sweep order
};

const TypedSweepCase kTypedCases[] = {
    { "required length, bottom width", 1, 1, "B", 2, 8, { "2", "3.5", "5", "6.5", "8" } },
    { "required length, efficiency", 1, 2, "e", 40, 90, { "40", "65", "90" } },
    { "efficiency of a length, length", 2, 1, "L", 100, 700, { "100", "400", "700" } },
    { "efficiency of a length, infiltration", 2, 2, "Kvu", 0.5, 4, { ".5", "2.25", "4" } },
    { "inlet, flow rate", 3, 2, "Qp", 0.5, 40, { "0.5", "20.25", "40" } },
    { "inlet, roughness through zero", 3, 1, "n", -0.02, 0.04, { "-0.02", "0.01", "0.04" } },
    { "impervious, side slope through zero", 4, 1, "Z1", -1, 3, { "-1", "1", "3" } },
    { "impervious, channel slope", 4, 2, "Sc", 0.002, 0.05, { "0.002", "0.026", "0.05" } },
};

TEST(Sweep, EveryRowIsTheCalculationOfTheTypedValue)
{
    // By CalculationOutcome::Status: Ok, Invalid, Failed.
    const PointStatus kPointStatusOf[]
            = { PointStatus::Ok, PointStatus::Invalid, PointStatus::Failed };
    for (const TypedSweepCase &row : kTypedCases) {
        SCOPED_TRACE(row.name);
        const SwaleProject project = validProject(row.method, row.flow);
        const SweepAxis a = axis(row.symbol, row.from, row.to, static_cast<int>(row.typed.size()));
        ASSERT_EQ(checkSweep({ a }, project), "");
        const SweepResult sweep = runSweep(project, { a });
        ASSERT_TRUE(sweep.complete);
        ASSERT_EQ(sweep.rows.size(), row.typed.size());
        for (size_t i = 0; i < row.typed.size(); ++i) {
            SCOPED_TRACE(row.typed[i]);
            SwaleProject typed = project;
            typed.inputText[static_cast<size_t>(a.box)] = row.typed[i];
            const CalculationOutcome expected = Calculate(typed);
            const SweepRow &point = sweep.rows[i];
            EXPECT_EQ(point.status, kPointStatusOf[static_cast<int>(expected.status)]);
            EXPECT_EQ(point.message, outcomeMessage(expected));
            if (point.status != PointStatus::Ok) {
                EXPECT_TRUE(point.results.empty());
                continue;
            }
            ASSERT_EQ(point.results.size(), sweep.columns.size());
            for (size_t c = 0; c < sweep.columns.size(); ++c)
                EXPECT_EQ(point.results[c], sweep.columns[c].text(expected, checkLinesOf(expected)))
                        << sweep.columns[c].key;
        }
    }
}

TEST(Sweep, PointTextReadsBackAsTheSameDouble)
{
    const double values[]
            = { 0.1,     1.0 / 3, 0.30000000000000004, -2.5, 123456789.123, 1e21, 1e-7, 5e-324,
                DBL_MAX, 7.0 };
    for (double value : values) {
        const std::string text = pointText(value);
        SCOPED_TRACE(text);
        EXPECT_TRUE(isRecognisedNumber(text));
        EXPECT_EQ(leadingNumber(text), value);
    }
}

TEST(Sweep, AxesEndExactlyOnTheirRangeAndLogSpacingIsGeometric)
{
    const SweepAxis linear = axis("B", 0.1, 0.7, 7);
    EXPECT_EQ(axisValue(linear, 0), 0.1);
    EXPECT_EQ(axisValue(linear, 6), 0.7);
    const SweepAxis log = axis("Qp", 1, 1000, 4, Spacing::Logarithmic);
    EXPECT_EQ(axisValue(log, 3), 1000);
    EXPECT_NEAR(axisValue(log, 1), 10, 1e-12);
    EXPECT_NEAR(axisValue(log, 2), 100, 1e-12);
}

// Unknown symbols are swale-calc's rows (tests/cli/CliTest.cpp), a range with equal ends the
// Design Explorer's.
TEST(Sweep, RefusesAxesItCannotSweep)
{
    const SwaleProject method4 = validProject(4, 1);
    const struct
    {
        const char *name;
        std::vector<SweepAxis> axes;
    } cases[] = {
        { "input the method does not use", { axis("Kvu", 1, 2, 3) } },
        { "input of the other channel flow", { axis("Qp", 1, 2, 3) } },
        { "one point", { axis("B", 1, 2, 1) } },
        { "too many points", { axis("B", 1, 2, kMaxSweepPoints + 1) } },
        { "log through zero", { axis("B", 0, 2, 3, Spacing::Logarithmic) } },
        { "infinite end", { axis("B", 1, std::numeric_limits<double>::infinity(), 3) } },
        { "same input twice", { axis("B", 1, 2, 3), axis("B", 1, 2, 3) } },
        { "second input too fine", { axis("B", 1, 2, 3), axis("n", 1, 2, 201) } },
        { "too many points in all", { axis("B", 1, 2, 1000), axis("n", 1, 2, 101) } },
    };
    for (const auto &row : cases) {
        SCOPED_TRACE(row.name);
        EXPECT_NE(checkSweep(row.axes, method4), "");
    }
    EXPECT_EQ(checkSweep({ axis("B", 1, 2, 1000), axis("n", 1, 2, 100) }, method4), "");
}

TEST(Sweep, TwoWaySweepRunsTheSecondInputInsideTheFirst)
{
    const SweepResult sweep
            = runSweep(validProject(4), { axis("B", 2, 4, 2), axis("n", 0.02, 0.04, 3) });
    ASSERT_EQ(sweep.rows.size(), 6u);
    EXPECT_EQ(sweep.rows[1].inputs, (std::vector<double> { 2, 0.03 }));
    EXPECT_EQ(sweep.rows[3].inputs, (std::vector<double> { 4, 0.02 }));
}

TEST(Sweep, CancelStopsWithoutPartialRows)
{
    std::atomic<bool> cancel { false };
    size_t reported = 0;
    const SweepResult sweep = runSweep(validProject(1), { axis("B", 1, 20, kMaxSweepPoints) },
                                       &cancel, [&](size_t done, size_t) {
                                           reported = done;
                                           cancel = true;
                                       });
    EXPECT_FALSE(sweep.complete);
    ASSERT_GT(reported, 0u);
    ASSERT_LT(reported, sweep.rows.size());
    // The points done before the cancel are whole; the others were not run at all.
    for (size_t i = 0; i < sweep.rows.size(); ++i) {
        const SweepRow &row = sweep.rows[i];
        ASSERT_EQ(row.status, i < reported ? PointStatus::Ok : PointStatus::NotRun) << i;
        ASSERT_EQ(row.results.size(), i < reported ? sweep.columns.size() : 0u) << i;
        ASSERT_EQ(row.message, "") << i;
    }
    const std::string csv = sweepCsv(sweep, CsvHeader::Symbols);
    EXPECT_EQ(static_cast<size_t>(std::count(csv.begin(), csv.end(), '\n')), reported + 1);
}

TEST(SolveForTarget, FindsTheInputThatMeetsTheTarget)
{
    const struct
    {
        const char *name;
        int method;
        const char *result;
        double target;
        SweepAxis vary;
    } cases[] = {
        { "bottom width for a required length", 1, "L", 20000, axis("B", 1, 20, 0) },
        { "slope for an erosion safety factor below 1", 4, "FSe", 0.95,
          axis("Sc", 0.001, 0.2, 50) },
        { "length for an efficiency", 2, "e", 3, axis("L", 10, 2000, 0, Spacing::Logarithmic) },
        { "flow for a normal depth", 3, "d", 0.5, axis("Qp", 0.1, 100, 0) },
    };
    for (const auto &row : cases) {
        SCOPED_TRACE(row.name);
        const SwaleProject project = validProject(row.method, row.method == 3 ? 2 : 1);
        const SolveOutcome outcome = solveForTarget(project, { row.result, row.target, row.vary });
        ASSERT_TRUE(outcome.reached) << outcome.message;
        SwaleProject typed = project;
        typed.inputText[static_cast<size_t>(row.vary.box)] = pointText(outcome.input);
        const CalculationOutcome check = Calculate(typed);
        ASSERT_EQ(check.status, CalculationOutcome::Status::Ok);
        const auto columns = resultColumns(row.method, project.channelFlowMethod);
        const std::string text
                = columns[static_cast<size_t>(columnIndex(columns, row.result))].text(
                        check, checkLinesOf(check));
        EXPECT_EQ(text, outcome.resultText);
        EXPECT_NEAR(resultNumber(text), row.target, row.target * 1e-5);
    }
}

TEST(SolveForTarget, SaysSoWhenTheRangeCannotReachIt)
{
    const SolveOutcome outcome
            = solveForTarget(validProject(4), { "FSe", 1000, axis("B", 1, 20, 20) });
    EXPECT_FALSE(outcome.reached);
    EXPECT_NE(outcome.resultText, "");
    EXPECT_TRUE(outcome.input == 1 || outcome.input == 20) << outcome.input;
    EXPECT_NE(outcome.message.find("not reached"), std::string::npos) << outcome.message;
}

// The captions' header is the design explorer's export test, the symbols' header swale-calc's.
TEST(SweepCsv, QuotesFieldsThatNeedItAndLeavesAFailedPointsResultsEmpty)
{
    EXPECT_EQ(csvField("plain"), "plain");
    EXPECT_EQ(csvField("Bottom width of channel, [B] (ft)"),
              "\"Bottom width of channel, [B] (ft)\"");
    EXPECT_EQ(csvField("a \"b\""), "\"a \"\"b\"\"\"");
    EXPECT_EQ(csvField("two\nlines"), "\"two\nlines\"");

    const SweepResult sweep = runSweep(validProject(2), { axis("L", -1, 100, 2) });
    EXPECT_EQ(sweepCsvRow(sweep, sweep.rows[0]),
              "-1,invalid,,,,,,,,,,,,,,,,,,,,,,,,,,,,,Channel length must be greater than zero.\n");
}
} // namespace
