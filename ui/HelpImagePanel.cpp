#include "HelpImagePanel.h"

#include "ctrlPictureViewer.h"

#include <QAction>
#include <QFileInfo>
#include <QMenu>
#include <QPixmap>

HelpImagePanel::HelpImagePanel(ctrlPictureViewer &viewer, const GlobalData &folders,
                               const SizeEntries &menuSizes, const SizeEntries &popupSizes,
                               QMenu &popup, QAction &copy, QObject *parent)
    : QObject(parent)
    , m_viewer(viewer)
    , m_folders(folders)
    , m_menuSizes(menuSizes)
    , m_popupSizes(popupSizes)
    , m_popup(popup)
{
    for (int size = 1; size <= kHelpImageSizeCount; ++size) {
        for (QAction *entry :
             { m_menuSizes[static_cast<size_t>(size)], m_popupSizes[static_cast<size_t>(size)] }) {
            connect(entry, &QAction::triggered, this, [this, size] { cmd_HelpImageSize(size); });
        }
    }
    connect(&copy, &QAction::triggered, &m_viewer, &ctrlPictureViewer::Copy);
    connect(&m_viewer, &ctrlPictureViewer::popupMenuRequested, this,
            [this](const QPoint &at) { m_popup.popup(at); });
}

void HelpImagePanel::load()
{
    m_files = ReadHelpImageFolders(m_folders.programFolder);
    for (int size = 1; size <= kHelpImageSizeCount; ++size) {
        const bool available = !m_files[static_cast<size_t>(size)].empty();
        m_menuSizes[static_cast<size_t>(size)]->setEnabled(available);
        m_popupSizes[static_cast<size_t>(size)]->setEnabled(available);
    }
    const int stored = ReadDefHelpImage(m_folders.settingsFolder);
    m_size = stored >= 1 && stored <= kHelpImageSizeCount ? stored : kDefaultSize;
    ShowHelpImage(m_files[static_cast<size_t>(m_size)]);
    tick(m_size);
}

void HelpImagePanel::cmd_HelpImageSize(int size)
{
    if (size < 1 || size > kHelpImageSizeCount)
        return;
    m_size = size;
    WriteDefHelpImage(m_folders.settingsFolder, size);
    ShowHelpImage(m_files[static_cast<size_t>(size)]);
    m_viewer.Refresh();
    tick(size);
}

void HelpImagePanel::ShowHelpImage(const std::string &fileName)
{
    if (fileName.empty())
        return;
    const QString path = QString::fromStdString(m_folders.programFolder + fileName);
    QPixmap picture;
    if (!QFileInfo(path).isFile() || !picture.load(path))
        return;
    m_viewer.setPicture(picture);
}

void HelpImagePanel::tick(int size)
{
    for (int i = 1; i <= kHelpImageSizeCount; ++i) {
        m_menuSizes[static_cast<size_t>(i)]->setChecked(i == size);
        m_popupSizes[static_cast<size_t>(i)]->setChecked(i == size);
    }
}
