#pragma once

#include "RecentFiles.h"

#include <QString>

#include <array>

class QAction;

// The recent-file list and its five File-menu entries with the separator under them.
class RecentFilesMenu
{
public:
    // `entries` are mnuFile_Recent(1..5), [0] unused; `separator` is mnuFile_Separator3.
    RecentFilesMenu(const std::array<QAction *, 6> &entries, QAction *separator);

    // Loads the list from RecentFiles.ini in `settingsFolder`, then rebuilds the entries.
    void load(const QString &settingsFolder);
    // Writes the list to RecentFiles.ini; failures are silent.
    void save(const QString &settingsFolder) const;

    // Puts `path` at the top of the list and rebuilds the entries.
    void add(const QString &path);
    // Path of entry `i` (1 to 5); "" for an entry the list does not have.
    QString entry(int i) const;

    // Shows entries 1 to n with their paths (n = list length, at most 5), hides the rest, and
    // shows the separator only when there is an entry.
    void UpdateRecentFileMenu();

private:
    RecentFileList m_list;
    std::array<QAction *, 6> m_entries;
    QAction *m_separator;
};
