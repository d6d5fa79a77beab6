#pragma once

#include <string>
#include <vector>

// What swale-calc did: its exit code and everything it wrote to standard output.
struct CalcRun
{
    int exitCode = -1;
    std::string out;
};

// Runs the built swale-calc with `arguments`; standard error is discarded.
CalcRun runCalc(const std::vector<std::string> &arguments);
