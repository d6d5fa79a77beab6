#pragma once

#include <QObject>
#include <QString>

#include <functional>

class ChannelPane;
class Prompts;
class QAction;
class QDockWidget;
class QMainWindow;
struct MainMenus;

// The channel pane in a dock on the right of the main window ("channelDock", titled "Channel"),
// shown and hidden by View > Channel Pane. The window keeps its tabs as the central widget, so
// the pages lay out and scroll as they do without the pane. WindowPlacementFiles keeps the
// pane's visibility and width between runs.
class ChannelPaneDock : public QObject
{
public:
    ChannelPaneDock(QMainWindow &window, const MainMenus &menus, Prompts &prompts,
                    std::function<QString()> dataFolder);

    ChannelPane *pane() const { return m_pane; }
    QDockWidget *dock() const { return m_dock; }

protected:
    // Keeps View > Channel Pane checked exactly while the dock is shown, however it was shown
    // or hidden (the menu, its close button, the window's stored placement).
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QAction *m_toggle = nullptr;
    QDockWidget *m_dock = nullptr;
    ChannelPane *m_pane = nullptr;
};

// Object name of the dock, by which the window's placement finds it.
extern const char *const kChannelDockName; // "channelDock"
// Width of the pane when nothing else decides it, and the window width from which it is shown
// by default: the tabs keep the width of their pages beside it.
constexpr int kChannelPaneDefaultWidth = 440;
constexpr int kChannelPaneShownFromWidth = 1240;
