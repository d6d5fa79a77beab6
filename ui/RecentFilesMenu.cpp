#include "RecentFilesMenu.h"

#include "SettingsFiles.h"

#include <QAction>

#include <algorithm>

namespace {

std::string recentFilesPath(const QString &settingsFolder)
{
    return settingsFolder.toStdString() + kRecentFilesFile;
}

} // namespace

RecentFilesMenu::RecentFilesMenu(const std::array<QAction *, 6> &entries, QAction *separator)
    : m_entries(entries)
    , m_separator(separator)
{ }

void RecentFilesMenu::load(const QString &settingsFolder)
{
    m_list.load(recentFilesPath(settingsFolder));
    UpdateRecentFileMenu();
}

void RecentFilesMenu::save(const QString &settingsFolder) const
{
    m_list.save(recentFilesPath(settingsFolder));
}

void RecentFilesMenu::add(const QString &path)
{
    m_list.add(path.toStdString());
    UpdateRecentFileMenu();
}

QString RecentFilesMenu::entry(int i) const
{
    return QString::fromStdString(m_list.entry(i));
}

void RecentFilesMenu::UpdateRecentFileMenu()
{
    const int shown = std::min(m_list.count(), RecentFileList::kMaxEntries);
    for (int i = 1; i <= RecentFileList::kMaxEntries; ++i) {
        QAction *entryAction = m_entries[static_cast<size_t>(i)];
        if (i <= shown)
            entryAction->setText(QString::fromStdString(m_list.displayText(i)));
        entryAction->setVisible(i <= shown);
    }
    m_separator->setVisible(shown > 0);
}
