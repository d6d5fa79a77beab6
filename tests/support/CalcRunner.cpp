#include "CalcRunner.h"

#include <cstdio>

#include <sys/wait.h>

namespace {

std::string quoted(const std::string &text)
{
    std::string out = "'";
    for (char c : text)
        out += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return out + "'";
}

} // namespace

CalcRun runCalc(const std::vector<std::string> &arguments)
{
    std::string command = quoted(SWALE_CALC_PATH);
    for (const std::string &argument : arguments)
        command += " " + quoted(argument);
    command += " 2>/dev/null";
    CalcRun run;
    FILE *pipe = popen(command.c_str(), "r");
    if (!pipe)
        return run;
    char buffer[4096];
    size_t count = 0;
    while ((count = fread(buffer, 1, sizeof buffer, pipe)) > 0)
        run.out.append(buffer, count);
    const int status = pclose(pipe);
    run.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return run;
}
