#include "FuzzScratch.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <unistd.h>

namespace {
std::string makeScratchFolder()
{
    const std::string base = access("/dev/shm", W_OK) == 0 ? "/dev/shm" : "/tmp";
    const std::string folder = base + "/swale-fuzz-" + std::to_string(getpid()) + "/";
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error)
        invariantBroken("cannot create the scratch folder " + folder);
    return folder;
}

void removeScratchFolder()
{
    std::error_code error;
    std::filesystem::remove_all(scratchFolder(), error);
}
} // namespace

const std::string &scratchFolder()
{
    static const std::string folder = makeScratchFolder();
    static const int registered = std::atexit(removeScratchFolder);
    (void)registered;
    return folder;
}

std::string scratchPath(const std::string &name)
{
    return scratchFolder() + name;
}

void writeScratchFile(const std::string &path, const uint8_t *data, size_t size)
{
    FILE *file = std::fopen(path.c_str(), "wb");
    if (!file)
        invariantBroken("cannot write the scratch file " + path);
    const bool written = size == 0 || std::fwrite(data, 1, size, file) == size;
    if (std::fclose(file) != 0 || !written)
        invariantBroken("cannot write the scratch file " + path);
}

void invariantBroken(const std::string &what)
{
    std::fprintf(stderr, "\n*** invariant broken: %s\n", what.c_str());
    std::fflush(stderr);
    std::abort();
}
