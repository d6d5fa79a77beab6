// swale-calc: loads a project file and runs the Calculate command on it, without the window.

#include "CommandLine.h"
#include "JsonOutput.h"
#include "PdfReport.h"
#include "ProjectFile.h"
#include "SweepCommand.h"
#include "TextReport.h"

#include "Calculate.h"
#include "UserTexts.h"

#include <iostream>

namespace {
int exitCodeOf(const CalculationOutcome &outcome)
{
    switch (outcome.status) {
    case CalculationOutcome::Status::Ok:
        return ExitResults;
    case CalculationOutcome::Status::Invalid:
        return ExitInvalidInput;
    case CalculationOutcome::Status::Failed:
        break;
    }
    return ExitCalculationFailed;
}
} // namespace

int main(int argc, char *argv[])
{
    CommandLine commandLine;
    std::string error;
    if (!parseCommandLine(std::vector<std::string>(argv + 1, argv + argc), commandLine, error)) {
        std::cerr << "swale-calc: " << error << "\n\n" << usageText();
        return ExitUsage;
    }
    if (commandLine.help) {
        std::cout << usageText();
        return ExitResults;
    }

    SwaleProject project;
    const ProjectFileResult load = loadProject(commandLine.projectPath, project);
    if (!load.ok) {
        const std::string message = std::string(kUnableToOpenFileMessage) + " "
                + commandLine.projectPath + " (" + load.error + ")";
        if (commandLine.json)
            std::cout << jsonUnreadable(message);
        else
            std::cerr << errorLine(message);
        return ExitFileNotLoaded;
    }

    if (!commandLine.sweeps.empty())
        return runSweepCommand(commandLine, project, std::cout, std::cerr);
    if (commandLine.solve)
        return runSolveCommand(commandLine, project, std::cout, std::cerr);

    const CalculationOutcome outcome = Calculate(project);
    if (commandLine.json)
        std::cout << jsonOutcome(outcome);
    else if (outcome.status == CalculationOutcome::Status::Ok)
        std::cout << resultsReport(project, outcome);
    else
        std::cerr << faultReport(outcome);

    if (!commandLine.pdfPath.empty()) {
        if (outcome.status != CalculationOutcome::Status::Ok) {
            std::cerr << "swale-calc: no PDF written: the project has no results\n";
        } else {
            project.outputText = outcome.results;
            project.resultsShown = true;
            if (!writeProjectPdf(commandLine.pdfPath, project, commandLine.projectPath, error)) {
                std::cerr << "swale-calc: Error writing to file: " << commandLine.pdfPath << " ("
                          << error << ")\n";
                return ExitPdfNotWritten;
            }
        }
    }
    return exitCodeOf(outcome);
}
