#include "CommandLine.h"

#include "Sweep.h"

#include <charconv>
#include <cmath>

namespace {
bool isOption(const std::string &argument)
{
    return argument.size() > 1 && argument[0] == '-';
}

std::vector<std::string> split(const std::string &text, char separator)
{
    std::vector<std::string> parts(1);
    for (char c : text) {
        if (c == separator)
            parts.emplace_back();
        else
            parts.back() += c;
    }
    return parts;
}

// A whole finite number, in the C locale whatever the user's.
bool readDouble(const std::string &text, double &value)
{
    const char *end = text.data() + text.size();
    const auto [ptr, ec] = std::from_chars(text.data(), end, value);
    return !text.empty() && ec == std::errc() && ptr == end && std::isfinite(value);
}

bool readInt(const std::string &text, int &value)
{
    const char *end = text.data() + text.size();
    const auto [ptr, ec] = std::from_chars(text.data(), end, value);
    return !text.empty() && ec == std::errc() && ptr == end;
}

// SYMBOL=FROM:TO:POINTS[:log]; with `pointsOptional` (--vary) also SYMBOL=FROM:TO.
bool parseSweepArgument(const std::string &option, const std::string &text, bool pointsOptional,
                        SweepArgument &sweep, std::string &error)
{
    const size_t equals = text.find('=');
    const std::vector<std::string> range
            = split(equals == std::string::npos ? std::string() : text.substr(equals + 1), ':');
    const size_t least = pointsOptional ? 2 : 3;
    const std::string form
            = pointsOptional ? "SYMBOL=FROM:TO[:POINTS[:log]]" : "SYMBOL=FROM:TO:POINTS[:log]";
    if (equals == std::string::npos || range.size() < least || range.size() > 4) {
        error = option + " needs " + form + ", not \"" + text + "\"";
        return false;
    }
    sweep.symbol = text.substr(0, equals);
    if (inputBoxOfSymbol(sweep.symbol) == 0) {
        error = "unknown input symbol \"" + sweep.symbol + "\" (known: " + inputSymbolList() + ")";
        return false;
    }
    if (!readDouble(range[0], sweep.from) || !readDouble(range[1], sweep.to)) {
        error = option + " " + text + ": FROM and TO must be numbers";
        return false;
    }
    if (range.size() >= 3 && !readInt(range[2], sweep.points)) {
        error = option + " " + text + ": POINTS must be a whole number";
        return false;
    }
    if (range.size() == 4 && range[3] != "log") {
        error = option + " " + text + ": the spacing after POINTS can only be \"log\"";
        return false;
    }
    sweep.logarithmic = range.size() == 4;
    return true;
}

bool isResultSymbol(const std::string &symbol)
{
    for (const std::string &known : split(resultSymbolList(), ' ')) {
        if (known == symbol)
            return true;
    }
    return false;
}

// RESULT=TARGET.
bool parseSolveArgument(const std::string &text, CommandLine &commandLine, std::string &error)
{
    const size_t equals = text.find('=');
    commandLine.solveResult = text.substr(0, equals);
    if (equals == std::string::npos
        || !readDouble(text.substr(equals + 1), commandLine.solveTarget)) {
        error = "--solve needs RESULT=TARGET, not \"" + text + "\"";
        return false;
    }
    if (!isResultSymbol(commandLine.solveResult)) {
        error = "unknown result symbol \"" + commandLine.solveResult
                + "\" (known: " + resultSymbolList() + ")";
        return false;
    }
    commandLine.solve = true;
    return true;
}

// --sweep, --solve and --vary with their values; false with `error` for a bad value.
bool parseExplorerOption(const std::string &option, const std::string &value,
                         CommandLine &commandLine, std::string &error)
{
    if (option == "--solve")
        return parseSolveArgument(value, commandLine, error);
    if (option == "--vary")
        return parseSweepArgument(option, value, true, commandLine.vary, error);
    commandLine.sweeps.emplace_back();
    return parseSweepArgument(option, value, false, commandLine.sweeps.back(), error);
}

// The options that cannot go together with a sweep or a search.
bool checkExplorerCombination(const CommandLine &commandLine, std::string &error)
{
    const bool sweep = !commandLine.sweeps.empty();
    const bool vary = !commandLine.vary.symbol.empty();
    if (commandLine.sweeps.size() > 2)
        error = "--sweep can be given at most twice (a two-way sweep)";
    else if (sweep && commandLine.solve)
        error = "--sweep and --solve cannot be used together";
    else if (commandLine.solve != vary)
        error = "--solve and --vary go together";
    else if ((sweep || commandLine.solve) && (commandLine.json || !commandLine.pdfPath.empty()))
        error = "--json and --pdf do not apply to --sweep and --solve";
    return error.empty();
}

bool isExplorerOption(const std::string &argument)
{
    return argument == "--sweep" || argument == "--solve" || argument == "--vary";
}
} // namespace

bool parseCommandLine(const std::vector<std::string> &arguments, CommandLine &commandLine,
                      std::string &error)
{
    bool optionsEnded = false;
    for (size_t i = 0; i < arguments.size(); ++i) {
        const std::string &argument = arguments[i];
        if (!optionsEnded && isOption(argument)) {
            if (argument == "--") {
                optionsEnded = true;
            } else if (argument == "--help" || argument == "-h") {
                commandLine.help = true;
            } else if (argument == "--json") {
                commandLine.json = true;
            } else if (argument == "--pdf") {
                if (i + 1 >= arguments.size() || arguments[i + 1].empty()) {
                    error = "--pdf needs the name of the PDF file to write";
                    return false;
                }
                commandLine.pdfPath = arguments[++i];
            } else if (isExplorerOption(argument)) {
                if (i + 1 >= arguments.size()) {
                    error = argument + " needs a value";
                    return false;
                }
                if (!parseExplorerOption(argument, arguments[++i], commandLine, error))
                    return false;
            } else {
                error = "unknown option " + argument;
                return false;
            }
            continue;
        }
        if (!commandLine.projectPath.empty()) {
            error = "only one project file can be calculated at a time";
            return false;
        }
        commandLine.projectPath = argument;
    }
    if (commandLine.help)
        return true;
    if (commandLine.projectPath.empty()) {
        error = "no project file given";
        return false;
    }
    return checkExplorerCombination(commandLine, error);
}

std::string usageText()
{
    return "Usage: swale-calc [--json] [--pdf OUT.pdf] FILE.swl\n"
           "       swale-calc --sweep SYMBOL=FROM:TO:POINTS[:log] [--sweep SYMBOL2=...] FILE.swl\n"
           "       swale-calc --solve RESULT=TARGET --vary SYMBOL=FROM:TO[:POINTS[:log]] FILE.swl\n"
           "\n"
           "Loads a swale project file (.swl, versions 1 to 3), checks its input and runs the\n"
           "calculation of its solution method, as the Calculate button of the window does.\n"
           "\n"
           "Options:\n"
           "  --json     print one JSON object instead of the readable report:\n"
           "               {\"status\": \"ok\", \"results\": [18 texts of the result boxes]}\n"
           "               {\"status\": \"invalid\", \"message\": ..., \"input\": k}\n"
           "                 (or \"row\" and \"col\" of a rating-curve cell)\n"
           "               {\"status\": \"failed\", \"messages\": [...]}\n"
           "               {\"status\": \"unreadable\", \"message\": ...}\n"
           "  --pdf OUT.pdf\n"
           "             also write the printed report (inputs and results) to OUT.pdf, with the\n"
           "             margins of Margins.ini beside the program; written only when the\n"
           "             project calculates\n"
           "  --sweep SYMBOL=FROM:TO:POINTS[:log]\n"
           "             calculate the project for POINTS values (2 to 100000) of one input, from\n"
           "             FROM to TO, evenly spaced (or spaced by equal ratios with :log), each\n"
           "             written into the input box as its shortest exact text, and print CSV:\n"
           "             the swept inputs, status (ok, invalid, failed), every result of the\n"
           "             solution method by its symbol (L_result, e_result, Qp_result where a\n"
           "             swept input has the same symbol), message. Given twice, the second\n"
           "             input (up to 200 points) runs inside the first, up to 100000 points\n"
           "             in all\n"
           "  --solve RESULT=TARGET --vary SYMBOL=FROM:TO[:POINTS[:log]]\n"
           "             find the value of input SYMBOL between FROM and TO at which result\n"
           "             RESULT reaches TARGET: a sweep of POINTS values (200 when not given)\n"
           "             brackets it, bisection narrows it to 1E-07 of the value; prints the\n"
           "             value, or says on standard error that the range does not reach the\n"
           "             target and which point comes nearest\n"
           "  -h, --help show this text\n"
           "\n"
           "Input symbols: L B Z1 Z2 Sc e A C ID D Tc Qp duration Vp n Kvu FSi f hb\n"
           "  (the bracketed symbols of the input captions; duration is the duration of flow)\n"
           "Result symbols: L e FSe Qp Vr dr d Wt Ax P Rh V Id Ab Qip Vm Vs, and the keys of\n"
           "  the hydraulic checks: critical_depth critical_velocity critical_slope\n"
           "  hydraulic_depth froude regime shear_mean shear_max specific_energy\n"
           "  velocity_ratio residence_time (methods 1 and 2)\n"
           "A swept input must be one that the project's solution method and channel flow use.\n"
           "\n"
           "Exit codes: 0 results (for --sweep: the CSV was written, whatever its points gave),\n"
           "1 invalid input, 2 calculation failure, 3 file not loaded, 4 --solve target not\n"
           "reached, 64 usage error (also an unknown symbol, a bad range or an input the\n"
           "method does not use), 73 PDF not written.\n";
}
