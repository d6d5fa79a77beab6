#pragma once

#include <string>
#include <vector>

// The recent-file list of the File menu: full paths, most recent first, no path twice, at most
// five. Kept in RecentFiles.ini of the settings folder, one path per line. A file that has
// been deleted stays in the list; opening it reports it missing.
class RecentFileList
{
public:
    static constexpr int kMaxEntries = 5;

    // Replaces the list with the paths of `path`; a missing or unreadable file gives an empty
    // list. Blank lines and repeated paths are skipped, and only the first five are kept.
    bool load(const std::string &path);
    // Writes the list to `path`, one path a line. Returns false when that failed.
    bool save(const std::string &path) const;

    // Puts `path` at the top, removing an older entry of the same path and the oldest entry
    // beyond five.
    void add(const std::string &path);

    int count() const { return static_cast<int>(m_paths.size()); }
    // Entry `i`, from 1; "" outside the list.
    std::string entry(int i) const;
    // Menu text of entry `i`: "&" + i + " " + the path, with any "&" in the path doubled so that
    // the menu shows it instead of taking it as an access key; "" outside the list.
    std::string displayText(int i) const;

private:
    std::vector<std::string> m_paths;
};
