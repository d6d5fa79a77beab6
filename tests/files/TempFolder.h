#pragma once

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
