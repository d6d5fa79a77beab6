#pragma once

#include "GlobalData.h"
#include "SettingsFiles.h"

#include <QObject>

#include <array>
#include <string>

class QAction;
class QMenu;
class ctrlPictureViewer;

// The help image of the Help tab: the image file of each size (HelpImages.ini), the chosen size
// (DefHelpImg.ini), the picture viewer ctrlPictureViewer1 showing it, the two size menus
// mnuHelp_Image_Size(1..4) and mnuHelpImage_Image_Size(1..4) with their ticks, and the pop-up
// menu mnuHelpImage with its Copy entry.
class HelpImagePanel : public QObject
{
    Q_OBJECT

public:
    using SizeEntries = std::array<QAction *, kHelpImageSizeCount + 1>; // [0] unused

    // The size shown when DefHelpImg.ini names none.
    static constexpr int kDefaultSize = 2;

    HelpImagePanel(ctrlPictureViewer &viewer, const GlobalData &folders,
                   const SizeEntries &menuSizes, const SizeEntries &popupSizes, QMenu &popup,
                   QAction &copy, QObject *parent = nullptr);

    // Start-up: reads the image files and the stored size, shows that size and ticks it. Sizes
    // without an image file are not offered.
    void load();

    // Chooses size `size` (1 to 4): stores it in DefHelpImg.ini, shows its image and ticks its
    // entry, and only that one, in both size menus.
    void cmd_HelpImageSize(int size);

    // Shows the image file `fileName` of the program folder. An empty name does nothing; a
    // missing or unreadable file shows nothing and says nothing.
    void ShowHelpImage(const std::string &fileName);

    int size() const { return m_size; }
    const HelpImageFiles &files() const { return m_files; }

private:
    void tick(int size);

    ctrlPictureViewer &m_viewer;
    const GlobalData &m_folders;
    SizeEntries m_menuSizes;
    SizeEntries m_popupSizes;
    QMenu &m_popup;
    HelpImageFiles m_files {};
    int m_size = kDefaultSize;
};
