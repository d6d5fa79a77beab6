#pragma once

#include <string>
#include <vector>

// Exit codes of swale-calc.
enum ExitCode {
    ExitResults = 0,
    ExitInvalidInput = 1,
    ExitCalculationFailed = 2,
    ExitFileNotLoaded = 3,
    ExitPdfNotWritten = 73, // EX_CANTCREAT of sysexits.h: --pdf could not write its file
    ExitUsage = 64, // EX_USAGE of sysexits.h
};

// What the command line asks for.
struct CommandLine
{
    bool help = false;
    bool json = false;
    std::string pdfPath; // --pdf OUT.pdf: also write the printed report there
    std::string projectPath;
};

// Reads the arguments after the program name. Returns false with a one-line reason in `error`
// when they make no sense (an unknown option, no project file or more than one).
bool parseCommandLine(const std::vector<std::string> &arguments, CommandLine &commandLine,
                      std::string &error);

// The text of --help.
std::string usageText();
