#include "Calculate.h"

#include "Arithmetic.h"
#include "Results.h"
#include "SolutionMethods.h"
#include "SwaleInputData.h"
#include "Validation.h"

#include <utility>

CalculationOutcome Calculate(const SwaleProject &project, const CalcSettings &settings)
{
    CalculationOutcome outcome;
    SwaleInputData data; // zeroed: nothing of an earlier calculation survives
    if (!ValidateInputData(project, data, outcome.fault)) {
        outcome.status = CalculationOutcome::Status::Invalid;
        return outcome;
    }

    CalcContext context;
    context.settings = settings;
    context.CalculationErrorMessage = "";
    if (!runSolutionMethod(data, context)) {
        outcome.status = CalculationOutcome::Status::Failed;
        outcome.failureMessages = context.shownMessages;
        outcome.failureMessages.push_back(context.CalculationErrorMessage);
        return outcome;
    }
    if (!resultTexts(data, outcome.results)) {
        outcome.status = CalculationOutcome::Status::Failed;
        outcome.failureMessages = { arithmeticFaultMessage(kOverflowFault) };
        return outcome;
    }
    outcome.status = CalculationOutcome::Status::Ok;
    outcome.clipboardText = CopyResultsToClipboard(outcome.results);
    outcome.record = std::move(data);
    return outcome;
}
