#pragma once

#include <array>
#include <vector>

class QAction;
class QMainWindow;
class QMenu;
class QToolBar;

// The menu bar, the help-image pop-up menu and the toolbar of the main window, with the names
// and captions of the old form: mnuFile_New is the action named "mnuFile_New"; entries of a
// menu array are named with their index, "mnuFile_Recent_3". The window connects the actions.
struct MainMenus
{
    QMenu *mnuFile = nullptr;
    QAction *mnuFile_New = nullptr;
    QAction *mnuFile_Open = nullptr;
    QAction *mnuFile_Save = nullptr;
    QAction *mnuFile_SaveAs = nullptr;
    QAction *mnuFile_Print = nullptr;
    QAction *mnuFile_ExportPdf = nullptr; // the report as a PDF file, offered with Print
    QAction *mnuFile_PrintPreview = nullptr; // the report's pages on screen, offered with Print
    QAction *mnuFile_PrintSetup = nullptr;
    QAction *mnuFile_Separator3 = nullptr;
    std::array<QAction *, 6> mnuFile_Recent {}; // [0] unused: entries 1 to 5
    QAction *cmdFile_Example = nullptr;
    QAction *mnuFile_Exit = nullptr;

    // Between File and Help: the panes and windows beside the three tabs.
    QMenu *mnuView = nullptr;
    QAction *mnuView_ChannelPane = nullptr; // checkable: the channel pane is shown
    QAction *mnuView_DesignExplorer = nullptr;

    QMenu *mnuHelp = nullptr;
    std::vector<QAction *> helpTopics; // one entry per topic of kHelpTopics, in its order
    QMenu *mnuHelp_Image = nullptr;
    std::array<QAction *, 5> mnuHelp_Image_Size {}; // [0] unused: sizes 1 to 4
    QAction *mnuHelp_About = nullptr;

    QMenu *mnuHelpImage = nullptr; // pop-up of the help image, not in the menu bar
    std::array<QAction *, 5> mnuHelpImage_Image_Size {}; // [0] unused: sizes 1 to 4
    QAction *mnuHelpImage_Copy = nullptr;

    QToolBar *Toolbar1 = nullptr;
    // The toolbar's buttons, tagged "New", "Open", "Save" and "Print" in this order; [0] unused.
    std::array<QAction *, 5> toolbarButtons {};

    QAction *toolbarPrint() const { return toolbarButtons[4]; }
};

// Builds the menus and the toolbar of `window`.
MainMenus buildMainMenus(QMainWindow &window);
