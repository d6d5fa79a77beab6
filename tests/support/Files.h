#pragma once

#include <optional>
#include <string>
#include <vector>

// A fresh folder under the system's temporary folder, removed with everything in it at the end.
class TempFolder
{
public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder &) = delete;
    TempFolder &operator=(const TempFolder &) = delete;

    const std::string &path() const { return m_path; }
    std::string file(const std::string &name) const { return m_path + "/" + name; }
    // Names of the entries of the folder, sorted.
    std::vector<std::string> entries() const;

private:
    std::string m_path;
};

std::string readBytes(const std::string &path);
void writeBytes(const std::string &path, const std::string &bytes);
// Writes `prefix`, then `line` over and over until the file holds at least `size` bytes.
void writeRepeated(const std::string &path, const std::string &prefix, const std::string &line,
                   size_t size);

// Sets an environment variable for the scope and puts the old value (or its absence) back.
class ScopedVariable
{
public:
    ScopedVariable(const char *name, const std::string &value);
    ~ScopedVariable();
    ScopedVariable(const ScopedVariable &) = delete;
    ScopedVariable &operator=(const ScopedVariable &) = delete;

private:
    std::string m_name;
    std::optional<std::string> m_old;
};
