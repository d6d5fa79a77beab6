#include "WindowPlacementFiles.h"

#include "GlobalData.h"
#include "SettingsFiles.h"

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
    return placement.state && *placement.state == static_cast<int>(WindowShowState::Maximised);
}

void save(const QMainWindow &window, const GlobalData &folders)
{
    WindowShowState state = WindowShowState::Normal;
    if (window.isMinimized())
        state = WindowShowState::Minimised;
    else if (window.isMaximized())
        state = WindowShowState::Maximised;
    WriteWindowState(folders.settingsFolder + kWindowStateFile, state, toTwips(window.y()),
                     toTwips(window.x()), toTwips(window.height()), toTwips(window.width()));
}

} // namespace WindowPlacementFiles
