#pragma once

#include <string>
#include <vector>

// Exit codes of swale-calc.
enum ExitCode {
    ExitResults = 0,
    ExitInvalidInput = 1,
    ExitCalculationFailed = 2,
    ExitFileNotLoaded = 3,
    ExitTargetNotReached = 4, // --solve: the target lies outside what the range gives
    ExitPdfNotWritten = 73, // EX_CANTCREAT of sysexits.h: --pdf could not write its file
    ExitUsage = 64, // EX_USAGE of sysexits.h
};

// One --sweep SYMBOL=FROM:TO:POINTS[:log] or --vary SYMBOL=FROM:TO[:POINTS[:log]] (points 0
// when not given), as written; the symbol is checked against the project once it is loaded.
struct SweepArgument
{
    std::string symbol;
    double from = 0;
    double to = 0;
    int points = 0;
    bool logarithmic = false;
};

// What the command line asks for.
struct CommandLine
{
    bool help = false;
    bool json = false;
    std::string pdfPath; // --pdf OUT.pdf: also write the printed report there
    std::string projectPath;
    std::vector<SweepArgument> sweeps; // --sweep, once or twice: CSV of every point
    bool solve = false; // --solve RESULT=TARGET with --vary: the input value that meets it
    std::string solveResult;
    double solveTarget = 0;
    SweepArgument vary;
};

// Reads the arguments after the program name. Returns false with a one-line reason in `error`
// when they make no sense (an unknown option, no project file or more than one).
bool parseCommandLine(const std::vector<std::string> &arguments, CommandLine &commandLine,
                      std::string &error);

// The text of --help.
std::string usageText();
