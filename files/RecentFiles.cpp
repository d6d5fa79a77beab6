#include "RecentFiles.h"

#include "DataFile.h"
#include "SettingsFiles.h"

#include <algorithm>

bool RecentFileList::load(const std::string &path)
{
    m_paths.clear();
    DataFile file;
    if (!OpenSettingsFile(file, path))
        return false;
    std::string line;
    while (count() < kMaxEntries && file.ReadLine(line)) {
        if (line.empty() || std::find(m_paths.begin(), m_paths.end(), line) != m_paths.end())
            continue;
        m_paths.push_back(line);
    }
    file.Close();
    return true;
}

bool RecentFileList::save(const std::string &path) const
{
    return WriteSettingsFile(path, m_paths);
}

void RecentFileList::add(const std::string &path)
{
    if (path.empty())
        return;
    m_paths.erase(std::remove(m_paths.begin(), m_paths.end(), path), m_paths.end());
    m_paths.insert(m_paths.begin(), path);
    if (count() > kMaxEntries)
        m_paths.resize(kMaxEntries);
}

std::string RecentFileList::entry(int i) const
{
    if (i < 1 || i > count())
        return {};
    return m_paths[static_cast<size_t>(i - 1)];
}

std::string RecentFileList::displayText(int i) const
{
    if (i < 1 || i > count())
        return {};
    std::string text = "&" + std::to_string(i) + " ";
    for (char c : entry(i)) {
        text += c;
        if (c == '&')
            text += '&';
    }
    return text;
}
