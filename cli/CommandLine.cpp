#include "CommandLine.h"

namespace {
bool isOption(const std::string &argument)
{
    return argument.size() > 1 && argument[0] == '-';
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
    return true;
}

std::string usageText()
{
    return "Usage: swale-calc [--json] [--pdf OUT.pdf] FILE.swl\n"
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
           "  -h, --help show this text\n"
           "\n"
           "Exit codes: 0 results, 1 invalid input, 2 calculation failure, 3 file not loaded,\n"
           "64 usage error, 73 PDF not written.\n";
}
