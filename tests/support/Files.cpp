#include "Files.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

TempFolder::TempFolder()
{
    std::string pattern = (std::filesystem::temp_directory_path() / "swale-test-XXXXXX").string();
    if (!mkdtemp(pattern.data()))
        throw std::runtime_error("cannot create a temporary folder");
    m_path = pattern;
}

TempFolder::~TempFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

std::vector<std::string> TempFolder::entries() const
{
    std::vector<std::string> names;
    for (const auto &entry : std::filesystem::directory_iterator(m_path))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

std::string readBytes(const std::string &path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

void writeBytes(const std::string &path, const std::string &bytes)
{
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

void writeRepeated(const std::string &path, const std::string &prefix, const std::string &line,
                   size_t size)
{
    std::string bytes = prefix;
    while (bytes.size() < size)
        bytes += line;
    writeBytes(path, bytes);
}

ScopedVariable::ScopedVariable(const char *name, const std::string &value)
    : m_name(name)
{
    if (const char *old = std::getenv(name))
        m_old = old;
    setenv(name, value.c_str(), 1);
}

ScopedVariable::~ScopedVariable()
{
    if (m_old)
        setenv(m_name.c_str(), m_old->c_str(), 1);
    else
        unsetenv(m_name.c_str());
}
