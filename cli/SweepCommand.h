#pragma once

#include "CommandLine.h"
#include "SwaleProject.h"

#include <ostream>

// --sweep: checks the swept inputs against the loaded project and writes the CSV of every point
// to `out`. Returns the exit code; a usage fault is written to `err`.
int runSweepCommand(const CommandLine &commandLine, const SwaleProject &project, std::ostream &out,
                    std::ostream &err);

// --solve with --vary: writes the input value found to `out`, or the reason to `err`.
int runSolveCommand(const CommandLine &commandLine, const SwaleProject &project, std::ostream &out,
                    std::ostream &err);
