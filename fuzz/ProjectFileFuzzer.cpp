// Feeds arbitrary bytes to the project-file reader as the content of a .swl file. Whatever the
// bytes, loading must end without a crash, a failure must say why, and a project that loads must
// save and load again to the same document.

#include "ProjectFile.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <unistd.h>

namespace {
// Scratch files in memory when the system offers it: every save ends with a sync to disk.
std::string scratchPath(const char *name)
{
    const std::string folder = access("/dev/shm", W_OK) == 0 ? "/dev/shm" : "/tmp";
    return folder + "/swale-fuzz-" + std::to_string(getpid()) + "-" + name;
}

void writeAll(const std::string &path, const uint8_t *data, size_t size)
{
    FILE *file = std::fopen(path.c_str(), "wb");
    if (!file)
        std::abort();
    if (size > 0 && std::fwrite(data, 1, size, file) != size)
        std::abort();
    std::fclose(file);
}

const std::string input = scratchPath("in.swl");
const std::string output = scratchPath("out.swl");

void removeScratchFiles()
{
    std::remove(input.c_str());
    std::remove(output.c_str());
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const int registered = std::atexit(removeScratchFiles);
    (void)registered;
    writeAll(input, data, size);

    SwaleProject project;
    const ProjectFileResult loaded = loadProject(input, project);
    if (!loaded.ok) {
        if (loaded.error.empty())
            std::abort(); // every refusal carries its reason
        return 0;
    }
    // What loads saves, and what was saved loads back unchanged (texts are trimmed on saving,
    // so the comparison is between the first save and the second).
    if (!saveProject(output, project).ok)
        return 0; // a text with a line break inside cannot come from a file, but stay safe
    SwaleProject again;
    if (!loadProject(output, again).ok)
        std::abort();
    SwaleProject third;
    if (!saveProject(input, again).ok || !loadProject(input, third).ok)
        std::abort();
    if (third.inputText != again.inputText || third.solutionMethod != again.solutionMethod
        || third.channelFlowMethod != again.channelFlowMethod
        || third.resultsShown != again.resultsShown || third.outputText != again.outputText
        || GetLastUsedRow(third) != GetLastUsedRow(again))
        std::abort();
    return 0;
}
