#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

// Scratch files for the fuzzers that read through the file layer. They live in memory when the
// system offers /dev/shm (every save ends with a sync to disk) and are removed at exit.

// A private scratch folder of this process, ending with "/"; created on first use.
const std::string &scratchFolder();

// Path of the scratch file `name` inside scratchFolder().
std::string scratchPath(const std::string &name);

// Writes `size` bytes to `path`, replacing what was there; aborts when that fails, since a
// fuzzer that cannot write its input would otherwise test nothing.
void writeScratchFile(const std::string &path, const uint8_t *data, size_t size);

// Aborts with `what` on standard error: the fuzzer found a broken invariant.
[[noreturn]] void invariantBroken(const std::string &what);
