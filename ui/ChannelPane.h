#pragma once

class ChecksPanel;
class QAction;
class QDockWidget;
class QMainWindow;
class QMenu;

// The channel pane: a dock on the right of the main window (object name "channelDock", title
// "Channel") that shows the hydraulic checks beside the pages; the checkable "&Channel Pane" of
// the "&View" menu shows and hides it.
struct ChannelPane
{
    QDockWidget *dock = nullptr;
    QMenu *mnuView = nullptr;
    QAction *mnuView_ChannelPane = nullptr;
    ChecksPanel *checks = nullptr;
};

// Builds the pane in `window` and adds its entry to `viewMenu`.
ChannelPane buildChannelPane(QMainWindow &window, QMenu &viewMenu);
