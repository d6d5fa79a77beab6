#include "ChannelPane.h"

#include "ChecksPanel.h"

#include <QAction>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenu>

ChannelPane buildChannelPane(QMainWindow &window, QMenu &viewMenu)
{
    ChannelPane pane;
    pane.dock = new QDockWidget(QStringLiteral("Channel"), &window);
    pane.dock->setObjectName(QStringLiteral("channelDock"));
    pane.dock->setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
    pane.checks = new ChecksPanel(pane.dock);
    pane.checks->setMinimumWidth(340);
    pane.dock->setWidget(pane.checks);
    window.addDockWidget(Qt::RightDockWidgetArea, pane.dock);

    pane.mnuView = &viewMenu;
    // The dock's own toggle action follows the pane however it is closed or shown.
    pane.mnuView_ChannelPane = pane.dock->toggleViewAction();
    pane.mnuView_ChannelPane->setText(QStringLiteral("&Channel Pane"));
    pane.mnuView_ChannelPane->setObjectName(QStringLiteral("mnuView_ChannelPane"));
    viewMenu.insertAction(viewMenu.actions().value(0), pane.mnuView_ChannelPane);
    return pane;
}
