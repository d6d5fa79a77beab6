#include "WindowPlacementFiles.h"

#include "ChannelPaneDock.h"
#include "GlobalData.h"
#include "SettingsFiles.h"

#include <QDockWidget>
#include <QGuiApplication>
#include <QMainWindow>
#include <QScreen>

namespace {

int toPixels(int twips)
{
    return twips / kTwipsPerPixel;
}

int toTwips(int pixels)
{
    return pixels * kTwipsPerPixel;
}

bool isOnSomeScreen(const QRect &frame)
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (const QScreen *screen : screens) {
        if (screen->availableGeometry().intersects(frame))
            return true;
    }
    return false;
}

QDockWidget *channelDock(const QMainWindow &window)
{
    return window.findChild<QDockWidget *>(QLatin1String(kChannelDockName),
                                           Qt::FindDirectChildrenOnly);
}

// The channel pane as it was left, or, the first time, shown when the window is wide enough
// for the tabs' pages beside it.
void restoreChannelPane(QMainWindow &window, const WindowPlacement &placement, bool maximised)
{
    QDockWidget *dock = channelDock(window);
    if (!dock)
        return;
    int windowWidth = window.width();
    if (maximised && window.screen())
        windowWidth = window.screen()->availableGeometry().width();
    const bool shown = placement.channelPane ? *placement.channelPane != 0
                                             : windowWidth >= kChannelPaneShownFromWidth;
    dock->setVisible(shown);
    int width = kChannelPaneDefaultWidth;
    if (placement.channelPaneWidth && *placement.channelPaneWidth > 0)
        width = toPixels(*placement.channelPaneWidth);
    window.resizeDocks({ dock }, { width }, Qt::Horizontal);
}

PanePlacement panePlacement(const QMainWindow &window)
{
    PanePlacement panes;
    if (const QDockWidget *dock = channelDock(window)) {
        panes.channelPane = dock->isHidden() ? 0 : 1;
        if (!dock->isHidden())
            panes.channelPaneWidth = toTwips(dock->width());
    }
    return panes;
}

} // namespace

namespace WindowPlacementFiles {

bool restore(QMainWindow &window, const GlobalData &folders)
{
    WindowPlacement placement;
    ReadDefWindowSize(folders.programFolder + kDefWindowSizeFile, placement);
    ReadWindowState(folders.settingsFolder + kWindowStateFile, placement);

    QSize size = window.size();
    if (placement.width && *placement.width > 0)
        size.setWidth(toPixels(*placement.width));
    if (placement.height && *placement.height > 0)
        size.setHeight(toPixels(*placement.height));
    window.resize(size);
    if (placement.left && placement.top) {
        const QPoint place(toPixels(*placement.left), toPixels(*placement.top));
        if (isOnSomeScreen(QRect(place, size)))
            window.move(place);
    }
    const bool maximised
            = placement.state && *placement.state == static_cast<int>(WindowShowState::Maximised);
    restoreChannelPane(window, placement, maximised);
    return maximised;
}

void save(const QMainWindow &window, const GlobalData &folders)
{
    WindowShowState state = WindowShowState::Normal;
    if (window.isMinimized())
        state = WindowShowState::Minimised;
    else if (window.isMaximized())
        state = WindowShowState::Maximised;
    WriteWindowState(folders.settingsFolder + kWindowStateFile, state, toTwips(window.y()),
                     toTwips(window.x()), toTwips(window.height()), toTwips(window.width()),
                     panePlacement(window));
}

} // namespace WindowPlacementFiles
